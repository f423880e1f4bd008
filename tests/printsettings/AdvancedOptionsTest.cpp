#include "platform/foundation/Bundle.h"
#include "platform/foundation/NotificationCenter.h"
#include "platform/printmanager/PMPrintSettings.h"
#include "platform/toolkit/KeyWindow.h"
#include "tests/built/BuiltFiles.h"
#include "tests/printsettings/PrintPanel.h"
#include "tests/support/Files.h"
#include "tests/support/PPDSource.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QStackedWidget>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kFoldState = "com.velkaro.print.PrintSettings.advancedItem";

class AdvancedOptions : public PrintPanelTest
{
protected:
    // "Label=id, Label=id* " with a star at the selected row.
    QString rows() const
    {
        const auto listed = panel->inspectedRows();
        QStringList texts;
        for (const auto &row : listed->rows)
            texts << row.label + u'=' + row.id + (row.id == listed->selectedRow ? u"*"_s : u""_s);
        return texts.join(u", "_s);
    }

    QListWidget *list() const
    {
        return qobject_cast<QListWidget *>(panel->outlet(u"advancedTableView"_s));
    }
    QString page() const
    {
        const auto *pages = qobject_cast<QStackedWidget *>(panel->outlet(u"advancedTabView"_s));
        return pages->currentWidget()->objectName();
    }
    int height() const { return panel->loadedView()->height(); }

    QList<QWidget *> parts() const
    {
        return {panel->outlet(u"optionLabel"_s), panel->outlet(u"optionButton"_s),
                panel->outlet(u"advancedTabView"_s), panel->outlet(u"advancedTableView"_s)};
    }
    QList<int> tops() const
    {
        QList<int> tops;
        for (const QWidget *part : parts())
            tops << part->y();
        return tops;
    }

    bool isUnfoldedInTicket() const
    {
        QVariant stored;
        PMPrintSettingsGetValue(&session->host()->ticket(), QString::fromLatin1(kFoldState),
                                &stored);
        EXPECT_EQ(stored.typeId(), static_cast<int>(QMetaType::Bool));
        return stored.toBool();
    }
};

// --- Rows ----------------------------------------------------------------------------------------

TEST_F(AdvancedOptions, OfTheFullModelAreFourGroups)
{
    show();
    EXPECT_EQ(rows(), u"Layout=Layout*, JPEG Printing=VKJpeg, Two-Sided Print Mode=VKDuplexMode, "
                      "OtherOption=OtherOption"_s);
    const ObservableDictionary *content = panel->inspectedEffectContent();
    EXPECT_EQ(content->value(u"VKJpeg"_s), QVariant(true));
    EXPECT_EQ(content->value(u"VKDuplexMode"_s), QVariant(true));
    const auto *label = qobject_cast<QLabel *>(panel->outlet(u"optionLabel"_s));
    EXPECT_EQ(label->text(), u"advancedItem"_s);
}

TEST_F(AdvancedOptions, OfAPrinterWithoutJpegAndDuplexModeAreTwoGroups)
{
    useSample(u"velkaro-mx-j710dw"_s);
    show();
    EXPECT_EQ(rows(), u"Layout=Layout*, OtherOption=OtherOption"_s);
    const ObservableDictionary *content = panel->inspectedEffectContent();
    EXPECT_EQ(content->value(u"VKJpeg"_s), QVariant(false));
    EXPECT_EQ(content->value(u"VKDuplexMode"_s), QVariant(false));
}

TEST_F(AdvancedOptions, HaveALayoutGroupForAnyOfItsThreeKeywords)
{
    for (const QString &keyword : {u"VKReverse"_s, u"VKMirror"_s, u"MirrorPrint"_s}) {
        usePrinter(PPDSource().option(keyword.toUtf8(), {"OFF", "ON"}).open());
        show();
        EXPECT_EQ(rows(), u"Layout=Layout*, OtherOption=OtherOption"_s) << qPrintable(keyword);
    }
    usePrinter(PPDSource().option("VKBiDir", {"OFF", "ON"}).open());
    show();
    EXPECT_EQ(rows(), u"OtherOption=OtherOption*"_s);
}

TEST_F(AdvancedOptions, NameAGroupByTheTextOfItsOption)
{
    usePrinter(PPDSource().option("VKJpeg/Bilder & <3C>b<3E>JPEG", {"Auto", "Fine"}).open());
    show();
    EXPECT_EQ(rows(), u"Bilder & <b>JPEG=VKJpeg*, OtherOption=OtherOption"_s);
}

TEST_F(AdvancedOptions, BringUpThePageOfTheSelectedRow)
{
    show();
    EXPECT_EQ(page(), u"Layout"_s);
    list()->setCurrentRow(2);
    EXPECT_EQ(page(), u"VKDuplexMode"_s);
    EXPECT_EQ(panel->inspectedRows()->selectedRow, u"VKDuplexMode"_s);
    list()->setCurrentRow(1);
    EXPECT_EQ(page(), u"VKJpeg"_s);
    list()->setCurrentRow(3);
    EXPECT_EQ(page(), u"OtherOption"_s);
    panel->addAdvOption(u"Nowhere"_s, u"NoSuchPage"_s);
    EXPECT_EQ(panel->inspectedRows()->selectedRow, u"OtherOption"_s);
    list()->setCurrentRow(4);
    EXPECT_EQ(page(), u"OtherOption"_s);
}

