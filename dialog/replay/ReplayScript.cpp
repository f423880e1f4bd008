#include "dialog/replay/ReplayScript.h"

#include "dialog/host/HostOperationNames.h"
#include "dialog/replay/ScriptField.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

using enum FieldType;
using PanelOperation = SessionObserver::PanelOperation;

constexpr bool kOptional = false;
constexpr double kWindowHeight = 800;

QString text(const QJsonObject &line, const char *name)
{
    return line.value(QLatin1String(name)).toString();
}

std::optional<double> numberOrNone(const QJsonValue &value)
{
    return value.isDouble() ? std::optional(value.toDouble()) : std::nullopt;
}

// A missing, null or empty string differ: null stands for "none".
QString textOrNull(const QJsonValue &value)
{
    if (!value.isString())
        return {};
    const QString string = value.toString();
    return string.isNull() ? u""_s : string;
}

QStringList textList(const QJsonValue &value)
{
    QStringList texts;
    for (const QJsonValue text : value.toArray())
        texts << text.toString();
    return texts;
}

PMPaper paperOf(const QJsonObject &paper)
{
    return {text(paper, "name"), textOrNull(paper["ppdName"_L1]), paper["width"_L1].toDouble(),
            paper["height"_L1].toDouble()};
}

QMap<QString, QString> textMap(const QJsonObject &map)
{
    QMap<QString, QString> texts;
    for (auto entry = map.begin(); entry != map.end(); ++entry)
        texts.insert(entry.key(), entry.value().toString());
    return texts;
}

std::set<HostOperation> lackingOf(const QJsonValue &list)
{
    std::set<HostOperation> operations;
    for (const QString &name : textList(list))
        operations.insert(hostOperationNamed(name).value());
    return operations;
}

ReplayAction openOf(const QJsonObject &line, const QDir &folder)
{
    ReplayOpen open;
    SessionOptions &options = open.options;
    options.ppdPath = folder.absoluteFilePath(text(line, "ppd"));
    options.dialogType = line["type"_L1].toString(options.dialogType);
    options.marks = textMap(line["marks"_L1].toObject());
    options.ticket = line["ticket"_L1].toObject().toVariantMap();
    if (line.contains("paper"_L1))
        options.paper = paperOf(line["paper"_L1].toObject());
    const QStringList languages = textList(line["languages"_L1]);
    options.languages = languages.isEmpty() ? QStringList{u"en"_s} : languages;
    if (text(line, "strings") == "keys"_L1)
        options.strings = Bundle::Strings::Keys;
    options.alertMemory = line["alerts"_L1].toObject().toVariantMap();
    options.refused = textList(line["refuse"_L1]);
    options.lacking = lackingOf(line["lacks"_L1]);
    options.info = line["info"_L1].toObject().toVariantMap();
    options.restore = line["restore"_L1].toBool(true);
    open.windowHeight = line.contains("windowHeight"_L1) ? numberOrNone(line["windowHeight"_L1])
                                                         : std::optional(kWindowHeight);
    return open;
}

ReplayAction showOf(const QJsonObject &line, const QDir &)
{
    return ReplayShow{text(line, "panel")};
}

template <PanelOperation operation> ReplayAction panelCallOf(const QJsonObject &line, const QDir &)
{
    return ReplayPanelCall{operation, text(line, "panel")};
}

ReplayAction pickOf(const QJsonObject &line, const QDir &)
{
    ReplayPick pick{text(line, "panel"), text(line, "control"), std::nullopt, std::nullopt};
    if (line.contains("choice"_L1))
        pick.choice = text(line, "choice");
    if (line.contains("checked"_L1))
        pick.checked = line["checked"_L1].toBool();
    return pick;
}

ReplayAction slideOf(const QJsonObject &line, const QDir &)
{
    return ReplaySlide{text(line, "keyword"), line["value"_L1].toDouble()};
}

ReplayAction foldOf(const QJsonObject &line, const QDir &)
{
    return ReplayFold{text(line, "panel"), line["open"_L1].toBool()};
}

ReplayAction paperEventOf(const QJsonObject &line, const QDir &)
{
    ReplayPaper event{paperOf(line), std::nullopt};
    if (line.contains("mapped"_L1))
        event.mapped = textOrNull(line["mapped"_L1]);
    return event;
}

ReplayAction markOf(const QJsonObject &line, const QDir &)
{
    return ReplayMark{text(line, "keyword"), text(line, "choice")};
}

ReplayAction ticketOf(const QJsonObject &line, const QDir &)
{
    const QJsonValue value = line["value"_L1];
    return ReplayTicket{text(line, "key"), value.isNull() ? QVariant() : value.toVariant()};
}

ReplayAction windowOf(const QJsonObject &line, const QDir &)
{
    return ReplayWindow{numberOrNone(line["height"_L1])};
}

ReplayAction pictureOf(const QJsonObject &line, const QDir &folder)
{
    return ReplayPicture{folder, text(line, "file")};
}

ReplayAction postOf(const QJsonObject &line, const QDir &)
{
    ReplayPost post{text(line, "name"), std::nullopt};
    if (line.contains("userInfo"_L1))
        post.userInfo = line["userInfo"_L1].toObject().toVariantMap();
    return post;
}

