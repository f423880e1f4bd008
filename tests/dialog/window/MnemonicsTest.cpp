#include "dialog/window/Mnemonics.h"

#include "platform/foundation/PreferredLanguages.h"
#include "tests/dialog/window/DialogWindowFixture.h"
#include "tests/support/CaseName.h"

#include <QtCore/QTranslator>
#include <QtWidgets/QTabBar>

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

TEST_P(MnemonicsOfTheDialog, StandInTabsThatAreAllInSight)
{
    open();
    const QTabBar *bar = part<QTabWidget>("parts")->tabBar();
    EXPECT_LE(bar->sizeHint().width(), bar->width());
}

INSTANTIATE_TEST_SUITE_P(Languages, MnemonicsOfTheDialog, testing::Values("de", "en", "fr", "ja"),
                         [](const auto &language) { return std::string(language.param); });

} // namespace
