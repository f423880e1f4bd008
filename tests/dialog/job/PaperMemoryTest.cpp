#include "dialog/job/PaperMemory.h"
#include "tests/support/Files.h"
#include "tests/support/QStringPrinting.h"

#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A user whose configuration folder is new.
class MemoryOfPapers : public testing::Test
{
protected:
    MemoryOfPapers() { qputenv("XDG_CONFIG_HOME", m_folder.path().toLocal8Bit()); }
    ~MemoryOfPapers() override { qputenv("XDG_CONFIG_HOME", m_former); }

    const QByteArray m_former = qgetenv("XDG_CONFIG_HOME");
    const QTemporaryDir m_folder;
};

TEST_F(MemoryOfPapers, HasTheLatestFirstOfEachPrinter)
{
    for (const auto *choice : {"A4", "A3", "A4", "4x6"})
        rememberPaper(u"server/Photo"_s, QLatin1String(choice));
    rememberPaper(u"Office & <b>"_s, u"Letter"_s);
    EXPECT_EQ(recentPapers(u"server/Photo"_s), (QStringList{u"4x6"_s, u"A4"_s, u"A3"_s}));
    EXPECT_EQ(recentPapers(u"Office & <b>"_s), QStringList{u"Letter"_s});
    EXPECT_EQ(recentPapers(u"Photo"_s), QStringList());
}

TEST_F(MemoryOfPapers, HasAFewAlone)
{
    for (int index = 0; index < 20; ++index)
        rememberPaper(u"Photo"_s, QString::number(index));
    EXPECT_EQ(recentPapers(u"Photo"_s), (QStringList{u"19"_s, u"18"_s, u"17"_s, u"16"_s, u"15"_s}));
}

TEST_F(MemoryOfPapers, KeepsTheUsersSizesByTheirNames)
{
    const OwnSize bookmark{u"Lesezeichen / schmal"_s, 141.7323, 425.1969};
    keepOwnSize({u"Z"_s, 200, 300});
    keepOwnSize(bookmark);
    keepOwnSize({u"Z"_s, 250, 350});
    EXPECT_EQ(ownSizes(), (QList<OwnSize>{bookmark, {u"Z"_s, 250, 350}}));
    removeOwnSize(u"Z"_s);
    EXPECT_EQ(ownSizes(), QList<OwnSize>{bookmark});
}

TEST_F(MemoryOfPapers, PassesOverWhatMakesNoSense)
{
    keepOwnSize({u"Good"_s, 200, 300});
    keepOwnSize({u"Flat"_s, 200, 0});
    keepOwnSize({u" spaced "_s, 200, 300});
    keepOwnSize({QString(500, u'x'), 200, 300});
    EXPECT_EQ(ownSizes(), (QList<OwnSize>{{u"Good"_s, 200, 300}}));
    writeFile(m_folder.filePath(u"velkaro-print/papers.ini"_s), "\x00\xff[[Sizes\n=,,,"_qba);
    EXPECT_EQ(ownSizes(), QList<OwnSize>());
    EXPECT_EQ(recentPapers(u"Photo"_s), QStringList());
}

TEST_F(MemoryOfPapers, NamesSizesOnOneLine)
{
    EXPECT_EQ(ownSizeName(u"  two\n words "_s), u"two words"_s);
    EXPECT_EQ(ownSizeName(u" \t "_s), QString());
    EXPECT_EQ(ownSizeName(QString(100, u'x')).size(), 60);
}

} // namespace
