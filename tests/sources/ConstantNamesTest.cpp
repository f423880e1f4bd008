// Sources of a folder are built several at a time, and in larger and smaller heaps: a constant of
// one file must not meet its name in another.
#include "tests/sources/ProjectFiles.h"
#include "tests/support/QStringPrinting.h"

#include <QtCore/QFileInfo>
#include <QtCore/QHash>
#include <QtCore/QRegularExpression>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// The constants that the text has for itself, outside of functions and classes.
QStringList constantsOf(const QString &text)
{
    static const QRegularExpression constant(
        u"^(?:static )?const(?:expr)?\\b[^=;{(\\n]*\\b(k[A-Z]\\w*)\\b"_s,
        QRegularExpression::MultilineOption);
    QStringList names;
    for (auto matches = constant.globalMatch(text); matches.hasNext();)
        names += matches.next().captured(1);
    return names;
}

TEST(Constants, HaveTheirNamesToThemselvesInTheirFolders)
{
    QHash<QString, QString> owners; // by folder and name
    for (const QString &folder : kProductFolders)
        for (const QString &file : sourcesBelow(folder)) {
            if (!file.endsWith(u".cpp"_s))
                continue;
            for (const QString &name : constantsOf(contents(file))) {
                QString &owner = owners[QFileInfo(file).path() + u'/' + name];
                EXPECT_TRUE(owner.isNull() || owner == file)
                    << projectName(file).toStdString() << " has a " << name.toStdString() << " as "
                    << projectName(owner).toStdString();
                owner = file;
            }
        }
    EXPECT_GT(owners.size(), 300) << "too few to be all";
}

TEST(Constants, AreFoundWhereverTheyStand)
{
    EXPECT_EQ(constantsOf(u"constexpr int kOne = 1;\n"
                          "const QString kTwo(u\"x\"_s);\n"
                          "static constexpr std::array kThree{1};\n"
                          "    constexpr int kLocal = 2;\n"
                          "int kNone = 3;\n"_s),
              (QStringList{u"kOne"_s, u"kTwo"_s, u"kThree"_s}));
}

} // namespace