TEST_F(AdvancedOptions, AreBuiltOnce)
{
    show();
    const QString rowsBefore = rows();
    const int registrationsBefore = registrations();
    popup(u"monoColorPopup"_s)->setItems({});
    panel->shouldHide();
    panel->willShow();
    EXPECT_EQ(rows(), rowsBefore);
    EXPECT_EQ(registrations(), registrationsBefore);
    EXPECT_EQ(popup(u"monoColorPopup"_s)->count(), 0);
}

TEST_F(AdvancedOptions, BeforeTheViewIsLoadedAreNone)
{
    open();
    EXPECT_EQ(rows(), QString());
    panel->addAdvOption(u"Nowhere"_s, u"Nowhere"_s);
    EXPECT_EQ(rows(), QString());
}

// The built bundle with its view changed.
std::shared_ptr<Bundle> bundleWithChangedView(const QTemporaryDir &folder, const QString &name,
                                              const QString &replacement)
{
    QFile::copy(builtBundle() + u"/Info.json"_s, folder.filePath(u"Info.json"_s));
    const QString view = u"/Resources/VKInkPrintSetting14.ui"_s;
    writeFile(folder.path() + view,
              readFile(builtBundle() + view).replace(name.toUtf8(), replacement.toUtf8()));
    return Bundle::open(folder.path());
}

TEST_F(AdvancedOptions, WithoutAListAreHiddenAsAWhole)
{
    const QTemporaryDir folder;
    session->setBundle(
        bundleWithChangedView(folder, u"\"advancedTableView\""_s, u"\"anotherView\""_s));
    show();
    EXPECT_EQ(rows(), QString());
    for (const QString &name : {u"optionLabel"_s, u"optionButton"_s, u"advancedTabView"_s}) {
        ASSERT_TRUE(panel->outlet(name)) << qPrintable(name);
        EXPECT_TRUE(panel->outlet(name)->isHidden()) << qPrintable(name);
    }
    EXPECT_EQ(height(), 160);
}

// --- The column ----------------------------------------------------------------------------------

TEST_F(AdvancedOptions, WithShortLabelsHideTheirScrollBars)
{
    show();
    list()->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    list()->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    panel->initializeAdvOption(parts());
    EXPECT_EQ(list()->horizontalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    EXPECT_EQ(list()->verticalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    EXPECT_FALSE(list()->item(0)->sizeHint().isValid());
}

TEST_F(AdvancedOptions, WithALongLabelGetAColumnTwelvePointsWider)
{
    const QString text = u"A description of JPEG printing that no list is wide enough for"_s;
    usePrinter(PPDSource().option("VKJpeg/" + text.toUtf8(), {"Auto", "Fine"}).open());
    show();
    const int widest = qCeil(QFontMetricsF(list()->font()).horizontalAdvance(text) + 12);
    ASSERT_GT(widest, list()->width());
    for (int row = 0; row < list()->count(); ++row)
        EXPECT_EQ(list()->item(row)->sizeHint().width(), widest);
}

// --- Height and folding --------------------------------------------------------------------------

TEST_F(AdvancedOptions, StartFoldedUnderAPanelWithAPaperFeed)
{
    open();
    panel->panelView();
    const QList<int> before = tops();
    const int width = panel->loadedView()->width();
    panel->willShow();
    EXPECT_EQ(panel->loadedView()->size(), QSize(width, 160));
    EXPECT_EQ(tops(), before);
    EXPECT_FALSE(box(u"optionButton"_s)->isChecked());
}

TEST_F(AdvancedOptions, MoveUpByThirtyPointsWhereThereIsNoPaperFeed)
{
    useSample(u"velkaro-mx-j710dw"_s);
    open();
    panel->panelView();
    QList<int> expected = tops();
    for (int &top : expected)
        top -= 30;
    panel->willShow();
    EXPECT_EQ(height(), 130);
    EXPECT_EQ(tops(), expected);
}

TEST_F(AdvancedOptions, UnfoldAndFoldByTheDisclosureButton)
{
    show();
    QWidget window;
    window.resize(600, 800);
    setKeyWindow(&window);
    box(u"optionButton"_s)->click();
    EXPECT_EQ(height(), 300);
    EXPECT_EQ(log(), QStringList({u"resized"_s}));
    panel->saveAllValues();
    EXPECT_TRUE(isUnfoldedInTicket());
    box(u"optionButton"_s)->click();
    EXPECT_EQ(height(), 160);
    EXPECT_EQ(log(), QStringList({u"resized"_s}));
    panel->saveAllValues();
    EXPECT_FALSE(isUnfoldedInTicket());
}

TEST_F(AdvancedOptions, AreUnfoldedWhereTheJobHadThemSo)
{
    PMPrintSettingsSetValue(&session->host()->ticket(), QString::fromLatin1(kFoldState), 1, false);
    show();
    EXPECT_EQ(height(), 300);
    EXPECT_TRUE(box(u"optionButton"_s)->isChecked());
    // A preset without the key folds them.
    PMPrintSettingsSetValue(&session->host()->ticket(), QString::fromLatin1(kFoldState), QVariant(),
                            false);
    panel->restoreValuesAndReturnError(nullptr);
    EXPECT_EQ(height(), 160);
    EXPECT_FALSE(box(u"optionButton"_s)->isChecked());
}

TEST_F(AdvancedOptions, KeepTheirHeightInADialogThatCannotBeTold)
{
    session->host()->setLacking({HostOperation::PanelViewDidResize});
    show();
    box(u"optionButton"_s)->click();
    EXPECT_EQ(height(), 160);
}

} // namespace
