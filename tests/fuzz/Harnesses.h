#pragma once

#include <QtCore/QByteArray>

#include <array>

/// What strangers hand to the program, each kind with a function that takes bytes of it through the
/// product's own code. A harness returns, whatever the bytes are; it aborts when the code has
/// broken a promise (see the requirements in each), and the sanitizers abort for the rest.
///
/// They need a QApplication and an environment of their own (prepareEnvironment()).
struct Harness
{
    const char *name; ///< of its folder in corpus/, too
    void (*run)(const QByteArray &input);
};

void runSavedOptions(const QByteArray &lpoptions);
void runReplayScript(const QByteArray &script);
void runPPD(const QByteArray &ppd);
void runIppAnswer(const QByteArray &answer);
void runJobFile(const QByteArray &file);
void runDocument(const QByteArray &nameAndContent);
void runWhy(const QByteArray &ppd);

inline constexpr std::array kHarnesses{
    Harness{"saved-options", runSavedOptions},
    Harness{"replay-script", runReplayScript},
    Harness{"ppd", runPPD},
    Harness{"ipp-answer", runIppAnswer},
    Harness{"job-file", runJobFile},
    Harness{"document", runDocument},
    Harness{"why", runWhy},
};

/// Keeps the user's home, settings and printers out of the process, and the process off the screen.
/// Call it before anything of Qt.
void prepareEnvironment();

/// Aborts with the sentence unless the promise was kept.
void require(bool kept, const char *promise);
