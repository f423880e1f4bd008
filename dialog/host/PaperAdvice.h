#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

/// A choice that a bundle advises for some papers (PDEPaperAdvice): a tray that takes envelopes,
/// say.
struct PaperAdvice
{
    QStringList papers; ///< patterns of a shell for the names of papers, in their letter case
    QString keyword;
    QString choice;

    bool isFor(const QString &paper) const;
};

/// From the entry of the bundle, in its order; what has not its form is left out.
QList<PaperAdvice> paperAdvice(const QVariantList &entry);
