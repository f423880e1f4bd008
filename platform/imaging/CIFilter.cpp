#include "platform/imaging/CIFilter.h"

#include "platform/imaging/FilterCatalogue.h"

CIFilter::CIFilter(const FilterDescription &description) : m_description(&description)
{
    setDefaults();
}

std::unique_ptr<CIFilter> CIFilter::filterWithName(const QString &name)
{
    const FilterDescription *description = filterNamed(name);
    return description ? std::unique_ptr<CIFilter>(new CIFilter(*description)) : nullptr;
}

QString CIFilter::name() const
{
    return m_description->name;
}

void CIFilter::setDefaults()
{
    for (const FilterInput &input : m_description->inputs)
        m_values.insert(input.key, input.defaultValue);
}

void CIFilter::setValue(const QVariant &value, const QString &forKey)
{
    if (forKey == kCIInputImageKey) {
        if (value.metaType() == QMetaType::fromType<std::shared_ptr<const CIImage>>())
            m_inputImage = value.value<std::shared_ptr<const CIImage>>();
        return;
    }
    for (const FilterInput &input : m_description->inputs)
        if (input.key == forKey && acceptsValue(input, value))
            m_values.insert(forKey, value);
}

void CIFilter::setValue(const CIVector &vector, const QString &forKey)
{
    setValue(QVariant::fromValue(vector), forKey);
}

void CIFilter::setValue(const CIColor &color, const QString &forKey)
{
    setValue(QVariant::fromValue(color), forKey);
}

void CIFilter::setValue(const std::shared_ptr<const CIImage> &image, const QString &forKey)
{
    setValue(QVariant::fromValue(image), forKey);
}

QVariant CIFilter::valueForKey(const QString &key) const
{
    if (key == kCIInputImageKey)
        return QVariant::fromValue(m_inputImage);
    if (key == kCIOutputImageKey)
        return QVariant::fromValue(outputImage());
    return m_values.value(key);
}

CIVector CIFilter::vectorForKey(const QString &key) const
{
    return m_values.value(key).value<CIVector>();
}

double CIFilter::numberForKey(const QString &key) const
{
    return m_values.value(key).toDouble();
}

std::shared_ptr<const CIImage> CIFilter::outputImage() const
{
    if (!m_inputImage)
        return nullptr;
    return m_inputImage->imageByApplying(
        m_description->change([this](const QString &key) { return m_values.value(key); }));
}
