#include "dialog/window/Mnemonics.h"

#include "platform/foundation/PreferredLanguages.h"
#include "platform/toolkit/CaptionLabel.h"
#include "platform/toolkit/DisclosureButton.h"
#include "platform/toolkit/FractionSlider.h"
#include "platform/toolkit/PlainText.h"
#include "tests/dialog/window/DialogWindowFixture.h"
#include "tests/support/CaseName.h"

#include <QtCore/QTranslator>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QTabBar>

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

struct Title
{
    const char *behaviour;
    QString title;
    QString taken;
    QString made;
};

class MnemonicOf : public testing::TestWithParam<Title>
{};

TEST_P(MnemonicOf, IsOnAFreeLetter)
{
    EXPECT_EQ(withMnemonic(GetParam().title, GetParam().taken), GetParam().made);
}

const Title kTitles[] = {
    {"FirstLetter", u"Page Setup"_s, {}, u"&Page Setup"_s},
    {"FirstLetterOfAnotherWord", u"Page Setup"_s, u"P"_s, u"Page &Setup"_s},
    {"LetterWithinAWord", u"Page Setup"_s, u"PS"_s, u"P&age Setup"_s},
    {"BesideALetterInParentheses", u"Size (A) A"_s, u"SIZE"_s, u"Size (A) &A"_s},
    {"BehindALetterInParentheses", u"印刷 (A)"_s, {}, u"印刷 (A)(&A)"_s},
    {"BesideAnAmpersand", u"Ink && Toner"_s, u"I"_s, u"Ink && &Toner"_s},
    {"NoLetterOfAnAccent", u"Éa"_s, {}, u"É&a"_s},
    {"NoneFree", u"Ab"_s, u"BA"_s, u"Ab"_s},
    {"BehindATitleWithoutLetters", u"印刷設定"_s, u"AC"_s, u"印刷設定(&B)"_s},
    {"BeforeTheColonOfACaption", u"用紙種類: "_s, {}, u"用紙種類(&A): "_s},
};

INSTANTIATE_TEST_SUITE_P(Table, MnemonicOf, testing::ValuesIn(kTitles), CaseName());

/// The whole dialog in one of its languages.
class MnemonicsOfTheDialog : public DialogWindowFixture,
                             public testing::WithParamInterface<const char *>
{
protected:
    MnemonicsOfTheDialog()
    {
        setPreferredLanguages({QLatin1String(GetParam())});
        if (m_table.load(builtTranslation(QLatin1String(GetParam()))))
            QCoreApplication::installTranslator(&m_table);
    }
    ~MnemonicsOfTheDialog() override
    {
        m_window.reset();
        QCoreApplication::removeTranslator(&m_table);
        setPreferredLanguages({});
    }

    static QString builtTranslation(const QString &language)
    {
        return QDir(samplePPDFolder()).filePath(u"../translations/Dialog_%1.qm"_s.arg(language));
    }

    void press(const QKeySequence &keys)
    {
        QTest::keyClick(m_window.get(), keys[0].key(), keys[0].keyboardModifiers());
    }

    void showUnfolded(const QString &name)
    {
        ASSERT_TRUE(m_window->showPart(name));
        auto *fold = m_window->shownPart()->findChild<DisclosureButton *>();
        if (!fold->isChecked())
            fold->click();
    }

    /// The panel unfolded, with each page of its section in front.
    void forEveryPageOf(const QString &name, const std::function<void(const QWidget &)> &look)
    {
        showUnfolded(name);
        auto *list = m_window->shownPart()->findChild<QListWidget *>();
        for (int row = 0; row < (list ? list->count() : 1); ++row) {
            if (list)
                list->setCurrentRow(row);
            QCoreApplication::processEvents();
            look(*m_window->shownPart());
        }
    }

    static void expectNoneTwice(QString letters)
    {
        std::sort(letters.begin(), letters.end());
        EXPECT_EQ(std::adjacent_find(letters.begin(), letters.end()), letters.end())
            << letters.toStdString();
    }

    QString lettersInSight()
    {
        return mnemonicsIn(*m_window) + mnemonicsInFront(*m_window->shownPart());
    }

    /// Only a title whose letters are all given away goes without.
    void expectNoneIsLeft(const QAbstractButton &button)
    {
        const QString title = buttonTitle(&button);
        EXPECT_EQ(withMnemonic(title, lettersInSight()), title);
    }

    void expectReverted(const QAbstractButton &revert, const FractionSlider &slider)
    {
        const double moved = slider.doubleValue();
        press(revert.shortcut());
        EXPECT_TRUE(QTest::qWaitFor([&] { return slider.doubleValue() < moved; }));
    }

    void expectTicked(const QCheckBox &box, int number)
    {
        SCOPED_TRACE(testing::Message() << number << ": " << box.text().toStdString());
        const bool was = box.isChecked();
        press(box.shortcut());
        EXPECT_TRUE(QTest::qWaitFor([&] { return box.isChecked() != was; }));
        EXPECT_FALSE(box.shortcut().isEmpty()) << "the panel has titled it again";
        press(box.shortcut());
        EXPECT_TRUE(QTest::qWaitFor([&] { return box.isChecked() == was; }));
    }

    QTranslator m_table;
};

