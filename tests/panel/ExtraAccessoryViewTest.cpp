#include "panel/ExtraAccessoryView.h"

#include <gtest/gtest.h>

#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>

using namespace Qt::StringLiterals;

namespace {

class ExtraAccessoryViewTest : public testing::Test
{
protected:
    ExtraAccessoryViewTest()
    {
        // The left half red, the right half half-transparent blue.
        QImage picture(4, 2, QImage::Format_ARGB32);
        picture.fill(Qt::red);
        for (int y = 0; y < 2; ++y) {
            picture.setPixelColor(2, y, QColor(0, 0, 255, 128));
            picture.setPixelColor(3, y, QColor(0, 0, 255, 128));
        }
        picture.save(file, "PNG");
        view.resize(40, 60);
    }

    QImage drawn()
    {
        QImage shown(view.size(), QImage::Format_ARGB32_Premultiplied);
        shown.fill(Qt::white);
        view.render(&shown, QPoint(), QRegion(), QWidget::DrawChildren);
        return shown;
    }

    QTemporaryDir folder;
    QString file = folder.filePath(u"picture.png"_s);
    ExtraAccessoryView view;
};

TEST_F(ExtraAccessoryViewTest, StretchesThePictureOverTheWholeView)
{
    view.setImage(file);
    const QImage shown = drawn();
    EXPECT_EQ(shown.pixelColor(0, 0), QColor(Qt::red));
    EXPECT_EQ(shown.pixelColor(17, 59), QColor(Qt::red));
    EXPECT_EQ(shown.pixelColor(39, 59).blue(), 255);
}

TEST_F(ExtraAccessoryViewTest, CopiesThePictureOverWhatIsThere)
{
    view.setImage(file);
    EXPECT_EQ(drawn().pixelColor(39, 30).alpha(), 128);
}

TEST_F(ExtraAccessoryViewTest, DrawsNothingWithoutAPicture)
{
    view.setImage(folder.filePath(u"missing.png"_s));
    EXPECT_EQ(drawn().pixelColor(20, 30), QColor(Qt::white));
}

} // namespace
