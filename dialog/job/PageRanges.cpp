#include "dialog/job/PageRanges.h"

#include <QtCore/QList>
#include <QtCore/QStringList>

#include <algorithm>
#include <optional>

namespace {

constexpr int kLastPage = 65535; // what cupsd takes as an open end

struct Range
{
    int first;
    int last;
};

std::optional<int> pageNumber(const QString &text)
{
    bool isNumber = false;
    const int page = text.trimmed().toInt(&isNumber);
    if (!isNumber || page < 1 || page > kLastPage)
        return std::nullopt;
    return page;
}

std::optional<Range> rangeOf(const QString &text)
{
    const qsizetype dash = text.indexOf(u'-');
    const std::optional<int> first = pageNumber(text.left(dash));
    if (dash < 0)
        return first ? std::optional(Range{*first, *first}) : std::nullopt;
    const QString end = text.mid(dash + 1);
    const std::optional<int> last = end.trimmed().isEmpty() ? kLastPage : pageNumber(end);
    if (!first || !last || *last < *first)
        return std::nullopt;
    return Range{*first, *last};
}

QString joined(QList<Range> ranges)
{
    std::ranges::sort(ranges, {}, &Range::first);
    QList<Range> merged;
    for (const Range &range : ranges) {
        if (!merged.isEmpty() && range.first <= merged.last().last + 1)
            merged.last().last = std::max(merged.last().last, range.last);
        else
            merged += range;
    }
    QStringList texts;
    for (const Range &range : merged)
        texts += range.first == range.last
                     ? QString::number(range.first)
                     : QStringLiteral("%1-%2").arg(range.first).arg(range.last);
    return texts.join(u',');
}

} // namespace

QString normalizedPageRanges(const QString &typed)
{
    if (typed.trimmed().isEmpty())
        return QStringLiteral("");
    QList<Range> ranges;
    for (const QString &part : typed.split(u',')) {
        const std::optional<Range> range = rangeOf(part);
        if (!range)
            return {};
        ranges += *range;
    }
    return joined(ranges);
}

std::optional<int> pageBeyond(const QString &ranges, int pages)
{
    for (const QString &range : ranges.split(u',', Qt::SkipEmptyParts))
        if (const int first = range.section(u'-', 0, 0).toInt(); first > pages)
            return first;
    return std::nullopt;
}
