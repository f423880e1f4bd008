#include "dialog/job/JobFileFormat.h"

#include "platform/toolkit/PlainText.h"

#include <QtCore/QCoreApplication>

QString jobFileSentence(const char *text, const QString &path, const QString &reason)
{
    const QString translated = QCoreApplication::translate("JobFile", text);
    return reason.isNull() ? translated.arg(displayText(path))
                           : translated.arg(displayText(path), reason);
}
