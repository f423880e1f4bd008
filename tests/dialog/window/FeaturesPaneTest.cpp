// The features of a printer that no panel has: the dialog offers them itself.
#include "dialog/host/PPDMarks.h"
#include "tests/dialog/window/DialogWindowFixture.h"
#include "tests/support/FeaturePrinter.h"
#include "tests/support/PlainTextWalk.h"
#include "tests/support/SmallPrinter.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>

#include <clocale>

using namespace Qt::StringLiterals;

namespace {

class FeaturesOf : public DialogWindowFixture
{
protected:
    void openPrinter(const QByteArray &ppd)
    {
        m_line.ppd = m_folder.filePath(u"other.ppd"_s);
        m_line.plugIn = QString();
        writeFile(m_line.ppd, ppd);
        open();
    }

    void openFeatures()
    {
        openPrinter(featurePrinter());
        ASSERT_TRUE(m_window->showPart(u"features"_s));
    }

    void tick(const char *name, const QString &choice, bool isTicked)
    {
        auto *list = part<QListWidget>(name);
        for (int row = 0; row < list->count(); ++row)
            if (list->item(row)->data(Qt::UserRole).toString() == choice)
                list->item(row)->setCheckState(isTicked ? Qt::Checked : Qt::Unchecked);
        QCoreApplication::processEvents();
    }

    QStringList ticked(const char *name)
    {
        QStringList choices;
        auto *list = part<QListWidget>(name);
        for (int row = 0; row < list->count(); ++row)
            if (list->item(row)->checkState() == Qt::Checked)
                choices += list->item(row)->text();
        return choices;
    }

    /// The options of the job that is printed, as lines.
    QStringList printedOptions()
    {
        print();
        EXPECT_TRUE(m_window->outcome()) << notice().toStdString();
        QStringList options;
        for (const QString &line : QString::fromUtf8(written()).split(u'\n'))
            if (line.startsWith(u"Option: "))
                options += line.mid(8);
        return options;
    }

