#pragma once

#include <QtCore/QLatin1String>

// The entries of a bundle's Info.json that the dialog reads. All but the library's name may be
// missing.

/// The plain name of the plug-in's library in the bundle's folder.
inline constexpr auto kBundleExecutableKey = QLatin1String("CFBundleExecutable");

/// Which printers the bundle is for: a list of objects. The bundle is for a printer that one of
/// them fits, and an object fits when all of its members do:
///
///   "Manufacturer"  a pattern for the PPD's manufacturer
///   "Model"         a pattern for the PPD's model name (its nickname where it has none)
///   "Keyword"       a pattern for the keyword of one of the PPD's options
///   "Attributes"    an object: the name of an attribute of the PPD to a pattern for its value
///
/// Patterns are those of a shell (*, ?, [...]), without regard to case. An object without members,
/// or with one of another name, fits nothing; without this entry the bundle is loaded by its path
/// alone.
inline constexpr auto kPDEPrintersKey = QLatin1String("PDEPrinters");

/// The names of the view resources without which the bundle is not complete: a list.
inline constexpr auto kPDEViewsKey = QLatin1String("PDEViews");

/// The least and the greatest number that the sliders of the panels take: a list of two.
inline constexpr auto kPDESliderRangeKey = QLatin1String("PDESliderRange");

/// The languages in which replay shows the bundle's texts: a list. A table that is added for
/// another language then changes no recorded session. Without this entry replay uses every table.
inline constexpr auto kPDEReplayLanguagesKey = QLatin1String("PDEReplayLanguages");

/// The PPD keywords that no panel shows and the plug-in wants the dialog to offer: a list.
inline constexpr auto kPDEKeysWatchedKey = QLatin1String("PMPPDKeysWatched");

/// The key of a value of the ticket to the PPD keyword whose text is its title: an object.
inline constexpr auto kPDETicketKeyKeywordsKey = QLatin1String("PMTicketKeyKeywords");

/// The keys of the ticket under which the panels keep what is folded and unfolded: a list.
inline constexpr auto kPDEFoldStateKeysKey = QLatin1String("PMTicketFoldStateKeys");

/// The PPD keyword to lists of its choices that are forms of one another, such as plain paper and
/// plain paper that is printed on both sides: an object. People choose one of a list, the panel
/// marks the one that the job needs, and the dialog neither tells of it nor asks.
///
///   "PDEChoiceForms": {"ExMedium": [["Plain", "PlainTwoSided"]]}
inline constexpr auto kPDEChoiceFormsKey = QLatin1String("PDEChoiceForms");

/// The names of the papers that the printer can print on both sides: a list. With any other paper
/// the dialog tells of it, and asks before it prints. Without this entry all can be.
inline constexpr auto kPDETwoSidedPapersKey = QLatin1String("PDETwoSidedPapers");

/// Choices that the dialog advises for some papers while another one is marked: a list of objects.
/// "Papers" are patterns of a shell for the names of the papers, in their letter case.
///
///   "PDEPaperAdvice": [{"Papers": ["Env*"], "Keyword": "ExTray", "Choice": "Rear"}]
inline constexpr auto kPDEPaperAdviceKey = QLatin1String("PDEPaperAdvice");

/// The standard attributes of IPP that say the same as a choice of the printer: a list of objects
/// of these four members. The dialog sends the attribute beside the choice, so that a server that
/// derives it, or has a default of it, says nothing else. "Attribute" is one of `finishings`,
/// `output-bin`, `print-color-mode`, `print-content-optimize`, `print-quality` and `sides`, "Value"
/// as IPP has it: numbers for `finishings` and `print-quality` (3 draft, 4 normal, 5 high). With a
/// row of another form the bundle is not used.
///
///   "PDEStandardAttributes": [
///       {"Keyword": "ExToner", "Choice": "Save", "Attribute": "print-quality", "Value": "3"}
///   ]
inline constexpr auto kPDEStandardAttributesKey = QLatin1String("PDEStandardAttributes");
