#pragma once

#include "platform/toolkit/FractionSlider.h"
#include "platform/toolkit/ImageView.h"
#include "tests/colorsettings/ColorPanelFixture.h"
#include "tests/colorsettings/ColorPictures.h"

inline void PrintTo(const QColor &color, std::ostream *out)
{
    *out << color.name(QColor::HexArgb).toStdString();
}

/// A test of the preview, over pictures of one colour each.
class PictureTest : public ColorPanelTest
{
protected:
    PictureTest() { Bundle::setMainBundle(pictures.bundle()); }

    /// Shows the panel, enhancement on or off.
    void show(bool enhancementOn = true)
    {
        using namespace Qt::StringLiterals;
        if (enhancementOn)
            dialog.host->willChangePPDOptionKeyValue(u"VKColorEnhancement"_s, u"ON"_s);
        dialog.show();
    }

    /// Moves the slider as a user does.
    void slide(const char *slider, double value)
    {
        dialog.part<FractionSlider>(slider).moveByUser(value);
    }

    ImageView &view() { return *dialog.panel->inspectedPicture(); }

    /// What the preview shows: colours as QColor so that a failure is readable.
    QColor shown() { return QColor::fromRgba(shownColor(view())); }

    /// Whether the preview shows this grey, one level off at most.
    testing::AssertionResult showsGrey(int level)
    {
        if (isWithin(1, shownColor(view()), qRgb(level, level, level)))
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << shown().name(QColor::HexArgb).toStdString();
    }

    ColorPictures pictures;
    ColorDialog dialog;
};
