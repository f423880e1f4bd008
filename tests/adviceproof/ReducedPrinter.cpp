#include "tests/adviceproof/ReducedPrinter.h"

#include <QtCore/QByteArrayList>
#include <QtCore/QMap>
#include <QtCore/QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct Listed
{
    QByteArrayList choices;
    QByteArray byDefault;
};

/// "*KEYWORD CHOICE/TEXT: ..." or "*KEYWORD CHOICE: ...".
struct Line
{
    QByteArray keyword;
    QByteArray choice;
};

Line partsOf(const QByteArray &line)
{
    static const QRegularExpression pattern(u"^\\*(\\w+) ([^/:\\s]+)[/:]"_s);
    const auto found = pattern.match(QString::fromLatin1(line));
    return {found.captured(1).toLatin1(), found.captured(2).toLatin1()};
}

QMap<QByteArray, Listed> settingsOf(const QByteArrayList &lines)
{
    QMap<QByteArray, Listed> settings;
    QByteArray open;
    for (const QByteArray &line : lines) {
        if (line.startsWith("*OpenUI *"))
            open = line.mid(9, line.indexOf('/') - 9);
        else if (line.startsWith("*CloseUI"))
            open.clear();
        else if (line.startsWith("*Default" + open + ':'))
            settings[open].byDefault = line.mid(9 + open.size()).trimmed();
        else if (const Line parts = partsOf(line); !open.isEmpty() && parts.keyword == open)
            settings[open].choices += parts.choice;
    }
    return settings;
}

bool isOfNumbers(const Listed &setting)
{
    return std::ranges::all_of(setting.choices, [](const QByteArray &choice) {
        bool isNumber = false;
        static_cast<void>(choice.toInt(&isNumber));
        return isNumber;
    });
}

void leaveOutOne(QMap<QByteArray, Listed> &settings)
{
    auto longest = std::ranges::max_element(
        settings, {}, [](const Listed &setting) { return setting.choices.size(); });
    const bool isDefault = longest->choices.constLast() == longest->byDefault;
    longest->choices.removeAt(longest->choices.size() - (isDefault ? 2 : 1));
}

/// The papers stand in several lists.
QByteArray settingOfLine(const QByteArray &keyword)
{
    const QByteArrayList ofPapers{"PageRegion", "ImageableArea", "PaperDimension"};
    return ofPapers.contains(keyword) ? QByteArray("PageSize") : keyword;
}

} // namespace

QByteArray reducedPrinter(const QByteArray &ppd, int choices)
{
    const QByteArrayList lines = ppd.split('\n');
    QMap<QByteArray, Listed> settings = settingsOf(lines);
    settings.remove("PageRegion");
    QByteArrayList numbers;
    for (const auto &[keyword, setting] : settings.asKeyValueRange())
        if (isOfNumbers(setting))
            numbers += keyword;
    for (const QByteArray &keyword : numbers)
        settings.remove(keyword);
    const auto count = [&] {
        qsizetype all = 0;
        for (const Listed &setting : settings)
            all += setting.choices.size();
        return all;
    };
    while (count() > choices)
        leaveOutOne(settings);
    QByteArray text;
    QByteArray leftOut; // the setting that is open and of numbers
    for (const QByteArray &line : lines) {
        if (line.startsWith("*OpenUI *") && numbers.contains(line.mid(9, line.indexOf('/') - 9)))
            leftOut = line.mid(9, line.indexOf('/') - 9);
        const Line parts = partsOf(line);
        const auto setting = settings.constFind(settingOfLine(parts.keyword));
        const bool stays = leftOut.isEmpty() &&
                           (setting == settings.cend() || setting->choices.contains(parts.choice));
        if (stays)
            text += line + '\n';
        if (line.startsWith("*CloseUI"))
            leftOut.clear();
    }
    return text;
}
