#include "dialog/replay/ReplayScript.h"
#include "dialog/replay/ReplaySession.h"
#include "tests/built/BuiltFiles.h"
#include "tests/fuzz/Harnesses.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QJsonDocument>
#include <QtCore/QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kMostLines = 24; // a long script tries no more than several short ones

/// A folder of its own with the sample printers in it, emptied of what a script has written.
QDir scriptFolder()
{
    static const QTemporaryDir folder;
    const QDir dir(folder.path());
    for (const QString &name : dir.entryList(QDir::Files | QDir::NoSymLinks | QDir::Hidden))
        QFile::remove(dir.filePath(name));
    const QDir samples(samplePPDFolder());
    for (const QString &name : samples.entryList({u"*.ppd"_s}))
        QFile::link(samples.filePath(name), dir.filePath(name));
    return dir;
}

} // namespace

/// Every event that runs gives one line, which is a JSON object.
void runReplayScript(const QByteArray &script)
{
    const QDir folder = scriptFolder();
    ReplaySession session(builtBundle());
    const QByteArrayList lines = script.split('\n').mid(0, kMostLines);
    for (const QByteArray &text : lines) {
        const auto event = readReplayLine(text, folder);
        if (!event)
            return;
        if (!*event)
            continue;
        const auto line = session.run(**event);
        if (!line)
            return;
        require(!line->contains('\n') && QJsonDocument::fromJson(*line).isObject(),
                "an event's report is one JSON object in one line");
    }
}
