#include "tests/sources/Catalogues.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtXml/QDomDocument>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A message of a catalogue, as the toolkit's own reader of sources leaves it.
struct Message
{
    QString context;
    QString source;
    QString translation;
    QString state; ///< empty when it is in order, "unfinished", "vanished" or "obsolete"
};

QString textOf(const QDomElement &parent, const QString &child)
{
    return parent.firstChildElement(child).text();
}

QList<Message> messagesOf(const QString &catalogue)
{
    QFile file(catalogue);
    QDomDocument document;
    if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file)) {
        ADD_FAILURE() << qPrintable(catalogue) << " cannot be read";
        return {};
    }
    QList<Message> messages;
    const QDomNodeList elements = document.elementsByTagName(u"message"_s);
    for (int index = 0; index < elements.size(); ++index) {
        const QDomElement message = elements.at(index).toElement();
        const QDomElement translation = message.firstChildElement(u"translation"_s);
        messages.append({textOf(message.parentNode().toElement(), u"name"_s),
                         textOf(message, u"source"_s), translation.text(),
                         translation.attribute(u"type"_s)});
    }
    return messages;
}

/// Brings the catalogue up to the sources of the folders.
void update(const QString &catalogue, const QStringList &folders)
{
    QProcess lupdate;
    lupdate.setProcessChannelMode(QProcess::MergedChannels);
    lupdate.start(QStringLiteral(VELKARO_LUPDATE),
                  QStringList{u"-silent"_s, u"-locations"_s, u"none"_s} + folders +
                      QStringList{u"-ts"_s, catalogue});
    if (!lupdate.waitForFinished() || lupdate.exitStatus() != QProcess::NormalExit ||
        lupdate.exitCode() != 0)
        ADD_FAILURE() << lupdate.errorString().toStdString() << lupdate.readAll().toStdString();
}

} // namespace

QStringList catalogueFaults(const QString &catalogue, const QStringList &folders)
{
    const QTemporaryDir scratch;
    const QString copy = scratch.filePath(QFileInfo(catalogue).fileName());
    EXPECT_TRUE(QFile::copy(catalogue, copy)) << qPrintable(catalogue);
    update(copy, folders);
    QStringList faults;
    for (const Message &message : messagesOf(copy)) {
        const QString place = message.context + u": "_s + message.source;
        if (message.state == "vanished"_L1 || message.state == "obsolete"_L1)
            faults += place + u": is said nowhere"_s;
        else if (!message.state.isEmpty() || message.translation.isEmpty())
            faults += place + u": is not translated"_s;
    }
    return faults;
}

QStringList translatedKeys(const QString &catalogue)
{
    QStringList keys;
    for (const Message &message : messagesOf(catalogue))
        if (message.state.isEmpty() && !message.translation.isEmpty())
            keys += message.source;
    return keys;
}

QStringList keysLookedUp(const QString &source)
{
    static const QRegularExpression call(uR"(\blocalized\(([^()]*)\))"_s);
    static const QRegularExpression literal(u"\"([^\"]*)\""_s);
    QStringList keys;
    for (const QRegularExpressionMatch &lookUp : call.globalMatch(source))
        for (const QRegularExpressionMatch &key : literal.globalMatch(lookUp.captured(1)))
            keys += key.captured(1);
    return keys;
}
