#include "dialog/cups/LoadedMedia.h"

#include "dialog/cups/ServerSentences.h"
#include "dialog/job/Papers.h"

#include <cups/pwg.h>

#include <algorithm>
#include <cmath>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMostTrays = 32;
constexpr double kUnitsPerMillimetre = 100; // of media-size
constexpr double kTolerance = 3;            // points: PPDs round, and trays measure

double points(int units)
{
    return units / kUnitsPerMillimetre * kPointsPerMillimetre;
}

/// A whole number above zero; 0 for anything else, such as the range of a roll.
int lengthIn(ipp_t *size, const char *name)
{
    ipp_attribute_t *length = ippFindAttribute(size, name, IPP_TAG_INTEGER);
    return length ? std::max(0, ippGetInteger(length, 0)) : 0;
}

ipp_t *collectionIn(ipp_t *collection, const char *name)
{
    ipp_attribute_t *inner = ippFindAttribute(collection, name, IPP_TAG_BEGIN_COLLECTION);
    return inner ? ippGetCollection(inner, 0) : nullptr;
}

std::optional<LoadedMedium> mediumOf(ipp_t *tray)
{
    ipp_t *size = collectionIn(tray, "media-size");
    const int width = lengthIn(size, "x-dimension");
    const int height = lengthIn(size, "y-dimension");
    ipp_attribute_t *source = ippFindAttribute(tray, "media-source", IPP_TAG_ZERO);
    if (width == 0 || height == 0)
        return std::nullopt;
    return LoadedMedium{
        shownServerText(QString::fromUtf8(source ? ippGetString(source, 0, nullptr) : nullptr)),
        points(width), points(height)};
}

/// A self-describing name, or one of a PPD.
std::optional<LoadedMedium> mediumNamed(const char *name)
{
    if (!name)
        return std::nullopt;
    const pwg_media_t *known = pwgMediaForPWG(name);
    if (!known)
        known = pwgMediaForPPD(name);
    if (!known || known->width <= 0 || known->length <= 0)
        return std::nullopt;
    return LoadedMedium{{}, points(known->width), points(known->length)};
}

/// All of them, or none where one cannot be told.
template <typename Read> QList<LoadedMedium> mediaOf(ipp_attribute_t *attribute, const Read &read)
{
    QList<LoadedMedium> media;
    for (int index = 0; index < std::min(ippGetCount(attribute), kMostTrays); ++index) {
        const std::optional<LoadedMedium> one = read(attribute, index);
        if (!one)
            return {};
        media += *one;
    }
    return media;
}

/// "Tray1" of a PPD is "tray-1".
QString bareName(const QString &name)
{
    QString bare = name.toLower();
    bare.removeIf([](QChar one) { return !one.isLetterOrNumber(); });
    return bare;
}

bool isNear(double one, double other)
{
    return std::abs(one - other) <= kTolerance;
}

} // namespace

const QList<QByteArray> &loadedMediaAttributes()
{
    static const QList<QByteArray> names{"media-ready", "media-col-ready", "cups-version"};
    return names;
}

QList<LoadedMedium> loadedMediaOf(ipp_t *printer)
{
    const bool isOfCups = ippFindAttribute(printer, "cups-version", IPP_TAG_ZERO);
    if (ipp_attribute_t *trays =
            ippFindAttribute(printer, "media-col-ready", IPP_TAG_BEGIN_COLLECTION))
        return mediaOf(trays, [isOfCups](ipp_attribute_t *all, int index) {
            const auto medium = mediumOf(ippGetCollection(all, index));
            return medium && isOfCups && medium->source.isEmpty() ? std::nullopt : medium;
        });
    ipp_attribute_t *names = ippFindAttribute(printer, "media-ready", IPP_TAG_ZERO);
    if (!names || isOfCups)
        return {};
    return mediaOf(names, [](ipp_attribute_t *all, int index) {
        return mediumNamed(ippGetString(all, index, nullptr));
    });
}

QList<LoadedMedium> mediaIn(const QList<LoadedMedium> &loaded, const QString &slot)
{
    QList<LoadedMedium> there = loaded;
    there.removeIf([&](const LoadedMedium &one) { return bareName(one.source) != bareName(slot); });
    return slot.isEmpty() || there.isEmpty() ? loaded : there;
}

bool isLoaded(const QList<LoadedMedium> &loaded, double width, double height)
{
    return std::ranges::any_of(loaded, [&](const LoadedMedium &one) {
        return (isNear(one.width, width) && isNear(one.height, height)) ||
               (isNear(one.width, height) && isNear(one.height, width));
    });
}