ReplayAction whyOf(const QJsonObject &line, const QDir &)
{
    return ReplayWhy{text(line, "keyword"), text(line, "choice")};
}

template <typename Action> ReplayAction bare(const QJsonObject &, const QDir &)
{
    return Action{};
}

struct EventRule
{
    const char *kind;
    ReplayAction (*make)(const QJsonObject &line, const QDir &folder);
    std::vector<ScriptField> fields;
};

const ScriptField kPanel = {"panel", Text};

const std::vector<EventRule> &eventRules()
{
    static const std::vector<EventRule> rules = {
        {"open",
         openOf,
         {{"ppd", Text},
          {"type", Text, kOptional},
          {"marks", TextMap, kOptional},
          {"ticket", TicketMap, kOptional},
          {"paper", Paper, kOptional},
          {"languages", TextList, kOptional},
          {"strings", StringsSource, kOptional},
          {"alerts", BooleanMap, kOptional},
          {"refuse", TextList, kOptional},
          {"lacks", LackingList, kOptional},
          {"info", Object, kOptional},
          {"windowHeight", NumberOrNull, kOptional},
          {"restore", Boolean, kOptional}}},
        {"show", showOf, {kPanel}},
        {"hide", panelCallOf<PanelOperation::Hide>, {kPanel}},
        {"pick",
         pickOf,
         {kPanel, {"control", Text}, {"choice", Text, kOptional}, {"checked", Boolean, kOptional}}},
        {"slide", slideOf, {{"keyword", Text}, {"value", Number}}},
        {"revert", bare<ReplayRevert>, {}},
        {"fold", foldOf, {kPanel, {"open", Boolean}}},
        {"paper",
         paperEventOf,
         {{"name", Text},
          {"ppdName", TextOrNull},
          {"width", Number},
          {"height", Number},
          {"mapped", TextOrNull, kOptional}}},
        {"mark", markOf, {{"keyword", Text}, {"choice", Text}}},
        {"ticket", ticketOf, {{"key", Text}, {"value", TicketValueOrNull}}},
        {"window", windowOf, {{"height", NumberOrNull}}},
        {"watch", bare<ReplayWatch>, {}},
        {"restore", panelCallOf<PanelOperation::Restore>, {kPanel}},
        {"save", panelCallOf<PanelOperation::Save>, {kPanel}},
        {"summary", panelCallOf<PanelOperation::Summary>, {kPanel}},
        {"help", panelCallOf<PanelOperation::Help>, {kPanel}},
        {"picture", pictureOf, {{"file", Text}}},
        {"post", postOf, {{"name", Text}, {"userInfo", Object, kOptional}}},
        {"why", whyOf, {{"keyword", Text}, {"choice", Text}}},
        {"print", bare<ReplayPrint>, {}},
        {"state", bare<ReplayState>, {}},
        {"close", bare<ReplayClose>, {}},
    };
    return rules;
}

QString faultOf(const QJsonObject &line, const EventRule &rule)
{
    static constexpr ScriptField answers[] = {{"answers", AnswerList, kOptional}};
    QString fault = checkFields(line, rule.fields);
    if (!fault.isNull())
        return fault;
    if (rule.make == pickOf && !line.contains("choice"_L1) && !line.contains("checked"_L1))
        return u"\"choice\" or \"checked\" is missing"_s;
    return checkFields(line, answers);
}

QList<ReplayAnswer> answersOf(const QJsonArray &list)
{
    QList<ReplayAnswer> answers;
    for (const QJsonValue item : list) {
        ReplayAnswer answer;
        if (item["button"_L1].isDouble())
            answer.button = item["button"_L1].toInt();
        if (item["suppress"_L1].isBool())
            answer.suppress = item["suppress"_L1].toBool();
        answers << answer;
    }
    return answers;
}

using ReadLine = Result<std::optional<ReplayEvent>>;

Fault scriptFault(const QString &what)
{
    return {FaultKind::Request, what};
}

ReadLine readObject(const QJsonObject &line, const QDir &folder)
{
    static constexpr ScriptField kind[] = {{"do", Text}};
    const QString noKind = checkFields(line, kind);
    if (!noKind.isNull())
        return scriptFault(noKind);
    const QString name = text(line, "do");
    const auto rule = std::ranges::find_if(
        eventRules(), [&](const EventRule &known) { return name == QLatin1String(known.kind); });
    if (rule == eventRules().end())
        return scriptFault(u"there is no event \"%1\""_s.arg(name));
    const QString fault = faultOf(line, *rule);
    if (!fault.isNull())
        return scriptFault(name + u": "_s + fault);
    return std::optional(
        ReplayEvent{name, rule->make(line, folder), answersOf(line["answers"_L1].toArray())});
}

} // namespace

ReadLine readReplayLine(const QByteArray &line, const QDir &folder)
{
    const QByteArray content = line.trimmed();
    if (content.isEmpty() || content.startsWith('#'))
        return {};
    QJsonParseError error{};
    const auto document = QJsonDocument::fromJson(content, &error);
    if (document.isObject())
        return readObject(document.object(), folder);
    if (error.error == QJsonParseError::NoError)
        return scriptFault(u"not a JSON object"_s);
    return scriptFault(u"not a JSON object (%1)"_s.arg(error.errorString()));
}
