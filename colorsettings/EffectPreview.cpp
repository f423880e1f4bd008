#include "colorsettings/VKInkColorSettingPDE.h"

#include "colorsettings/EffectParameters.h"
#include "colorsettings/EffectVal.h"
#include "colorsettings/rules/EffectTable.h"
#include "platform/foundation/Bundle.h"
#include "platform/imaging/CIFilter.h"
#include "platform/imaging/CIImage.h"
#include "platform/toolkit/ImageView.h"
#include "platform/toolkit/KeyWindow.h"
#include "platform/toolkit/PanelPoint.h"
#include "platform/toolkit/ViewLoader.h"

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t kColorControls = 2; // brightness and contrast come before the gains

QString colorControlKeyword(int code)
{
    return kEffects[static_cast<std::size_t>(code)].keyword;
}

QString gainKeyword(int color)
{
    return kEffects[kColorControls + static_cast<std::size_t>(color)].keyword;
}

} // namespace

std::shared_ptr<const CIImage> VKInkColorSettingPDE::refImage() const
{
    if (m_refImageName.isNull())
        return m_refImage;
    const auto known = m_readPictures.constFind(m_refImageName);
    if (known != m_readPictures.constEnd())
        return *known;
    const QString path = pluginBundle->pathForResource(m_refImageName, u"tiff"_s);
    return *m_readPictures.insert(m_refImageName, CIImage::imageWithContentsOfFile(path));
}

void VKInkColorSettingPDE::setRefImage(const std::shared_ptr<const CIImage> &image)
{
    m_refImage = image;
    m_refImageName = QString();
}

// The controls' rules name the picture at every step, mostly while nobody sees it: it is read when
// it is first drawn.
void VKInkColorSettingPDE::setRefImageWithName(const QString &name)
{
    if (name == m_refImageName || !pluginBundle ||
        pluginBundle->pathForResource(name, u"tiff"_s).isNull())
        return;
    setRefImage(nullptr);
    m_refImageName = name;
}

std::shared_ptr<const CIImage>
VKInkColorSettingPDE::applyColorControlFilter(const std::shared_ptr<const CIImage> &image, int code)
{
    if (!ccFilter)
        return image;
    ccFilter->setValue(image, kCIInputImageKey);
    if (code < 0) {
        setColorControl(0);
        setColorControl(1);
    } else if (code <= 1) {
        const QString keyword = colorControlKeyword(code);
        setContent(keyword, static_cast<float>(contentInteger(keyword)));
        setColorControl(code);
    }
    return isEnhancementShown() ? ccFilter->outputImage() : image;
}

std::shared_ptr<const CIImage>
VKInkColorSettingPDE::applyColorMatrixFilter(const std::shared_ptr<const CIImage> &image, int code)
{
    if (!cmFilter)
        return image;
    cmFilter->setValue(image, kCIInputImageKey);
    if (code < 0) {
        for (int color = 0; color <= 2; ++color)
            setGain(color);
    } else if (code <= 2) {
        const QString keyword = gainKeyword(code);
        setContent(keyword, contentInteger(keyword));
        setGain(code);
    }
    if (hasFlag(MonoColorMode))
        return monochrome(image);
    return isEnhancementShown() ? cmFilter->outputImage() : image;
}

void VKInkColorSettingPDE::setColorControl(int code)
{
    const long long value = contentInteger(colorControlKeyword(code));
    if (code == 0)
        ccFilter->setValue(brightnessParameter(value), kCIInputBrightnessKey);
    else
        ccFilter->setValue(contrastParameter(value), kCIInputContrastKey);
}

void VKInkColorSettingPDE::setGain(int color)
{
    static const QString keys[] = {kCIInputRVectorKey, kCIInputGVectorKey, kCIInputBVectorKey};
    cmFilter->setValue(gainVector(color, contentInteger(gainKeyword(color))), keys[color]);
}

std::shared_ptr<const CIImage>
VKInkColorSettingPDE::monochrome(const std::shared_ptr<const CIImage> &image) const
{
    const auto filter = CIFilter::filterWithName(u"CIColorMonochrome"_s);
    filter->setValue(image, kCIInputImageKey);
    filter->setValue(CIColor{1.0, 1.0, 1.0, 1.0}, kCIInputColorKey);
    filter->setValue(1.0, kCIInputIntensityKey);
    return filter->outputImage();
}

bool VKInkColorSettingPDE::isEnhancementShown() const
{
    return effectContent && effectContent->boolValue(u"VKColorEnhancement"_s);
}

void VKInkColorSettingPDE::redrawEffectImage()
{
    if (hasFlag(FaxOutput)) {
        setRefImageWithName(u"None"_s);
        drawEffect(monochrome(refImage()));
        return;
    }
    constexpr int all = -1;
    drawEffect(applyColorMatrixFilter(applyColorControlFilter(refImage(), all), all));
}

void VKInkColorSettingPDE::drawEffect(const std::shared_ptr<const CIImage> &result)
{
    if (!effectImageView)
        return;
    // Drawn over the picture that the view has shown: allocating a new one costs more than drawing
    // it.
    QImage picture = effectImageView->takeImage();
    m_context.drawImage(result, picture);
    effectImageView->setImage(picture);
}

void VKInkColorSettingPDE::effectValueDidChange(QWidget *control)
{
    const int tag = tagOf(control);
    const double value = doubleValueOf(control);
    if (isHandledChange(tag, value))
        return;
    recordChange(tag, value);
    if (tag >= static_cast<int>(kEffects.size()) || !ccFilter || !cmFilter)
        return;
    constexpr int firstGain = kColorControls;
    const auto result =
        tag < firstGain ? withColorControlChanged(tag) : withGainChanged(tag - firstGain);
    if (result)
        drawEffect(result);
}

std::shared_ptr<const CIImage> VKInkColorSettingPDE::withColorControlChanged(int code)
{
    const auto first = applyColorControlFilter(refImage(), code);
    if (hasFlag(MonoColorMode))
        return monochrome(first);
    cmFilter->setValue(first, kCIInputImageKey);
    return cmFilter->outputImage();
}

// Here the gains come before brightness and contrast; the whole picture has them the other way
// round.
std::shared_ptr<const CIImage> VKInkColorSettingPDE::withGainChanged(int color)
{
    const auto first = applyColorMatrixFilter(refImage(), color);
    ccFilter->setValue(first, kCIInputImageKey);
    return ccFilter->outputImage();
}

void VKInkColorSettingPDE::updateImage(QWidget *)
{
    if (!hasFlag(PanelOnScreen) || !effectContent)
        return;
    const double height = keyWindowHeight().value_or(0.0);
    if (height == effectContent->value(u"frameHeight"_s).toDouble())
        return;
    setContent(u"frameHeight"_s, height);
    const QWidget *view = loadedView();
    const double limit = (view ? sizeInPoints(*view).height() : 0) + kWindowMargin;
    if (height <= limit)
        return;
    if (effectImageView)
        effectImageView->repaint();
    redrawEffectImage();
}
