#include "tests/panel/PanelFixture.h"

#include "platform/foundation/NotificationCenter.h"
#include "platform/toolkit/ControlColor.h"
#include "platform/toolkit/ImageView.h"
#include "platform/toolkit/KeyWindow.h"
#include "platform/toolkit/PopUpButton.h"
#include "platform/toolkit/RadioMatrix.h"
#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"

#include <QtGui/QImage>

using namespace Qt::StringLiterals;

namespace {

class PopUpsTest : public PanelFixture
{
protected:
    void build()
    {
        createPanel();
        ASSERT_NE(panel->panelView(), nullptr);
        panel->initializePopup();
    }

    static QStringList choices(const PopUpButton *popup)
    {
        QStringList all;
        for (int index = 0; index < popup->count(); ++index)
            all << popup->representedObject(index);
        return all;
    }

    QVariant pending(const QString &keyword) const { return panel->outputBin().value(keyword); }
};

TEST_F(PopUpsTest, ListsTheChoicesInTheOrderOfThePPDWithoutTheHiddenOnes)
{
    build();
    // Neither plain paper's two-sided form nor a text that begins with "Hagaki"; but the same word
    // in another case, and a text that is shorter than it.
    EXPECT_EQ(choices(panel->mediaTypePopup),
              (QStringList{u"Plain"_s, u"Glossy"_s, u"HagakiAtena"_s, u"Short"_s}));
    EXPECT_EQ(panel->mediaTypePopup->itemText(0), u"Plain <b>Paper</b>"_s);
    EXPECT_EQ(panel->resolutionPopup->itemText(1), u"Best & Slow"_s);
    EXPECT_EQ(panel->mediaTypePopup->currentIndex(), 0);
    EXPECT_TRUE(calls.isEmpty());
}

TEST_F(PopUpsTest, NamesTheLabelsAndShowsWhatThePrinterHas)
{
    createPanel();
    ASSERT_NE(panel->panelView(), nullptr);
    const QList<QWidget *> controls{panel->mediaTypePopup, panel->mediaTypeLabel, panel->matrix,
                                    panel->matrixBox, panel->biDirButton};
    for (QWidget *control : controls)
        control->hide();
    panel->initializePopup();
    EXPECT_EQ(panel->mediaTypeLabel->text(), u"Media & Type: "_s);
    EXPECT_EQ(panel->matrixBox->title(), u"Color && Matching"_s);
    EXPECT_FALSE(panel->mediaTypePopup->isHidden());
    EXPECT_FALSE(panel->mediaTypeLabel->isHidden());
    EXPECT_FALSE(panel->matrix->isHidden());
    EXPECT_TRUE(panel->matrixBox->isHidden()) << "only the label of a pop-up is shown";
    EXPECT_FALSE(panel->biDirButton->isHidden());
}

TEST_F(PopUpsTest, LeavesControlsAloneThatThePrinterLacks)
{
    createPanel();
    ASSERT_NE(panel->panelView(), nullptr);
    panel->setPPDKeys(QStringList{u"VKMediaType"_s});
    panel->biDirButton->hide();
    panel->resolutionLabel->setText(u"untouched"_s);
    panel->initializePopup();
    EXPECT_TRUE(panel->biDirButton->isHidden());
    EXPECT_EQ(panel->resolutionPopup->count(), 0);
    EXPECT_EQ(panel->resolutionLabel->text(), u"untouched"_s);
}

TEST_F(PopUpsTest, TitlesTheCheckBoxesAndEnablesOnlyTheLineAlignment)
{
    build();
    EXPECT_EQ(panel->mirrorButton->text(), u"Mirror && Back"_s);
    EXPECT_EQ(panel->alignButton->text(), u"Align Lines"_s);
    EXPECT_TRUE(panel->alignButton->isEnabled());
    EXPECT_FALSE(panel->mirrorButton->isEnabled());
    EXPECT_FALSE(panel->biDirButton->isEnabled());
    EXPECT_FALSE(panel->slowDryButton->isEnabled());
}

TEST_F(PopUpsTest, TellsAssistiveProgramsWhatAPopUpIsFor)
{
    build();
    EXPECT_EQ(panel->mediaTypePopup->accessibleName(), u"Media & Type"_s);
    EXPECT_EQ(panel->matrix->accessibleName(), u"Color & Matching"_s);
}

struct RowsCase
{
    const char *behaviour;
    int rows;
    QStringList kept; ///< the marks of the rows that are left; empty for a new row
};

class MatrixRows : public PopUpsTest, public testing::WithParamInterface<RowsCase>
{};

// The printer has three choices.
const RowsCase kRowsCases[] = {
    {"FiveRowsKeepTheFirstAndTheLastTwo", 5, {u"0"_s, u"3"_s, u"4"_s}},
    {"FourRowsLoseTheSecond", 4, {u"0"_s, u"2"_s, u"3"_s}},
    {"ThreeRowsStay", 3, {u"0"_s, u"1"_s, u"2"_s}},
    {"TwoRowsGetOneMoreAtTheEnd", 2, {u"0"_s, u"1"_s, u""_s}},
    {"NoRowsGetThree", 0, {u""_s, u""_s, u""_s}},
};

TEST_P(MatrixRows, BecomeAsManyAsThereAreChoices)
{
    createPanel();
    ASSERT_NE(panel->panelView(), nullptr);
    panel->matrix->setNumberOfRows(GetParam().rows);
    const auto before = panel->matrix->findChildren<QWidget *>();
    for (int row = 0; row < before.size(); ++row)
        before[row]->setObjectName(QString::number(row));
    panel->initializePopup();
    QStringList kept;
    QStringList titles;
    QStringList names;
    for (const QWidget *cell : panel->matrix->findChildren<QWidget *>())
        kept << cell->objectName();
    for (int row = 0; row < panel->matrix->numberOfRows(); ++row) {
        titles << panel->matrix->title(row);
        names << panel->matrix->representedObject(row);
    }
    EXPECT_EQ(kept, GetParam().kept);
    EXPECT_EQ(titles, (QStringList{u"Natural"_s, u"Vivid"_s, u"None & Nothing"_s}));
    EXPECT_EQ(names, (QStringList{u"Natural"_s, u"Vivid"_s, u"None"_s}));
}

INSTANTIATE_TEST_SUITE_P(Cases, MatrixRows, testing::ValuesIn(kRowsCases), CaseName());

TEST_F(PopUpsTest, KeepsTheTitlesOfATaggedPopUpForTheViewsBindings)
{
    build();
    EXPECT_EQ(panel->effectContent->values(), (QVariantMap{{u"Normal"_s, u"Normal"_s},
                                                           {u"Best"_s, u"Best & Slow"_s},
                                                           {u"advancedItem"_s, false}}));
}

TEST_F(PopUpsTest, GivesTheItemsOfATaggedPopUpTheirPictures)
{
    QImage picture(8, 8, QImage::Format_RGB32);
    picture.fill(Qt::blue);
    writeBundleFile(u"Resources/Glossy.tiff"_s, "");
    ASSERT_TRUE(picture.save(bundleFile(u"Resources/Glossy.tiff"_s), "PNG"));
    ASSERT_TRUE(picture.save(bundleFile(u"Resources/Best.tiff"_s), "PNG"));
    build();
    EXPECT_TRUE(panel->mediaTypePopup->itemIcon(0).isNull());
    EXPECT_FALSE(panel->mediaTypePopup->itemIcon(1).isNull());
    EXPECT_TRUE(panel->resolutionPopup->itemIcon(1).isNull()) << "another tag";
}

TEST_F(PopUpsTest, StartsFoldedAndBuilt)
{
    createPanel();
    ASSERT_NE(panel->panelView(), nullptr);
    panel->effectContent->setValue(u"advancedItem"_s, true);
    EXPECT_FALSE(panel->popupInited);
    panel->initializePopup();
    EXPECT_FALSE(panel->effectContent->boolValue(u"advancedItem"_s));
    EXPECT_TRUE(panel->asked.isEmpty()) << "no toggling";
    EXPECT_TRUE(panel->popupInited);
}

TEST_F(PopUpsTest, CanBeBuiltWithoutAView)
{
    createPanel();
    panel->initializePopup();
    EXPECT_TRUE(panel->popupInited);
}

TEST_F(PopUpsTest, IsOnScreenBetweenWillShowAndShouldHide)
{
    createPanel();
    ASSERT_NE(panel->panelView(), nullptr);
    panel->willShow();
    EXPECT_EQ(panel->imageModeFlag(), VendorColorMatching | PanelOnScreen);
    EXPECT_TRUE(panel->popupInited);
    EXPECT_TRUE(panel->shouldHide());
    EXPECT_EQ(panel->imageModeFlag(), VendorColorMatching);
    EXPECT_TRUE(panel->popupInited);
}

TEST_F(PopUpsTest, RechecksFaxAndColourMatchingWhenItIsShown)
{
    createPanel();
    ASSERT_NE(panel->panelView(), nullptr);
    mark(u"VKOutput"_s, u"FAX"_s);
    host->ticket().setValues({{u"AP_ColorMatchingMode"_s, u"AP_ApplicationColorMatching"_s}});
    panel->willShow();
    EXPECT_EQ(panel->imageModeFlag(), FaxOutput | PanelOnScreen);
}

TEST_F(PopUpsTest, RegistersForTheClosingOfTheKeyWindowEachTimeItIsBuilt)
{
    QWidget window;
    QWidget other;
    setKeyWindow(&window);
    build();
    panel->initializePopup();
    NotificationCenter &center = NotificationCenter::defaultCenter();
    EXPECT_EQ(center.registrationCount(panel.get()), 2);
    center.post(QLatin1String(kWindowWillCloseNotification), &other);
    EXPECT_EQ(center.registrationCount(panel.get()), 2);
    center.post(QLatin1String(kWindowWillCloseNotification), &window);
    EXPECT_EQ(center.registrationCount(panel.get()), 0);
}

TEST_F(PopUpsTest, EndsEveryOtherRegistrationWhenTheKeyWindowCloses)
{
    QWidget window;
    setKeyWindow(&window);
    build();
    int heard = 0;
    NotificationCenter &center = NotificationCenter::defaultCenter();
    center.addObserver(
        panel.get(), [&](const Notification &) { ++heard; }, u"Paper"_s);
    center.post(QLatin1String(kWindowWillCloseNotification), &window);
    center.post(u"Paper"_s);
    EXPECT_EQ(heard, 0);
}

struct MediumCase
{
    const char *behaviour;
    QString value;
    QStringList refused;
    QString shown;
    QString pending;
    QStringList calls;
};

class UnlistedMedium : public PopUpsTest, public testing::WithParamInterface<MediumCase>
{};

const MediumCase kMediumCases[] = {
    {"ListedIsShown", u"Glossy"_s, {}, u"Glossy"_s, u"Glossy"_s, {}},
    {"HagakiUraBecomesGlossy",
     u"HagakiUra"_s,
     {},
     u"Glossy"_s,
     u"Glossy"_s,
     {u"VKMediaType=Glossy"_s}},
    {"AnyOtherBecomesPlain",
     u"Transparencies"_s,
     {},
     u"Plain"_s,
     u"Plain"_s,
     {u"VKMediaType=Plain"_s}},
    {"PlainDuplexStaysBehindPlain", u"PlainDuplex"_s, {}, u"Plain"_s, u"PlainDuplex"_s, {}},
    {"ARefusedFallbackIsShownButNotRecorded",
     u"HagakiUra"_s,
     {u"VKMediaType=Glossy"_s},
     u"Glossy"_s,
     u"HagakiUra"_s,
     {u"!VKMediaType=Glossy"_s}},
};

TEST_P(UnlistedMedium, FallsBack)
{
    showPanel();
    panel->mediaTypePopup->selectObject(u"Short"_s);
    mark(u"VKMediaType"_s, u"HagakiUra"_s);
    QVariantMap values = panel->outputBin();
    values.insert(u"VKMediaType"_s, GetParam().value);
    panel->setOutputBin(values);
    host->setRefused(GetParam().refused);
    panel->updateUIforKey(u"VKMediaType"_s);
    EXPECT_EQ(panel->mediaTypePopup->selectedObject(), GetParam().shown);
    EXPECT_EQ(pending(u"VKMediaType"_s), GetParam().pending);
    EXPECT_EQ(calls, GetParam().calls);
}

INSTANTIATE_TEST_SUITE_P(Cases, UnlistedMedium, testing::ValuesIn(kMediumCases), CaseName());

TEST_F(PopUpsTest, DoesNothingWhereThePopUpLacksTheFallbackToo)
{
    showPanel();
    panel->mediaTypePopup->setItems({{u"Short"_s, u"Short"_s}});
    panel->setOutputBin({{u"VKMediaType"_s, u"HagakiUra"_s}});
    panel->updateUIforKey(u"VKMediaType"_s);
    EXPECT_EQ(panel->mediaTypePopup->selectedObject(), u"Short"_s);
    EXPECT_EQ(pending(u"VKMediaType"_s), u"HagakiUra"_s);
    EXPECT_TRUE(calls.isEmpty());
}

TEST_F(PopUpsTest, KeepsWhatAControlShowsForAValueThatItDoesNotHold)
{
    showPanel();
    panel->resolutionPopup->selectObject(u"Best"_s);
    panel->matrix->selectObject(u"Vivid"_s);
    panel->setOutputBin({{u"VKResolution"_s, u"Photo"_s}, {u"VKColorMatching"_s, u"Sepia"_s}});
    panel->updateUIforKey(u"VKResolution"_s);
    panel->updateUIforKey(u"VKColorMatching"_s);
    panel->updateUIforKey(u"VKNoControl"_s);
    EXPECT_EQ(panel->resolutionPopup->selectedObject(), u"Best"_s);
    EXPECT_EQ(panel->matrix->selectedObject(), u"Vivid"_s);
    EXPECT_TRUE(calls.isEmpty());
}

TEST_F(PopUpsTest, DisablesEveryControlAndDimsEveryLabelForFax)
{
    showPanel();
    const QList<QWidget *> controls{
        panel->mediaTypePopup, panel->resolutionPopup, panel->matrix,     panel->mirrorButton,
        panel->biDirButton,    panel->slowDryButton,   panel->alignButton};
    for (const bool fax : {true, false}) {
        panel->setFlag(FaxOutput, fax);
        panel->checkUIConstraints();
        for (const QWidget *control : controls)
            EXPECT_EQ(control->isEnabled(), !fax) << control->objectName().toStdString();
        for (const QLabel *label : {panel->mediaTypeLabel, panel->resolutionLabel})
            EXPECT_EQ(textColor(label),
                      fax ? ControlColor::DisabledControlText : ControlColor::ControlText);
        EXPECT_EQ(panel->effectContent->value(u"VKOutput"_s), QVariant(!fax));
    }
}

TEST_F(PopUpsTest, LeavesControlsOfOtherKeywordsAloneForFax)
{
    showPanel();
    panel->setPPDKeys(QStringList{u"VKMediaType"_s});
    panel->setFlag(FaxOutput, true);
    panel->checkUIConstraints();
    EXPECT_FALSE(panel->mediaTypePopup->isEnabled());
    EXPECT_TRUE(panel->biDirButton->isEnabled());
}

} // namespace
