#include "platform/toolkit/ViewLoader.h"

#include "platform/toolkit/DisclosureButton.h"
#include "platform/toolkit/FractionSlider.h"
#include "platform/toolkit/ImageView.h"
#include "platform/toolkit/NumberField.h"
#include "platform/toolkit/PopUpButton.h"
#include "platform/toolkit/RadioMatrix.h"
#include "platform/toolkit/SizeWatch.h"
#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"
#include "tests/support/ViewText.h"

#include <gtest/gtest.h>

#include <QtTest/QTest>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>

using namespace Qt::StringLiterals;

namespace {

TEST(ViewLoaderTest, ConnectsOutletsByNameAndClass)
{
    const ViewText view(viewWidget("PopUpButton", "mediaTypePopup") +
                        viewWidget("QCheckBox", "resolutionPopup") + viewWidget("QLabel", "label"));
    ViewConnections owner;
    PopUpButton *media = nullptr;
    PopUpButton *resolution = nullptr;
    PopUpButton *missing = nullptr;
    QWidget *anything = nullptr;
    owner.outlet(u"mediaTypePopup"_s, media);
    owner.outlet(u"resolutionPopup"_s, resolution);
    owner.outlet(u"missing"_s, missing);
    owner.outlet(u"label"_s, anything);
    const auto loaded = loadView(view.path(), owner);
    ASSERT_NE(loaded, nullptr);
    ASSERT_NE(media, nullptr);
    EXPECT_EQ(media->objectName(), u"mediaTypePopup"_s);
    EXPECT_EQ(resolution, nullptr) << "an outlet of another class stays null";
    EXPECT_EQ(missing, nullptr);
    EXPECT_NE(qobject_cast<QLabel *>(anything), nullptr);
    EXPECT_EQ(loaded->outlets(),
              (QHash<QString, QWidget *>{{u"mediaTypePopup"_s, media}, {u"label"_s, anything}}));
    EXPECT_TRUE(loaded->content()->values().isEmpty());
}

TEST(ViewLoaderTest, ConnectsTheRootItself)
{
    const ViewText view("");
    ViewConnections owner;
    QWidget *root = nullptr;
    owner.outlet(u"Root"_s, root);
    const auto loaded = loadView(view.path(), owner);
    EXPECT_NE(root, nullptr);
}

class OwnWidget : public QLabel
{
public:
    using QLabel::QLabel;
};

TEST(ViewLoaderTest, CreatesTheWidgetClassesOfTheToolkitAndOfTheOwner)
{
    const ViewText view(viewWidget("PopUpButton", "a") + viewWidget("RadioMatrix", "b") +
                        viewWidget("ImageView", "c") + viewWidget("FractionSlider", "d") +
                        viewWidget("NumberField", "e") + viewWidget("SizeWatch", "f") +
                        viewWidget("DisclosureButton", "g") + viewWidget("OwnWidget", "h"));
    ViewConnections owner;
    owner.widgetClass<OwnWidget>(u"OwnWidget"_s);
    PopUpButton *a = nullptr;
    RadioMatrix *b = nullptr;
    ImageView *c = nullptr;
    FractionSlider *d = nullptr;
    NumberField *e = nullptr;
    SizeWatch *f = nullptr;
    DisclosureButton *g = nullptr;
    OwnWidget *h = nullptr;
    owner.outlet(u"a"_s, a);
    owner.outlet(u"b"_s, b);
    owner.outlet(u"c"_s, c);
    owner.outlet(u"d"_s, d);
    owner.outlet(u"e"_s, e);
    owner.outlet(u"f"_s, f);
    owner.outlet(u"g"_s, g);
    owner.outlet(u"h"_s, h);
    const auto loaded = loadView(view.path(), owner);
    ASSERT_NE(loaded, nullptr);
    EXPECT_EQ(loaded->outlets().size(), 8);
}

TEST(ViewLoaderTest, KeepsAWindowOfTheViewAWindow)
{
    const ViewText view(viewWidget("QDialog", "alertWindow"));
    ViewConnections owner;
    QDialog *window = nullptr;
    owner.outlet(u"alertWindow"_s, window);
    const auto loaded = loadView(view.path(), owner);
    ASSERT_NE(window, nullptr);
    EXPECT_TRUE(window->isWindow());
    EXPECT_TRUE(window->isHidden());
}

struct BrokenCase
{
    const char *behaviour;
    QByteArray text;
};

class BrokenView : public testing::TestWithParam<BrokenCase>
{};

const BrokenCase kBrokenCases[] = {
    {"EmptyFile", ""},
    {"BrokenOff", "<ui version=\"4.0\"><widget class=\"QWidget\""},
    {"NoView", "<html><body/></html>"},
    {"BinaryRubbish", QByteArray("\x89PNG\r\n\0\xff", 8)},
    {"AnotherFormat", "<ui version=\"3.3\"><widget class=\"QWidget\"/></ui>"},
};

TEST_P(BrokenView, IsNullAndSaysWhy)
{
    const ViewText view(GetParam().text, u"Broken.ui"_s);
    QString error;
    EXPECT_EQ(loadView(view.path(), ViewConnections(), &error), nullptr);
    EXPECT_FALSE(error.isEmpty());
    EXPECT_EQ(loadView(view.path(), ViewConnections()), nullptr);
}

INSTANTIATE_TEST_SUITE_P(Cases, BrokenView, testing::ValuesIn(kBrokenCases), CaseName());

TEST(ViewLoaderTest, IsNullForAMissingFile)
{
    const QTemporaryDir folder;
    QString error;
    EXPECT_EQ(loadView(folder.filePath(u"Missing.ui"_s), ViewConnections(), &error), nullptr);
    EXPECT_EQ(error, u"No such file or directory"_s);
}

TEST(ViewLoaderTest, DestroysPartsThatWereTakenElsewhere)
{
    const ViewText view(viewWidget("QWidget", "panelView", {}, viewWidget("QLabel", "label")));
    ViewConnections owner;
    QWidget *panelView = nullptr;
    owner.outlet(u"panelView"_s, panelView);
    auto loaded = loadView(view.path(), owner);
    QWidget dialog;
    panelView->setParent(&dialog);
    const QPointer<QWidget> watched(panelView);
    loaded.reset();
    EXPECT_TRUE(watched.isNull());
    EXPECT_TRUE(dialog.findChildren<QWidget *>().isEmpty());
}

TEST(ViewLoaderTest, OutlivesADialogThatTookPartsWithIt)
{
    const ViewText view(viewWidget("QWidget", "panelView"));
    ViewConnections owner;
    QWidget *panelView = nullptr;
    owner.outlet(u"panelView"_s, panelView);
    const auto loaded = loadView(view.path(), owner);
    {
        QWidget dialog;
        panelView->setParent(&dialog);
    }
    EXPECT_TRUE(loaded->outlets().isEmpty());
}

TEST(ViewLoaderTest, ReadsTheTagOfAControl)
{
    const ViewText view(viewWidget("PopUpButton", "five", {"tag=5"}) +
                        viewWidget("PopUpButton", "none"));
    ViewConnections owner;
    QWidget *five = nullptr;
    QWidget *none = nullptr;
    owner.outlet(u"five"_s, five);
    owner.outlet(u"none"_s, none);
    const auto loaded = loadView(view.path(), owner);
    EXPECT_EQ(tagOf(five), 5);
    EXPECT_EQ(tagOf(none), 0);
    EXPECT_EQ(tagOf(nullptr), 0);
}

TEST(ViewLoaderTest, ReadsTheNumberOfAControl)
{
    FractionSlider slider;
    slider.setRange(-2000, 2000);
    slider.setDoubleValue(2.75);
    NumberField field;
    field.setDoubleValue(7);
    const QCheckBox box;
    EXPECT_EQ(doubleValueOf(&slider), 2.75);
    EXPECT_EQ(doubleValueOf(&field), 7);
    EXPECT_EQ(doubleValueOf(&box), 0);
    EXPECT_EQ(doubleValueOf(nullptr), 0);
}

/// A view with one control of each kind, all of which send the same action.
class ActionTest : public testing::Test
{
protected:
    ActionTest()
    {
        const QByteArray action = "action=requestNewOutputBin:";
        const ViewText text(
            viewWidget("PopUpButton", "popup", {action}) +
            viewWidget("RadioMatrix", "matrix", {action}) +
            viewWidget("QCheckBox", "box", {action}) + viewWidget("QPushButton", "push", {action}) +
            viewWidget("DisclosureButton", "disclosure", {action}) +
            viewWidget("FractionSlider", "slider", {action}) +
            viewWidget("NumberField", "field", {action}) +
            viewWidget("SizeWatch", "watch", {action}) + viewWidget("QPushButton", "silent") +
            viewWidget("QPushButton", "unknown", {"action=noSuchAction:"}));
        ViewConnections owner;
        owner.outlet(u"Root"_s, root);
        owner.action(u"requestNewOutputBin:"_s,
                     [this](QWidget *sender) { senders << sender->objectName(); });
        loaded = loadView(text.path(), owner);
        int y = 0;
        for (QWidget *child : root->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly))
            child->setGeometry(0, y += 40, 200, 30);
        child<PopUpButton>("popup")->setItems({{u"A"_s, u"a"_s}, {u"B"_s, u"b"_s}});
        child<RadioMatrix>("matrix")->setNumberOfRows(1);
        child<FractionSlider>("slider")->setRange(0, 1000);
        root->resize(300, 500);
        root->show();
        root->activateWindow();
        senders.clear();
    }

