#include "tests/adviceproof/ConstrainedPrinter.h"

#include <QtCore/QByteArrayList>
#include <QtCore/QSet>

namespace {

constexpr char kConstrainedHead[] = R"PPD(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: UTF-8
*PCFileName: "MADEUP.PPD"
*Manufacturer: "Made Up"
*Product: "(Made Up)"
*ModelName: "Made Up"
*ShortNickName: "Made Up"
*NickName: "Made Up, 1.0"
*PSVersion: "(3010.000) 0"
*OpenUI *PageSize/Paper Size: PickOne
*DefaultPageSize: A4
*PageSize A4/A4: "<</PageSize[595 842]>>setpagedevice"
*PageSize A5/A5: "<</PageSize[420 595]>>setpagedevice"
*CloseUI: *PageSize
*DefaultPaperDimension: A4
*PaperDimension A4/A4: "595 842"
*PaperDimension A5/A5: "420 595"
*DefaultImageableArea: A4
*ImageableArea A4/A4: "9 9 586 833"
*ImageableArea A5/A5: "9 9 411 586"
)PPD";

struct Setting
{
    QByteArray keyword;
    int choices;
};

/// "*Setting2 Choice1", of a setting that is none of the others.
QByteArray choiceOf(Random &random, const QList<Setting> &settings, QSet<QByteArray> &used)
{
    Setting setting = random.pick(settings);
    while (used.contains(setting.keyword))
        setting = random.pick(settings);
    used.insert(setting.keyword);
    return '*' + setting.keyword + " Choice" + QByteArray::number(random.below(setting.choices));
}

QByteArray constraintOf(Random &random, const QList<Setting> &settings)
{
    QSet<QByteArray> used;
    QByteArrayList choices;
    const bool isNew = random.chance(50);
    for (int count = isNew ? random.between(2, 3) : 2; count > 0; --count)
        choices += choiceOf(random, settings, used);
    if (isNew)
        return "*cupsUIConstraints: \"" + choices.join(' ') + "\"\n";
    return "*UIConstraints: " + choices.join(' ') + "\n*UIConstraints: " + choices[1] + ' ' +
           choices[0] + '\n';
}

/// The default is the first choice, which stands in constraints like any other.
QByteArray linesOf(const Setting &setting)
{
    QByteArray lines = "*OpenUI *" + setting.keyword + '/' + setting.keyword +
                       ": PickOne\n*Default" + setting.keyword + ": Choice0\n";
    for (int index = 0; index < setting.choices; ++index) {
        const QByteArray number = QByteArray::number(index);
        lines += '*' + setting.keyword + " Choice" + number + '/' + setting.keyword + " Choice " +
                 number + ": \"\"\n";
    }
    return lines + "*CloseUI: *" + setting.keyword + '\n';
}

} // namespace

QByteArray constrainedPrinter(Random &random)
{
    QList<Setting> settings;
    QByteArray text = kConstrainedHead;
    for (int count = random.between(3, 6); count > 0; --count) {
        settings += Setting{"Setting" + QByteArray::number(count), random.between(2, 5)};
        text += linesOf(settings.constLast());
    }
    for (int count = random.between(2, 10); count > 0; --count)
        text += constraintOf(random, settings);
    return text;
}
