#include "platform/foundation/Bundle.h"
#include "platform/foundation/UserDefaults.h"
#include "platform/printmanager/PMPrintSettings.h"
#include "platform/toolkit/ImageView.h"
#include "platform/toolkit/KeyWindow.h"
#include "platform/toolkit/PlainText.h"
#include "printsettings/TextHeight.h"
#include "tests/built/BuiltFiles.h"
#include "tests/printsettings/PrintPanel.h"
#include "tests/support/Files.h"

#include <QtCore/QPointer>
#include <QtCore/QStringEncoder>
#include <QtCore/QTemporaryDir>
#include <QtGui/QFontDatabase>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

using namespace Qt::StringLiterals;

namespace {

const QString kUnsupportedMessage = u"Unsupported Paper MSG1\n\nUnsupported Paper MSG2\n"
                                    "Unsupported Paper MSG3\nUnsupported Paper MSG4"_s;

class Alerts : public PrintPanelTest
{
protected:
    void usePaper(const QString &name, QSizeF size = {595, 842})
    {
        session->setPaper(name, {}, size);
        panel->paperName = name;
    }

    // What the one alert said; fails when it was not exactly one of this kind.
    AlertContent takeAlert(ShownAlert::Kind kind = ShownAlert::Kind::Modal)
    {
        const auto alerts = session->alerts().take();
        EXPECT_EQ(alerts.size(), 1u);
        if (alerts.empty())
            return {};
        EXPECT_EQ(alerts[0].kind, kind);
        return alerts[0].content;
    }

    void expectUnsupportedPaperAlert()
    {
        const AlertContent alert = takeAlert();
        EXPECT_EQ(alert.style, AlertStyle::Warning);
        EXPECT_EQ(alert.text, u"Unsupported Paper Title"_s);
        EXPECT_EQ(alert.informative, kUnsupportedMessage);
        EXPECT_EQ(alert.buttons, QStringList({u"OK"_s}));
    }

