// What assistive technology finds in the window, in every state that it has.
#include "platform/toolkit/FractionSlider.h"
#include "tests/dialog/window/DialogWindowFixture.h"

#include <QtGui/QAccessible>
#include <QtWidgets/QToolButton>

#include <functional>
#include <set>

using namespace Qt::StringLiterals;

namespace {

using Visit = std::function<void(QAccessibleInterface &)>;

void walk(QAccessibleInterface &from, const Visit &visit)
{
    if (from.state().invisible)
        return;
    visit(from);
    for (int index = 0; index < from.childCount(); ++index)
        if (QAccessibleInterface *child = from.child(index))
            walk(*child, visit);
}

/// What a person hears first: of a pop-up what it is for, not what it has chosen.
QString nameOf(const QAccessibleInterface &accessible)
{
    const auto labels = accessible.relations(QAccessible::Label);
    if (!labels.isEmpty())
        return labels[0].first->text(QAccessible::Name);
    const bool isPopUp = accessible.role() == QAccessible::ComboBox;
    return accessible.text(isPopUp ? QAccessible::Description : QAccessible::Name);
}

bool isControl(const QAccessibleInterface &accessible)
{
    static const std::set<QAccessible::Role> roles{
        QAccessible::CheckBox, QAccessible::RadioButton, QAccessible::ComboBox,
        QAccessible::SpinBox,  QAccessible::Slider,      QAccessible::Button,
        QAccessible::PageTab,  QAccessible::Table,       QAccessible::ProgressBar};
    // The pages of the tabs and the parts of a spin box and of a scroll bar are no widgets.
    return accessible.object() && roles.contains(accessible.role());
}

class Accessibility : public DialogWindowFixture
{
protected:
    QAccessibleInterface &root() { return *QAccessible::queryAccessibleInterface(m_window.get()); }

    QAccessibleInterface &accessible(const char *name)
    {
        return *QAccessible::queryAccessibleInterface(part<QWidget>(name));
    }

    void unfold()
    {
        for (QToolButton *button :
             m_window->shownPart()->findChildren<QToolButton *>(u"optionButton"_s))
            button->click();
    }

