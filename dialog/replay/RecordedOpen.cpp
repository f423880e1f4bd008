#include "dialog/files/PathBytes.h"
#include "dialog/host/CustomParameters.h"
#include "dialog/host/HostOperationNames.h"
#include "dialog/host/HostSession.h"
#include "dialog/host/PPDMarks.h"
#include "dialog/replay/RecordedEvent.h"
#include "dialog/replay/Recorder.h"
#include "platform/foundation/PreferredLanguages.h"
#include "platform/toolkit/KeyWindow.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMostCopies = 1000;

QJsonObject marksBesideDefaults(const HostSession &session)
{
    QJsonObject marks;
    for (const PPDMark &mark : changedMarks(session.ppd(), session.defaultMarks()))
        marks.insert(mark.keyword, withoutSecrets(session.ppd(), mark.keyword, mark.choice));
    return marks;
}

QJsonValue paperValue(const std::optional<PMPaper> &paper)
{
    if (!paper)
        return {};
    return QJsonObject{{u"name"_s, paper->name},
                       {u"ppdName"_s, textOrNull(paper->ppdName)},
                       {u"width"_s, paper->width},
                       {u"height"_s, paper->height}};
}

QJsonArray lackingValue(const std::set<HostOperation> &operations)
{
    QJsonArray names;
    for (const HostOperation operation : operations)
        names << nameOf(operation);
    return names;
}

bool isEmpty(const QJsonValue &value)
{
    return value.isNull() || (value.isObject() && value.toObject().isEmpty()) ||
           (value.isArray() && value.toArray().isEmpty());
}

struct Place
{
    QString folder; // with the slash at its end; empty: the current one
    QString base;   // what the copies' names begin with
};

/// Beside the script; there is nothing beside a device or a pipe.
Place placeOfCopies(const RecordedScript &script)
{
    const QString name = script.path().section(u'/', -1);
    const qsizetype dot = name.lastIndexOf(u'.');
    return {script.isStream() ? QString() : script.path().chopped(name.size()),
            dot > 0 ? name.left(dot) : name};
}

QString nameOfCopy(const QString &base, int number)
{
    return (number == 1 ? base : base + u'-' + QString::number(number)) + u".ppd"_s;
}

bool holds(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return identityOf(path) && file.open(QIODevice::ReadOnly) && file.readAll() == bytes;
}

} // namespace

Result<> Recorder::attach(HostSession &session)
{
    if (!m_state)
        return m_state;
    const Result<QString> ppd = copyPPD(session);
    if (!ppd) {
        m_state = ppd.fault();
        return m_state;
    }
    follow(session);
    m_script.note(recordedOpen(session, *ppd), {});
    return m_state;
}

/// Copies the PPD beside the script, and gives the copy's name as the script has it. A file that is
/// there already is used when it has the same content, and left alone otherwise.
Result<QString> Recorder::copyPPD(const HostSession &session)
{
    QFile original(session.options().ppdPath);
    const bool isOpen = original.open(QIODevice::ReadOnly);
    const QByteArray ppd = original.readAll();
    const auto [folder, base] = placeOfCopies(m_script);
    for (int number = 1; isOpen && number <= kMostCopies; ++number) {
        QString name = nameOfCopy(base, number);
        if (holds(folder + name, ppd))
            return name;
        if (verdictAt(folder + name, {}) != OutputVerdict::Create)
            continue;
        const auto &copy = m_copies.emplace_back(std::make_unique<OutputFile>());
        return copy->open(folder + name, {}, OutputFile::Appears::AtOnce)
            .andThen([&] { return copy->write(ppd); })
            .andThen([&] { return Result<QString>(name); });
    }
    return Fault{FaultKind::Output,
                 QCoreApplication::translate("Recorder", "The PPD cannot be copied to %1: %2")
                     .arg(shownPath(folder + nameOfCopy(base, 1)),
                          isOpen ? QCoreApplication::translate("Recorder", "no name is free")
                                 : original.errorString())};
}

OrderedMembers recordedOpen(const HostSession &session, const QString &ppd)
{
    const SessionOptions &options = session.options();
    const OrderedMembers optional{
        {u"marks"_s, marksBesideDefaults(session)},
        {u"ticket"_s, jsonObject(session.ticket().values())},
        {u"paper"_s, paperValue(session.pageFormat().paper)},
        {u"alerts"_s, jsonObject(options.alertMemory.value_or(session.alertMemory()))},
        {u"refuse"_s, QJsonArray::fromStringList(options.refused)},
        {u"lacks"_s, lackingValue(options.lacking)},
        {u"info"_s, jsonObject(options.info)},
    };
    OrderedMembers event{{u"do"_s, u"open"_s}, {u"ppd"_s, ppd}, {u"type"_s, options.dialogType}};
    for (const auto &member : optional) {
        if (!isEmpty(member.second))
            event << member;
    }
    const QStringList languages = options.languages.value_or(preferredLanguages());
    event << std::pair(u"languages"_s, QJsonValue(QJsonArray::fromStringList(languages)));
    if (options.strings == Bundle::Strings::Keys)
        event << std::pair(u"strings"_s, QJsonValue(u"keys"_s));
    const std::optional<double> height = keyWindowHeight();
    event << std::pair(u"windowHeight"_s, height ? QJsonValue(*height) : QJsonValue());
    if (!options.restore)
        event << std::pair(u"restore"_s, QJsonValue(false));
    return event;
}
