#pragma once

#include <QtCore/QString>

/// What a pop-up, or a keyword, falls back to.

/// The pop-ups that have a default of the rules' own; the others keep what is selected.
enum class RuledPopUp { Medium, Quality, PaperFeed, Other };

/// What the default of a pop-up depends on.
struct DefaultFacts
{
    QString shownMedium;
    QString paperName;
    bool discPaper = false;
};

/// The choice that the pop-up falls back to; null: what is selected stays.
QString defaultChoice(RuledPopUp popup, const DefaultFacts &facts);

/// Whether the default of the PPD is pending already. A missing value is not the empty name of a
/// default that the PPD does not give.
bool isDefaultPending(const QString &pending, const QString &defaultChoice);

/// A keyword whose pending value may have to follow its default.
struct KeywordFacts
{
    QString keyword;
    QString pending;       ///< null: none
    QString marked;        ///< in the PPD; null: none
    QString defaultChoice; ///< of the PPD
    bool envelopePaper = false;
    bool directionLeftAlone = false; ///< the paper is an envelope or a postcard
};

/// What becomes of it.
struct KeywordDefault
{
    enum class Step {
        Keep,
        OfferDefault, ///< the value, recorded when the dialog takes it, even one that is pending
        SetAndMark,   ///< the value, unless it is pending
    };
    Step step = Step::Keep;
    QString value;

    friend bool operator==(const KeywordDefault &, const KeywordDefault &) = default;
};
KeywordDefault keywordDefault(const KeywordFacts &facts);
