#pragma once

#include "platform/ppd/CupsPPD.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

#include <optional>

/// What a bundle's patterns are held against.
struct PrinterFacts
{
    struct Attribute
    {
        QString name;
        QString value;
    };

    QString manufacturer;
    QString model;
    QStringList keywords; ///< of the PPD's options
    QList<Attribute> attributes;
};

PrinterFacts printerFacts(ppd_file_t *ppd);

/// How closely the printers that a bundle is for (its entry kPDEPrintersKey) describe this one: by
/// how many characters of manufacturer and model they name, wildcards not counted; 0 when they fit
/// by other things. None when they do not fit at all.
std::optional<qsizetype> matchLength(const QVariant &printers, const PrinterFacts &facts);

/// A bundle that may be chosen.
struct BundleCandidate
{
    QString path;
    QVariant printers; ///< its entry kPDEPrintersKey
};

/// The path of the bundle that describes the printer most closely, of several the first one; null
/// when none fits.
QString bestBundle(const QList<BundleCandidate> &candidates, const PrinterFacts &facts);
