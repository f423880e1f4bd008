#pragma once

#include <QtCore/QLatin1String>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

// What PDEPanel::summaryInfo() answers: the title of each line to its value, and the order of the
// lines. A title of the order without a value is passed over.

/// The entry that holds the titles in the order in which they are shown: a list of strings.
inline constexpr auto kPDESummaryDisplayOrder = QLatin1String("Summary Display Order");

inline QStringList summaryOrder(const QVariantMap &summary)
{
    return summary.value(kPDESummaryDisplayOrder).toStringList();
}

inline void setSummaryOrder(QVariantMap &summary, const QStringList &order)
{
    summary.insert(kPDESummaryDisplayOrder, order);
}

/// Adds a line behind the others.
inline void appendSummaryLine(QVariantMap &summary, const QString &title, const QVariant &value)
{
    summary.insert(title, value);
    setSummaryOrder(summary, summaryOrder(summary) << title);
}
