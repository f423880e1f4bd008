// Presets in the dialog: saving, choosing, renaming and deleting them. Presets belong to a queue;
// the printer itself is a PPD file here.
#include "dialog/printing/LastUsed.h"
#include "platform/foundation/UserDefaults.h"
#include "tests/dialog/window/PresetsFixture.h"
#include "tests/support/FeaturePrinter.h"
#include "tests/support/LpoptionsFolder.h"

#include <QtWidgets/QListWidget>
#include <QtWidgets/QPushButton>

using namespace Qt::StringLiterals;

namespace {

class Presets : public PresetsFixture
{
protected:
    LpoptionsFolder m_lpoptions;
};

TEST_F(Presets, AreSavedChosenRenamedAndDeleted)
{
    m_lpoptions.writeUser("# mine\n");
    open();
    EXPECT_EQ(offered(), QStringList{u"Printer's Defaults"_s});
    pick("mediaTypePopup", u"Glossy"_s);
    act("savePreset", name(u"Holiday"_s));
    EXPECT_EQ(offered(), (QStringList{u"Printer's Defaults"_s, u"Holiday"_s}));
    EXPECT_EQ(current(), u"Holiday"_s);
    EXPECT_EQ(marked(u"VKMediaType"_s), u"Glossy"_s);

    choose(u"Printer's Defaults"_s);
    EXPECT_EQ(marked(u"VKMediaType"_s), u"Plain"_s);
    choose(u"Holiday"_s);
    EXPECT_EQ(marked(u"VKMediaType"_s), u"Glossy"_s);
    EXPECT_EQ(part<PopUpButton>("mediaTypePopup")->selectedObject(), u"Glossy"_s);

    act("renamePreset", name(u"Beach"_s));
    EXPECT_EQ(current(), u"Beach"_s);
    EXPECT_TRUE(m_lpoptions.user().startsWith("# mine\nDest photo/Beach "))
        << m_lpoptions.user().toStdString();

    act("deletePreset", press(u"Keep"_s));
    EXPECT_EQ(current(), u"Beach"_s);
    act("deletePreset", press(u"Delete"_s));
    EXPECT_EQ(offered(), QStringList{u"Printer's Defaults"_s});
    EXPECT_EQ(m_lpoptions.user(), "# mine\n");
    EXPECT_EQ(notice(), QString());
}

TEST_F(Presets, LeaveThePartInFrontThatTheUserIsIn)
{
    open();
    const auto *parts = part<QTabWidget>("parts");
    const auto inFront = [parts] { return plainTitle(parts->tabText(parts->currentIndex())); };
    EXPECT_EQ(inFront(), u"Print Settings"_s);
    for (const char *name : {"setup", "layout", "summary"}) {
        ASSERT_TRUE(m_window->showPart(QLatin1String(name)));
        const QString title = inFront();
        act("savePreset", Presets::name(u"Holiday"_s));
        EXPECT_EQ(inFront(), title) << "saved";
        act("renamePreset", Presets::name(u"Beach"_s));
        EXPECT_EQ(inFront(), title) << "renamed";
        choose(u"Printer's Defaults"_s);
        EXPECT_EQ(inFront(), title) << "chosen";
        choose(u"Beach"_s);
        act("deletePreset", press(u"Delete"_s));
        EXPECT_EQ(inFront(), title) << "deleted";
    }
}

TEST_F(Presets, AreStepsThatCanBeUndone)
{
    m_lpoptions.writeUser("Dest photo/warm VKMediaType=Glossy VKColorMatching=Vivid\n");
    open();
    pick("resolutionPopup", u"PlainFast"_s);
    choose(u"warm"_s);
    pick("mediaTypePopup", u"Inkjet"_s);
    const auto press = [this](Qt::KeyboardModifiers modifiers) {
        QTest::keyClick(m_window.get(), Qt::Key_Z, modifiers);
        QCoreApplication::processEvents();
        return QStringList{current(), marked(u"VKMediaType"_s), marked(u"VKResolution"_s)};
    };
    const auto *printer = part<PopUpButton>("printerPopup");
    constexpr auto kUndo = Qt::ControlModifier;
    constexpr auto kRedo = Qt::ControlModifier | Qt::ShiftModifier;
    const QStringList glossy{u"warm"_s, u"Glossy"_s, u"Photo"_s};
    const QStringList fast{u"Printer's Defaults"_s, u"Plain"_s, u"PlainFast"_s};
    EXPECT_EQ(press(kUndo), glossy);
    EXPECT_EQ(printer->selectedObject(), u"photo/warm"_s);
    EXPECT_EQ(press(kUndo), fast);
    EXPECT_EQ(printer->selectedObject(), u"photo"_s);
    EXPECT_EQ(press(kUndo), (QStringList{u"Printer's Defaults"_s, u"Plain"_s, u"PlainNormal"_s}));
    EXPECT_EQ(press(kRedo), fast);
    EXPECT_EQ(press(kRedo), glossy);
    EXPECT_EQ(printer->selectedObject(), u"photo/warm"_s);
    EXPECT_EQ(part<PopUpButton>("mediaTypePopup")->selectedObject(), u"Glossy"_s);
}

TEST_F(Presets, HaveTheColoursOfTheTicketToo)
{
    m_lpoptions.writeUser("Dest photo/warm VKColorMatching=Vivid "
                          "com.velkaro.print.PrintSettings.T2T_Red=7 "
                          "AP_ColorMatchingMode=AP_VendorColorMatching\n");
    m_line.instance = u"warm"_s;
    open();
    print();
    EXPECT_TRUE(written().contains("Option: com.velkaro.print.PrintSettings.T2T_Red=7\n"))
        << written().toStdString();
}

TEST_F(Presets, LieOverTheSettingsOfTheQueue)
{
    m_lpoptions.writeUser("Dest photo VKMediaType=Glossy\n");
    open();
    EXPECT_EQ(offered(), (QStringList{u"Printer's Defaults"_s, u"Usual Settings"_s}));
    EXPECT_EQ(current(), u"Usual Settings"_s);
    pick("mediaTypePopup", u"Plain"_s);
    act("savePreset", name(u"plain"_s));
    EXPECT_EQ(marked(u"VKMediaType"_s), u"Plain"_s);
    EXPECT_TRUE(m_lpoptions.user().contains("VKMediaType=\"Plain\"")); // or lp would print Glossy
    act("printerDefaults");
    EXPECT_EQ(current(), u"Printer's Defaults"_s);
    EXPECT_EQ(marked(u"VKMediaType"_s), u"Plain"_s);
    choose(u"Usual Settings"_s);
    EXPECT_EQ(marked(u"VKMediaType"_s), u"Glossy"_s);
}

struct BadName
{
    QString name;
    QString sentence;
};

TEST_F(Presets, HaveNamesThatLpFinds)
{
    m_lpoptions.writeUser("Dest photo/taken x=1\n");
    open();
    const QString forbidden = u"The name of a preset has no spaces, slashes, quotes, braces or #; "
                              "other programs would not find it. \"-\" and \"_\" are fine."_s;
    for (const BadName &row :
         {BadName{u"two words"_s, forbidden}, BadName{u"a/b"_s, forbidden},
          BadName{u"#1"_s, forbidden}, BadName{QString(), u"Give the preset a name."_s},
          BadName{QString(200, u'x'), u"The name is too long."_s}}) {
        QString validation;
        act("savePreset", name(row.name, &validation));
        EXPECT_EQ(validation, row.sentence) << row.name.toStdString();
    }
    EXPECT_EQ(m_lpoptions.user(), "Dest photo/taken x=1\n");
    QString validation;
    act("savePreset", name(u"Taken"_s, &validation));
    EXPECT_EQ(validation, u"This replaces the preset of the same name."_s);
    EXPECT_EQ(offered().size(), 2);
    act("savePreset", name(u"other"_s));
    act("renamePreset", name(u"taken"_s, &validation));
    EXPECT_EQ(validation, u"There is a preset of this name already."_s);
}

TEST_F(Presets, OfAPrinterThatHasChangedSayWhatIsGone)
{
    m_lpoptions.writeUser("Dest photo/old VKMediaType=Papyrus VKGone=Yes number-up=2\n");
    m_line.instance = u"old"_s;
    open();
    EXPECT_EQ(notice(), u"The printer does not have some of the settings that are saved for old: "
                        "VKMediaType=Papyrus, VKGone=Yes."_s);
    EXPECT_EQ(m_window->notice().kind(), NoticeBar::Kind::Warning);
    print();
    EXPECT_TRUE(m_window->outcome());
    EXPECT_TRUE(written().contains("Option: number-up=2\n"));
}

TEST_F(Presets, InAFileOfRubbishAreKeptAsTheyStand)
{
    const QByteArray rubbish = QByteArray("\0\xff\xfe{{{\"\n", 8) +
                               "Dest\nDest /\nDest photo/\nDest photo/x y=\"unended\nDefault\n" +
                               "Dest photo/a " + QByteArray(20000, 'z') + '\n';
    m_lpoptions.writeUser(rubbish);
    open();
    EXPECT_EQ(m_window->state(), DialogWindow::State::Ready);
    act("savePreset", name(u"new"_s));
    EXPECT_TRUE(m_lpoptions.user().startsWith(rubbish));
    EXPECT_EQ(current(), u"new"_s);
}

TEST_F(Presets, OfTwoHundredAreOfferedInOrder)
{
    QByteArray text;
    for (int number = 200; number > 0; --number)
        text += "Dest photo/p" + QByteArray::number(1000 + number) + " VKMediaType=Glossy\n";
    m_lpoptions.writeUser(text);
    open();
    ASSERT_EQ(offered().size(), 201);
    EXPECT_EQ(offered()[1], u"p1001"_s);
    EXPECT_EQ(offered()[200], u"p1200"_s);
    choose(u"p1137"_s);
    EXPECT_EQ(marked(u"VKMediaType"_s), u"Glossy"_s);
}

TEST_F(Presets, ThatCannotBeWrittenSayWhy)
{
    QFile::remove(m_lpoptions.userFile());
    ASSERT_TRUE(QDir().mkpath(m_lpoptions.userFile()));
    open();
    act("savePreset", name(u"new"_s));
    EXPECT_EQ(m_window->notice().kind(), NoticeBar::Kind::Error);
    EXPECT_TRUE(notice().contains(m_lpoptions.userFile())) << notice().toStdString();
    EXPECT_EQ(current(), u"Printer's Defaults"_s);
}

TEST_F(Presets, OfTheSystemAreNotTheUsersToChange)
{
    m_lpoptions.writeSystem("Dest photo/office VKMediaType=Glossy\n");
    open();
    choose(u"office"_s);
    act("deletePreset", press(u"Delete"_s));
    EXPECT_EQ(notice(),
              u"The preset \"office\" was set up for everybody who uses this computer; it "
              "cannot be changed here."_s);
    EXPECT_EQ(current(), u"office"_s);
}

TEST_F(Presets, OfThePrintersMakerAreOffered)
{
    m_line.ppd = m_folder.filePath(u"other.ppd"_s);
    m_line.plugIn = QString();
    writeFile(m_line.ppd,
              featurePrinter() +
                  "*APPrinterPreset Thick/Thick Paper: \"*Weight Heavy *Finisher Punch\"\n"
                  "*End\n");
    m_lpoptions.writeUser("Dest photo Duplex=DuplexNoTumble\n");
    open();
    choose(u"Thick Paper (from the printer's maker)"_s);
    EXPECT_EQ(marked(u"Weight"_s), u"Heavy"_s);
    EXPECT_EQ(marked(u"Finisher"_s), u"Punch"_s);
    EXPECT_EQ(marked(u"Duplex"_s), u"DuplexNoTumble"_s);
    EXPECT_EQ(current(), u"Thick Paper (from the printer's maker)"_s);
}

TEST_F(Presets, OfValuesOfTheUsersOwnAndOfSeveralChoicesComeBack)
{
    m_line.ppd = m_folder.filePath(u"other.ppd"_s);
    m_line.plugIn = QString();
    writeFile(m_line.ppd, featurePrinter());
    m_lpoptions.writeUser("Dest photo/a Finisher=Staple,Punch Weight=Custom.120 Hold=Custom.1 "
                          "Stamp=\"{Text=\\\"a b\\\" Angle=1 Offset=2}\"\n");
    m_line.instance = u"a"_s;
    open();
    EXPECT_EQ(notice(), u"The printer does not have some of the settings that are saved for a: "
                        "Hold=Custom.1."_s);
    print();
    for (const char *option :
         {"Finisher=Staple,Punch", "Weight=Custom.120", "Stamp={Text=\"a b\" Angle=1 Offset=2}"})
        EXPECT_TRUE(written().contains(option)) << written().toStdString();
}

// --- What was used last --------------------------------------------------------------------------

class LastUsed : public Presets
{
protected:
    /// Prints glossy, twice, the second page, with a code, and opens the dialog anew.
    void printGlossy()
    {
        open();
        pick("mediaTypePopup", u"Glossy"_s);
        m_window->job().settings().copies = 2;
        m_window->job().settings().pageRanges = u"2"_s;
        print();
        ASSERT_TRUE(m_window->outcome());
        QFile::remove(m_line.output);
    }
};

TEST_F(LastUsed, ComesBackWithoutWhatBelongedToThatJob)
{
    printGlossy();
    open();
    EXPECT_EQ(current(), u"Settings Used Last"_s);
    EXPECT_EQ(marked(u"VKMediaType"_s), u"Glossy"_s);
    EXPECT_EQ(m_window->job().settings(), HostSettings());
    choose(u"Printer's Defaults"_s);
    EXPECT_EQ(marked(u"VKMediaType"_s), u"Plain"_s);
}

TEST_F(LastUsed, NeverComesBackWithoutTheDialog)
{
    printGlossy();
    m_window.reset();
    PrintController controller(m_line);
    bool isFound = false;
    controller.findPrinter(controller.wantedPrinter(), [&](const Result<FoundPrinter> &found) {
        isFound = true;
        EXPECT_TRUE(found) << found.sentence().toStdString();
    });
    ASSERT_TRUE(QTest::qWaitFor([&] { return isFound; }, kTimeout));
    EXPECT_EQ(markedChoice(controller.job().ppd(), u"VKMediaType"_s), u"Plain"_s);
}

TEST_F(LastUsed, BelongsToItsPrinter)
{
    printGlossy();
    m_line.queue = u"other"_s;
    open();
    EXPECT_EQ(marked(u"VKMediaType"_s), u"Plain"_s);
}

TEST_F(LastUsed, GivesWayToAnInstanceAndToAnOption)
{
    printGlossy();
    m_line.choices = {{u"VKMediaType"_s, u"Inkjet"_s}};
    open();
    EXPECT_EQ(marked(u"VKMediaType"_s), u"Inkjet"_s) << notice().toStdString();
    m_line.choices.clear();
    m_lpoptions.writeUser("Dest photo/x VKMediaType=VelkaroGlossy\n");
    m_line.instance = u"x"_s;
    open();
    EXPECT_EQ(marked(u"VKMediaType"_s), u"VelkaroGlossy"_s);
    EXPECT_EQ(current(), u"x"_s);
}

TEST_F(LastUsed, IsForgottenWhereTheUserWantsThat)
{
    printGlossy();
    open();
    part<QAction>("rememberLastUsed")->setChecked(true); // as the menu shows it
    part<QAction>("rememberLastUsed")->trigger();
    EXPECT_FALSE(remembersLastUsed());
    open();
    EXPECT_EQ(marked(u"VKMediaType"_s), u"Plain"_s);
    printGlossy();
    open();
    EXPECT_EQ(marked(u"VKMediaType"_s), u"Plain"_s);
    EXPECT_EQ(offered(), QStringList{u"Printer's Defaults"_s});
}

TEST_F(LastUsed, GivesWayWhereItForbidsWhatIsAskedFor)
{
    m_line.ppd = m_folder.filePath(u"other.ppd"_s);
    m_line.plugIn = QString();
    writeFile(m_line.ppd, featurePrinter());
    rememberLastUsed({}, u"photo"_s, {{u"Weight"_s, u"Heavy"_s}});
    m_line.choices = {{u"Jog"_s, u"True"_s}};
    open();
    EXPECT_TRUE(QTest::qWaitFor([this] { return marked(u"Jog"_s) == u"True"; }, kTimeout));
    EXPECT_EQ(marked(u"Weight"_s), u"Light"_s);
    EXPECT_TRUE(m_window->settingState());
}

TEST_F(LastUsed, NeverKeepsASecret)
{
    m_line.ppd = m_folder.filePath(u"other.ppd"_s);
    m_line.plugIn = QString();
    writeFile(m_line.ppd, featurePrinter());
    open();
    ASSERT_TRUE(m_window->job().mark(u"Hold"_s, u"Custom.1234"_s));
    ASSERT_TRUE(m_window->job().mark(u"Jog"_s, u"True"_s));
    act("savePreset", name(u"secret"_s));
    EXPECT_TRUE(m_lpoptions.user().contains("Jog=\"True\""));
    EXPECT_FALSE(m_lpoptions.user().contains("1234"));
    ASSERT_TRUE(m_window->job().mark(u"Hold"_s, u"Custom.1234"_s));
    print();
    EXPECT_TRUE(written().contains("Hold=Custom.1234"));
    const QList<JobOption> kept = lastUsedSettings({}, u"photo"_s);
    EXPECT_EQ(optionValue(kept, u"Jog"_s), u"True"_s);
    EXPECT_EQ(optionValue(kept, u"Hold"_s), QString());
}

// --- Alerts that are hidden ----------------------------------------------------------------------

class Hidden : public Presets
{
protected:
    Hidden() { UserDefaults::standardUserDefaults().setFolder(QString()); }