    QVariantMap memory()
    {
        return UserDefaults::standardUserDefaults().persistentDomainForName(
            u"com.velkaro.print.pde"_s);
    }
};

// --- Custom sizes --------------------------------------------------------------------------------

struct CustomSize
{
    QSizeF size;
    bool printed;
};

// The limits of this printer are 182 to 936 points by 254 to 1368 points.
TEST_F(Alerts, ACustomSizeIsRoundedToPointsAndHeldAgainstThePrintersLimits)
{
    open();
    for (const CustomSize &row :
         {CustomSize{{182, 254}, true}, CustomSize{{936, 1368}, true},
          CustomSize{{181.5, 253.5}, true}, CustomSize{{936.49, 1368.49}, true},
          CustomSize{{181, 254}, false}, CustomSize{{181.49, 254}, false},
          CustomSize{{182, 253}, false}, CustomSize{{936.5, 1368}, false},
          CustomSize{{936, 1369}, false}}) {
        usePaper(u"Custom.1x1"_s, row.size);
        if (!row.printed)
            session->alerts().expect();
        EXPECT_EQ(panel->checkCustomPaperSizeAlert(), row.printed)
            << row.size.width() << " x " << row.size.height();
        if (!row.printed)
            expectUnsupportedPaperAlert();
    }
}

TEST_F(Alerts, APaperThatIsNotCustomPassesWhateverItsSize)
{
    open();
    usePaper(u"A4"_s, {1, 1});
    EXPECT_TRUE(panel->checkCustomPaperSizeAlert());
    usePaper(QString(), {1, 1});
    EXPECT_TRUE(panel->checkCustomPaperSizeAlert());
}

TEST_F(Alerts, ACustomSizeThatCannotBeReadIsVetoedSilently)
{
    open();
    usePaper(u"Custom.1x1"_s);
    session->host()->format().paper.reset();
    EXPECT_FALSE(panel->checkCustomPaperSizeAlert());
    usePaper(u"Custom.1x1"_s);
    session->host()->setLacking({HostOperation::PageFormat});
    EXPECT_FALSE(panel->checkCustomPaperSizeAlert());
}

TEST_F(Alerts, ADialogWithoutATicketHasASizeThatNoPrinterTakes)
{
    open();
    usePaper(u"Custom.1x1"_s);
    session->host()->setLacking({HostOperation::PrintSettings});
    session->alerts().expect();
    EXPECT_FALSE(panel->checkCustomPaperSizeAlert());
    expectUnsupportedPaperAlert();
}

// --- Discs ---------------------------------------------------------------------------------------

TEST_F(Alerts, ADiscIsConfirmedOnEveryJob)
{
    open();
    session->changePaper(u"120x120mm"_s);
    for (const QString &medium : {u"PrintableDisc"_s, u"GlossyPrintableDisc"_s}) {
        session->mark(u"VKMediaType"_s, medium);
        for (const int button : {0, 1, 0}) {
            session->alerts().expect(AlertAnswers::button(button));
            EXPECT_EQ(panel->checkShouldShowDiscAlert(), button == 0);
            const AlertContent alert = takeAlert();
            EXPECT_EQ(alert.style, AlertStyle::Informational);
            EXPECT_EQ(alert.text, u"DiscPrint Alert"_s);
            EXPECT_EQ(alert.informative, u"DiscPrint Alert2"_s);
            EXPECT_EQ(alert.buttons, QStringList({u"OK"_s, u"Cancel"_s}));
            EXPECT_FALSE(alert.suppression);
        }
    }
    EXPECT_EQ(memory(), QVariantMap());
    EXPECT_NE(panel->loadedView(), nullptr);
}

TEST_F(Alerts, ADiscPaperWithAnotherMarkedMediumPrintsWithoutAnAlert)
{
    open();
    session->changePaper(u"120x120mm"_s);
    session->mark(u"VKMediaType"_s, u"Plain"_s);
    EXPECT_TRUE(panel->checkShouldShowDiscAlert());
    useSample(u"velkaro-px-330c"_s);
    open();
    panel->setFlag(DiscPaper, true);
    EXPECT_TRUE(panel->checkShouldShowDiscAlert());
}

TEST_F(Alerts, ADiscMediumOnAnotherPaperPrintsWithoutAnAlert)
{
    open();
    session->mark(u"VKMediaType"_s, u"PrintableDisc"_s);
    EXPECT_TRUE(panel->checkShouldShowDiscAlert());
}

// --- Envelopes -----------------------------------------------------------------------------------

TEST_F(Alerts, AJapaneseEnvelopeIsConfirmedInItsWindow)
{
    show();
    for (const QString &name : {u"EnvChou3"_s, u"EnvChou4.Fullbleed"_s}) {
        usePaper(name);
        for (const int button : {0, 1}) {
            session->alerts().expect(AlertAnswers::button(button));
            EXPECT_EQ(panel->checkShouldShowEnvelopeAlert(), button == 0);
            const AlertContent alert = takeAlert(ShownAlert::Kind::Window);
            EXPECT_EQ(alert.style, AlertStyle::None);
            EXPECT_EQ(alert.title, u"Envelope Alert Title"_s);
            EXPECT_EQ(alert.text, u"Envelope Alert1\n\nEnvelope Alert2 Lark22 MP"_s);
            EXPECT_EQ(alert.informative, u"Envelope Caution"_s);
            EXPECT_EQ(alert.buttons, QStringList({u"OK"_s, u"Cancel"_s}));
            EXPECT_FALSE(panel->outlet(u"envAlertWindow"_s)->isVisible());
        }
    }
    EXPECT_EQ(memory(), QVariantMap());
}

/// A print dialog's window, which the alerts stand before.
class AlertsBeforeADialog : public Alerts
{
protected:
    void SetUp() override
    {
        show();
        usePaper(u"EnvChou3"_s);
        dialog->setGeometry(150, 120, 500, 400);
        dialog->show();
        setKeyWindow(dialog.get());
    }
    void TearDown() override { setKeyWindow(nullptr); }

