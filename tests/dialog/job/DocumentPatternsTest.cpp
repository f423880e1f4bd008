#include "dialog/job/DocumentPatterns.h"
#include "tests/support/Files.h"
#include "tests/support/QStringPrinting.h"

#include <QtCore/QMimeDatabase>
#include <QtCore/QRegularExpression>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kSavedJobs = "*.velkaro-job"_L1;

/// What the desktop is told that the program opens.
QStringList typesOfTheDesktop()
{
    const QString entry = QString::fromUtf8(readFile(QStringLiteral(DESKTOP_ENTRY)));
    static const QRegularExpression types(u"^MimeType=(.*)$"_s,
                                          QRegularExpression::MultilineOption);
    return types.match(entry).captured(1).split(u';', Qt::SkipEmptyParts);
}

TEST(DocumentPatterns, AreForTheKindsThatTheDesktopIsTold)
{
    const QMimeDatabase kinds;
    QStringList types;
    for (const QString &pattern : documentPatterns())
        if (pattern != kSavedJobs)
            types += kinds
                         .mimeTypeForFile(QString(pattern).replace(u'*', u'a'),
                                          QMimeDatabase::MatchExtension)
                         .name();
    types.removeDuplicates();
    EXPECT_EQ(types,
              (QStringList{u"application/pdf"_s, u"application/postscript"_s, u"text/plain"_s,
                           u"image/png"_s, u"image/jpeg"_s, u"image/tiff"_s}));
    QStringList told = typesOfTheDesktop();
    told.sort();
    types.sort();
    EXPECT_EQ(types, told);
}

TEST(DocumentPatterns, HaveSavedJobsAmongThem)
{
    EXPECT_TRUE(documentPatterns().contains(kSavedJobs));
}

} // namespace
