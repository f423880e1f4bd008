#include "platform/toolkit/ViewBindings.h"

#include "platform/foundation/ObservableDictionary.h"
#include "platform/foundation/ValueTransformer.h"
#include "platform/toolkit/ControlColor.h"
#include "platform/toolkit/FractionSlider.h"
#include "platform/toolkit/NumberField.h"
#include "platform/toolkit/ViewLoader.h"
#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"
#include "tests/support/ViewText.h"

#include <gtest/gtest.h>

#include <QtTest/QTest>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLabel>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

template <typename Widget>
std::unique_ptr<Widget> bound(ObservableDictionary &dictionary, const char *property,
                              const QString &keys)
{
    auto widget = std::make_unique<Widget>();
    widget->setProperty(property, keys);
    bindView(widget.get(), dictionary);
    return widget;
}

struct EnabledCase
{
    const char *behaviour;
    QString keys;
    QVariantMap values;
    bool enabled;
};

class EnabledBinding : public testing::TestWithParam<EnabledCase>
{};

const EnabledCase kEnabledCases[] = {
    {"True", u"VKOutput"_s, {{u"VKOutput"_s, true}}, true},
    {"False", u"VKOutput"_s, {{u"VKOutput"_s, false}}, false},
    {"NoEntryIsFalse", u"VKOutput"_s, {}, false},
    {"ANumberIsTrue", u"VKOutput"_s, {{u"VKOutput"_s, 1}}, true},
    {"ZeroIsFalse", u"VKOutput"_s, {{u"VKOutput"_s, 0}}, false},
    {"BothTrue", u"VKOutput,Color"_s, {{u"VKOutput"_s, true}, {u"Color"_s, true}}, true},
    {"OneOfTwoFalse", u"VKOutput,Color"_s, {{u"VKOutput"_s, true}, {u"Color"_s, false}}, false},
    {"OneOfTwoMissing", u"VKOutput,Color"_s, {{u"Color"_s, true}}, false},
};

TEST_P(EnabledBinding, IsTheConjunctionOfItsKeys)
{
    ObservableDictionary before;
    for (auto entry = GetParam().values.cbegin(); entry != GetParam().values.cend(); ++entry)
        before.setValue(entry.key(), entry.value());
    const auto atOnce = bound<QCheckBox>(before, "bind.enabled", GetParam().keys);
    EXPECT_EQ(atOnce->isEnabled(), GetParam().enabled);

    ObservableDictionary after;
    const auto later = bound<QCheckBox>(after, "bind.enabled", GetParam().keys);
    EXPECT_FALSE(later->isEnabled());
    for (auto entry = GetParam().values.cbegin(); entry != GetParam().values.cend(); ++entry)
        after.setValue(entry.key(), entry.value());
    EXPECT_EQ(later->isEnabled(), GetParam().enabled);
}

INSTANTIATE_TEST_SUITE_P(Cases, EnabledBinding, testing::ValuesIn(kEnabledCases), CaseName());

struct HiddenCase
{
    const char *behaviour;
    QString key;
    QVariant value;
    bool hidden;
};

class HiddenBinding : public testing::TestWithParam<HiddenCase>
{};

const HiddenCase kHiddenCases[] = {
    {"True", u"advancedItem"_s, true, true},       {"False", u"advancedItem"_s, false, false},
    {"NoEntry", u"advancedItem"_s, {}, false},     {"NotTrue", u"!advancedItem"_s, true, false},
    {"NotFalse", u"!advancedItem"_s, false, true}, {"NotAnEntry", u"!advancedItem"_s, {}, true},
};

TEST_P(HiddenBinding, FollowsItsKey)
{
    ObservableDictionary dictionary;
    const auto widget = bound<QWidget>(dictionary, "bind.hidden", GetParam().key);
    dictionary.setValue(u"advancedItem"_s, GetParam().value);
    EXPECT_EQ(widget->isHidden(), GetParam().hidden);
}

INSTANTIATE_TEST_SUITE_P(Cases, HiddenBinding, testing::ValuesIn(kHiddenCases), CaseName());

TEST(ViewBindingsTest, ShowsAValueInEachKindOfControl)
{
    ObservableDictionary dictionary;
    const auto box = bound<QCheckBox>(dictionary, "bind.value", u"key"_s);
    const auto slider = bound<FractionSlider>(dictionary, "bind.value", u"key"_s);
    const auto field = bound<NumberField>(dictionary, "bind.value", u"key"_s);
    slider->setLimit(20);
    field->setRange(-20, 20);
    dictionary.setValue(u"key"_s, -7.5);
    EXPECT_TRUE(box->isChecked());
    EXPECT_EQ(slider->doubleValue(), -7.5);
    EXPECT_EQ(field->value(), -7);
    dictionary.setValue(u"key"_s, QVariant());
    EXPECT_FALSE(box->isChecked());
    EXPECT_EQ(slider->doubleValue(), 0);
    EXPECT_EQ(field->value(), 0);
}

TEST(ViewBindingsTest, LeavesAValueAloneUntilItsKeyIsWritten)
{
    ObservableDictionary dictionary;
    QCheckBox box;
    box.setChecked(true);
    box.setProperty("bind.value", u"key"_s);
    bindView(&box, dictionary);
    EXPECT_TRUE(box.isChecked());
    EXPECT_FALSE(dictionary.value(u"key"_s).isValid());
}