    QString label(const QWidget *field)
    {
        for (const QLabel *one : m_window->findChildren<QLabel *>())
            if (one->buddy() && (one->buddy() == field || one->buddy()->focusProxy() == field))
                return one->text();
        return {};
    }
};

TEST_F(FeaturesOf, APrinterWithoutAnyHaveNoTabAndNoSentence)
{
    openPrinter(PPDSource().papers({{"A4", 595, 842}, {"A5", 420, 595}}).text());
    EXPECT_EQ(tabs(), (QStringList{u"Page Setup"_s, u"Layout & Job"_s, u"Summary"_s}));
    EXPECT_EQ(notice(), QString());
}

TEST_F(FeaturesOf, ASamplePrinterAreItsPanels)
{
    open();
    EXPECT_EQ(tabs(), (QStringList{u"Page Setup"_s, u"Print Settings"_s, u"Color Settings"_s,
                                   u"Layout & Job"_s, u"Summary"_s}));
}

TEST_F(FeaturesOf, AnotherPrinterStandInATab)
{
    openFeatures();
    EXPECT_EQ(tabs(), (QStringList{u"Page Setup"_s, u"Printer Features"_s, u"Layout & Job"_s,
                                   u"Summary"_s}));
    EXPECT_FALSE(part<QCheckBox>("JogFeature")->isChecked());
    EXPECT_EQ(part<QCheckBox>("JogFeature")->text(), u"Jog Stacks"_s);
    EXPECT_EQ(part<PopUpButton>("WeightFeature")->selectedObject(), u"Light"_s);
    EXPECT_EQ(label(part<PopUpButton>("WeightFeature")), u"Paper Weight:"_s);
    EXPECT_EQ(ticked("FinisherFeature"), QStringList{u"Nothing"_s});
    EXPECT_EQ(part<QLabel>("Tray2Installed")->text(), u"Installed"_s);
    EXPECT_EQ(m_window->findChild<QWidget *>(u"Tray2Feature"_s), nullptr);
    EXPECT_EQ(m_window->findChild<QWidget *>(u"copiesFeature"_s), nullptr);
    EXPECT_EQ(notice(), QString());
}

TEST_F(FeaturesOf, EveryKindReachTheJobAndTheSummary)
{
    openFeatures();
    tick("FinisherFeature", u"Staple"_s, true);
    tick("FinisherFeature", u"Punch"_s, true);
    EXPECT_EQ(ticked("FinisherFeature"), (QStringList{u"Staple"_s, u"Punch & Fold"_s}));
    click("JogFeature");
    pick("WeightFeature", u"Custom"_s);
    part<QSpinBox>("WeightGrams")->setValue(120);
    pick("StampFeature", u"Custom"_s);
    QTest::keyClicks(part<QLineEdit>("StampText"), u"Top \"secret\""_s);
    part<QDoubleSpinBox>("StampAngle")->setValue(-12.5);
    part<QDoubleSpinBox>("StampOffset")->setValue(7);
    pick("HoldFeature", u"Custom"_s);
    QTest::keyClicks(part<QLineEdit>("HoldCode"), u"0123"_s);
    EXPECT_EQ(notice(), QString());

    const QStringList texts = summary();
    for (const QString &text :
         {u"Staple, Punch & Fold"_s, u"Yes"_s, u"Grams 120"_s,
          u"Words Top \"secret\", Angle -12.5, Offset 7 mm"_s, u"Code ••••"_s})
        EXPECT_TRUE(texts.contains(text)) << text.toStdString();

    const QStringList options = printedOptions();
    for (const QString &option :
         {u"Finisher=Staple,Punch"_s, u"Jog=True"_s, u"Weight=Custom.120"_s,
          uR"(Stamp={Text="Top \"secret\"" Angle=-12.5 Offset=19.8425})"_s, u"Hold=Custom.0123"_s})
        EXPECT_TRUE(options.contains(option)) << options.join(u'\n').toStdString();
}

TEST_F(FeaturesOf, AnotherPrinterAreAllInTheSummaryAsTheyAre)
{
    openFeatures();
    pick("WeightFeature", u"Heavy"_s);
    const QString all = summary().join(u'|');
    EXPECT_TRUE(all.endsWith(u"|Printer Features|Finish|Nothing|Jog Stacks|No|Paper Weight|Heavy|"
                             "Stamp|No Stamp|Private Print|Off|Tone|Plain"_s))
        << all.toStdString();
    click("onlyDifferentButton");
    const QString different = summary().join(u'|');
    EXPECT_TRUE(different.endsWith(u"Printer Features|Paper Weight|Heavy"_s))
        << different.toStdString();
}

TEST_F(FeaturesOf, AnotherPrinterAreNamedWhereTheyClash)
{
    openFeatures();
    pick("WeightFeature", u"Heavy"_s);
    click("JogFeature");
    EXPECT_FALSE(part<QCheckBox>("JogFeature")->isChecked());
    EXPECT_EQ(marked(u"Jog"_s), u"False"_s);
    EXPECT_EQ(notice(), u"\"Jog Stacks: Yes\" cannot be chosen: the printer does not allow it "
                        "together with \"Paper Weight: Heavy\"."_s);
    tick("FinisherFeature", u"Staple"_s, true);
    EXPECT_EQ(ticked("FinisherFeature"), QStringList{u"Nothing"_s});
    EXPECT_EQ(notice(), u"\"Finish: Staple\" cannot be chosen: the printer does not allow it "
                        "together with \"Paper Weight: Heavy\"."_s);
    pick("WeightFeature", u"Light"_s);
    EXPECT_EQ(notice(), QString());
}

TEST_F(FeaturesOf, AnotherPrinterKeepFromPrintingWhileAValueIsWrong)
{
    openFeatures();
    pick("HoldFeature", u"Custom"_s);
    EXPECT_EQ(part<QLabel>("HoldValidation")->text(), u"Code has at least 4 characters."_s);
    EXPECT_FALSE(part<QPushButton>("printButton")->isEnabled());
    QTest::keyClicks(part<QLineEdit>("HoldCode"), u"12x4"_s);
    EXPECT_EQ(part<QLabel>("HoldValidation")->text(), u"Code consists of digits."_s);
    EXPECT_FALSE(part<QPushButton>("printButton")->isEnabled());
    // Another feature leaves alone what is being typed.
    click("JogFeature");
    EXPECT_EQ(part<QLineEdit>("HoldCode")->text(), u"12x4"_s);
    pick("HoldFeature", u"Off"_s);
    EXPECT_TRUE(part<QPushButton>("printButton")->isEnabled());
    EXPECT_FALSE(part<QLineEdit>("HoldCode")->isVisible());
}

TEST_F(FeaturesOf, AnotherPrinterSayWhatIsWrongFromAnotherTab)
{
    openFeatures();
    pick("HoldFeature", u"Custom"_s);
    ASSERT_TRUE(m_window->showPart(u"setup"_s));
    EXPECT_EQ(notice(),
              u"A value in Printer Features cannot be used. Correct it there to print."_s);
}

TEST_F(FeaturesOf, AManyWithoutNoneKeepTheLastChoice)
{
    openPrinter(featurePrinter()
                    .replace("*Finisher None/Nothing", "*Finisher Trim/Nothing")
                    .replace("*DefaultFinisher: None", "*DefaultFinisher: Trim"));
    ASSERT_TRUE(m_window->showPart(u"features"_s));
    tick("FinisherFeature", u"Trim"_s, false);
    EXPECT_EQ(ticked("FinisherFeature"), QStringList{u"Nothing"_s});
    EXPECT_EQ(notice(), u"\"Finish\" needs at least one choice."_s);
}

TEST_F(FeaturesOf, AnotherPrinterAreSettingsOfTheCommandLineToo)
{
    m_line.choices = {{u"weight"_s, u"Custom.120"_s},
                      {u"Finisher"_s, u"Punch,staple"_s},
                      {u"Stamp"_s, u"{Angle=5 Offset=1 Text=x}"_s}};
    openFeatures();
    EXPECT_EQ(m_window->settingState().sentence(), QString());
    EXPECT_EQ(part<QSpinBox>("WeightGrams")->value(), 120);
    EXPECT_EQ(ticked("FinisherFeature"), (QStringList{u"Staple"_s, u"Punch & Fold"_s}));
    EXPECT_EQ(part<QLineEdit>("StampText")->text(), u"x"_s);
}

TEST_F(FeaturesOf, AnotherPrinterAreShownAsTheyAreWishedWhereTheirPartIsWishedToo)
{
    m_line.choices = {{u"Weight"_s, u"Heavy"_s}};
    m_line.panel = u"features"_s;
    openFeatures();
    EXPECT_EQ(part<PopUpButton>("WeightFeature")->selectedObject(), u"Heavy"_s);
    m_line.panel = u"summary"_s;
    m_window.reset();
    open();
    const QStringList texts = summary();
    EXPECT_EQ(texts.value(texts.indexOf(u"Paper Weight"_s) + 1), u"Heavy"_s)
        << texts.join(u'|').toStdString();
}

TEST_F(FeaturesOf, AnotherPrinterAreNoSettingsOutOfTheirLimits)
{
    m_line.choices = {{u"Weight"_s, u"Custom.301"_s}};
    openFeatures();
    EXPECT_EQ(m_window->settingState().sentence(),
              u"Custom.301 is no value for Weight. It can be: Light, Heavy, Custom.Grams. Grams is "
              "at most 300."_s);
    EXPECT_EQ(marked(u"Weight"_s), u"Light"_s);
}

TEST_F(FeaturesOf, AnotherPrinterAreNoSettingsWithoutTheirValues)
{
    m_line.choices = {{u"Stamp"_s, u"Custom"_s}};
    openFeatures();
    EXPECT_EQ(m_window->settingState().sentence(),
              u"Custom is no value for Stamp. It can be: Off, {Text=… Angle=… Offset=…}."_s);
    EXPECT_EQ(marked(u"Stamp"_s), u"Off"_s);
}

// A panel hears of a choice that was made elsewhere, as it always does.
TEST_F(FeaturesOf, APrinterWithAPanelLeaveOutWhatThePanelLists)
{
    m_line.ppd = m_folder.filePath(u"small.ppd"_s);
    m_line.plugIn = QLatin1String(FIXTURE_FOLDER) + u"/Plain.bundle"_s;
    writeFile(m_line.ppd, smallPrinter().option("Stapler/Stapler", {"No", "Yes"}).text());
    open();
    EXPECT_EQ(tabs(), (QStringList{u"Page Setup"_s, u"Plain"_s, u"Printer Features"_s,
                                   u"Layout & Job"_s, u"Summary"_s}));
    ASSERT_TRUE(m_window->showPart(u"features"_s));
    EXPECT_EQ(part<QWidget>("featuresPane")->findChildren<PopUpButton *>().size(), 1);
    pick("StaplerFeature", u"Yes"_s);
    EXPECT_EQ(marked(u"Stapler"_s), u"Yes"_s);
}

TEST_F(FeaturesOf, AnotherPrinterAreNotedInASession)
{
    m_line.ppd = m_folder.filePath(u"other.ppd"_s);
    writeFile(m_line.ppd, featurePrinter());
    openRecorded();
    ASSERT_TRUE(m_window->showPart(u"features"_s));
    tick("FinisherFeature", u"Staple"_s, true);
    pick("WeightFeature", u"Custom"_s);
    pick("HoldFeature", u"Custom"_s);
    QTest::keyClicks(part<QLineEdit>("HoldCode"), u"1234"_s);
    EXPECT_EQ(markedValue(m_window->job().ppd(), u"Hold"_s), u"Custom.1234"_s);
    ASSERT_TRUE(finishRecording());
    const QByteArray script = readFile(m_line.record);
    EXPECT_TRUE(script.contains(R"({"do":"mark","keyword":"Finisher","choice":"Staple"})"))
        << script.toStdString();
    EXPECT_TRUE(script.contains(R"({"do":"mark","keyword":"Weight","choice":"Custom.60"})"))
        << script.toStdString();
    // Scripts are attached to bug reports.
    EXPECT_FALSE(script.contains("1234"));
    EXPECT_TRUE(script.contains(R"("keyword":"Hold","choice":"Custom.0000")"));
}

struct Language
{
    const char *locale;
    const char *weight;
    const char *heavy;
    const char *ownStamp;
};

class FeaturesIn : public FeaturesOf, public testing::WithParamInterface<Language>
{
protected:
    // libcups asks the environment where the process has no locale of its own.
    FeaturesIn() : m_before(qgetenv("LC_ALL")), m_locale(std::setlocale(LC_MESSAGES, nullptr))
    {
        std::setlocale(LC_MESSAGES, "C");
        qputenv("LC_ALL", GetParam().locale);
    }
    ~FeaturesIn() override
    {
        std::setlocale(LC_MESSAGES, m_locale.constData());
        qputenv("LC_ALL", m_before);
    }

