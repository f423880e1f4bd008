#include "platform/toolkit/ImageView.h"
#include "platform/toolkit/KeyWindow.h"
#include "tests/printsettings/AlertPanel.h"

#include <QtCore/QPointer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>

using namespace Qt::StringLiterals;

namespace {

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

} // namespace
