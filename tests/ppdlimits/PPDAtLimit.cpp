#include "tests/ppdlimits/PPDAtLimit.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr char kHead[] = R"ppd(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: UTF-8
*PCFileName: "TEST.PPD"
*Manufacturer: "Velkaro"
*Product: "(Test)"
*PSVersion: "(3010.000) 0"
*ModelName: "Velkaro Large"
*ShortNickName: "Velkaro Large"
*NickName: "Velkaro Large, 1.0"
*cupsLanguages: "ja"
)ppd";

constexpr qsizetype kRealOptions = 80; // as the largest real PPDs have them
constexpr qsizetype kRealChoices = 226;

QByteArray number(qsizetype value)
{
    return QByteArray::number(value);
}

/// Different for all numbers below a million, and in no order.
QByteArray word(qsizetype value)
{
    return number(1'000'000 + value * 700'001 % 1'000'003);
}

template <typename Line> QByteArray repeat(qsizetype count, Line line)
{
    QByteArray lines;
    for (qsizetype index = 0; index < count; ++index)
        lines += line(index);
    return lines;
}

QByteArray option(const QByteArray &keyword, qsizetype choices, qsizetype first = 0)
{
    return "*OpenUI *" + keyword + ": PickOne\n" +
           repeat(choices,
                  [&](qsizetype index) {
                      return '*' + keyword + " c" + word(first + index) + ": \"v" +
                             word(first + index) + "\"\n";
                  }) +
           "*CloseUI: *" + keyword + '\n';
}

QByteArray realOptions()
{
    return repeat(kRealOptions,
                  [](qsizetype index) { return option('R' + number(index), kRealChoices); });
}

/// A choice of one of the real options.
QByteArray realChoice(qsizetype index)
{
    return "*R" + number(index % kRealOptions) + " c" + word(index % kRealChoices);
}

QByteArray bytes(qsizetype count)
{
    const QByteArray text = QByteArray(200, 'x') + '\n' + QByteArray(100, 'x');
    const qsizetype length = 22 + text.size();
    const QByteArray lines = repeat(count / length, [&](qsizetype index) {
        return "*A" + word(index) + ": \"" + word(index) + text + "\"\n";
    });
    const QByteArray rest = repeat((count - lines.size()) / 2, [](qsizetype) { return "\n "; });
    return lines + rest + QByteArray(count - lines.size() - rest.size(), '\n');
}

QByteArray lines(qsizetype count)
{
    constexpr qsizetype choices = 2'400;
    const qsizetype options = count / (choices + 2);
    return repeat(options,
                  [](qsizetype index) {
                      return option('L' + number(index), choices, index * choices);
                  }) +
           QByteArray(count - options * (choices + 2), '\n');
}

QByteArray groups(qsizetype count)
{
    return repeat(count, [](qsizetype index) {
        const QByteArray group = "G" + word(index);
        return "*OpenGroup: " + group + '\n' + option('O' + word(index), 2) +
               "*CloseGroup: " + group + '\n';
    });
}

QByteArray options(qsizetype count)
{
    return repeat(count, [](qsizetype index) { return option('O' + word(index), 2); });
}

QByteArray choices(qsizetype count)
{
    return option("Many", count);
}

QByteArray papers(qsizetype count)
{
    return option("PageSize", count) + option("PageRegion", count) +
           repeat(count, [](qsizetype index) {
               return "*PaperDimension c" + word(index) + ": \"500 " + number(500 + index) +
                      "\"\n*ImageableArea c" + word(index) + ": \"0 0 500 500\"\n";
           });
}

QByteArray parameters(qsizetype count)
{
    return option("Own", 1) + "*CustomOwn True: \"x\"\n" + repeat(count - 1, [](qsizetype index) {
               return "*ParamCustomOwn p" + word(index) + ": 1 int 0 9\n";
           });
}

QByteArray constraints(qsizetype count)
{
    return realOptions() + repeat(count, [](qsizetype index) {
               return "*UIConstraints: " + realChoice(index * 7) + ' ' +
                      realChoice(index * 11 + 1) + '\n';
           });
}

QByteArray newConstraints(qsizetype count)
{
    return realOptions() + repeat(count, [](qsizetype index) {
               return "*cupsUIResolver r" + word(index) + ": \"" + realChoice(index) +
                      "\"\n*cupsUIConstraints r" + word(index) + ": \"" + realChoice(index * 7) +
                      ' ' + realChoice(index * 11 + 1) + "\"\n";
           });
}

// libcups takes a quarter of a megabyte for one value.
QByteArray newTerms(qsizetype count)
{
    const auto constraint = [](qsizetype terms) {
        return "*cupsUIConstraints: \"\n" +
               repeat(terms, [](qsizetype index) { return ' ' + realChoice(index * 7) + '\n'; }) +
               "\"\n*End\n";
    };
    constexpr qsizetype most = 10'000;
    return realOptions() + repeat(count / most, [&](qsizetype) { return constraint(most); }) +
           constraint(count % most);
}

// Those of one keyword stand together, and each pushes the others on.
QByteArray attributes(qsizetype count)
{
    return repeat(count, [](qsizetype index) {
        return (index % 2 == 0 ? "*Even " : "*Odd ") + word(index) + ": \"" + word(index) + "\"\n";
    });
}

struct Maker
{
    qsizetype PPDCensus::*count;
    QByteArray (*make)(qsizetype count);
};

constexpr Maker kMakers[] = {
    {&PPDCensus::bytes, bytes},
    {&PPDCensus::lines, lines},
    {&PPDCensus::groups, groups},
    {&PPDCensus::options, options},
    {&PPDCensus::choices, choices},
    {&PPDCensus::papers, papers},
    {&PPDCensus::parameters, parameters},
    {&PPDCensus::constraints, constraints},
    {&PPDCensus::newConstraints, newConstraints},
    {&PPDCensus::newTerms, newTerms},
    {&PPDCensus::attributes, attributes},
};

} // namespace

QByteArray ppdWith(const PPDLimit &limit, qsizetype count)
{
    const auto *maker = std::ranges::find(kMakers, limit.count, &Maker::count);
    const qsizetype already = censusOf(kHead).*limit.count;
    return kHead + maker->make(count - already);
}
