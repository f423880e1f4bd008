#include "platform/toolkit/SpokenName.h"
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

TEST(SpokenName, OfAPopUpIsToldBesideItsChoice)
{
    PopUpButton popup;
    popup.setItems({{u"Plain Paper"_s, u"Plain"_s}});
    setSpokenName(&popup, u"Media & Type"_s);
    EXPECT_EQ(told(popup, QAccessible::Value), u"Plain Paper"_s);
    EXPECT_EQ(told(popup, QAccessible::Description), u"Media & Type"_s);
}

TEST(SpokenName, OfAnotherControlIsToldOnce)
{
    QCheckBox box(u"On"_s);
    setSpokenName(&box, u"Slow & Dry"_s);
    EXPECT_EQ(told(box, QAccessible::Name), u"Slow & Dry"_s);
    EXPECT_EQ(told(box, QAccessible::Description), QString());
}

} // namespace
