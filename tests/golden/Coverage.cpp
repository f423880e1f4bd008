#include "tests/golden/Coverage.h"

#include "tests/golden/GoldenCase.h"
#include "tests/golden/SessionView.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kSeen = "seen "_L1;
constexpr auto kPicked = "picked "_L1;
/// Groups with too many names to be read.
constexpr auto kFine = "fine "_L1;
constexpr int kMostNamed = 12;

void count(Coverage &coverage, const QString &name)
{
    ++coverage[name];
}

/// An error without what it is about.
QString kindOfError(QString error)
{
    static const QRegularExpression quoted(u"\"[^\"]*\""_s);
    static const QRegularExpression number(u"value [-0-9.e+]+"_s);
    return error.replace(quoted, u"..."_s).replace(number, u"value ..."_s);
}

void countRecipe(Coverage &coverage, const QJsonObject &recipe)
{
    count(coverage, u"ppd "_s + recipe["base"_L1].toString());
    const QJsonArray edits = recipe["edits"_L1].toArray();
    if (edits.isEmpty())
        count(coverage, u"edit none"_s);
    for (const QJsonValue edit : edits) {
        count(coverage, u"edit "_s + edit["edit"_L1].toString());
        count(coverage, kFine + edit["edit"_L1].toString() + u' ' + edit["keyword"_L1].toString());
    }
}

void countPick(Coverage &coverage, const QJsonObject &event)
{
    const QString control = event["panel"_L1].toString() + u'/' + event["control"_L1].toString();
    const QJsonValue choice = event["choice"_L1];
    count(coverage, kPicked + control + u'=' +
                        (choice.isString() ? choice.toString()
                                           : QVariant(event["checked"_L1].toBool()).toString()));
}

void countEvent(Coverage &coverage, const QJsonObject &event, const QJsonObject &line)
{
    const QString kind = event["do"_L1].toString();
    count(coverage, u"do "_s + kind);
    if (line.contains("error"_L1))
        count(coverage, u"error "_s + kind + u": "_s + kindOfError(line["error"_L1].toString()));
    else if (kind == "pick"_L1)
        countPick(coverage, event);
    if (kind != "open"_L1)
        return;
    for (const QString &member : event.keys())
        count(coverage, u"open "_s + member);
    count(coverage,
          u"languages "_s +
              QString::fromUtf8(
                  QJsonDocument(event["languages"_L1].toArray()).toJson(QJsonDocument::Compact)));
}

void countAlerts(Coverage &coverage, const QJsonArray &alerts)
{
    for (const QJsonValue alert : alerts) {
        const QString headline = alert["title"_L1].toString(alert["text"_L1].toString());
        const QString suppressed = !alert["suppression"_L1].toBool() ? QString()
                                   : alert["suppressed"_L1].toBool() ? u", suppressed"_s
                                                                     : u", not suppressed"_s;
        count(coverage, u"alert "_s + alert["kind"_L1].toString() + u" \""_s +
                            headline.simplified() + u"\" button "_s +
                            QString::number(alert["answer"_L1].toInt()) + suppressed);
    }
}

void countMessages(Coverage &coverage, const QJsonObject &line)
{
    for (const QJsonValue call : line["calls"_L1].toArray()) {
        const bool isPick = call["call"_L1] == "willChangePPDOptionKeyValue"_L1;
        count(coverage, u"call "_s + call["call"_L1].toString() +
                            (!isPick                        ? QString()
                             : call["accepted"_L1].toBool() ? u" accepted"_s
                                                            : u" refused"_s));
        count(coverage, kFine + call["keyword"_L1].toString() + u'=' +
                            call["choice"_L1].toString() +
                            QVariant(call["accepted"_L1].toBool()).toString());
    }
    for (const QJsonValue posted : line["notifications"_L1].toArray())
        count(coverage, u"notification "_s + posted["name"_L1].toString() + u' ' +
                            posted["userInfo"_L1]["PointTo"_L1].toString());
}

