#pragma once

#include <QtCore/QList>
#include <QtCore/QString>

#include <cups/ipp.h>

/// Paper in one of a printer's trays. Sizes are in points.
struct LoadedMedium
{
    QString source; ///< the tray's keyword; null: not told
    double width = 0;
    double height = 0;

    bool operator==(const LoadedMedium &) const = default;
};

/// What is in the trays, as the printer's attributes tell (`media-col-ready`, else `media-ready`).
/// None where they do not tell it of every tray: then nobody knows what is there.
///
/// A list of sizes without trays that a cupsd gives is no such thing: to every queue with a PPD it
/// gives the sizes that somebody has configured (ReadyPaperSizes).
QList<LoadedMedium> loadedMediaOf(ipp_t *printer);

/// The names of those attributes.
const QList<QByteArray> &loadedMediaAttributes();

/// What is in the tray of that `InputSlot` choice; all that is loaded where no tray is known by it.
QList<LoadedMedium> mediaIn(const QList<LoadedMedium> &loaded, const QString &slot);

/// Whether a sheet of the size is among them, whichever way round it lies.
bool isLoaded(const QList<LoadedMedium> &loaded, double width, double height);
