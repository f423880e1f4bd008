#include "platform/foundation/Catalogue.h"

#include "tests/built/BuiltFiles.h"
#include "tests/support/CaseName.h"
#include "tests/support/Files.h"
#include "tests/support/QStringPrinting.h"

#include <gtest/gtest.h>

#include <QtCore/QTemporaryDir>
#include <QtCore/QTranslator>
#include <QtCore/QtEndian>

#include <algorithm>
#include <sys/mman.h>

using namespace Qt::StringLiterals;

namespace {

QByteArray number(quint32 value)
{
    QByteArray bytes(4, 0);
    qToBigEndian(value, bytes.data());
    return bytes;
}

QByteArray block(quint8 tag, const QByteArray &bytes)
{
    return char(tag) + number(static_cast<quint32>(bytes.size())) + bytes;
}

const QByteArray kMagic = QByteArray::fromHex("3cb86418caef9c95cd211cbf60a1bddd");
const QByteArray kLanguage = block(0xa7, "ja");
const QByteArray kRules = block(0x88, QByteArray("\x01\x01", 2));
const QByteArray kEnd("\x01", 1);
const QByteArray kText = block(3, QByteArray("\0O\0n", 4));
const QByteArray kSource = block(6, "ON");
const QByteArray kMessage = kText + kSource + block(7, "Localizable") + kEnd;
const auto kLength = static_cast<quint32>(kMessage.size());

/// Pairs of a hash and an offset. "ON" has the hash 0x53e.
QByteArray hashes(std::initializer_list<std::pair<quint32, quint32>> pairs)
{
    QByteArray bytes;
    for (const auto &[hash, offset] : pairs)
        bytes += number(hash) + number(offset);
    return block(0x42, bytes);
}

QByteArray messages(const QByteArray &bytes)
{
    return block(0x69, bytes);
}

const QByteArray kHashes = hashes({{0x53e, 0}});
const QByteArray kSound = kMagic + kLanguage + kHashes + messages(kMessage) + kRules;

struct CatalogueCase
{
    const char *behaviour;
    QByteArray text;
    bool sound;
};

class Catalogue : public testing::TestWithParam<CatalogueCase>
{};

const CatalogueCase kCases[] = {
    {"Whole", kSound, true},
    {"WithoutMessages", kMagic + kLanguage, true},
    {"WithTwoMessages", kMagic + hashes({{1, kLength}, {0x53e, 0}}) + messages(kMessage + kMessage),
     true},
    {"WithACommentInAMessage", kMagic + kHashes + messages(kText + block(8, "noun") + kMessage),
     true},
    {"Empty", "", false},
    {"OfAnotherKind", "no catalogue at all, but long enough", false},
    // Sections.
    {"SectionThatIsCut", kSound.chopped(1), false},
    {"SectionLongerThanTheFile", kMagic + char(0x69) + number(0xffffffff) + kMessage, false},
    {"SectionWithoutLength", kMagic + QByteArray("\x69\0\0", 3), false},
    {"SectionThatIsEmpty", kMagic + block(0x69, ""), false},
    {"SectionThatIsUnknown", kSound + block(0x11, "x"), false},
    {"SectionTwice", kSound + messages(kMessage), false},
    {"SectionOfContexts", kSound + block(0x2f, QByteArray("\0\0", 2)), false},
    {"SectionOfFurtherCatalogues", kSound + block(0x96, QByteArray("\0\0\0\2\0x", 6)), false},
    {"BytesBehindTheSections", kSound + "xyz", false},
    // Hashes.
    {"HashWithoutOffset", kMagic + block(0x42, number(0x53e)) + messages(kMessage), false},
    {"HashesOutOfOrder",
     kMagic + hashes({{0x53e, 0}, {1, kLength}}) + messages(kMessage + kMessage), false},
    {"OffsetBehindTheMessages", kMagic + hashes({{0x53e, kLength}}) + messages(kMessage), false},
    {"OffsetFarAway", kMagic + hashes({{0x53e, 0xfffffff0}}) + messages(kMessage), false},
    {"OffsetIntoAMessage", kMagic + hashes({{0x53e, 5}}) + messages(kMessage), false},
    {"HashesWithoutMessages", kMagic + kHashes, false},
    // Messages.
    {"MessageWithoutEnd", kMagic + kHashes + messages(kMessage.chopped(1)), false},
    {"MessageThatIsCut", kMagic + kHashes + messages(kMessage.chopped(3)), false},
    {"MessageWithoutALength", kMagic + kHashes + messages(QByteArray("\3\0\0", 3)), false},
    {"TextLongerThanTheMessages",
     kMagic + kHashes + messages(char(3) + number(0x7ffffffe) + kMessage), false},
    {"TextOfNegativeLength", kMagic + kHashes + messages(char(3) + number(0xfffffffa) + kMessage),
     false},
    {"TextOfHalfACharacter", kMagic + kHashes + messages(block(3, "abc") + kEnd), false},
    {"PartThatIsUnknown", kMagic + kHashes + messages(block(9, "abc") + kEnd), false},
};

TEST_P(Catalogue, IsUsedWhereItIsSound)
{
    EXPECT_EQ(isSoundCatalogue(GetParam().text), GetParam().sound);
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"Test.qm"_s);
    writeFile(path, GetParam().text);
    EXPECT_EQ(openCatalogue(path) != nullptr, GetParam().sound);
}

