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
    const auto sentence = [&](const char *text) {
        return QCoreApplication::translate("OutputRule", text).arg(shownPath(path));
    };
    switch (verdict) {
    case OutputVerdict::IsInput:
        return sentence(
            QT_TRANSLATE_NOOP("OutputRule", "Nothing is written over %1: it is in use for this."));
    case OutputVerdict::IsFolder:
        return sentence(QT_TRANSLATE_NOOP("OutputRule", "%1 is a folder: it cannot be written."));
    case OutputVerdict::Exists:
        return sentence(
            QT_TRANSLATE_NOOP("OutputRule", "The file %1 exists already; --force replaces it."));
    default:
        return {};
    }
}