    std::unique_ptr<QWidget> dialog = std::make_unique<QWidget>();
};

TEST_F(AlertsBeforeADialog, TheEnvelopeWindowIsAModalChildInTheMiddle)
{
    QPointer<QWidget> window;
    session->alerts().expect([&](const ShownAlert &alert) {
        window = alert.window;
        EXPECT_EQ(window->parentWidget(), dialog.get());
        EXPECT_TRUE(window->isWindow());
        EXPECT_EQ(QApplication::activeModalWidget(), window);
        const QPoint offset = window->frameGeometry().center() - dialog->frameGeometry().center();
        EXPECT_LE(offset.manhattanLength(), 2) << offset.x() << ", " << offset.y();
        alert.press(0);
    });
    EXPECT_TRUE(panel->checkShouldShowEnvelopeAlert());
    takeAlert(ShownAlert::Kind::Window);
    ASSERT_TRUE(window);
    EXPECT_FALSE(window->isVisible());
    dialog.reset();
    EXPECT_TRUE(window) << "it belongs to the panel again";
}

TEST_F(AlertsBeforeADialog, ADialogThatGoesTakesTheWindowAlongAndTheNextOneGetsAnother)
{
    session->alerts().expect([&](const ShownAlert &) { dialog.reset(); });
    EXPECT_FALSE(panel->checkShouldShowEnvelopeAlert());
    takeAlert(ShownAlert::Kind::Window);
    session->alerts().expect();
    EXPECT_TRUE(panel->checkShouldShowEnvelopeAlert());
    takeAlert(ShownAlert::Kind::Window);
}

TEST_F(Alerts, TheAlertWindowsAreLoadedForTheFirstAlertThatNeedsThem)
{
    open();
    panel->readyToShowEnvelopeAlert();
    EXPECT_EQ(panel->outlet(u"envAlertWindow"_s), nullptr) << "the panel's view is not loaded";
    ASSERT_TRUE(panel->panelView());
    EXPECT_EQ(panel->outlet(u"envAlertWindow"_s), nullptr);
    panel->readyToShowEnvelopeAlert();
    QWidget *window = panel->outlet(u"envAlertWindow"_s);
    EXPECT_NE(window, nullptr);
    panel->readyToShowEnvelopeAlert();
    EXPECT_EQ(panel->outlet(u"envAlertWindow"_s), window);
}

TEST_F(Alerts, WithoutItsWindowAnEnvelopeIsNotPrinted)
{
    open();
    usePaper(u"EnvChou3"_s);
    EXPECT_FALSE(panel->checkShouldShowEnvelopeAlert());
    EXPECT_TRUE(session->alerts().shown().empty());
}

TEST_F(Alerts, OtherEnvelopesPrintWithoutAnAlert)
{
    show();
    for (const QString &name : {u"EnvDL"_s, u"EnvYou4"_s, u"A4"_s, QString()}) {
        usePaper(name);
        EXPECT_TRUE(panel->checkShouldShowEnvelopeAlert()) << qPrintable(name);
    }
}

TEST_F(Alerts, EscapeAndClosingCountAsCancel)
{
    show();
    usePaper(u"EnvChou3"_s);
    panel->setFlag(DiscPaper, true);
    session->mark(u"VKMediaType"_s, u"PrintableDisc"_s);
    for (const auto &answer : {AlertAnswers::key(Qt::Key_Escape), AlertAnswers::closing()}) {
        session->alerts().expect(answer);
        EXPECT_FALSE(panel->checkShouldShowEnvelopeAlert());
        takeAlert(ShownAlert::Kind::Window);
        session->alerts().expect(answer);
        EXPECT_FALSE(panel->checkShouldShowDiscAlert());
        takeAlert();
    }
}

TEST_F(Alerts, TheEnvelopeWindowShowsHowToLoadIntoTheTrayThatThePrinterHas)
{
    show();
    panel->readyToShowEnvelopeAlert();
    const auto *picture = qobject_cast<ImageView *>(panel->outlet(u"envAlertImageView"_s));
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->imageName(), u"QTLark22_Tray_Env"_s);
    EXPECT_FALSE(picture->image().isNull());
    EXPECT_EQ(picture->sizeHint(), QSize(278, 243));
    for (const QString &name : {u"envInstructionLabel1"_s, u"envInstructionLabel2"_s})
        EXPECT_EQ(panel->outlet(name)->font().pixelSize(), 12);
}

TEST_F(Alerts, WithoutAMultiPurposeTrayTheEnvelopeGoesIntoTheCassette)
{
    useSample(u"velkaro-mx-j710dw"_s);
    show();
    panel->readyToShowEnvelopeAlert();
    const auto *picture = qobject_cast<ImageView *>(panel->outlet(u"envAlertImageView"_s));
    const auto *label = qobject_cast<QLabel *>(panel->outlet(u"envInstructionLabel1"_s));
    ASSERT_TRUE(picture && label);
    EXPECT_EQ(picture->imageName(), u"QTLark22_Env"_s);
    EXPECT_EQ(label->text(), u"Envelope Alert1\n\nEnvelope Alert2 Lark22"_s);
}

