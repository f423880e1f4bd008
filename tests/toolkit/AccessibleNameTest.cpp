#include "platform/toolkit/AccessibleName.h"
#include "platform/toolkit/PopUpButton.h"
#include "tests/support/QStringPrinting.h"

#include <QtGui/QAccessible>
#include <QtWidgets/QCheckBox>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QString told(QWidget &control, QAccessible::Text text)
{
    return QAccessible::queryAccessibleInterface(&control)->text(text);
}

TEST(AccessibleName, OfAPopUpIsToldBesideItsChoice)
{
    PopUpButton popup;
    popup.setItems({{u"Plain Paper"_s, u"Plain"_s}});
    giveAccessibleName(&popup, u"Media & Type"_s);
    EXPECT_EQ(told(popup, QAccessible::Value), u"Plain Paper"_s);
    EXPECT_EQ(told(popup, QAccessible::Description), u"Media & Type"_s);
}

TEST(AccessibleName, OfAnotherControlIsToldOnce)
{
    QCheckBox box(u"On"_s);
    giveAccessibleName(&box, u"Slow & Dry"_s);
    EXPECT_EQ(told(box, QAccessible::Name), u"Slow & Dry"_s);
    EXPECT_EQ(told(box, QAccessible::Description), QString());
}

} // namespace