INSTANTIATE_TEST_SUITE_P(Cases, Catalogue, testing::ValuesIn(kCases), CaseName());

class CatalogueFile : public testing::Test
{
protected:
    std::unique_ptr<QTranslator> opened(const QByteArray &text)
    {
        writeFile(path(), text);
        return openCatalogue(path());
    }

    QString path() const { return m_folder.filePath(u"Test.qm"_s); }

    /// The texts under some keys, and under one that is not there.
    static QStringList texts(const QTranslator &table)
    {
        QStringList found;
        for (const char *key : {"Cancel", "OK", "ON", "OFF", "Revert", "Preview", "Suppression",
                                "Print Setting", "Envelope Caution", "No such key"})
            found += table.translate("Localizable", key);
        return found;
    }

    static QByteArray built()
    {
        return readFile(builtBundle() + u"/Resources/Localizable_ja.qm"_s);
    }

private:
    QTemporaryDir m_folder;
};

TEST_F(CatalogueFile, GivesTheTextOfAHandmadeMessage)
{
    const auto table = opened(kSound);
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->translate("Localizable", "ON"), u"On"_s);
    EXPECT_TRUE(table->translate("Localizable", "OFF").isNull());
}

TEST_F(CatalogueFile, IsRefusedWhereItIsMissingOrLargerThanAnyCatalogue)
{
    EXPECT_EQ(openCatalogue(path()), nullptr);
    const QByteArray huge = kMagic + messages(QByteArray(5 << 20, 1));
    EXPECT_TRUE(isSoundCatalogue(huge));
    EXPECT_EQ(opened(huge), nullptr);
}

TEST_F(CatalogueFile, MayChangeWhileItIsInUse)
{
    const QByteArray whole = built();
    const auto table = opened(whole);
    ASSERT_NE(table, nullptr);
    const QStringList before = texts(*table);
    EXPECT_EQ(before[0], u"キャンセル"_s);
    writeFile(path(), whole.first(20));
    EXPECT_EQ(texts(*table), before);
}

TEST_F(CatalogueFile, NeverHasATextWhereItIsCut)
{
    const QByteArray whole = built();
    for (qsizetype size = 0; size < whole.size(); ++size) {
        const QByteArray cut = whole.first(size);
        if (isSoundCatalogue(cut)) {
            const auto table = opened(cut);
            ASSERT_NE(table, nullptr);
            EXPECT_EQ(texts(*table).join(QString()), QString()) << size;
        }
    }
}

/// Bytes between two pages that end the program when they are touched: a byte too far is seen.
class FencedBytes
{
public:
    explicit FencedBytes(qsizetype size) : m_size(static_cast<std::size_t>(size))
    {
        m_inside = (m_size + kPage - 1) / kPage * kPage;
        m_begin = static_cast<char *>(
            mmap(nullptr, m_inside + 2 * kPage, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
        EXPECT_EQ(mprotect(m_begin + kPage, m_inside, PROT_READ | PROT_WRITE), 0);
    }
    ~FencedBytes() { munmap(m_begin, m_inside + 2 * kPage); }
    FencedBytes(const FencedBytes &) = delete;
    FencedBytes &operator=(const FencedBytes &) = delete;

    const uchar *hold(const QByteArray &bytes)
    {
        char *at = m_begin + kPage + m_inside - m_size;
        std::copy(bytes.begin(), bytes.end(), at);
        return reinterpret_cast<const uchar *>(at);
    }

private:
    static constexpr std::size_t kPage = 65536; // of the largest machines
    std::size_t m_size;
    std::size_t m_inside = 0;
    char *m_begin = nullptr;
};

// Whatever a damaged text says, the look-up stays within the catalogue.
TEST_F(CatalogueFile, IsReadWithinItsBoundsWhicheverByteIsDamaged)
{
    const QByteArray whole = built();
    FencedBytes fenced(whole.size());
    int refused = 0;
    for (qsizetype at = 0; at < whole.size(); ++at)
        for (const int damage : {0x01, 0x40, 0xff}) {
            QByteArray damaged = whole;
            damaged[at] = static_cast<char>(damaged[at] ^ damage);
            if (!isSoundCatalogue(damaged)) {
                ++refused;
                continue;
            }
            QTranslator table;
            if (table.load(fenced.hold(damaged), static_cast<int>(damaged.size()))) {
                EXPECT_EQ(texts(table).size(), 10);
            }
        }
    EXPECT_GT(refused, 500);
}

} // namespace
