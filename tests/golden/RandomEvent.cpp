#include "tests/golden/RandomEvent.h"

#include "tests/golden/RandomOpen.h"

#include <QtCore/QJsonArray>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kImpossible = 15; // per cent
constexpr int kAnswered = 55;   // per cent

const QStringList kPanels{u"print"_s, u"color"_s};
const QStringList kEffects{u"VKBrightness"_s, u"VKContrast"_s, u"VKRed"_s, u"VKGreen"_s,
                           u"VKBlue"_s};

/// An empty object: there is nothing of the kind to do as the session stands.
using Maker = QJsonObject (*)(Random &random, const EventContext &context);

QString randomPanel(Random &random, const SessionView &view)
{
    const QStringList panels = view.panels();
    return panels.isEmpty() ? random.pick(kPanels) : random.pick(panels);
}

template <typename Condition>
QList<ShownControl> controlsThat(const SessionView &view, Condition condition)
{
    QList<ShownControl> controls = view.controls();
    controls.removeIf([&](const ShownControl &control) { return !condition(control); });
    return controls;
}

QJsonObject pickOf(const ShownControl &control, const QString &choice)
{
    return {{u"do"_s, u"pick"_s},
            {u"panel"_s, control.panel},
            {u"control"_s, control.name},
            {u"choice"_s, choice}};
}

QJsonObject pickOf(const ShownControl &control, bool checked)
{
    return {{u"do"_s, u"pick"_s},
            {u"panel"_s, control.panel},
            {u"control"_s, control.name},
            {u"checked"_s, checked}};
}

QJsonObject pickIn(Random &random, const ShownControl &control)
{
    if (control.isCheck)
        return pickOf(control, random.chance(80) ? !control.isChecked : control.isChecked);
    const QStringList all = control.choices + control.blockedChoices;
    return all.isEmpty() ? QJsonObject() : pickOf(control, random.pick(all));
}

// --- What can be done ----------------------------------------------------------------------------

QJsonObject show(Random &random, const EventContext &context)
{
    return {{u"do"_s, u"show"_s}, {u"panel"_s, randomPanel(random, context.view)}};
}

QJsonObject showFirst(Random &random, const EventContext &context)
{
    QStringList hidden = context.view.panels();
    hidden.removeIf([&](const QString &panel) { return context.view.isLoaded(panel); });
    return hidden.isEmpty() ? QJsonObject()
                            : QJsonObject{{u"do"_s, u"show"_s}, {u"panel"_s, random.pick(hidden)}};
}

QJsonObject hide(Random &random, const EventContext &context)
{
    return {{u"do"_s, u"hide"_s}, {u"panel"_s, randomPanel(random, context.view)}};
}

QJsonObject pick(Random &random, const EventContext &context)
{
    const auto controls = controlsThat(context.view, [](const ShownControl &control) {
        return control.isUsable && (control.isCheck || !control.choices.isEmpty());
    });
    if (controls.isEmpty())
        return {};
    const ShownControl control = random.pick(controls);
    return control.isCheck ? pickIn(random, control)
                           : pickOf(control, random.pick(control.choices));
}

/// The choices that other rules hang on.
QJsonObject pickWeighty(Random &random, const EventContext &context)
{
    static const QStringList names{u"mediaTypePopup"_s, u"resolutionPopup"_s, u"monoColorPopup"_s,
                                   u"colorEnhanceButton"_s, u"colorMatchingMatrix"_s};
    const QString name = random.pick(names);
    const auto controls = controlsThat(context.view, [&](const ShownControl &control) {
        return control.name == name && control.isUsable;
    });
    if (controls.isEmpty() || (controls[0].choices.isEmpty() && !controls[0].isCheck))
        return {};
    if (controls[0].choices.contains(u"Best"_s) && random.chance(50))
        return pickOf(controls[0], u"Best"_s);
    return controls[0].isCheck ? pickOf(controls[0], random.chance(75))
                               : pickOf(controls[0], random.pick(controls[0].choices));
}

