#include "platform/foundation/ObservableDictionary.h"

#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(ObservableDictionaryTest, KeepsTheKindOfAValue)
{
    ObservableDictionary dictionary;
    const QVariantMap values{{u"boolean"_s, true}, {u"integer"_s, 7},  {u"long"_s, QVariant(7LL)},
                             {u"float"_s, 7.5F},   {u"double"_s, 7.5}, {u"text"_s, u"7"_s}};
    for (auto entry = values.cbegin(); entry != values.cend(); ++entry)
        dictionary.setValue(entry.key(), entry.value());
    ASSERT_EQ(dictionary.values().keys(), values.keys());
    for (auto entry = values.cbegin(); entry != values.cend(); ++entry) {
        EXPECT_EQ(dictionary.value(entry.key()).typeId(), entry.value().typeId());
        EXPECT_EQ(dictionary.value(entry.key()), entry.value());
    }
}

TEST(ObservableDictionaryTest, HasNoValueAndIsFalseWithoutAnEntry)
{
    const ObservableDictionary dictionary;
    EXPECT_FALSE(dictionary.value(u"VKOutput"_s).isValid());
    EXPECT_FALSE(dictionary.boolValue(u"VKOutput"_s));
}

TEST(ObservableDictionaryTest, TellsOfEveryWriteAlsoOfTheSameValue)
{
    ObservableDictionary dictionary;
    int told = 0;
    dictionary.observe(u"VKOutput"_s, [&] { ++told; });
    dictionary.setValue(u"VKOutput"_s, true);
    dictionary.setValue(u"VKOutput"_s, true);
    dictionary.setValue(u"Other"_s, true);
    EXPECT_EQ(told, 2);
}

TEST(ObservableDictionaryTest, TellsEveryObserverAfterTheWriteInTheirOrder)
{
    ObservableDictionary dictionary;
    QStringList seen;
    dictionary.observe(u"key"_s,
                       [&] { seen << u"first "_s + dictionary.value(u"key"_s).toString(); });
    dictionary.observe(u"key"_s,
                       [&] { seen << u"second "_s + dictionary.value(u"key"_s).toString(); });
    dictionary.setValue(u"key"_s, u"new"_s);
    EXPECT_EQ(seen, (QStringList{u"first new"_s, u"second new"_s}));
}

TEST(ObservableDictionaryTest, RemovesAnEntryAndTellsOfIt)
{
    ObservableDictionary dictionary;
    dictionary.setValue(u"key"_s, true);
    int told = 0;
    dictionary.observe(u"key"_s, [&] { ++told; });
    dictionary.setValue(u"key"_s, QVariant());
    EXPECT_TRUE(dictionary.values().isEmpty());
    EXPECT_EQ(told, 1);
}

TEST(ObservableDictionaryTest, LetsAnObserverWriteAnotherKey)
{
    ObservableDictionary dictionary;
    dictionary.observe(u"a"_s, [&] { dictionary.setValue(u"b"_s, dictionary.value(u"a"_s)); });
    int told = 0;
    dictionary.observe(u"b"_s, [&] { ++told; });
    dictionary.setValue(u"a"_s, 7);
    EXPECT_EQ(dictionary.value(u"b"_s), 7);
    EXPECT_EQ(told, 1);
}

} // namespace