    static QVariantMap memory()
    {
        return UserDefaults::standardUserDefaults().persistentDomainForName(
            u"com.velkaro.print.pde"_s);
    }
};

TEST_F(Hidden, AlertsAreListedByTheirSentencesAndShownAgain)
{
    UserDefaults::standardUserDefaults().setPersistentDomain(
        {{u"Best Alert"_s, false}, {u"Duplex Alert"_s, false}, {u"Envelope"_s, true}},
        u"com.velkaro.print.pde"_s);
    open();
    act("hiddenAlerts", [](QWidget *dialog) {
        ASSERT_NE(dialog, nullptr);
        auto *list = dialog->findChild<QListWidget *>(u"hiddenAlertsList"_s);
        ASSERT_EQ(list->count(), 2);
        EXPECT_EQ(list->item(0)->text(), u"Best quality takes longer to print"_s);
        EXPECT_EQ(list->item(1)->text(), u"This paper cannot be printed on both sides"_s);
        list->setCurrentRow(0);
        QTest::mouseClick(dialog->findChild<QPushButton *>(u"showAgainButton"_s), Qt::LeftButton);
        EXPECT_EQ(list->count(), 1);
        EXPECT_EQ(memory(), (QVariantMap{{u"Duplex Alert"_s, false}, {u"Envelope"_s, true}}));
        QTest::mouseClick(dialog->findChild<QPushButton *>(u"showAllAgainButton"_s),
                          Qt::LeftButton);
        EXPECT_EQ(list->count(), 0);
        static_cast<QDialog *>(dialog)->reject();
    });
    EXPECT_EQ(memory(), (QVariantMap{{u"Envelope"_s, true}}));
    act("hiddenAlerts");
    EXPECT_EQ(notice(), u"No warnings are hidden: all are shown."_s);
}

} // namespace
