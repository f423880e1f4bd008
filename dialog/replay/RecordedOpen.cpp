#include "dialog/host/HostSession.h"
#include "dialog/host/PPDMarks.h"
#include "dialog/replay/LackingNames.h"
#include "dialog/replay/Recorder.h"
#include "platform/foundation/PreferredLanguages.h"
#include "platform/toolkit/KeyWindow.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>

using namespace Qt::StringLiterals;

namespace {

QJsonObject marksBesideDefaults(const HostSession &session)
{
    QJsonObject marks;
    for (const PPDMark &mark : changedMarks(session.ppd(), session.defaultMarks()))
        marks.insert(mark.keyword, mark.choice);
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

} // namespace

bool Recorder::attach(HostSession &session, QString *error)
{
    m_session = &session;
    const QString ppd = copyPPD(error);
    if (ppd.isNull())
        return false;
    session.setObserver(this);
    m_notedHeight = keyWindowHeight().value_or(-1);
    note("open", openEvent(ppd));
    return true;
}

/// Answers the copy's name, as the script has it; null when it cannot be written.
QString Recorder::copyPPD(QString *error)
{
    const QFileInfo script(m_script.path());
    const QString suffix = ++m_sessions == 1 ? QString() : u'-' + QString::number(m_sessions);
    QString name = script.completeBaseName() + suffix + u".ppd"_s;
    const QString copy = script.absolutePath() + u'/' + name;
    const QString original = m_session->options().ppdPath;
    if (QFileInfo(copy) == QFileInfo(original))
        return name;
    QFile::remove(copy);
    QFile file(original);
    if (file.copy(copy))
        return name;
    *error = QCoreApplication::translate("Recorder", "The PPD cannot be copied to %1: %2")
                 .arg(copy, file.errorString());
    return {};
}

OrderedMembers Recorder::openEvent(const QString &ppd) const
{
    const SessionOptions &options = m_session->options();
    const OrderedMembers optional{
        {u"marks"_s, marksBesideDefaults(*m_session)},
        {u"ticket"_s, jsonObject(m_session->ticket().values())},
        {u"paper"_s, paperValue(m_session->pageFormat().paper)},
        {u"alerts"_s, jsonObject(options.alertMemory.value_or(m_session->alertMemory()))},
        {u"refuse"_s, QJsonArray::fromStringList(options.refused)},
        {u"lacks"_s, lackingValue(options.lacking)},
        {u"info"_s, jsonObject(options.info)},
    };
    OrderedMembers event{{u"ppd"_s, ppd}, {u"type"_s, options.dialogType}};
    for (const auto &member : optional) {
        if (!isEmpty(member.second))
            event << member;
    }
    const QStringList languages = options.languages.value_or(preferredLanguages());
    event << std::pair(u"languages"_s, QJsonValue(QJsonArray::fromStringList(languages)));
    if (options.strings == Bundle::Strings::Keys)
        event << std::pair(u"strings"_s, QJsonValue(u"keys"_s));
    event << std::pair(u"windowHeight"_s,
                       m_notedHeight < 0 ? QJsonValue() : QJsonValue(m_notedHeight));
    if (!options.restore)
        event << std::pair(u"restore"_s, QJsonValue(false));
    return event;
}
