#include "dialog/job/PaperKind.h"

#include "dialog/job/Papers.h"

#include <cups/pwg.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

using namespace std::string_view_literals;

namespace {

struct Family
{
    std::string_view name; ///< with which a self-describing media name begins
    PaperKind kind;
};

// The names are those of PWG 5101.1. Longer ones before those that they begin with.
constexpr std::array kMediaFamilies{
    Family{"na_index-4x6"sv, PaperKind::Photo},
    Family{"na_index-5x8"sv, PaperKind::Photo},
    Family{"na_5x7"sv, PaperKind::Photo},
    Family{"na_govt-letter"sv, PaperKind::Photo}, // 8 x 10 inches
    Family{"oe_photo"sv, PaperKind::Photo},
    Family{"oe_square-photo"sv, PaperKind::Photo},
    Family{"om_small-photo"sv, PaperKind::Photo},
    Family{"om_medium-photo"sv, PaperKind::Photo},
    Family{"om_large-photo"sv, PaperKind::Photo},
    Family{"om_wide-photo"sv, PaperKind::Photo},
    Family{"om_square-photo"sv, PaperKind::Photo},
    Family{"jpn_photo"sv, PaperKind::Photo},

    Family{"na_index"sv, PaperKind::EnvelopeOrCard},
    Family{"oe_business-card"sv, PaperKind::EnvelopeOrCard},
    Family{"om_business-card"sv, PaperKind::EnvelopeOrCard},
    Family{"om_card"sv, PaperKind::EnvelopeOrCard},
    Family{"iso_id"sv, PaperKind::EnvelopeOrCard},
    Family{"jpn_hagaki"sv, PaperKind::EnvelopeOrCard},
    Family{"jpn_oufuku"sv, PaperKind::EnvelopeOrCard},

    Family{"na_number-"sv, PaperKind::EnvelopeOrCard},
    Family{"na_monarch"sv, PaperKind::EnvelopeOrCard},
    Family{"na_personal"sv, PaperKind::EnvelopeOrCard},
    Family{"na_a2"sv, PaperKind::EnvelopeOrCard},
    Family{"na_c5"sv, PaperKind::EnvelopeOrCard},
    Family{"na_6x9"sv, PaperKind::EnvelopeOrCard},
    Family{"na_7x9"sv, PaperKind::EnvelopeOrCard},
    Family{"na_9x11"sv, PaperKind::EnvelopeOrCard},
    Family{"na_10x13"sv, PaperKind::EnvelopeOrCard},
    Family{"iso_c"sv, PaperKind::EnvelopeOrCard},
    Family{"iso_dl"sv, PaperKind::EnvelopeOrCard},
    Family{"jpn_chou"sv, PaperKind::EnvelopeOrCard},
    Family{"jpn_kaku"sv, PaperKind::EnvelopeOrCard},
    Family{"jpn_kahu"sv, PaperKind::EnvelopeOrCard},
    Family{"jpn_you"sv, PaperKind::EnvelopeOrCard},
    Family{"om_italian"sv, PaperKind::EnvelopeOrCard},
    Family{"om_invite"sv, PaperKind::EnvelopeOrCard},
    Family{"om_postfix"sv, PaperKind::EnvelopeOrCard},
    Family{"prc_16k"sv, PaperKind::Standard},
    Family{"prc_32k"sv, PaperKind::Standard},
    Family{"prc_"sv, PaperKind::EnvelopeOrCard},
};

constexpr auto kEnvelope = QLatin1String("Env"); // how the PPD specification names envelopes

constexpr std::array kDiscs{120.0, 80.0}; // millimetres across
constexpr double kDiscRounding = 1.0;     // millimetres: sizes of PPDs are whole points

/// Null: the name or the size is nobody's.
const Family *familyOf(const pwg_media_t *media)
{
    const auto found = std::ranges::find_if(kMediaFamilies, [&](const Family &family) {
        return media && std::string_view(media->pwg).starts_with(family.name);
    });
    return found == kMediaFamilies.end() ? nullptr : &*found;
}

const Family *familyOfName(const QString &choice)
{
    const QByteArray name = choice.toUtf8();
    const Family *family = familyOf(pwgMediaForPWG(name.constData()));
    return family ? family : familyOf(pwgMediaForPPD(name.constData()));
}

const Family *familyOfSize(double width, double height)
{
    const auto hundredths = [](double points) {
        return static_cast<int>(std::lround(points / kPointsPerMillimetre * 100));
    };
    return familyOf(
        pwgMediaForSize(hundredths(std::min(width, height)), hundredths(std::max(width, height))));
}

bool isDisc(double width, double height)
{
    return std::ranges::any_of(kDiscs, [&](double across) {
        return std::abs(width / kPointsPerMillimetre - across) < kDiscRounding &&
               std::abs(height / kPointsPerMillimetre - across) < kDiscRounding;
    });
}

} // namespace

PaperKind paperKind(const QString &choice, double width, double height)
{
    if (const Family *named = familyOfName(choice))
        return named->kind;
    if (choice.startsWith(kEnvelope))
        return PaperKind::EnvelopeOrCard;
    if (isDisc(width, height))
        return PaperKind::Disc;
    const Family *sized = familyOfSize(width, height);
    return sized ? sized->kind : PaperKind::Standard;
}
