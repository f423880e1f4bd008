#include "platform/toolkit/ImageView.h"
#include "platform/toolkit/ViewLoader.h"
#include "tests/built/BuiltFiles.h"
#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

#include <QtTest/QTest>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

using namespace Qt::StringLiterals;

// The view resource with the alert windows of the Print Settings panel keeps what its code counts
// on.

namespace {

class AlertWindowsViewTest : public testing::Test
{
protected:
    AlertWindowsViewTest()
    {
        ViewConnections owner;
        owner.outlet(u"VKInkPrintSetting14Alerts"_s, root);
        for (const char *action : {"dialogOkDidClick:", "dialogCancelDidClick:"}) {
            owner.action(QString::fromLatin1(action), [this, action](QWidget *sender) {
                sent << QString::fromLatin1(action) + sender->objectName();
            });
        }
        loaded = loadView(builtBundle() + u"/Resources/VKInkPrintSetting14Alerts.ui"_s, owner);
    }

    QWidget *root = nullptr;
    std::unique_ptr<LoadedView> loaded;
    QStringList sent;
};

TEST_F(AlertWindowsViewTest, HasWindowsThatAreHidden)
{
    for (const char *name :
         {"envAlertWindow", "normalPaperAlertWindow", "customPaperAlertWindow"}) {
        auto *window = root->findChild<QDialog *>(QLatin1String(name));
        ASSERT_NE(window, nullptr) << name;
        EXPECT_TRUE(window->isWindow()) << name;
        EXPECT_TRUE(window->isHidden()) << name;
    }
    auto *envelope = root->findChild<QDialog *>(u"envAlertWindow"_s);
    EXPECT_EQ(envelope->findChild<ImageView *>()->minimumSize(), QSize(278, 243));
    QStringList texts;
    for (const QLabel *label : envelope->findChildren<QLabel *>())
        texts << label->objectName();
    EXPECT_EQ(texts, (QStringList{u"envInstructionLabel1"_s, u"envInstructionLabel2"_s}));
    QStringList buttons;
    for (const QPushButton *button : envelope->findChildren<QPushButton *>())
        buttons << button->objectName();
    EXPECT_EQ(buttons, (QStringList{u"envAlertOKButton"_s, u"envAlertCancelButton"_s}));
    EXPECT_TRUE(root->findChild<QDialog *>(u"normalPaperAlertWindow"_s)
                    ->isAncestorOf(root->findChild<QCheckBox *>(u"suppressionButton"_s)));
}

TEST_F(AlertWindowsViewTest, GivesTheEnvelopeWindowRoomForItsTexts)
{
    auto *window = root->findChild<QDialog *>(u"envAlertWindow"_s);
    for (const char *name : {"envInstructionLabel1", "envInstructionLabel2"}) {
        QFont font;
        font.setPointSize(12);
        root->findChild<QLabel *>(QLatin1String(name))->setFont(font);
        root->findChild<QLabel *>(QLatin1String(name))
            ->setText(QString(u"Envelopes with windows "_s).repeated(20));
    }
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window));
    for (const char *name : {"envInstructionLabel1", "envInstructionLabel2"}) {
        const auto *label = root->findChild<QLabel *>(QLatin1String(name));
        EXPECT_GE(label->height(), label->heightForWidth(label->width())) << name;
    }
}

TEST_F(AlertWindowsViewTest, SendsTheActionOfEveryButton)
{
    QStringList expected;
    for (const QString &name : {u"envAlert"_s, u"normalPaperAlert"_s, u"customPaperAlert"_s}) {
        root->findChild<QPushButton *>(name + u"OKButton"_s)->click();
        root->findChild<QPushButton *>(name + u"CancelButton"_s)->click();
        expected << u"dialogOkDidClick:"_s + name + u"OKButton"_s
                 << u"dialogCancelDidClick:"_s + name + u"CancelButton"_s;
    }
    EXPECT_EQ(sent, expected);
}

TEST_F(AlertWindowsViewTest, ShowsItsTextsAsTheyAre)
{
    const auto labels = root->findChildren<QLabel *>();
    EXPECT_FALSE(labels.isEmpty());
    for (const QLabel *label : labels)
        EXPECT_EQ(label->textFormat(), Qt::PlainText) << qPrintable(label->objectName());
}

} // namespace
