#include "dialog/host/PlugInFault.h"

#include <QtCore/QCoreApplication>

#include <array>

namespace {

// Indexed by PlugInFaultReason.
constexpr std::array<const char *, 10> kSentences = {
    QT_TRANSLATE_NOOP("PlugInLoader", "The printer's settings are missing: there is no plug-in "
                                      "at %1. Install Velkaro Print again."),
    QT_TRANSLATE_NOOP("PlugInLoader", "The plug-in %1 is incomplete: it has no readable Info.json. "
                                      "Install Velkaro Print again."),
    QT_TRANSLATE_NOOP("PlugInLoader", "The plug-in %1 is incomplete: its library is missing. "
                                      "Install Velkaro Print again."),
    QT_TRANSLATE_NOOP("PlugInLoader", "The plug-in is not used, because other users may change "
                                      "%1. Let nobody but yourself and the administrator write "
                                      "there."),
    QT_TRANSLATE_NOOP("PlugInLoader", "The plug-in is incomplete: %1 is missing. Install Velkaro "
                                      "Print again."),
    QT_TRANSLATE_NOOP("PlugInLoader", "The plug-in cannot be used: %1 is no row of a keyword, a "
                                      "choice, a standard attribute and its value."),
    QT_TRANSLATE_NOOP("PlugInLoader", "%1 is not a plug-in of this print dialog."),
    QT_TRANSLATE_NOOP("PlugInLoader", "The plug-in %1 was made for another version of this print "
                                      "dialog. Install the same version of both."),
    QT_TRANSLATE_NOOP("PlugInLoader", "The plug-in %1 could not be loaded."),
    QT_TRANSLATE_NOOP("PlugInLoader", "The plug-in %1 cannot be used with this print dialog."),
};

} // namespace

PlugInFault plugInFault(PlugInFaultReason reason, const QString &path, const QString &log)
{
    const char *sentence = kSentences.at(static_cast<std::size_t>(reason));
    return {reason, QCoreApplication::translate("PlugInLoader", sentence).arg(path), log};
}
