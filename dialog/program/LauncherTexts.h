#pragma once

// Without Qt: the launcher says these texts before it loads anything.

/// What the launcher says by itself, in one language.
struct LauncherTexts
{
    const char *help;       ///< what --help prints, with the line break at its end
    const char *incomplete; ///< a part of the installation is missing; %s: the reason
    const char *noPlace;    ///< the reason where the program's own place is not known
    const char *outputFull; ///< standard output takes no more; %s: the system's reason
};

// Each stands in a file of its own. The words in capitals that stand for values, the options, the
// statuses and their order are the same in all.
extern const LauncherTexts kEnglishTexts;
extern const LauncherTexts kFrenchTexts;
extern const LauncherTexts kGermanTexts;
extern const LauncherTexts kJapaneseTexts;

/// The texts in the first language of the user's that has them; English where none has. The dialog
/// then speaks the same (platform/foundation/PreferredLanguages.h).
const LauncherTexts &launcherTexts();

/// What --version prints, with the line break at its end.
const char *versionText();
