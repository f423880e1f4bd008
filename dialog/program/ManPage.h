#pragma once

// Without Qt, as the texts that the page is made of.

#include <span>
#include <string>

struct LauncherTexts;

/// What a manual page in one language needs beside what --help says.
struct ManualWords
{
    const char *language; ///< the folder below man/; empty for English
    const LauncherTexts &texts;
    const char *name; ///< the heading of the line that says what the program is
    const char *summary;
    const char *synopsis;
    const char *description;
    const char *options;
    const char *seeAlso;
    bool spaces; ///< whether the language puts spaces between words
};

/// One for each language of LauncherTexts.
std::span<const ManualWords> manualWords();

/// The manual page velkaro-print(1), as roff in UTF-8. It is made of --help: its sections are
/// those there, the last one tells the exit status.
std::string manualPage(const ManualWords &words);
