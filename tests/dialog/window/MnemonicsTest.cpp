#include "dialog/window/Mnemonics.h"

#include "platform/foundation/PreferredLanguages.h"
#include "platform/toolkit/CaptionLabel.h"
#include "tests/dialog/window/DialogWindowFixture.h"
#include "tests/support/CaseName.h"

#include <QtCore/QTranslator>
#include <QtWidgets/QApplication>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QToolButton>

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

    QTranslator m_table;
};

TEST_P(MnemonicsOfTheDialog, AreEachForOneThing)
{
    m_line.output = QString(); // with "Save to File"
    open();
    auto *tabs = part<QTabWidget>("parts");
    for (int index = 0; index < tabs->count(); ++index) {
        tabs->setCurrentIndex(index);
        QString letters = mnemonicsIn(*m_window) + mnemonicsIn(*tabs->widget(index));
        std::sort(letters.begin(), letters.end());
        const auto twice = std::adjacent_find(letters.begin(), letters.end());
        EXPECT_EQ(twice, letters.end()) << index << ": " << letters.toStdString();
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
        ASSERT_TRUE(m_window->showPart(name));
        for (auto *fold : m_window->shownPart()->findChildren<QToolButton *>(u"optionButton"_s))
            fold->click();
        for (const auto *caption : m_window->shownPart()->findChildren<CaptionLabel *>()) {
            const QKeySequence keys = QKeySequence::mnemonic(caption->mnemonicText());
            if (!caption->isVisible() || !caption->buddy()->isEnabled())
                continue;
            ++captions;
            ASSERT_FALSE(keys.isEmpty()) << caption->text().toStdString();
            EXPECT_FALSE(caption->text().contains(u'&')) << "it stays as the panel has set it";
            part<QWidget>("chooseButton")->setFocus();
            QTest::keyClick(m_window.get(), keys[0].key(), Qt::AltModifier);
            const QWidget *control = caption->buddy();
            const QWidget *focused = QApplication::focusWidget();
            EXPECT_TRUE(focused == control || control->isAncestorOf(focused))
                << caption->mnemonicText().toStdString();
        }
    }
    EXPECT_GE(captions, 7);
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
