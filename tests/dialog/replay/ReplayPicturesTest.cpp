#include "dialog/replay/ReplayPictures.h"

#include "tests/support/CaseName.h"
#include "tests/support/Files.h"
#include "tests/support/QStringPrinting.h"

#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>

#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

struct Name
{
    const char *behaviour;
    QString name;
    bool isPlain;
};

void PrintTo(const Name &row, std::ostream *out)
{
    *out << row.behaviour;
}

class PlainName : public testing::TestWithParam<Name>
{};

TEST_P(PlainName, StaysInItsFolder)
{
    EXPECT_EQ(isPlainName(GetParam().name), GetParam().isPlain);
}

INSTANTIATE_TEST_SUITE_P(
    Table, PlainName,
    testing::Values(Name{"Plain", u"preview.png"_s, true}, Name{"Spaces", u"a b"_s, true},
                    Name{"Japanese", u"写真.png"_s, true}, Name{"Backslash", u"a\\b"_s, true},
                    Name{"Empty", u""_s, false}, Name{"Folder", u"a/b.png"_s, false},
                    Name{"Absolute", u"/tmp/b.png"_s, false}, Name{"Hidden", u".bashrc"_s, false},
                    Name{"Here", u"."_s, false}, Name{"Above", u"../b.png"_s, false},
                    Name{"EndsEarly", u"a"_s + QChar(0) + u".png"_s, false},
                    Name{"SlashInDisguise", u"a"_s + QChar(0xDC2F) + u".."_s, false}),
    CaseName());

class ReplayPicturesIn : public testing::Test
{
protected:
    ReplayPicturesIn() : m_image(2, 3, QImage::Format_RGB32), m_folder(m_scratch.path())
    {
        m_image.fill(Qt::red);
    }

    QString existing(const QString &name)
    {
        writeFile(m_folder.filePath(name), "precious");
        return m_folder.filePath(name);
    }

    static OutputTerms force()
    {
        OutputTerms terms;
        terms.mayReplace = true;
        return terms;
    }

    QImage m_image;
    QTemporaryDir m_scratch;
    QDir m_folder;
};

TEST_F(ReplayPicturesIn, StandBesideTheScriptAndMayBeWrittenAgain)
{
    ReplayPictures pictures({});
    EXPECT_EQ(pictures.write(m_image, m_folder, u"a.png"_s).sentence(), QString());
    m_image = m_image.copy(0, 0, 1, 1);
    EXPECT_EQ(pictures.write(m_image, m_folder, u"a.png"_s).sentence(), QString());
    EXPECT_EQ(QImage(m_folder.filePath(u"a.png"_s)).size(), QSize(1, 1));
}

TEST_F(ReplayPicturesIn, AreNotWrittenOverWhatWasThere)
{
    const QString old = existing(u"old"_s);
    ReplayPictures pictures({});
    EXPECT_EQ(pictures.write(m_image, m_folder, u"old"_s).sentence(),
              u"The file %1 exists already; --force replaces it."_s.arg(old));
    EXPECT_EQ(readFile(old), "precious");
    ReplayPictures forced(force());
    EXPECT_EQ(forced.write(m_image, m_folder, u"old"_s).sentence(), QString());
    EXPECT_EQ(QImage(old).size(), m_image.size());
}

TEST_F(ReplayPicturesIn, AreNotWrittenOverAFileThatTookTheNameOfOne)
{
    ReplayPictures pictures({});
    ASSERT_EQ(pictures.write(m_image, m_folder, u"a.png"_s).sentence(), QString());
    const QString other = existing(u"other"_s);
    ASSERT_EQ(
        rename(other.toUtf8().constData(), m_folder.filePath(u"a.png"_s).toUtf8().constData()), 0);
    EXPECT_NE(pictures.write(m_image, m_folder, u"a.png"_s).sentence(), QString());
    EXPECT_EQ(readFile(m_folder.filePath(u"a.png"_s)), "precious");
}

TEST_F(ReplayPicturesIn, AreNeverWrittenOverAnInput)
{
    const QString ppd = existing(u"printer.ppd"_s);
    ReplayPictures pictures(force());
    pictures.addInput(ppd);
    EXPECT_EQ(pictures.write(m_image, m_folder, u"printer.ppd"_s).sentence(),
              u"Nothing is written over %1: it is in use for this."_s.arg(ppd));
    EXPECT_EQ(readFile(ppd), "precious");
}

TEST_F(ReplayPicturesIn, AreNeverWrittenThroughALinkOrIntoAPipe)
{
    const QTemporaryDir elsewhere;
    const QString old = elsewhere.filePath(u"old"_s);
    writeFile(old, "precious");
    ASSERT_TRUE(QFile::link(old, m_folder.filePath(u"link"_s)));
    ASSERT_TRUE(QFile::link(elsewhere.filePath(u"new"_s), m_folder.filePath(u"loose"_s)));
    ASSERT_EQ(mkfifo(m_folder.filePath(u"pipe"_s).toUtf8().constData(), 0600), 0);
    ReplayPictures pictures(force());
    for (const QString &name : {u"link"_s, u"loose"_s, u"pipe"_s})
        EXPECT_EQ(pictures.write(m_image, m_folder, name).sentence(),
                  u"%1 is no ordinary file"_s.arg(m_folder.filePath(name)));
    EXPECT_EQ(readFile(old), "precious");
    EXPECT_FALSE(QFileInfo::exists(elsewhere.filePath(u"new"_s)));
}

} // namespace
