#pragma once

#include <QtCore/QString>

/// Plain paper has a second choice, "PlainDuplex", for printing on both sides. The pop-up never
/// lists it; the rules put it in the place of "Plain".

/// What the PPD has for two-sided printing.
struct DuplexFacts
{
    bool plainDuplexOffered = false; ///< `VKMediaType` has the choice "PlainDuplex"
    bool duplexOffered = false;      ///< there is the option `Duplex`
    QString defaultChoice;           ///< of `Duplex`: one-sided, whatever it is called
    QString marked;                  ///< of `Duplex`; null: none, which is not one-sided either
};
bool isTwoSided(const DuplexFacts &facts);

/// Whether the pending medium becomes "PlainDuplex" when two-sided printing is turned on.
bool followsTwoSided(const QString &mediaType);

/// What a panel sets when it is saved.
struct SavedValues
{
    QString mediaType; ///< null: the pending one stays
    QString quality;   ///< likewise

    friend bool operator==(const SavedValues &, const SavedValues &) = default;
};

/// A panel that was shown has its medium in the pop-up and swaps plain paper alone.
SavedValues savedByShownPanel(const QString &shownMedium, bool duplex);

/// One that was never shown cannot know what its rules would have made of the medium, and takes
/// two-sided plain paper at normal quality. The two differ on purpose.
SavedValues savedByUnshownPanel(const QString &pendingMedium, bool duplex);