TEST_P(MnemonicsOfTheDialog, AreEachForOneThing)
{
    m_line.output = QString(); // with "Save to File"
    open();
    auto *tabs = part<QTabWidget>("parts");
    for (int index = 0; index < tabs->count(); ++index) {
        tabs->setCurrentIndex(index);
        SCOPED_TRACE(index);
        expectNoneTwice(mnemonicsIn(*m_window) + mnemonicsIn(*tabs->widget(index)));
        const QString title = tabs->tabText(index);
        EXPECT_FALSE(QKeySequence::mnemonic(title).isEmpty()) << title.toStdString();
    }
    const QString print = part<QAbstractButton>("printButton")->text();
    EXPECT_FALSE(QKeySequence::mnemonic(print).isEmpty()) << print.toStdString();
}

TEST_P(MnemonicsOfTheDialog, LeadToTheControlsOfPanels)
{
    open();
    int captions = 0;
    for (const QString &name : {u"print"_s, u"color"_s}) {
        showUnfolded(name);
        for (const auto *caption : m_window->shownPart()->findChildren<CaptionLabel *>()) {
            const QWidget *control = caption->buddy();
            if (!caption->isVisible() || !control || !control->isEnabled())
                continue;
            const QKeySequence keys = QKeySequence::mnemonic(caption->mnemonicText());
            ++captions;
            ASSERT_FALSE(keys.isEmpty()) << caption->text().toStdString();
            EXPECT_FALSE(caption->text().contains(u'&')) << "it stays as the panel has set it";
            part<QWidget>("chooseButton")->setFocus();
            press(keys);
            const QWidget *focused = QApplication::focusWidget();
            EXPECT_TRUE(focused == control || control->isAncestorOf(focused))
                << caption->mnemonicText().toStdString();
        }
    }
    EXPECT_GE(captions, 7);
}

TEST_P(MnemonicsOfTheDialog, FoldAndUnfoldPanels)
{
    open();
    for (const QString &name : {u"print"_s, u"color"_s}) {
        ASSERT_TRUE(m_window->showPart(name));
        auto *fold = m_window->shownPart()->findChild<DisclosureButton *>();
        ASSERT_NE(fold, nullptr);
        ASSERT_FALSE(fold->shortcut().isEmpty()) << fold->caption()->text().toStdString();
        EXPECT_EQ(fold->shortcut(), QKeySequence::mnemonic(fold->caption()->mnemonicText()));
        EXPECT_FALSE(fold->caption()->text().contains(u'&')) << "it stays as the panel has set it";
        const int folded = m_window->shownPart()->height();
        press(fold->shortcut());
        EXPECT_TRUE(QTest::qWaitFor([&] { return m_window->shownPart()->height() > folded; }));
        press(fold->shortcut());
        EXPECT_TRUE(QTest::qWaitFor([&] { return m_window->shownPart()->height() == folded; }));
    }
}

TEST_P(MnemonicsOfTheDialog, TickTheBoxesOfPanels)
{
    open();
    int ticked = 0;
    for (const QString &name : {u"print"_s, u"color"_s})
        forEveryPageOf(name, [&](const QWidget &view) {
            expectNoneTwice(lettersInSight());
            for (const auto *box : view.findChildren<QCheckBox *>()) {
                if (!box->isVisible())
                    continue;
                if (box->shortcut().isEmpty())
                    expectNoneIsLeft(*box);
                else if (box->isEnabled())
                    expectTicked(*box, ++ticked);
            }
        });
    EXPECT_GE(ticked, 3);
}

TEST_P(MnemonicsOfTheDialog, PressTheButtonsOfPanels)
{
    open();
    showUnfolded(u"color"_s);
    auto *box = part<QCheckBox>("colorEnhanceButton");
    auto *revert = part<QAbstractButton>("revertButton");
    if (!box->isChecked())
        box->click();
    auto *slider = part<FractionSlider>("brightnessSlider");
    slider->setFocus();
    QTest::keyClick(slider, Qt::Key_Right);
    if (revert->shortcut().isEmpty())
        expectNoneIsLeft(*revert);
    else
        expectReverted(*revert, *slider);
}

TEST_P(MnemonicsOfTheDialog, OfOffersAreNoneOfThePanelInFront)
{
    open();
    showUnfolded(u"print"_s);
    pick("mediaTypePopup", u"Glossy"_s);
    const auto *undo = part<QAbstractButton>("undoButton");
    ASSERT_TRUE(undo->isVisible());
    expectNoneTwice(lettersInSight());
    if (undo->shortcut().isEmpty())
        expectNoneIsLeft(*undo);
}

TEST_P(MnemonicsOfTheDialog, OfOffersThatStayAreNoneOfThePanelThatComesInFront)
{
    open();
    part<QTabWidget>("parts")->setCurrentIndex(0);
    pick("paperPopup", u"EnvDL"_s);
    for (const QString &name : {u"print"_s, u"color"_s, u"print"_s}) {
        SCOPED_TRACE(name.toStdString());
        showUnfolded(name);
        QCoreApplication::processEvents();
        const auto *use = part<QAbstractButton>("adviceButton");
        ASSERT_TRUE(use && use->isVisible());
        expectNoneTwice(lettersInSight());
        if (use->shortcut().isEmpty())
            expectNoneIsLeft(*use);
    }
}

TEST_P(MnemonicsOfTheDialog, StandInTabsThatAreAllInSight)
{
    open();
    const QTabBar *bar = part<QTabWidget>("parts")->tabBar();
    EXPECT_LE(bar->sizeHint().width(), bar->width());
}

INSTANTIATE_TEST_SUITE_P(Languages, MnemonicsOfTheDialog, testing::Values("de", "en", "fr", "ja"),
                         [](const auto &language) { return std::string(language.param); });

} // namespace
