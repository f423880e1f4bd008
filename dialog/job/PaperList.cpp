#include "dialog/job/PaperList.h"

#include "dialog/job/JobOptions.h"
#include "platform/toolkit/PlainText.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QRegularExpression>

#include <algorithm>
#include <array>

namespace {

struct Heading
{
    PaperKind kind;
    const char *title;
};

constexpr std::array kHeadings{
    Heading{PaperKind::Standard, QT_TRANSLATE_NOOP("PaperList", "Standard")},
    Heading{PaperKind::Photo, QT_TRANSLATE_NOOP("PaperList", "Photo")},
    Heading{PaperKind::EnvelopeOrCard, QT_TRANSLATE_NOOP("PaperList", "Envelopes and Cards")},
    Heading{PaperKind::Disc, QT_TRANSLATE_NOOP("PaperList", "Discs")},
};

/// Whether the text has all the numbers of the measures: "4 x 6 in" of "4 × 6 in".
bool says(const QString &text, const QString &measures)
{
    static const QRegularExpression number(QStringLiteral("\\d+([.,]\\d+)?"));
    const auto numbersOf = [&](const QString &in) {
        QStringList numbers;
        for (auto match = number.globalMatch(in); match.hasNext();)
            numbers += match.next().captured();
        return numbers;
    };
    const QStringList said = numbersOf(text);
    return std::ranges::all_of(numbersOf(measures),
                               [&](const QString &one) { return said.contains(one); });
}

PaperListRow rowOf(const QString &title, const QString &paper, double width, double height)
{
    const QString measures = measureText(width, height);
    const bool isKnown = width > 0 && height > 0;
    return {title, paper, isKnown && !says(title, measures) ? measures : QString()};
}

PaperListRow rowOf(const PaperSize &size)
{
    return rowOf(size.text, size.choice, size.width, size.height);
}

void add(QList<PaperListRow> &list, const char *heading, const QList<PaperListRow> &rows)
{
    if (rows.isEmpty())
        return;
    list += PaperListRow{QCoreApplication::translate("PaperList", heading), {}, {}};
    list += rows;
}

QList<PaperListRow> recentRows(const QList<PaperSize> &sizes, const QStringList &recent)
{
    QList<PaperListRow> rows;
    for (const QString &choice : recent) {
        const qsizetype index = indexOfSize(sizes, choice);
        const bool isThere = index >= 0 && std::ranges::any_of(rows, [&](const PaperListRow &row) {
                                 return row.paper == sizes[index].choice;
                             });
        if (index >= 0 && !isThere)
            rows += rowOf(sizes[index]);
    }
    return rows;
}

} // namespace

QList<PaperListRow> paperList(const QList<PaperSize> &sizes, const QStringList &recent,
                              const QList<OwnSize> &own, bool takesOwnSizes)
{
    QList<PaperListRow> list;
    add(list, QT_TRANSLATE_NOOP("PaperList", "Used Recently"), recentRows(sizes, recent));
    for (const Heading &heading : kHeadings) {
        QList<PaperListRow> rows;
        for (const PaperSize &size : sizes)
            if (size.kind == heading.kind)
                rows += rowOf(size);
        add(list, heading.title, rows);
    }
    if (!takesOwnSizes)
        return list;
    QList<PaperListRow> rows;
    for (const OwnSize &size : own)
        rows += rowOf(displayText(size.name), customPageSize(size.width, size.height), size.width,
                      size.height);
    rows += PaperListRow{QCoreApplication::translate("PaperList", "Custom Size"), kOwnPaper, {}};
    add(list, QT_TRANSLATE_NOOP("PaperList", "Own Sizes"), rows);
    return list;
}
