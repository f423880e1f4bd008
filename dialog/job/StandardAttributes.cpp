#include "dialog/job/StandardAttributes.h"

#include "platform/ppd/PPDText.h"

#include <array>

namespace {

struct Twin
{
    const char *keyword;
    const char *choice;
    const char *attribute;
    const char *value;
};

// The keywords and choices are those of the CUPS PPD extensions, the values those of IPP.
constexpr std::array kTwins{
    Twin{"ColorModel", "Gray", "print-color-mode", "monochrome"},
    Twin{"ColorModel", "Gray16", "print-color-mode", "monochrome"},
    Twin{"ColorModel", "Black", "print-color-mode", "monochrome"},
    Twin{"ColorModel", "KGray", "print-color-mode", "monochrome"},
    Twin{"ColorModel", "RGB", "print-color-mode", "color"},
    Twin{"ColorModel", "CMYK", "print-color-mode", "color"},
    Twin{"ColorModel", "Color", "print-color-mode", "color"},
    Twin{"cupsPrintQuality", "Draft", "print-quality", "3"},
    Twin{"cupsPrintQuality", "Normal", "print-quality", "4"},
    Twin{"cupsPrintQuality", "High", "print-quality", "5"},
};

} // namespace

QList<JobOption> standardAttributesBeside(const QList<JobOption> &choices)
{
    QList<JobOption> attributes;
    for (const JobOption &choice : choices)
        for (const Twin &twin : kTwins)
            if (isSameName(choice.name, QLatin1String(twin.keyword)) &&
                isSameName(choice.value, QLatin1String(twin.choice)))
                attributes +=
                    JobOption{QString::fromLatin1(twin.attribute), QString::fromLatin1(twin.value)};
    return attributes;
}
