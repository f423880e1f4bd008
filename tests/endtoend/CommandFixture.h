#pragma once

#include "tests/built/BuiltFiles.h"
#include "tests/endtoend/PrintServerFixture.h"
#include "tests/endtoend/ProgramRun.h"
#include "tests/support/Files.h"
#include "tests/support/QStringPrinting.h"

/// velkaro-print without its dialog, against a print server.
class Command : public PrintServerFixture
{
protected:
    /// Prints a PDF to the queue with these options besides.
    ProgramRun print(const QStringList &options)
    {
        return runProgram(QStringList{QStringLiteral("--no-dialog"), QStringLiteral("-h"),
                                      server().address(), QStringLiteral("-d"),
                                      QStringLiteral("photo")} +
                          options + QStringList{pdf()});
    }

    /// Every option of the job that is the printer's or the plug-in's, but for the printer's
    /// defaults.
    QMap<QString, QString> settingsOf(int job)
    {
        QMap<QString, QString> settings;
        const QMap<QString, QString> all = server().jobAttributes(QStringLiteral("photo"), job);
        for (auto one = all.cbegin(); one != all.cend(); ++one)
            if ((one.key().startsWith(QStringLiteral("com.")) ||
                 ppd().contains(QStringLiteral("*OpenUI *") + one.key() + u'/')) &&
                !ppd().contains(QStringLiteral("*Default") + one.key() + QStringLiteral(": ") +
                                one.value() + u'\n'))
                settings.insert(one.key(), one.value());
        return settings;
    }

    static QString ppd()
    {
        return QString::fromUtf8(readFile(samplePPD(QStringLiteral("velkaro-px-t900"))));
    }
};
