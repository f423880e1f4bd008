#include "dialog/job/Papers.h"

#include "dialog/job/JobOptions.h"
#include "platform/ppd/PPDText.h"

#include <QtCore/QRegularExpression>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Unit
{
    const char *name;
    double points;
};

constexpr std::array kUnits{Unit{"", 1.0}, Unit{"pt", 1.0}, Unit{"mm", kPointsPerMillimetre},
                            Unit{"cm", 10 * kPointsPerMillimetre}, Unit{"in", kPointsPerInch}};

// Sizes are typed in millimetres or hundredths of an inch: a limit must not fail by rounding.
constexpr double kRounding = 0.05;

} // namespace

std::optional<PMPaper> paperOfChoice(ppd_file_t *ppd, const QString &choice)
{
    const ppd_choice_t *found = findChoice(findOption(ppd, u"PageSize"_s), choice);
    if (!found)
        return std::nullopt;
    const QString name = ppdName(found->choice);
    PMPaper paper{name, name, 0, 0};
    if (const ppd_size_t *size = ppdPageSize(ppd, found->choice)) {
        paper.width = static_cast<double>(size->width);
        paper.height = static_cast<double>(size->length);
    }
    return paper;
}

PMPaper customPaper(double width, double height)
{
    return {customPageSize(width, height), QString(), width, height};
}

QString paperText(ppd_file_t *ppd, const PMPaper &paper)
{
    const ppd_choice_t *choice = findChoice(findOption(ppd, u"PageSize"_s), paper.ppdName);
    if (choice)
        return ppdText(choice->text);
    const auto millimetres = [](double points) {
        return QString::number(qRound(points / kPointsPerMillimetre * 10) / 10.0);
    };
    return u"%1 × %2 mm"_s.arg(millimetres(paper.width), millimetres(paper.height));
}

bool hasMargins(ppd_file_t *ppd, const PMPaper &paper)
{
    if (!ppd)
        return true;
    if (paper.ppdName.isNull())
        return std::ranges::any_of(ppd->custom_margins, [](float margin) { return margin > 0; });
    const ppd_size_t *size = ppdPageSize(ppd, paper.ppdName.toUtf8().constData());
    return !size || size->left > 0 || size->bottom > 0 || size->right < size->width ||
           size->top < size->length;
}

std::optional<CustomLimits> customLimits(ppd_file_t *ppd)
{
    if (!ppd || !ppd->variable_sizes)
        return std::nullopt;
    return CustomLimits{
        static_cast<double>(ppd->custom_min[0]), static_cast<double>(ppd->custom_max[0]),
        static_cast<double>(ppd->custom_min[1]), static_cast<double>(ppd->custom_max[1])};
}

LengthFault faultOfLength(double length, double least, double most)
{
    if (length < least - kRounding)
        return LengthFault::TooSmall;
    return length > most + kRounding ? LengthFault::TooLarge : LengthFault::None;
}

bool isWithin(const CustomLimits &limits, double width, double height)
{
    return faultOfLength(width, limits.minWidth, limits.maxWidth) == LengthFault::None &&
           faultOfLength(height, limits.minHeight, limits.maxHeight) == LengthFault::None;
}

std::optional<PMPaper> parseCustomPaper(const QString &text)
{
    static const QRegularExpression form(u"^Custom\\.([0-9.]+)x([0-9.]+)(pt|mm|cm|in|)$"_s);
    const QRegularExpressionMatch match = form.match(text);
    for (const Unit &unit : kUnits) {
        if (!match.hasMatch() || match.captured(3) != QLatin1String(unit.name))
            continue;
        const double width = match.captured(1).toDouble() * unit.points;
        const double height = match.captured(2).toDouble() * unit.points;
        if (width > 0 && height > 0)
            return customPaper(width, height);
    }
    return std::nullopt;
}