QJsonObject slide(Random &random, const EventContext &context)
{
    if (!context.view.hasSliders())
        return {};
    const QList<double> values{0,   -20, 20,    random.between(-20, 20) * 1.0,  0.4, -0.5,
                               7.5, 1,   -1.25, random.between(-160, 160) / 8.0};
    return {{u"do"_s, u"slide"_s},
            {u"keyword"_s, random.pick(kEffects)},
            {u"value"_s, random.pick(values)}};
}

QJsonObject revert(Random &, const EventContext &context)
{
    return context.view.hasSliders() ? QJsonObject{{u"do"_s, u"revert"_s}} : QJsonObject();
}

QJsonObject fold(Random &random, const EventContext &context)
{
    const auto buttons = controlsThat(context.view, [](const ShownControl &control) {
        return control.name == "optionButton"_L1 && control.isUsable;
    });
    if (buttons.isEmpty())
        return {};
    const ShownControl button = random.pick(buttons);
    return {{u"do"_s, u"fold"_s},
            {u"panel"_s, button.panel},
            {u"open"_s, random.chance(80) ? !button.isChecked : button.isChecked}};
}

QJsonObject paper(Random &random, const EventContext &context)
{
    QJsonObject event = randomPaper(random, context.facts);
    event["do"_L1] = u"paper"_s;
    if (random.chance(12))
        event["mapped"_L1] =
            random.chance(40) ? QJsonValue() : randomPaper(random, context.facts)["name"_L1];
    return event;
}

QJsonObject mark(Random &random, const EventContext &context)
{
    const RandomChoice choice = randomChoice(random, context.facts);
    return {{u"do"_s, u"mark"_s}, {u"keyword"_s, choice.keyword}, {u"choice"_s, choice.choice}};
}

QJsonObject ticket(Random &random, const EventContext &)
{
    const TicketEntry entry = randomTicketEntry(random);
    return {{u"do"_s, u"ticket"_s}, {u"key"_s, entry.key}, {u"value"_s, entry.value}};
}

QJsonObject window(Random &random, const EventContext &)
{
    return {{u"do"_s, u"window"_s},
            {u"height"_s,
             random.chance(15) ? QJsonValue() : QJsonValue(random.between(-1, 30) * 40.5)}};
}

QJsonObject watch(Random &, const EventContext &context)
{
    return context.view.isLoaded(u"color"_s) ? QJsonObject{{u"do"_s, u"watch"_s}} : QJsonObject();
}

QJsonObject panelCall(Random &random, const EventContext &context)
{
    static const QStringList calls{u"restore"_s, u"save"_s, u"summary"_s, u"summary"_s, u"help"_s};
    return {{u"do"_s, random.pick(calls)}, {u"panel"_s, randomPanel(random, context.view)}};
}

QJsonObject picture(Random &, const EventContext &context)
{
    if (!context.view.showsPicture())
        return {};
    return {{u"do"_s, u"picture"_s}, {u"file"_s, u"preview-%1.png"_s.arg(context.number)}};
}

