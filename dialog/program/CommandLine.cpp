#include "dialog/program/CommandLine.h"

#include "dialog/program/Contradictions.h"

#include <QtCore/QCoreApplication>

#include <cups/cups.h>

#include <algorithm>
#include <array>

namespace {

constexpr int kLongestTimeout = 1'000'000; // seconds: their milliseconds are still a number

/// One option: it has a flag, or takes a value.
struct Option
{
    const char *longName;
    char shortName;                       // '\0': none
    QString CommandLine::*text = nullptr; // where a value stands that may be given once
    bool CommandLine::*flag = nullptr;
    QString (*take)(CommandLine &, const QString &value) = nullptr; // null: into `text` as it is
};

QString takeQueue(CommandLine &line, const QString &value)
{
    const qsizetype slash = value.indexOf(u'/');
    line.queue = value.left(slash);
    if (slash >= 0)
        line.instance = value.mid(slash + 1);
    if (line.queue.isEmpty() || (slash >= 0 && line.instance.isEmpty()))
        return QCoreApplication::translate("CommandLine", "\"%1\" is not the name of a queue.")
            .arg(value);
    return {};
}

// What lp takes without a value.
constexpr std::array kSwitches{QLatin1String("fit-to-page"), QLatin1String("landscape")};

QString takeOneChoice(CommandLine &line, const QString &value)
{
    if (std::ranges::find(kSwitches, value) != kSwitches.end()) {
        line.choices.append({value, QStringLiteral("true")});
        return {};
    }
    const qsizetype equals = value.indexOf(u'=');
    if (equals <= 0 || equals == value.size() - 1)
        return QCoreApplication::translate("CommandLine", "-o needs KEY=VALUE, not \"%1\".")
            .arg(value);
    line.choices.append({value.left(equals), value.mid(equals + 1)});
    return {};
}

/// Several settings, one after the other, as `lp` takes them; empty where the value is not made of
/// such: a text with spaces is one value.
QStringList severalChoices(const QString &value)
{
    cups_option_t *parsed = nullptr;
    const int count = cupsParseOptions(value.toUtf8().constData(), 0, &parsed);
    QStringList several;
    bool areSettings = true;
    for (int index = 0; index < count; ++index) {
        const QString name = QString::fromUtf8(parsed[index].name);
        const bool isSwitch = std::ranges::find(kSwitches, name) != kSwitches.end();
        areSettings = areSettings && (isSwitch || value.contains(name + u'='));
        several += isSwitch ? name : name + u'=' + QString::fromUtf8(parsed[index].value);
    }
    cupsFreeOptions(count, parsed);
    return areSettings ? several : QStringList();
}

QString takeChoice(CommandLine &line, const QString &value)
{
    const QStringList several = value.contains(u' ') ? severalChoices(value) : QStringList();
    if (several.isEmpty())
        return takeOneChoice(line, value);
    QString wrong;
    for (const QString &one : several)
        if (wrong.isNull())
            wrong = takeOneChoice(line, one);
    return wrong;
}

QString takeWhy(CommandLine &line, const QString &value)
{
    const qsizetype equals = value.indexOf(u'=');
    if (equals <= 0 || equals == value.size() - 1)
        return QCoreApplication::translate("CommandLine", "--why needs KEY=VALUE, not \"%1\".")
            .arg(value);
    if (line.why)
        return QCoreApplication::translate("CommandLine", "%1 may be given only once.")
            .arg(QStringLiteral("--why"));
    line.why = {value.left(equals), value.mid(equals + 1)};
    return {};
}

// What `lp` has options of its own for.

QString takeNamed(CommandLine &line, const char *keyword, const QString &value)
{
    line.choices.append({QString::fromLatin1(keyword), value});
    return {};
}

QString takeCopies(CommandLine &line, const QString &value)
{
    return takeNamed(line, "copies", value);
}

QString takePages(CommandLine &line, const QString &value)
{
    return takeNamed(line, "page-ranges", value);
}

QString takePriority(CommandLine &line, const QString &value)
{
    return takeNamed(line, "job-priority", value);
}

QString takeHold(CommandLine &line, const QString &value)
{
    const bool isImmediate = value == QLatin1String("immediate");
    const bool isHold = value == QLatin1String("hold");
    return takeNamed(line, "job-hold-until",
                     isImmediate ? QStringLiteral("no-hold")
                     : isHold    ? QStringLiteral("indefinite")
                                 : value);
}

QString takeTimeout(CommandLine &line, const QString &value)
{
    bool isNumber = false;
    const int seconds = value.toInt(&isNumber);
    if (!isNumber || seconds < 0 || seconds > kLongestTimeout)
        return QCoreApplication::translate("CommandLine",
                                           "--timeout needs a number of seconds from 0 to %1, not "
                                           "\"%2\".")
            .arg(QString::number(kLongestTimeout), value);
    line.timeout = seconds;
    return {};
}

QString takePasswordDescriptor(CommandLine &line, const QString &value)
{
    bool isNumber = false;
    const int descriptor = value.toInt(&isNumber);
    if (!isNumber || descriptor < 0)
        return QCoreApplication::translate("CommandLine",
                                           "--password-fd needs the number of an open file, not "
                                           "\"%1\".")
            .arg(value);
    line.passwordDescriptor = descriptor;
    return {};
}

/// Standard output has two names; the files know the one that is a path.
QString takeOutput(CommandLine &line, const QString &value)
{
    line.output = value == QLatin1String("-") ? QStringLiteral("/dev/stdout") : value;
    return {};
}

constexpr std::array kOptions{
    Option{"destination", 'd', &CommandLine::queue, nullptr, takeQueue},
    Option{"server", 'h', &CommandLine::server},
    Option{"ppd", '\0', &CommandLine::ppd},
    Option{"option", 'o', nullptr, nullptr, takeChoice},
    Option{"copies", 'n', nullptr, nullptr, takeCopies},
    Option{"pages", 'P', nullptr, nullptr, takePages},
    Option{"title", 't', &CommandLine::title},
    Option{"hold", 'H', nullptr, nullptr, takeHold},
    Option{"priority", 'q', nullptr, nullptr, takePriority},
    Option{"mail", 'm', nullptr, &CommandLine::mail},
    Option{"paper", '\0', &CommandLine::paper},
    Option{"output", '\0', &CommandLine::output, nullptr, takeOutput},
    Option{"force", '\0', nullptr, &CommandLine::force},
    Option{"no-dialog", '\0', nullptr, &CommandLine::noDialog},
    Option{"dry-run", '\0', nullptr, &CommandLine::dryRun},
    Option{"explain", '\0', nullptr, &CommandLine::explain},
    Option{"yes", '\0', nullptr, &CommandLine::yes},
    Option{"each", '\0', nullptr, &CommandLine::each},
    Option{"wait", '\0', nullptr, &CommandLine::wait},
    Option{"timeout", '\0', nullptr, nullptr, takeTimeout},
    Option{"password-fd", '\0', nullptr, nullptr, takePasswordDescriptor},
    Option{"screenshot", '\0', &CommandLine::screenshot},
    Option{"panel", '\0', &CommandLine::panel},
    Option{"record", '\0', &CommandLine::record},
    Option{"replay", '\0', &CommandLine::replay},
    Option{"why", '\0', nullptr, nullptr, takeWhy},
    Option{"json", '\0', nullptr, &CommandLine::json},
    Option{"check-ppd", '\0', &CommandLine::checkPPD},
    Option{"forget-alerts", '\0', nullptr, &CommandLine::forgetAlerts},
    Option{"plug-in", '\0', &CommandLine::plugIn},
    Option{"version", '\0', nullptr, &CommandLine::version},
    Option{"help", '\0', nullptr, &CommandLine::help},
};

/// An argument taken apart: the option, and the value that stands in the same argument.
struct Argument
{
    const Option *option = nullptr;
    QString name; // as it was typed
    QString value;
};

Argument longOption(const QString &argument)
{
    const qsizetype equals = argument.indexOf(u'=');
    const QString name = argument.left(equals);
    const auto found = std::ranges::find_if(kOptions, [&](const Option &option) {
        return name.mid(2) == QLatin1String(option.longName);
    });
    return {found == kOptions.end() ? nullptr : &*found, name,
            equals < 0 ? QString() : argument.mid(equals + 1)};
}

Argument shortOption(const QString &argument)
{
    const auto found = std::ranges::find_if(kOptions, [&](const Option &option) {
        return option.shortName != '\0' && argument[1] == QLatin1Char(option.shortName);
    });
    return {found == kOptions.end() ? nullptr : &*found, argument.left(2),
            argument.size() > 2 ? argument.mid(2) : QString()};
}

QString takeValue(CommandLine &line, const Argument &argument)
{
    if (argument.value.isEmpty())
        return QCoreApplication::translate("CommandLine", "%1 needs a value.").arg(argument.name);
    if (!argument.value.isValidUtf16())
        return QCoreApplication::translate("CommandLine", "The value of %1 is no UTF-8 text.")
            .arg(argument.name);
    const auto text = argument.option->text;
    if (text && !(line.*text).isNull())
        return QCoreApplication::translate("CommandLine", "%1 may be given only once.")
            .arg(argument.name);
    if (argument.option->take)
        return argument.option->take(line, argument.value);
    line.*text = argument.value;
    return {};
}

/// Applies one option; a value that is an argument of its own is taken off `rest`.
QString takeOption(CommandLine &line, Argument argument, QStringList &rest)
{
    if (!argument.option)
        return QCoreApplication::translate("CommandLine", "There is no option %1.")
            .arg(argument.name);
    if (argument.option->flag) {
        if (!argument.value.isNull())
            return QCoreApplication::translate("CommandLine", "%1 takes no value.")
                .arg(argument.name);
        line.*argument.option->flag = true;
        return {};
    }
    if (argument.value.isNull() && !rest.isEmpty())
        argument.value = rest.takeFirst();
    return takeValue(line, argument);
}

} // namespace

Result<CommandLine> parseCommandLine(const QStringList &arguments)
{
    CommandLine line;
    QString fault;
    QStringList rest = arguments;
    bool optionsEnded = false;
    while (!rest.isEmpty()) {
        const QString argument = rest.takeFirst();
        if (optionsEnded || argument.size() < 2 || !argument.startsWith(u'-')) {
            line.files.append(argument);
        } else if (argument == QLatin1String("--")) {
            optionsEnded = true;
        } else {
            const bool isLong = argument.startsWith(QLatin1String("--"));
            const QString wrong =
                takeOption(line, isLong ? longOption(argument) : shortOption(argument), rest);
            if (fault.isNull())
                fault = wrong;
        }
    }
    if (fault.isNull())
        fault = contradiction(line);
    if (fault.isNull() || line.help || line.version)
        return line;
    return Fault{FaultKind::Request, fault};
}
