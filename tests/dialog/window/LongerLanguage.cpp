#include "tests/dialog/window/LongerLanguage.h"

#include "platform/foundation/PreferredLanguages.h"
#include "tests/built/BuiltFiles.h"
#include "tests/support/Files.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDirIterator>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>

#include <gtest/gtest.h>

#include <clocale>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMoreInAHundred = 40;

QByteArray replaced(const QByteArray &text, const QString &pattern,
                    const std::function<QString(const QString &)> &made)
{
    const QString whole = QString::fromUtf8(text);
    QString result;
    qsizetype from = 0;
    for (const auto &match :
         QRegularExpression(pattern, QRegularExpression::MultilineOption).globalMatch(whole)) {
        result += QStringView(whole).mid(from, match.capturedStart(1) - from);
        result += made(match.captured(1));
        from = match.capturedEnd(1);
    }
    result += QStringView(whole).mid(from);
    return result.toUtf8();
}

void copyFolder(const QString &from, const QString &to)
{
    QDirIterator entries(from, QDir::Files, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString file = entries.next();
        const QString copy = to + file.mid(from.size());
        ASSERT_TRUE(QDir().mkpath(QFileInfo(copy).path()));
        ASSERT_TRUE(QFile::copy(file, copy)) << copy.toStdString();
    }
}

} // namespace

// libcups asks the environment where the process has no locale of its own.
void InLanguage::use(const QString &language)
{
    m_processLocale = std::setlocale(LC_MESSAGES, nullptr);
    m_localeBefore = qgetenv("LC_ALL");
    std::setlocale(LC_MESSAGES, "C");
    qputenv("LC_ALL", QLocale(language).name().toLatin1() + ".UTF-8");
    setPreferredLanguages({language});
    const QString table =
        QDir(samplePPDFolder()).filePath(u"../translations/Dialog_%1.qm"_s.arg(language));
    if (m_table.load(table))
        QCoreApplication::installTranslator(&m_table);
}

InLanguage::~InLanguage()
{
    if (m_processLocale.isNull())
        return;
    QCoreApplication::removeTranslator(&m_table);
    setPreferredLanguages({});
    std::setlocale(LC_MESSAGES, m_processLocale.constData());
    qputenv("LC_ALL", m_localeBefore);
}

LongerLanguage::~LongerLanguage()
{
    QCoreApplication::removeTranslator(this);
}

void LongerLanguage::use(DialogWishes &wishes)
{
    wishes.plugIn = lengthenBundle(wishes.plugIn);
    wishes.ppd = lengthenPPD(wishes.ppd);
    QCoreApplication::installTranslator(this);
}

/// The text, and as much of its own letters again as it is to be longer.
QString LongerLanguage::longer(const QString &text)
{
    static const QRegularExpression noLetters(u"&|%L?\\d+|%n|[^\\w ]"_s);
    QString letters = QString(text).remove(noLetters).simplified();
    letters.truncate((text.size() * kMoreInAHundred + 99) / 100);
    // Before the text, so that what it ends with stays there.
    return letters.isEmpty() ? text : letters + u' ' + text;
}

QString LongerLanguage::translate(const char *context, const char *source, const char *, int) const
{
    // The properties of a view are no texts: its texts come from the bundle and the PPD.
    const bool isOfView = QByteArrayView(context).startsWith("VK");
    return isOfView ? QString() : longer(QString::fromUtf8(source));
}

QString LongerLanguage::lengthenBundle(const QString &bundle)
{
    const QString copy = m_folder.filePath(QFileInfo(bundle).fileName());
    copyFolder(bundle, copy);
    const QString table = m_folder.filePath(u"Localizable_en.ts"_s);
    writeFile(table, replaced(readFile(QStringLiteral(ENGLISH_STRINGS)),
                              u"<translation>([^<]+)</translation>"_s, longer));
    const QString compiled = copy + u"/Resources/Localizable_en.qm"_s;
    EXPECT_TRUE(QFile::remove(compiled));
    EXPECT_EQ(QProcess::execute(QStringLiteral(CATALOGUE_COMPILER),
                                {u"-silent"_s, table, u"-qm"_s, compiled}),
              0);
    return copy;
}

QString LongerLanguage::lengthenPPD(const QString &ppd)
{
    const QString copy = m_folder.filePath(QFileInfo(ppd).fileName());
    writeFile(copy,
              replaced(readFile(ppd), u"^\\*(?:OpenUI \\*)?\\w+[^/:\\n]*/([^:\\n]+):"_s, longer));
    return copy;
}
