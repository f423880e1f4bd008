#include "platform/toolkit/ImageView.h"
#include "platform/toolkit/PlainText.h"
#include "printsettings/TextHeight.h"
#include "tests/printsettings/AlertPanel.h"

#include <QtGui/QFontDatabase>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

using namespace Qt::StringLiterals;

namespace {

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