    const QByteArray m_before;
    const QByteArray m_locale;
};

TEST_P(FeaturesIn, TheUsersLanguageStandInThePPDsWords)
{
    openFeatures();
    auto *weight = part<PopUpButton>("WeightFeature");
    auto *stamp = part<PopUpButton>("StampFeature");
    EXPECT_EQ(label(weight), QString::fromUtf8(GetParam().weight));
    EXPECT_EQ(weight->itemText(weight->indexOfRepresentedObject(u"Heavy"_s)),
              QString::fromUtf8(GetParam().heavy));
    EXPECT_EQ(stamp->itemText(stamp->indexOfRepresentedObject(u"Custom"_s)),
              QString::fromUtf8(GetParam().ownStamp));
}

INSTANTIATE_TEST_SUITE_P(
    All, FeaturesIn,
    testing::Values(Language{"en_US.UTF-8", "Paper Weight:", "Heavy", "Own Stamp"},
                    Language{"de_DE.UTF-8", "Papiergewicht:", "Heavy", "Own Stamp"},
                    Language{"ja_JP.UTF-8", "用紙の厚さ:", "厚い", "自由なスタンプ"}));

TEST_F(FeaturesOf, AStrangePrinterAreShownAsPlainText)
{
    const QByteArray foreign = "<3C>b<3E>A&amp;B<3C>/b<3E>";
    QByteArray ppd = featurePrinter();
    for (const QByteArray &text :
         QByteArrayList{"Paper Weight", "Options Installed", "Heavy", "Staple", "Grams",
                        "Jog Stacks", "Installed", "Paper Handling"})
        ppd.replace('/' + text + ':', '/' + foreign + ':')
            .replace('/' + text + '\n', '/' + foreign + '\n');
    openPrinter(ppd);
    ASSERT_TRUE(m_window->showPart(u"features"_s));
    pick("WeightFeature", u"Custom"_s);
    PlainTextWalk walk;
    walk.look();
    EXPECT_TRUE(walk.seen().contains(u"QCheckBox JogFeature"_s))
        << QStringList(walk.seen().values()).join(u'\n').toStdString();
    EXPECT_TRUE(walk.seen().contains(u"PopUpButton WeightFeature"_s));
}

} // namespace
