#include "platform/foundation/ValueTransformer.h"

#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class Negation : public ValueTransformer
{
public:
    QMetaType transformedValueClass() const override { return QMetaType::fromType<bool>(); }
    bool allowsReverseTransformation() const override { return true; }
    QVariant transformedValue(const QVariant &value) const override { return !value.toBool(); }
    QVariant reverseTransformedValue(const QVariant &value) const override
    {
        return !value.toBool();
    }
};

TEST(ValueTransformerTest, IsFoundUnderItsNameAlone)
{
    const auto negation = std::make_shared<Negation>();
    ValueTransformer::setValueTransformer(negation, u"Negation"_s);
    EXPECT_EQ(ValueTransformer::valueTransformerForName(u"Negation"_s), negation);
    EXPECT_EQ(ValueTransformer::valueTransformerForName(u"negation"_s), nullptr);
    EXPECT_EQ(ValueTransformer::valueTransformerForName(QString()), nullptr);
    EXPECT_EQ(ValueTransformer::valueTransformerForName(u"Negation"_s)->transformedValue(true),
              QVariant(false));
}

TEST(ValueTransformerTest, IsReplacedByALaterOne)
{
    const auto later = std::make_shared<Negation>();
    ValueTransformer::setValueTransformer(std::make_shared<Negation>(), u"Replaced"_s);
    ValueTransformer::setValueTransformer(later, u"Replaced"_s);
    EXPECT_EQ(ValueTransformer::valueTransformerForName(u"Replaced"_s), later);
}

} // namespace