void countState(Coverage &coverage, const QJsonObject &line)
{
    for (const ShownControl &control : SessionView(line).controls()) {
        const QString name = control.panel + u'/' + control.name;
        for (const QString &choice : control.choices)
            count(coverage, kSeen + name + u'=' + choice);
        if (control.isCheck && control.isUsable)
            count(coverage, kSeen + name + u"=true"_s);
        count(coverage, kFine + name + u'=' + control.choices.join(u',') + u'/' +
                            control.blockedChoices.join(u',') +
                            QVariant(control.isUsable).toString());
    }
    const QJsonObject panels = line["panels"_L1].toObject();
    for (const QString &panel : panels.keys()) {
        const int flags = panels[panel]["flags"_L1].toInt();
        for (int bit = 1; bit <= 0x20000; bit <<= 1)
            if (flags & bit)
                count(coverage, u"flag "_s + panel + u" 0x"_s + QString::number(bit, 16));
        count(coverage, kFine + panel + QString::number(panels[panel]["height"_L1].toInt()));
    }
}

void countScript(Coverage &coverage, const QByteArray &script, const Recording &recording)
{
    for (const QJsonObject &recipe : recipesOf(script))
        countRecipe(coverage, recipe);
    const QByteArrayList lines = eventLines(script);
    for (qsizetype index = 0; index < recording.events.size(); ++index) {
        const QJsonObject &line = recording.events[index].line;
        countEvent(coverage, QJsonDocument::fromJson(lines.value(index)).object(), line);
        countAlerts(coverage, line["alerts"_L1].toArray());
        countMessages(coverage, line);
        countState(coverage, line);
    }
}

void countRun(Coverage &coverage, const QJsonObject &run, const Recording &recording)
{
    count(coverage, u"run "_s + run["language"_L1].toString(u"en"_s));
    for (const QJsonValue recipe : run["ppds"_L1].toObject())
        countRecipe(coverage, recipe.toObject());
    for (const QJsonValue argument : run["arguments"_L1].toArray())
        if (argument.toString().startsWith(u'-'))
            count(coverage, u"run "_s + argument.toString());
    for (const QByteArray &line : recording.ending)
        if (line.startsWith("stderr"))
            count(coverage, kFine + QString::fromUtf8(line));
}

QString groupOf(const QString &name)
{
    return name.section(u' ', 0, 0) + u' ';
}

/// The choices that were on screen but never picked, by their controls.
QMap<QString, QStringList> neverPicked(const Coverage &coverage)
{
    QMap<QString, QStringList> choices;
    for (const QString &name : coverage.keys()) {
        const QString place = name.mid(kSeen.size());
        if (name.startsWith(kSeen) && !coverage.contains(kPicked + place))
            choices[place.section(u'=', 0, 0)] += place.section(u'=', 1);
    }
    return choices;
}

QString neverPickedText(const Coverage &coverage)
{
    QString text = u"on screen, but never picked\n"_s;
    const auto never = neverPicked(coverage);
    for (auto control = never.begin(); control != never.end(); ++control)
        text += u"%1  %2: %3\n"_s.arg(control->size(), 8)
                    .arg(control.key(), control->mid(0, kMostNamed).join(u", "_s));
    return text;
}

} // namespace

Coverage coverageOfCase(const QString &casePath, const Recording &recording)
{
    Coverage coverage;
    const QByteArray bytes = bytesOf(casePath);
    if (casePath.endsWith(".run"_L1))
        countRun(coverage, QJsonDocument::fromJson(bytes).object(), recording);
    else
        countScript(coverage, bytes, recording);
    count(coverage, u"ending "_s + (casePath.endsWith(".run"_L1) ? u"run "_s : u"session "_s) +
                        QString::fromUtf8(recording.ending.value(0)));
    return coverage;
}

bool isFine(const QString &name)
{
    return name.startsWith(kFine) || name.startsWith(kSeen);
}

void addCoverage(Coverage &to, const Coverage &more)
{
    for (auto entry = more.cbegin(); entry != more.cend(); ++entry)
        to[entry.key()] += entry.value();
}

QString coverageText(const Coverage &coverage)
{
    QString text;
    QString group;
    for (auto entry = coverage.cbegin(); entry != coverage.cend(); ++entry) {
        const QString own = groupOf(entry.key());
        if (isFine(entry.key()))
            continue;
        if (own != group)
            text += own + u'\n';
        group = own;
        text += u"%1  %2\n"_s.arg(entry.value(), 8).arg(entry.key().mid(own.size()));
    }
    return text + neverPickedText(coverage);
}