QJsonObject post(Random &random, const EventContext &)
{
    static const QList<QJsonObject> posts{
        {{u"name"_s, u"VKInkPrintSettingNotification"_s}},
        {{u"name"_s, u"VKInkPrintSettingNotification"_s},
         {u"userInfo"_s, QJsonObject{{u"PointTo"_s, u"VKMonoColor"_s}, {u"VKMonoColor"_s, true}}}},
        {{u"name"_s, u"VKInkPrintSettingNotification"_s},
         {u"userInfo"_s, QJsonObject{{u"PointTo"_s, u"VKMonoColor"_s}, {u"VKMonoColor"_s, false}}}},
        {{u"name"_s, u"VKInkPrintSettingNotification"_s},
         {u"userInfo"_s,
          QJsonObject{{u"PointTo"_s, u"VKHalfTonePattern"_s}, {u"VKHalfTonePattern"_s, true}}}},
        {{u"name"_s, u"VKInkPrintSettingNotification"_s},
         {u"userInfo"_s,
          QJsonObject{{u"PointTo"_s, u"VKHalfTonePattern"_s}, {u"VKHalfTonePattern"_s, 0}}}},
        {{u"name"_s, u"VKInkPrintSettingNotification"_s},
         {u"userInfo"_s,
          QJsonObject{{u"PointTo"_s, u"VKColorMatching"_s}, {u"Natural"_s, u"1"_s}}}},
        {{u"name"_s, u"VKInkPrintSettingNotification"_s},
         {u"userInfo"_s, QJsonObject{{u"PointTo"_s, u"Nowhere"_s}}}},
        {{u"name"_s, u"VKInkPrintSettingNotification"_s}, {u"userInfo"_s, QJsonObject()}},
        {{u"name"_s, u"PMPrintDestinationPaperDidChangeNotification"_s}},
        {{u"name"_s, u"PMPrintDuplexChangedNotification"_s}},
        {{u"name"_s, u"NSMenuDidSendActionNotification"_s}, {u"userInfo"_s, QJsonObject()}},
        {{u"name"_s, u"NSWindowWillCloseNotification"_s}},
        {{u"name"_s, u"Other"_s}, {u"userInfo"_s, QJsonObject{{u"a"_s, QJsonArray{1, 2.5}}}}},
    };
    QJsonObject event = random.pick(posts);
    event["do"_L1] = u"post"_s;
    return event;
}

QJsonObject print(Random &, const EventContext &)
{
    return {{u"do"_s, u"print"_s}};
}

QJsonObject state(Random &, const EventContext &)
{
    return {{u"do"_s, u"state"_s}};
}

QJsonObject close(Random &, const EventContext &)
{
    return {{u"do"_s, u"close"_s}};
}

// --- What cannot ---------------------------------------------------------------------------------

QJsonObject pickBlocked(Random &random, const EventContext &context)
{
    const auto controls =
        controlsThat(context.view, [](const ShownControl &control) { return !control.isUsable; });
    return controls.isEmpty() ? QJsonObject() : pickIn(random, random.pick(controls));
}

QJsonObject pickBlockedChoice(Random &random, const EventContext &context)
{
    const auto controls = controlsThat(context.view, [](const ShownControl &control) {
        return control.isUsable && !control.blockedChoices.isEmpty();
    });
    if (controls.isEmpty())
        return {};
    const ShownControl control = random.pick(controls);
    return pickOf(control, random.pick(control.blockedChoices));
}

QJsonObject pickUnknownChoice(Random &random, const EventContext &context)
{
    static const QStringList choices{u"Papyrus"_s, u""_s, u"plain"_s, u"best"_s, u"ON"_s};
    const auto controls = context.view.controls();
    return controls.isEmpty() ? QJsonObject() : pickOf(random.pick(controls), random.pick(choices));
}

QJsonObject pickWrongKind(Random &random, const EventContext &context)
{
    const auto controls = context.view.controls();
    if (controls.isEmpty())
        return {};
    const ShownControl control = random.pick(controls);
    return control.isCheck ? pickOf(control, u"ON"_s) : pickOf(control, true);
}

QJsonObject pickUnknownControl(Random &random, const EventContext &context)
{
    static const QStringList names{u"mediaTypeLabel"_s, u"noPopup"_s, u"tabView"_s, u""_s};
    ShownControl control;
    control.panel = randomPanel(random, context.view);
    control.name = random.pick(names);
    return pickOf(control, u"ON"_s);
}

