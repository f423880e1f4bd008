// What a person has settled is there again at the next start. Each start is a process of its own,
// as it is for people: this program once more, with the same home folder.
#include "tests/dialog/window/PresetsFixture.h"
#include "tests/support/AlertAnswers.h"

#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QMenu>

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kSharedHome = "VELKARO_TEST_HOME";
constexpr auto kStart = "VELKARO_TEST_START"; // which one the process is for

class Starts : public PresetsFixture
{
protected:
    Starts()
    {
        if (m_start == 0)
            return;
        const QByteArray home = qgetenv(kSharedHome);
        qputenv("HOME", home);
        qputenv("XDG_CONFIG_HOME", home + "/config");
    }

    void startFirst();
    void startSecond();
    void startThird();

    void start(int number)
    {
        constexpr std::array kStarts{&Starts::startFirst, &Starts::startSecond,
                                     &Starts::startThird};
        (this->*kStarts.at(static_cast<std::size_t>(number - 1)))();
    }

    QStringList ownPapers()
    {
        QStringList titles;
        const auto *papers = part<PopUpButton>("paperPopup");
        for (int index = 0; index < papers->count(); ++index)
            if (papers->representedObject(index).startsWith("Custom."_L1))
                titles += papers->itemText(index);
        return titles;
    }

    /// The paper below the heading of those that were used, null without one.
    QString latestPaper()
    {
        const auto *papers = part<PopUpButton>("paperPopup");
        const int heading = papers->indexOfTitle(u"Used Recently"_s);
        return heading < 0 ? QString() : papers->representedObject(heading + 1);
    }

    void keepSize(const QString &name, double width, double height)
    {
        ASSERT_TRUE(m_window->showPart(u"setup"_s));
        pick("paperPopup", u"Custom"_s);
        m_window->findChild<QComboBox *>(u"customUnit"_s)->setCurrentIndex(0);
        part<QDoubleSpinBox>("customWidth")->setValue(width);
        part<QDoubleSpinBox>("customHeight")->setValue(height);
        QTest::keyClicks(part<QLineEdit>("sizeNameField"), name);
        click("keepSizeButton");
    }

    /// Picks what is slow, and has the warning hidden from then on.
    void pickBest()
    {
        pick("mediaTypePopup", u"Glossy"_s);
        pick("resolutionPopup", u"Best"_s);
    }

    QStringList hiddenAlerts()
    {
        QStringList sentences;
        act("hiddenAlerts", [&](QWidget *dialog) {
            auto *list = dialog->findChild<QListWidget *>(u"hiddenAlertsList"_s);
            for (int row = 0; row < list->count(); ++row)
                sentences += list->item(row)->text();
            QTest::mouseClick(dialog->findChild<QPushButton *>(u"showAllAgainButton"_s),
                              Qt::LeftButton);
            static_cast<QDialog *>(dialog)->reject();
        });
        return sentences;
    }

    /// The box in the opened menu.
    QAction *boxInMenu(const char *action)
    {
        auto *menu = part<QPushButton>("presetMenuButton")->menu();
        menu->popup({});
        menu->hide();
        return part<QAction>(action);
    }

    bool isTicked(const char *action) { return boxInMenu(action)->isChecked(); }

    void untick(const char *action)
    {
        ASSERT_TRUE(isTicked(action)) << action;
        boxInMenu(action)->trigger();
    }

    void printTheJob()
    {
        QFile::remove(m_line.output);
        print();
        EXPECT_TRUE(m_window->outcome()) << notice().toStdString();
    }

    const int m_start = qEnvironmentVariableIntValue(kStart); ///< 0: the process is for none
};

void Starts::startFirst()
{
    open();
    EXPECT_EQ(offered(), QStringList{u"Printer's Defaults"_s});
    EXPECT_EQ(ownPapers(), QStringList());
    EXPECT_EQ(latestPaper(), QString());
    keepSize(u"Card"_s, 100, 150);
    pick("paperPopup", u"A5"_s);
    AlertAnswers answers({AlertAnswers::button(0, true)});
    pickBest();
    answers.take();
    act("savePreset", name(u"Holiday"_s));
    ASSERT_TRUE(m_window->showPart(u"print"_s)); // the user was in another part
    pick("mediaTypePopup", u"Inkjet"_s);
    untick("followJobs");
    printTheJob();
}

void Starts::startSecond()
{
    open();
    EXPECT_EQ(offered(),
              (QStringList{u"Printer's Defaults"_s, u"Settings Used Last"_s, u"Holiday"_s}));
    EXPECT_EQ(current(), u"Settings Used Last"_s);
    EXPECT_EQ(marked(u"VKMediaType"_s), u"Inkjet"_s);
    EXPECT_EQ(marked(u"PageSize"_s), u"A5"_s);
    EXPECT_EQ(ownPapers(), QStringList{u"Card"_s});
    EXPECT_EQ(latestPaper(), u"A5"_s);
    EXPECT_FALSE(isTicked("followJobs"));
    const AlertAnswers none;
    pickBest();
    EXPECT_EQ(hiddenAlerts(), QStringList{u"Best quality takes longer to print"_s});
    choose(u"Holiday"_s);
    EXPECT_EQ(marked(u"VKMediaType"_s), u"Glossy"_s);
    EXPECT_EQ(marked(u"VKResolution"_s), u"Best"_s);
    act("renamePreset", name(u"Beach"_s));
    pick("paperPopup", u"4x6"_s);
    untick("rememberLastUsed");
    printTheJob();
}

void Starts::startThird()
{
    open();
    EXPECT_EQ(offered(), (QStringList{u"Printer's Defaults"_s, u"Beach"_s}));
    EXPECT_EQ(current(), u"Printer's Defaults"_s) << "nothing is to be remembered";
    EXPECT_EQ(marked(u"PageSize"_s), u"A4"_s);
    EXPECT_EQ(ownPapers(), QStringList{u"Card"_s});
    EXPECT_EQ(latestPaper(), u"4x6"_s);
    EXPECT_FALSE(isTicked("followJobs"));
    EXPECT_FALSE(isTicked("rememberLastUsed"));
    AlertAnswers answers({AlertAnswers::button(0)});
    pickBest();
    EXPECT_EQ(answers.take().size(), 1u) << "is shown again";
}

TEST_F(Starts, FindAllAsItWasLeft)
{
    if (m_start > 0)
        return start(m_start);
    const QTemporaryDir home;
    QDir(home.path()).mkpath(u".cups"_s);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QLatin1String(kSharedHome), home.path());
    for (int number = 1; number <= 3; ++number) {
        environment.insert(QLatin1String(kStart), QString::number(number));
        QProcess program;
        program.setProcessEnvironment(environment);
        program.setProcessChannelMode(QProcess::MergedChannels);
        program.start(u"/proc/self/exe"_s,
                      {u"--gtest_brief=1"_s, u"--gtest_filter=Starts.FindAllAsItWasLeft"_s});
        ASSERT_TRUE(program.waitForFinished()) << number;
        EXPECT_EQ(program.exitCode(), 0) << number << ":\n" << program.readAll().toStdString();
    }
}

} // namespace