    /// The part in front, folded or not.
    void show(const QString &part, bool folded)
    {
        ASSERT_TRUE(m_window->showPart(part));
        if (!folded)
            unfold();
        QCoreApplication::processEvents();
    }
};

struct Shown
{
    const char *behaviour;
    QString part;
    bool folded;
    int labelled; ///< controls that have a label beside them
};

class AccessiblePart : public Accessibility, public testing::WithParamInterface<Shown>
{};

TEST_P(AccessiblePart, HasANameForEveryControl)
{
    open();
    show(GetParam().part, GetParam().folded);
    int controls = 0;
    walk(root(), [&](QAccessibleInterface &one) {
        if (!isControl(one))
            return;
        ++controls;
        EXPECT_FALSE(nameOf(one).isEmpty())
            << one.object()->metaObject()->className() << ' '
            << one.object()->objectName().toStdString() << ", role " << one.role();
    });
    EXPECT_GE(controls, 6);
}

TEST_P(AccessiblePart, CallsNoTwoButtonsTheSame)
{
    open();
    show(GetParam().part, GetParam().folded);
    std::multiset<QString> names;
    walk(root(), [&](QAccessibleInterface &one) {
        if (isControl(one) &&
            (one.role() == QAccessible::Button || one.role() == QAccessible::CheckBox))
            names.insert(nameOf(one));
    });
    for (const QString &name : names)
        EXPECT_EQ(names.count(name), 1u) << name.toStdString();
}

/// The label that a person reads beside the control; null for none.
QLabel *labelBeside(const QWidget &control)
{
    if (!control.parentWidget())
        return nullptr;
    for (auto *label : control.parentWidget()->findChildren<QLabel *>(Qt::FindDirectChildrenOnly)) {
        const bool isInLine = std::abs(label->geometry().center().y() -
                                       control.geometry().center().y()) < label->height();
        const int gap = control.x() - label->geometry().right();
        if (label->isVisible() && !label->text().isEmpty() && isInLine && gap > 0 && gap < 20)
            return label;
    }
    return nullptr;
}

TEST_P(AccessiblePart, RelatesEveryLabelToTheControlBesideIt)
{
    open();
    show(GetParam().part, GetParam().folded);
    int labelled = 0;
    walk(*QAccessible::queryAccessibleInterface(m_window->shownPart()), [&](auto &one) {
        const auto *control = isControl(one) ? qobject_cast<QWidget *>(one.object()) : nullptr;
        const QLabel *label = control ? labelBeside(*control) : nullptr;
        if (!label || control->objectName() == u"optionButton"_s)
            return; // the disclosure and the box in its section would have one name
        ++labelled;
        const auto related = one.relations(QAccessible::Label);
        ASSERT_FALSE(related.isEmpty()) << control->objectName().toStdString() << " has the label "
                                        << label->text().toStdString();
        EXPECT_EQ(related[0].first->object(), label) << control->objectName().toStdString();
        const auto back = related[0].first->relations(QAccessible::Labelled);
        ASSERT_FALSE(back.isEmpty()) << label->text().toStdString();
    });
    EXPECT_EQ(labelled, GetParam().labelled);
}

TEST_F(Accessibility, RelatesTheLabelsOfTheHeadToTheirControls)
{
    open();
    const std::pair<const char *, QString> labelled[] = {{"printerPopup", u"Printer"_s},
                                                         {"presetPopup", u"Preset"_s},
                                                         {"copiesField", u"Copies"_s},
                                                         {"pagesField", u"Pages"_s}};
    for (const auto &[name, label] : labelled) {
        const auto related = accessible(name).relations(QAccessible::Label);
        ASSERT_FALSE(related.isEmpty()) << name;
        EXPECT_TRUE(related[0].first->text(QAccessible::Name).startsWith(label)) << name;
    }
}

/// What can be told of the values of controls is told.
TEST_P(AccessiblePart, TellsTheValuesOfControls)
{
    open();
    show(GetParam().part, GetParam().folded);
    walk(root(), [&](QAccessibleInterface &one) {
        const auto *control = isControl(one) ? qobject_cast<QWidget *>(one.object()) : nullptr;
        if (!control)
            return;
        const std::string name = control->objectName().toStdString();
        if (one.role() == QAccessible::Slider || one.role() == QAccessible::SpinBox) {
            EXPECT_NE(one.valueInterface(), nullptr) << name;
        }
        if (one.role() == QAccessible::CheckBox || one.role() == QAccessible::RadioButton) {
            EXPECT_TRUE(one.state().checkable) << name;
        }
        if (const auto *popup = qobject_cast<const PopUpButton *>(control)) {
            EXPECT_EQ(one.text(QAccessible::Value), popup->currentText()) << name;
        }
    });
}

const Shown kShown[] = {
    {"PageSetup", u"setup"_s, true, 4},
    {"PrintSettings", u"print"_s, true, 5},
    {"PrintSettingsUnfolded", u"print"_s, false, 5},
    {"ColorSettings", u"color"_s, true, 1},
    {"ColorSettingsUnfolded", u"color"_s, false, 6},
    {"LayoutAndJob", u"layout"_s, true, 8},
    {"Summary", u"summary"_s, true, 0},
};

INSTANTIATE_TEST_SUITE_P(Parts, AccessiblePart, testing::ValuesIn(kShown),
                         [](const auto &row) { return std::string(row.param.behaviour); });

TEST_F(Accessibility, TellsSlidersInTheNumbersThatPeopleRead)
{
    open();
    show(u"color"_s, false);
    int sliders = 0;
    walk(root(), [&](QAccessibleInterface &one) {
        if (one.role() != QAccessible::Slider)
            return;
        ++sliders;
        QAccessibleValueInterface *value = one.valueInterface();
        ASSERT_NE(value, nullptr);
        EXPECT_EQ(value->minimumValue().toDouble(), -20);
        EXPECT_EQ(value->maximumValue().toDouble(), 20);
        EXPECT_EQ(value->minimumStepSize().toDouble(), 1);
        EXPECT_EQ(value->currentValue().toDouble(), 0);
        EXPECT_EQ(one.text(QAccessible::Value), u"0"_s);
    });
    EXPECT_EQ(sliders, 5);
}

TEST_F(Accessibility, MovesASliderAsAUserDoes)
{
    m_line.choices = {{u"VKColorEnhancement"_s, u"ON"_s}};
    open();
    show(u"color"_s, false);
    accessible("brightnessSlider").valueInterface()->setCurrentValue(7);
    EXPECT_EQ(part<FractionSlider>("brightnessSlider")->doubleValue(), 7);
    EXPECT_EQ(accessible("brightnessField").valueInterface()->currentValue().toInt(), 7);
}

TEST_F(Accessibility, TellsAColumnOfCellsAsAGroupWithAName)
{
    open();
    show(u"color"_s, true);
    EXPECT_EQ(accessible("colorMatchingMatrix").role(), QAccessible::Grouping);
    EXPECT_EQ(accessible("colorMatchingMatrix").text(QAccessible::Name), u"Color Matching"_s);
}

TEST_F(Accessibility, TellsTheNoticeAsAMessage)
{
    m_line.files.clear();
    open();
    EXPECT_EQ(accessible("noticeBar").role(), QAccessible::AlertMessage);
    EXPECT_EQ(accessible("noticeBar").text(QAccessible::Name), u"Choose a document to print."_s);
}

TEST_F(Accessibility, TellsAListItemThatCannotBeChosen)
{
    m_line.choices = {{u"VKMediaType"_s, u"Glossy"_s}};
    open();
    show(u"print"_s, true);
    auto *sources = part<PopUpButton>("paperFeedPopup");
    const int second = sources->indexOfRepresentedObject(u"Tray2"_s);
    ASSERT_GE(second, 0);
    ASSERT_FALSE(sources->isItemEnabled(second));
    const QModelIndex item = sources->model()->index(second, 0);
    EXPECT_EQ(item.data(Qt::AccessibleDescriptionRole).toString(), u"Not available"_s);
    EXPECT_FALSE(item.flags().testFlag(Qt::ItemIsSelectable));
    const QModelIndex first = sources->model()->index(0, 0);
    EXPECT_FALSE(first.data(Qt::AccessibleDescriptionRole).isValid());
}

TEST_F(Accessibility, TellsTheSummaryAsOneText)
{
    open();
    show(u"summary"_s, true);
    const QString text = accessible("summaryPane").text(QAccessible::Description);
    EXPECT_TRUE(
        text.startsWith(u"Page Setup\nPaper in the Printer: A4 (The printer's default)\n"_s))
        << text.toStdString();
    EXPECT_TRUE(text.contains(u"\n\nPrint Settings\nPrinter Model: Velkaro PX-T900\n"_s))
        << text.toStdString();
}

} // namespace