    template <typename Widget> Widget *child(const char *name)
    {
        return root->findChild<Widget *>(QString::fromLatin1(name));
    }

    QWidget *root = nullptr;
    std::unique_ptr<LoadedView> loaded;
    QStringList senders;
};

TEST_F(ActionTest, OfAPopUpIsSentByAPickWithTheKeys)
{
    ASSERT_TRUE(QTest::qWaitForWindowActive(root));
    child<PopUpButton>("popup")->setFocus();
    QTest::keyClick(child<PopUpButton>("popup"), Qt::Key_Down);
    EXPECT_EQ(senders, QStringList{u"popup"_s});
}

TEST_F(ActionTest, OfAMatrixIsSentByAClickOnACell)
{
    auto *cell = child<RadioMatrix>("matrix")->findChild<QRadioButton *>();
    QTest::mouseClick(cell, Qt::LeftButton, {}, QPoint(5, cell->height() / 2));
    EXPECT_EQ(senders, QStringList{u"matrix"_s});
}

class ButtonAction : public ActionTest, public testing::WithParamInterface<const char *>
{};

TEST_P(ButtonAction, IsSentByAClickAndByTheSpaceBar)
{
    ASSERT_TRUE(QTest::qWaitForWindowActive(root));
    auto *button = child<QAbstractButton>(GetParam());
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
    button->setFocus();
    QTest::keyClick(button, Qt::Key_Space);
    const QString name = QString::fromLatin1(GetParam());
    EXPECT_EQ(senders, (QStringList{name, name}));
}