QJsonObject wrongPanel(Random &random, const EventContext &)
{
    static const QStringList calls{u"show"_s,    u"hide"_s, u"restore"_s, u"save"_s,
                                   u"summary"_s, u"help"_s, u"fold"_s,    u"pick"_s};
    static const QStringList panels{u"paint"_s, u""_s, u"Print"_s};
    return {{u"do"_s, random.pick(calls)},
            {u"panel"_s, random.pick(panels)},
            {u"open"_s, true},
            {u"control"_s, u"optionButton"_s},
            {u"checked"_s, true}};
}

QJsonObject badMark(Random &random, const EventContext &context)
{
    const RandomChoice choice = randomChoice(random, context.facts);
    static const QList<RandomChoice> unknown{{u"VKNothing"_s, u"ON"_s},
                                             {u"VKOutput"_s, u"Fax"_s},
                                             {u""_s, u""_s},
                                             {u"vkmediatype"_s, u"plain"_s}};
    const RandomChoice used =
        random.chance(50) ? RandomChoice{choice.keyword, u"Nowhere"_s} : random.pick(unknown);
    return {{u"do"_s, u"mark"_s}, {u"keyword"_s, used.keyword}, {u"choice"_s, used.choice}};
}

QJsonObject badSlide(Random &random, const EventContext &)
{
    static const QStringList keywords{u"VKBrightness"_s, u"VKRed"_s, u"VKNothing"_s, u""_s};
    static const QList<double> values{3, 21, -20.5, 1e9};
    return {{u"do"_s, u"slide"_s},
            {u"keyword"_s, random.pick(keywords)},
            {u"value"_s, random.pick(values)}};
}

/// Of what needs something that may not be there.
QJsonObject untimely(Random &random, const EventContext &context)
{
    static const QStringList events{u"revert"_s, u"watch"_s, u"picture"_s, u"fold"_s};
    return {{u"do"_s, random.pick(events)},
            {u"file"_s, u"untimely-%1.png"_s.arg(context.number)},
            {u"panel"_s, random.pick(kPanels)},
            {u"open"_s, random.chance(50)}};
}

struct EventRule
{
    int weight;
    Maker make;
};

const QList<EventRule> kPossible{
    {24, pick},  {14, pickWeighty}, {45, showFirst}, {2, show},      {2, hide},
    {6, slide},  {2, revert},       {5, fold},       {11, paper},    {8, mark},
    {4, ticket}, {3, window},       {2, watch},      {9, panelCall}, {2, picture},
    {4, post},   {7, print},        {1, state},      {1, close},
};

const QList<EventRule> kImpossibleEvents{
    {3, pickBlocked},   {3, pickBlockedChoice},  {2, pickUnknownChoice},
    {2, pickWrongKind}, {1, pickUnknownControl}, {3, wrongPanel},
    {2, badMark},       {2, badSlide},           {2, untimely},
};

Maker weightedPick(Random &random, const QList<EventRule> &rules)
{
    int total = 0;
    for (const EventRule &rule : rules)
        total += rule.weight;
    int left = random.below(total);
    for (const EventRule &rule : rules) {
        left -= rule.weight;
        if (left < 0)
            return rule.make;
    }
    return rules.constLast().make;
}

QJsonArray randomAnswers(Random &random)
{
    QJsonArray answers;
    for (int count = random.between(1, 2); count > 0; --count) {
        QJsonObject answer;
        if (random.chance(75))
            answer["button"_L1] = random.chance(5) ? 2 : random.below(2);
        if (random.chance(60))
            answer["suppress"_L1] = random.chance(60);
        answers += answer;
    }
    return answers;
}

} // namespace

QJsonObject randomEvent(Random &random, const EventContext &context)
{
    const QList<EventRule> &rules = random.chance(kImpossible) ? kImpossibleEvents : kPossible;
    QJsonObject event;
    while (event.isEmpty())
        event = weightedPick(random, rules)(random, context);
    if (random.chance(kAnswered))
        event["answers"_L1] = randomAnswers(random);
    return event;
}