TEST(ViewBindingsTest, WritesWhatTheUserDoesInItsOwnKind)
{
    ObservableDictionary dictionary;
    const auto box = bound<QCheckBox>(dictionary, "bind.value", u"box"_s);
    const auto slider = bound<FractionSlider>(dictionary, "bind.value", u"slider"_s);
    const auto field = bound<NumberField>(dictionary, "bind.value", u"field"_s);
    box->setCheckable(true);
    slider->setLimit(20);
    field->setRange(-20, 20);
    box->click();
    slider->moveByUser(2.25);
    QTest::keyClick(field.get(), Qt::Key_Up);
    EXPECT_EQ(dictionary.values(),
              (QVariantMap{{u"box"_s, true}, {u"slider"_s, 2.25}, {u"field"_s, 1}}));
    EXPECT_EQ(dictionary.value(u"box"_s).typeId(), QMetaType::Bool);
    EXPECT_EQ(dictionary.value(u"slider"_s).typeId(), QMetaType::Double);
    EXPECT_EQ(dictionary.value(u"field"_s).typeId(), QMetaType::Int);
}

TEST(ViewBindingsTest, TiesTwoControlsOfOneKeyTogether)
{
    ObservableDictionary dictionary;
    const auto slider = bound<FractionSlider>(dictionary, "bind.value", u"key"_s);
    const auto field = bound<NumberField>(dictionary, "bind.value", u"key"_s);
    slider->setLimit(20);
    field->setRange(-20, 20);
    slider->moveByUser(4.75);
    EXPECT_EQ(field->value(), 4);
    EXPECT_EQ(dictionary.value(u"key"_s), 4.75) << "showing a value is no edit of it";
    QTest::keyClick(field.get(), Qt::Key_Up);
    EXPECT_EQ(slider->doubleValue(), 5);
}

TEST(ViewBindingsTest, TellsAControlAlsoOfTheSameValue)
{
    ObservableDictionary dictionary;
    const auto box = bound<QCheckBox>(dictionary, "bind.enabled", u"VKOutput"_s);
    dictionary.setValue(u"VKOutput"_s, true);
    // Code has set the control directly in between.
    box->setEnabled(false);
    dictionary.setValue(u"VKOutput"_s, true);
    EXPECT_TRUE(box->isEnabled());
}

class Dimming : public ValueTransformer
{
public:
    QMetaType transformedValueClass() const override { return QMetaType::fromType<ControlColor>(); }
    bool allowsReverseTransformation() const override { return false; }
    QVariant transformedValue(const QVariant &value) const override
    {
        return QVariant::fromValue(value.toBool() ? controlTextColor()
                                                  : disabledControlTextColor());
    }
    QVariant reverseTransformedValue(const QVariant &) const override { return {}; }
};

TEST(ViewBindingsTest, ColoursATextThroughAValueTransformer)
{
    ValueTransformer::setValueTransformer(std::make_shared<Dimming>(), u"Dimming"_s);
    ObservableDictionary dictionary;
    const auto label = bound<QLabel>(dictionary, "bind.textColor", u"Dimming:VKOutput,Color"_s);
    EXPECT_EQ(textColor(label.get()), ControlColor::DisabledControlText);
    dictionary.setValue(u"VKOutput"_s, true);
    dictionary.setValue(u"Color"_s, true);
    EXPECT_EQ(textColor(label.get()), ControlColor::ControlText);
    dictionary.setValue(u"Color"_s, false);
    EXPECT_EQ(textColor(label.get()), ControlColor::DisabledControlText);
}

TEST(ViewBindingsTest, LeavesATextAloneWithoutItsTransformer)
{
    ObservableDictionary dictionary;
    const auto label = bound<QLabel>(dictionary, "bind.textColor", u"NoSuchName:VKOutput"_s);
    dictionary.setValue(u"VKOutput"_s, false);
    EXPECT_EQ(textColor(label.get()), ControlColor::ControlText);
}

TEST(ViewBindingsTest, SurvivesTheEndOfAControl)
{
    ObservableDictionary dictionary;
    auto box = bound<QCheckBox>(dictionary, "bind.value", u"key"_s);
    auto label = bound<QLabel>(dictionary, "bind.hidden", u"key"_s);
    box.reset();
    label.reset();
    dictionary.setValue(u"key"_s, true);
    EXPECT_TRUE(dictionary.boolValue(u"key"_s));
}

TEST(ViewBindingsTest, HasWrittenAValueBeforeTheActionIsSent)
{
    const ViewText view(
        viewWidget("DisclosureButton", "box", {"action=toggle:", "bind.value=advancedItem"}));
    ViewConnections owner;
    QAbstractButton *button = nullptr;
    std::unique_ptr<LoadedView> loaded;
    QList<bool> seen;
    owner.outlet(u"box"_s, button);
    owner.action(u"toggle:"_s,
                 [&](QWidget *) { seen << loaded->content()->boolValue(u"advancedItem"_s); });
    loaded = loadView(view.path(), owner);
    button->click();
    button->click();
    EXPECT_EQ(seen, (QList<bool>{true, false}));
}

} // namespace
