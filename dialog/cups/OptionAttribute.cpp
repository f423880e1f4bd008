#include "dialog/cups/OptionAttribute.h"

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayList>
#include <QtCore/QStringList>

#include <array>
#include <vector>

namespace {

struct Standard
{
    const char *name;
    ipp_tag_t tag;
};

// The standard attributes that the dialog or lpoptions may send, with their syntax.
constexpr auto kRecipient = "notify-recipient-uri";
constexpr auto kCoverPages = "job-sheets"; // of several values

constexpr std::array kStandard{
    Standard{"copies", IPP_TAG_INTEGER},
    Standard{"fit-to-page", IPP_TAG_BOOLEAN},
    Standard{"finishings", IPP_TAG_ENUM},
    Standard{"job-hold-until", IPP_TAG_KEYWORD},
    Standard{"job-priority", IPP_TAG_INTEGER},
    Standard{"job-sheets", IPP_TAG_KEYWORD},
    Standard{"multiple-document-handling", IPP_TAG_KEYWORD},
    Standard{"number-up", IPP_TAG_INTEGER},
    Standard{"number-up-layout", IPP_TAG_KEYWORD},
    Standard{"orientation-requested", IPP_TAG_ENUM},
    Standard{"output-bin", IPP_TAG_KEYWORD},
    Standard{"page-ranges", IPP_TAG_RANGE},
    Standard{"print-color-mode", IPP_TAG_KEYWORD},
    Standard{"print-quality", IPP_TAG_ENUM},
    Standard{"print-scaling", IPP_TAG_KEYWORD},
    Standard{"sides", IPP_TAG_KEYWORD},
};

ipp_tag_t tagOf(const QByteArray &name)
{
    for (const Standard &standard : kStandard)
        if (name == standard.name)
            return standard.tag;
    return IPP_TAG_NAME;
}

void addRanges(ipp_t *request, const char *name, const QString &value)
{
    std::vector<int> lower;
    std::vector<int> upper;
    for (const QString &range : value.split(u',')) {
        lower.push_back(range.section(u'-', 0, 0).toInt());
        upper.push_back(range.section(u'-', -1).toInt());
    }
    ippAddRanges(request, IPP_TAG_JOB, name, static_cast<int>(lower.size()), lower.data(),
                 upper.data());
}

void addNumbers(ipp_t *request, ipp_tag_t tag, const char *name, const QString &value)
{
    std::vector<int> numbers;
    for (const QString &number : value.split(u','))
        numbers.push_back(number.toInt());
    ippAddIntegers(request, IPP_TAG_JOB, tag, name, static_cast<int>(numbers.size()),
                   numbers.data());
}

void addList(ipp_t *request, ipp_tag_t tag, const QByteArray &name, const QString &value)
{
    std::vector<const char *> texts;
    const QByteArrayList values = value.toUtf8().split(',');
    for (const QByteArray &one : values)
        texts.push_back(one.constData());
    ippAddStrings(request, IPP_TAG_JOB, tag, name.constData(), static_cast<int>(texts.size()),
                  nullptr, texts.data());
}

} // namespace

bool isOfSubscription(const JobOption &option)
{
    return option.name == QLatin1String(kRecipient);
}

void addSubscription(ipp_t *request, const JobOption &option)
{
    ippAddString(request, IPP_TAG_SUBSCRIPTION, IPP_TAG_URI, kRecipient, nullptr,
                 option.value.toUtf8().constData());
    ippAddString(request, IPP_TAG_SUBSCRIPTION, IPP_TAG_KEYWORD, "notify-events", nullptr,
                 "job-completed");
}

void addOptionAttribute(ipp_t *request, const JobOption &option)
{
    const QByteArray name = option.name.toUtf8();
    const ipp_tag_t tag = tagOf(name);
    switch (tag) {
    case IPP_TAG_INTEGER:
    case IPP_TAG_ENUM:
        addNumbers(request, tag, name.constData(), option.value);
        return;
    case IPP_TAG_BOOLEAN:
        ippAddBoolean(request, IPP_TAG_JOB, name.constData(),
                      option.value == QLatin1String("true") ? 1 : 0);
        return;
    case IPP_TAG_RANGE:
        addRanges(request, name.constData(), option.value);
        return;
    default:
        if (name == kCoverPages)
            return addList(request, tag, name, option.value);
        ippAddString(request, IPP_TAG_JOB, tag, name.constData(), nullptr,
                     option.value.toUtf8().constData());
    }
}

QString attributeText(ipp_attribute_t *attribute)
{
    QStringList values;
    for (int index = 0; index < ippGetCount(attribute); ++index) {
        int upper = 0;
        switch (ippGetValueTag(attribute)) {
        case IPP_TAG_INTEGER:
        case IPP_TAG_ENUM:
            values += QString::number(ippGetInteger(attribute, index));
            break;
        case IPP_TAG_BOOLEAN:
            values +=
                ippGetBoolean(attribute, index) ? QStringLiteral("true") : QStringLiteral("false");
            break;
        case IPP_TAG_RANGE: {
            const int lower = ippGetRange(attribute, index, &upper);
            values += lower == upper ? QString::number(lower)
                                     : QStringLiteral("%1-%2").arg(lower).arg(upper);
            break;
        }
        default:
            values += QString::fromUtf8(ippGetString(attribute, index, nullptr));
        }
    }
    return values.join(u',');
}