INSTANTIATE_TEST_SUITE_P(Cases, ButtonAction, testing::Values("box", "push", "disclosure"));

TEST_F(ActionTest, OfNumberControlsIsSentByTheUser)
{
    child<FractionSlider>("slider")->moveByUser(5);
    QTest::keyClick(child<NumberField>("field"), Qt::Key_Up);
    EXPECT_EQ(senders, (QStringList{u"slider"_s, u"field"_s}));
}

TEST_F(ActionTest, OfASizeWatchIsSentWhenItFires)
{
    child<SizeWatch>("watch")->fire();
    EXPECT_EQ(senders, QStringList{u"watch"_s});
}

TEST_F(ActionTest, IsNotSentByTheProgram)
{
    child<PopUpButton>("popup")->selectObject(u"b"_s);
    child<QCheckBox>("box")->setChecked(true);
    child<DisclosureButton>("disclosure")->setChecked(true);
    child<FractionSlider>("slider")->setDoubleValue(3);
    child<NumberField>("field")->setDoubleValue(3);
    EXPECT_TRUE(senders.isEmpty());
}

TEST_F(ActionTest, IsNotSentByADisabledControl)
{
    auto *box = child<QCheckBox>("box");
    box->setEnabled(false);
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    EXPECT_TRUE(senders.isEmpty());
    EXPECT_FALSE(box->isChecked());
}

TEST_F(ActionTest, IsNothingWithoutANameOrUnderAnUnknownOne)
{
    child<QPushButton>("silent")->click();
    child<QPushButton>("unknown")->click();
    EXPECT_TRUE(senders.isEmpty());
}

} // namespace
