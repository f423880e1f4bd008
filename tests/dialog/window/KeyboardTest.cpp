#include "tests/dialog/window/DialogWindowFixture.h"

#include <QtGui/QAccessible>
#include <QtWidgets/QApplication>
#include <QtWidgets/QToolButton>

using namespace Qt::StringLiterals;

namespace {

/// What a screen reader calls the control: not what a pop-up has chosen, but what for.
QString accessibleNameOf(QWidget *control)
{
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(control);
    const auto labels = accessible->relations(QAccessible::Label);
    if (!labels.isEmpty())
        return labels[0].first->text(QAccessible::Name);
    const bool isPopUp = accessible->role() == QAccessible::ComboBox;
    return accessible->text(isPopUp ? QAccessible::Description : QAccessible::Name);
}

/// The dialog, used with the keyboard alone.
class Keyboard : public DialogWindowFixture
{
protected:
    Keyboard() { open(); }

    void show(int index)
    {
        part<QTabWidget>("parts")->setCurrentIndex(index);
        const auto buttons = m_window->shownPart()->findChildren<QToolButton *>(u"optionButton"_s);
        for (QToolButton *button : buttons)
            button->click();
    }

    /// The names of the controls that Tab comes to, from the first one of the window.
    QStringList walk()
    {
        QStringList names;
        auto *first = part<QWidget>("chooseButton");
        first->setFocus();
        do {
            names += accessibleNameOf(QApplication::focusWidget());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        } while (QApplication::focusWidget() != first && names.size() < 50);
        return names;
    }
};

TEST_F(Keyboard, OpensTheHelpOfThePartInFront)
{
    show(3);
    QTest::keyClick(m_window.get(), Qt::Key_F1);
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_window->findChild<QDialog *>(u"hostHelp"_s); }));
}

TEST_F(Keyboard, GoesFromPartToPartFromEveryControl)
{
    show(1);
    for (const char *name : {"chooseButton", "mediaTypePopup", "helpButton"}) {
        part<QWidget>(name)->setFocus();
        const int before = part<QTabWidget>("parts")->currentIndex();
        QTest::keyClick(part<QWidget>(name), Qt::Key_Tab, Qt::ControlModifier);
        EXPECT_EQ(part<QTabWidget>("parts")->currentIndex(), before + 1) << name;
        part<QTabWidget>("parts")->setCurrentIndex(before);
    }
    part<QTabWidget>("parts")->setCurrentIndex(0);
    QTest::keyClick(part<QWidget>("paperPopup"), Qt::Key_Backtab,
                    Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(part<QTabWidget>("parts")->currentIndex(), part<QTabWidget>("parts")->count() - 1);
}

// What every part has before and after its own controls.
const QStringList kBefore{u"Choose…"_s, u"Printer:"_s, u"Preset:"_s,
                          u"Presets"_s, u"Copies:"_s,  u"Pages:"_s};
const QStringList kAfter{u"Help"_s, u"Cancel"_s, u"Save"_s};

struct Walk
{
    int part;
    QStringList controls;
};

class KeyboardWalk : public Keyboard, public testing::WithParamInterface<Walk>
{};

TEST_P(KeyboardWalk, ComesToAllInReadingOrderAndSaysWhatTheyAreFor)
{
    show(GetParam().part);
    EXPECT_EQ(walk(), kBefore + GetParam().controls + kAfter);
}

INSTANTIATE_TEST_SUITE_P(
    Parts, KeyboardWalk,
    testing::Values(
        Walk{0,
             {u"Page Setup"_s, u"Paper in the Printer:"_s, u"Borderless"_s, u"Portrait"_s,
              u"Scaling:"_s, u"Two-Sided Printing:"_s, u"Output:"_s, u"By the Printer"_s}},
        Walk{1,
             {u"Print Settings"_s, u"Media Type"_s, u"Print Quality"_s, u"Color Mode"_s,
              u"Paper Thickness"_s, u"Paper Source"_s, u"Section: Advanced Settings"_s,
              u"Advanced Settings"_s, u"Mirror Image"_s, u"Rotate by 180 Degrees"_s}},
        Walk{2,
             {u"Color Settings"_s, u"Natural"_s, u"Halftone Pattern"_s,
              u"Section: Color Enhancement"_s, u"Color Enhancement"_s}},
        Walk{3,
             {u"Layout & Job"_s, u"Pages per Sheet:"_s, u"Booklet:"_s, u"Even and Odd:"_s,
              u"Page Order:"_s, u"Several Copies:"_s, u"Job Title:"_s, u"When to Print"_s,
              u"Priority:"_s, u"Cover page before the job"_s, u"Cover page after the job"_s,
              u"Notification"_s}},
        Walk{4,
             {u"Summary"_s, u"Only What Differs from the Printer's Defaults"_s, u"Copy as Text"_s,
              u"Summary"_s}}));

} // namespace
