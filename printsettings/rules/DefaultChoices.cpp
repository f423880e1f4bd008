#include "printsettings/rules/DefaultChoices.h"

#include "printsettings/rules/MediaQuality.h"

using namespace Qt::StringLiterals;

QString defaultChoice(RuledPopUp popup, const DefaultFacts &facts)
{
    switch (popup) {
    case RuledPopUp::Medium:
        return facts.discPaper ? u"PrintableDisc"_s : u"Plain"_s;
    case RuledPopUp::Quality:
        return defaultQuality(facts.shownMedium, facts.paperName);
    case RuledPopUp::PaperFeed:
        return u"Tray1"_s;
    case RuledPopUp::Other:
        break;
    }
    return {};
}

bool isDefaultPending(const QString &pending, const QString &defaultChoice)
{
    return !pending.isNull() && pending == defaultChoice;
}

KeywordDefault keywordDefault(const KeywordFacts &facts)
{
    using Step = KeywordDefault::Step;
    if (isDefaultPending(facts.pending, facts.defaultChoice))
        return {};
    if (facts.marked.isNull())
        return {Step::OfferDefault, facts.defaultChoice};
    if (facts.marked != facts.defaultChoice)
        return {};
    // The mark was put back to the default behind the panel: an envelope keeps its values.
    if (facts.keyword == "VKColorPaperThick"_L1 && facts.envelopePaper)
        return {Step::SetAndMark, u"Env"_s};
    if (facts.keyword == "VKBiDir"_L1 && facts.directionLeftAlone)
        return {Step::SetAndMark, u"OFF"_s};
    return {};
}