// --- A window with a memory ----------------------------------------------------------------------

struct Remembered
{
    int button;
    bool suppress;
    QString key;
    QVariantMap memory;
};

TEST_F(Alerts, AWindowWithAKeyIsRememberedWhenItIsConfirmed)
{
    show();
    panel->readyToShowEnvelopeAlert();
    QWidget *window = panel->outlet(u"suppressionButton"_s)->window();
    const QString key = u"Paper Alert"_s;
    for (const Remembered &row :
         {Remembered{1, true, key, {}}, Remembered{1, false, key, {}},
          Remembered{0, true, QString(), {}}, Remembered{0, false, key, {{key, true}}},
          Remembered{0, true, key, {{key, false}}}, Remembered{1, false, key, {{key, false}}}}) {
        session->alerts().expect(AlertAnswers::button(row.button, row.suppress));
        EXPECT_EQ(panel->showDialog(window, row.key), row.button == 0 ? 1 : 0);
        takeAlert(ShownAlert::Kind::Window);
        EXPECT_EQ(memory(), row.memory);
        EXPECT_FALSE(window->isVisible());
    }
    EXPECT_FALSE(panel->shouldShowAlert(key));
    EXPECT_TRUE(panel->shouldShowAlert(u"Best Alert"_s));
}

TEST_F(Alerts, ADialogOfAnotherCallerFindsTheSuppressionBoxBeforeTheFirstAlert)
{
    show();
    QDialog window;
    auto *ok = new QPushButton(u"OK"_s, &window);
    QObject::connect(ok, &QPushButton::clicked, &window, [&] { panel->dialogOkDidClick(ok); });
    session->alerts().expect([&](const ShownAlert &alert) {
        QAbstractButton *suppression = box(u"suppressionButton"_s);
        ASSERT_TRUE(suppression);
        suppression->setChecked(true);
        alert.press(0);
    });
    const QString key = u"Paper Alert"_s;
    EXPECT_EQ(panel->showDialog(&window, key), 1);
    takeAlert(ShownAlert::Kind::Window);
    EXPECT_EQ(memory(), (QVariantMap{{key, false}}));
}

TEST_F(Alerts, NoWindowIsCancelled)
{
    open();
    EXPECT_EQ(panel->showDialog(nullptr, u"Paper Alert"_s), 0);
    EXPECT_EQ(memory(), QVariantMap());
}

// --- Two-sided printing --------------------------------------------------------------------------

TEST_F(Alerts, TheDuplexCheckAcceptsItsPapersAndVetoesAllElse)
{
    open();
    panel->setFlag(DuplexOn, true);
    for (const QString &name : {u"VkA3"_s, u"Postcard"_s, u"A4"_s, u"B4.ShortGrain"_s}) {
        usePaper(name);
        EXPECT_TRUE(panel->checkShouldShowDuplexAlert()) << qPrintable(name);
    }
    for (const QString &name : {u"A4.Fullbleed"_s, u"a4"_s, u"EnvDL"_s, QString()}) {
        usePaper(name);
        session->alerts().expect();
        EXPECT_FALSE(panel->checkShouldShowDuplexAlert()) << qPrintable(name);
        const AlertContent alert = takeAlert();
        EXPECT_EQ(alert.style, AlertStyle::Critical);
        EXPECT_EQ(alert.text, u"Duplex Alert"_s);
        EXPECT_EQ(alert.informative, u"Duplex Alert2"_s);
        EXPECT_EQ(alert.buttons, QStringList({u"OK"_s}));
    }
}

TEST_F(Alerts, TheDuplexCheckVetoesAlsoWhereTwoSidedPrintingIsOff)
{
    open();
    usePaper(u"A4"_s);
    session->alerts().expect();
    EXPECT_FALSE(panel->checkShouldShowDuplexAlert());
    takeAlert();
}

// --- Orientation ---------------------------------------------------------------------------------

struct Orientation
{
    QString paperName;
    QSizeF size;
    bool printed;
    QString orientation;
    bool unsupported = false; ///< whether the unsupported-paper alert is raised
};

class PaperOrientation : public Alerts, public testing::WithParamInterface<Orientation>
{};

