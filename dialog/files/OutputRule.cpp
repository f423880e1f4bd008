#include "dialog/files/OutputRule.h"

#include "dialog/files/PathBytes.h"

#include <QtCore/QCoreApplication>

OutputVerdict verdictOn(const OutputFacts &facts)
{
    if (facts.isInput)
        return OutputVerdict::IsInput;
    switch (facts.standing) {
    case Standing::Nothing:
        return OutputVerdict::Create;
    case Standing::Folder:
        return OutputVerdict::IsFolder;
    case Standing::Stream:
        return OutputVerdict::Append;
    case Standing::File:
        break;
    }
    return facts.mayReplace || facts.isOfThisRun ? OutputVerdict::Replace : OutputVerdict::Exists;
}

QString outputRefusal(OutputVerdict verdict, const QString &path)
{
    switch (verdict) {
    case OutputVerdict::IsInput:
        return QCoreApplication::translate("OutputRule",
                                           "Nothing is written over %1: it is in use for this.")
            .arg(shownPath(path));
    case OutputVerdict::IsFolder:
        return QCoreApplication::translate("OutputRule", "%1 is a folder: it cannot be written.")
            .arg(shownPath(path));
    case OutputVerdict::Exists:
        return QCoreApplication::translate("OutputRule",
                                           "The file %1 exists already; --force replaces it.")
            .arg(shownPath(path));
    default:
        return {};
    }
}
