#include "dialog/job/PaperSizes.h"

#include "dialog/job/Papers.h"
#include "platform/ppd/PPDText.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QHash>

#include <algorithm>
#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array kBorderless{"Fullbleed"_L1, "FB"_L1, "Borderless"_L1, "NoMargins"_L1};

/// The name of the size whose borderless form has this name; null when this is none.
QString baseName(const QString &choice)
{
    const qsizetype point = choice.lastIndexOf(u'.');
    const bool isForm = point > 0 && std::ranges::any_of(kBorderless, [&](QLatin1String word) {
                            return choice.mid(point + 1).compare(word, Qt::CaseInsensitive) == 0;
                        });
    return isForm ? choice.left(point) : QString();
}

PaperSize paperSizeOf(ppd_file_t *ppd, const ppd_choice_t &choice)
{
    PaperSize size{ppdName(choice.choice), {}, ppdText(choice.text)};
    const PMPaper paper = paperOfChoice(ppd, size.choice).value_or(PMPaper());
    size.width = paper.width;
    size.height = paper.height;
    size.kind = paperKind(size.choice, size.width, size.height);
    return size;
}

/// Gives the size with margins its borderless twin. False, and nothing happens, without one.
bool joinTwin(ppd_file_t *ppd, QList<PaperSize> &sizes, const QHash<QString, qsizetype> &rows,
              const PaperSize &size)
{
    const auto row = rows.constFind(baseName(size.choice));
    const auto margins = [&](const PaperSize &of) {
        return hasMargins(ppd, {of.choice, of.choice, of.width, of.height});
    };
    if (row == rows.cend() || margins(size) || !margins(sizes[*row]) ||
        !sizes[*row].borderless.isNull())
        return false;
    sizes[*row].borderless = size.choice;
    return true;
}

} // namespace

QList<PaperSize> paperSizes(ppd_file_t *ppd)
{
    const ppd_option_t *option = findOption(ppd, u"PageSize"_s);
    QList<PaperSize> all;
    for (int index = 0; option && index < option->num_choices; ++index)
        // libcups adds a choice for sizes of the user's own, which is no paper.
        if (ppdName(option->choices[index].choice) != "Custom"_L1)
            all += paperSizeOf(ppd, option->choices[index]);

    QList<PaperSize> sizes;
    QHash<QString, qsizetype> rows;
    for (const PaperSize &size : all)
        if (baseName(size.choice).isNull()) {
            rows.insert(size.choice, sizes.size());
            sizes += size;
        }
    for (const PaperSize &size : all)
        if (!baseName(size.choice).isNull() && !joinTwin(ppd, sizes, rows, size))
            sizes += size;
    return sizes;
}

qsizetype indexOfSize(const QList<PaperSize> &sizes, const QString &choice)
{
    const auto found = std::ranges::find_if(sizes, [&](const PaperSize &size) {
        return !choice.isNull() && (size.choice == choice || size.borderless == choice);
    });
    return found == sizes.end() ? -1 : found - sizes.begin();
}

QSizeF meantSize(const QSizeF &size)
{
    const auto isInEighths = [](double points) {
        return qFuzzyIsNull(std::remainder(points, kPointsPerInch / 8));
    };
    if (isInEighths(size.width()) && isInEighths(size.height()))
        return size;
    const auto inMillimetres = [](double points) {
        return std::round(points / kPointsPerMillimetre) * kPointsPerMillimetre;
    };
    const QSizeF meant(inMillimetres(size.width()), inMillimetres(size.height()));
    const bool isNear =
        std::abs(meant.width() - size.width()) < 1 && std::abs(meant.height() - size.height()) < 1;
    return isNear ? meant : size;
}

QString measureText(double width, double height, QLocale::MeasurementSystem system)
{
    const bool isInches = system == QLocale::ImperialUSSystem;
    const double unit = isInches ? kPointsPerInch : kPointsPerMillimetre;
    const double precision = isInches ? 100 : 1;
    const auto number = [&](double points) {
        return QLocale().toString(qRound(points / unit * precision) / precision, 'g', 8);
    };
    return (isInches ? QCoreApplication::translate("PaperSizes", "%1 × %2 in")
                     : QCoreApplication::translate("PaperSizes", "%1 × %2 mm"))
        .arg(number(width), number(height));
}