TEST_P(PaperOrientation, IsWrittenIntoTheTicket)
{
    const Orientation &row = GetParam();
    open();
    usePaper(row.paperName, row.size);
    if (row.unsupported)
        session->alerts().expect();
    EXPECT_EQ(panel->checkPaperAndShowOrientationAlert(), row.printed);
    if (row.unsupported)
        expectUnsupportedPaperAlert();
    QVariant written;
    PMPrintSettingsGetValue(&session->host()->ticket(),
                            u"com.velkaro.print.PrintSettings.Orientation"_s, &written);
    EXPECT_EQ(written.toString(), row.orientation);
}

INSTANTIATE_TEST_SUITE_P(
    All, PaperOrientation,
    testing::Values(Orientation{u"A4"_s, {1, 1}, true, u"Landscape"_s},
                    Orientation{u"Letter.Fullbleed"_s, {1, 1}, true, u"Landscape"_s},
                    Orientation{u"A3"_s, {1, 1}, true, u"Portrait"_s},
                    Orientation{u"EnvDL"_s, {500, 700}, true, u"Portrait"_s},
                    Orientation{u"UnsupportedPaper"_s, {595, 842}, false, u"Portrait"_s, true},
                    Orientation{u"Other"_s, {595, 842}, true, u"Landscape"_s},
                    Orientation{u"Other"_s, {612, 613}, true, u"Landscape"_s},
                    Orientation{u"Other"_s, {360, 613}, true, u"Landscape"_s},
                    Orientation{u"Other"_s, {359.5, 612.5}, true, u"Landscape"_s},
                    Orientation{u"Other"_s, {613, 842}, true, u"Portrait"_s},
                    Orientation{u"Other"_s, {595, 843}, true, u"Portrait"_s},
                    Orientation{u"Other"_s, {359, 842}, true, u"Portrait"_s},
                    Orientation{u"Other"_s, {595, 612}, true, u"Portrait"_s},
                    Orientation{u"A3.ShortGrain"_s, {842, 1191}, true, u"Portrait"_s},
                    Orientation{u"Other"_s, {181, 842}, false, u"Portrait"_s, true},
                    Orientation{u"Custom.1x1"_s, {936, 1369}, false, u"Portrait"_s, true}));

/// The built bundle with the last line of the unsupported-paper message in another wording, which
/// is as long as its own: the string table tells no lengths but the texts'.
std::shared_ptr<Bundle> bundleThatSaysPerCent(const QTemporaryDir &folder)
{
    const auto utf16 = [](const QString &text) -> QByteArray {
        return QStringEncoder(QStringEncoder::Utf16BE)(text);
    };
    const QString table = u"/Resources/Localizable_en.qm"_s;
    QByteArray strings = readFile(builtBundle() + table);
    const QByteArray line = utf16(u"3. Print again."_s);
    EXPECT_EQ(strings.count(line), 1);
    writeFile(folder.path() + table, strings.replace(line, utf16(u"At 100%% it is."_s)));
    QFile::copy(builtBundle() + u"/Info.json"_s, folder.filePath(u"Info.json"_s));
    return Bundle::open(folder.path());
}

TEST_F(Alerts, TheOrientationCheckTakesItsMessageAsAFormatAndNoOtherCheckDoes)
{
    const QTemporaryDir folder;
    session->setBundle(bundleThatSaysPerCent(folder));
    session->bundle().setStrings(Bundle::Strings::Tables);
    open();
    usePaper(u"UnsupportedPaper"_s);
    session->alerts().expect();
    EXPECT_FALSE(panel->checkPaperAndShowOrientationAlert());
    EXPECT_TRUE(takeAlert().informative.endsWith(u"\nAt 100% it is."));
    session->alerts().expect();
    EXPECT_FALSE(panel->shouldPrint());
    EXPECT_TRUE(takeAlert().informative.endsWith(u"\nAt 100%% it is."));
    usePaper(u"Other"_s, {1, 1});
    session->alerts().expect();
    EXPECT_FALSE(panel->checkPaperAndShowOrientationAlert());
    EXPECT_TRUE(takeAlert().informative.endsWith(u"\nAt 100%% it is."));
}

TEST_F(Alerts, TheOrientationCheckConfirmsJapaneseEnvelopes)
{
    show();
    usePaper(u"EnvChou3"_s);
    for (const int button : {0, 1}) {
        session->alerts().expect(AlertAnswers::button(button));
        EXPECT_EQ(panel->checkPaperAndShowOrientationAlert(), button == 0);
        EXPECT_EQ(takeAlert(ShownAlert::Kind::Window).title, u"Envelope Alert Title"_s);
    }
}

TEST_F(Alerts, ALandscapePaperWithoutATicketFails)
{
    open();
    session->host()->setLacking({HostOperation::PrintSettings});
    usePaper(u"A4"_s);
    EXPECT_FALSE(panel->checkPaperAndShowOrientationAlert());
    usePaper(u"A3"_s);
    EXPECT_TRUE(panel->checkPaperAndShowOrientationAlert());
}

TEST_F(Alerts, TheOrientationOfAPageThatCannotBeReadIsVetoedSilently)
{
    open();
    usePaper(u"Other"_s);
    session->host()->format().paper.reset();
    EXPECT_FALSE(panel->checkPaperAndShowOrientationAlert());
}

// --- The paper alert window ----------------------------------------------------------------------

class PaperWindow : public Alerts
{
protected:
    void SetUp() override
    {
        show();
        window.resize(400, 300);
        label.setGeometry(20, 30, 100, 40);
    }

    void ready(const QString &kind, QWidget *alertWindow, QLabel *alertLabel,
               const QString &image = u"QTLark22_Env"_s)
    {
        panel->readyToShowPaperAlertWithKind(kind, u"Duplex Alert2"_s, alertWindow, &picture, image,
                                             alertLabel);
    }

    QString title(const QString &button) { return buttonTitle(box(button)); }

    QWidget window;
    QLabel label{&window};
    ImageView picture{&window};
};

TEST_F(PaperWindow, GrowsWithItsMessage)
{
    const int lines = qRound(heightForSpecifiedFont(
        u"Duplex Alert2"_s, QFontDatabase::systemFont(QFontDatabase::GeneralFont), 100));
    ready(u"Normal Paper"_s, &window, &label);
    EXPECT_EQ(label.text(), u"Duplex Alert2"_s);
    EXPECT_EQ(label.geometry(), QRect(20, 30, 100, lines + 6));
    EXPECT_EQ(window.size(), QSize(400, 300 + lines + 6 - 40));
    EXPECT_EQ(window.windowTitle(), u"Paper Orientation Title"_s);
    EXPECT_EQ(picture.imageName(), u"QTLark22_Env"_s);
    EXPECT_EQ(picture.sizeHint(), QSize(278, 243));
}

TEST_F(PaperWindow, NamesTheButtonsOfItsKindAndAlwaysTheCustomOnes)
{
    panel->readyToShowEnvelopeAlert();
    for (const QString &name :
         {u"normalPaperAlertOKButton"_s, u"normalPaperAlertCancelButton"_s, u"suppressionButton"_s,
          u"customPaperAlertOKButton"_s, u"customPaperAlertCancelButton"_s})
        box(name)->setText(u"?"_s);
    ready(u"Custom Paper"_s, &window, &label);
    EXPECT_EQ(title(u"customPaperAlertOKButton"_s), u"OK"_s);
    EXPECT_EQ(title(u"customPaperAlertCancelButton"_s), u"Cancel"_s);
    EXPECT_EQ(title(u"normalPaperAlertOKButton"_s), u"?"_s);
    EXPECT_EQ(title(u"suppressionButton"_s), u"?"_s);
    ready(u"Normal Paper"_s, &window, &label);
    EXPECT_EQ(title(u"normalPaperAlertOKButton"_s), u"OK"_s);
    EXPECT_EQ(title(u"normalPaperAlertCancelButton"_s), u"Cancel"_s);
    EXPECT_EQ(title(u"suppressionButton"_s), u"Suppression"_s);
}

TEST_F(PaperWindow, TakesAMissingLabelForOneWithoutExtent)
{
    const int narrow = qRound(heightForSpecifiedFont(
        u"Duplex Alert2"_s, QFontDatabase::systemFont(QFontDatabase::GeneralFont), 0));
    ready(u"Normal Paper"_s, &window, nullptr);
    EXPECT_EQ(window.size(), QSize(400, 300 + narrow + 6));
    ready(u"Normal Paper"_s, nullptr, &label, u"NoSuchPicture"_s);
    EXPECT_EQ(label.width(), 100);
}

} // namespace
