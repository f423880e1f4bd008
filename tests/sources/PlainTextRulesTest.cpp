#include "tests/sources/ProjectFiles.h"
#include "tests/sources/SourceRules.h"
#include "tests/support/CaseName.h"
#include "tests/support/QStringPrinting.h"

#include <QtXml/QDomDocument>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

class ProductSources : public testing::TestWithParam<QString>
{};

TEST_P(ProductSources, GiveNoTextToWhatGuessesAtRichText)
{
    const QStringList files = sourcesBelow(GetParam());
    ASSERT_FALSE(files.isEmpty());
    for (const QString &file : files)
        for (const QString &breach : breaches(projectName(file), contents(file), plainTextRules()))
            ADD_FAILURE() << breach.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Folders, ProductSources, testing::ValuesIn(kProductFolders),
                         [](const auto &folder) { return folder.param.toStdString(); });

TEST(ViewResources, HaveNoRichTextAndNoTips)
{
    const QStringList views = filesBelow(u"resources/views"_s, {u"*.ui"_s});
    ASSERT_FALSE(views.isEmpty());
    for (const QString &view : views) {
        QDomDocument document;
        ASSERT_TRUE(document.setContent(contents(view))) << view.toStdString();
        const QDomNodeList properties = document.elementsByTagName(u"property"_s);
        for (int index = 0; index < properties.size(); ++index) {
            const QDomElement property = properties.at(index).toElement();
            const QString name = property.attribute(u"name"_s);
            if (name == "textFormat"_L1) {
                EXPECT_EQ(property.text().trimmed(), u"Qt::PlainText"_s)
                    << view.toStdString() << ':' << property.lineNumber();
            }
            EXPECT_FALSE(QStringList({u"toolTip"_s, u"whatsThis"_s, u"statusTip"_s}).contains(name))
                << view.toStdString() << ':' << property.lineNumber();
        }
    }
}

struct BadLine
{
    const char *behaviour; ///< the rule that it breaks
    QString code;
};

class BadSource : public testing::TestWithParam<BadLine>
{};

const BadLine kBadLines[] = {
    {"NewLabel", u"    auto *made = new QLabel(text);"_s},
    {"NewLabel_OfAMember", u"      m_label(new QLabel(this)),"_s},
    {"NewLabel_OnTheStack", u"    QLabel label(text);"_s},
    {"NewLabel_InAPointer", u"    label = std::make_unique<QLabel>(text);"_s},
    {"LabelOfARow", u"    form->addRow(tr(\"%1:\").arg(ppdText(option->text)), popup);"_s},
    {"LabelOfARow_OnTwoLines", u"    form->addRow(\n        title, popup);"_s},
    {"LabelOfARow_Inserted", u"    form->insertRow(0, title, popup);"_s},
    {"SetText", u"    label->setText(text);"_s},
    {"TextFormat", u"    format = Qt::RichText;"_s},
    {"MessageBox", u"    QMessageBox::warning(this, title, text);"_s},
    {"MessageBox_Made", u"    QMessageBox box(this);"_s},
    {"MessageBox_Informative", u"    box.setInformativeText(text);"_s},
    {"ReadyMadeDialog", u"    QProgressDialog progress(text, cancel, 0, 100);"_s},
    {"ToolTip", u"    popup->setToolTip(text);"_s},
    {"ToolTip_Shown", u"    QToolTip::showText(at, text);"_s},
    {"ToolTip_OfAnItem", u"    item->setData(Qt::ToolTipRole, text);"_s},
    {"WhatsThis", u"    popup->setWhatsThis(text);"_s},
    {"StatusTip", u"    popup->setStatusTip(text);"_s},
    {"AccessibleName", u"    popup->setAccessibleName(text);"_s},
    {"AccessibleName_Description", u"    popup->setAccessibleDescription(text);"_s},
    {"RichText", u"    view->setHtml(text);"_s},
    {"RichText_Painted", u"    painter.drawStaticText(at, QStaticText(text));"_s},
    {"Link", u"    QDesktopServices::openUrl(url);"_s},
};

QString ruleOf(const BadLine &bad)
{
    return QString::fromLatin1(bad.behaviour).section(u'_', 0, 0);
}

const SourceRule *ruleNamed(const QString &name)
{
    const auto found = std::ranges::find(plainTextRules(), name, [](const SourceRule &rule) {
        return QString::fromLatin1(rule.name);
    });
    return found == plainTextRules().end() ? nullptr : &*found;
}

TEST_P(BadSource, IsNamedWithItsLineAndWhatToUse)
{
    const SourceRule *rule = ruleNamed(ruleOf(GetParam()));
    ASSERT_NE(rule, nullptr);
    const QString text = u"// A label.\n\n"_s + GetParam().code + u"\n    done();\n"_s;
    const QString first = GetParam().code.section(u'\n', 0, 0).trimmed();
    EXPECT_EQ(breaches(u"dialog/window/Bad.cpp"_s, text, {*rule}),
              QStringList(u"dialog/window/Bad.cpp:3: "_s + first + u": "_s + rule->why +
                          u"; use "_s + rule->instead));
    EXPECT_EQ(breaches(u"dialog/window/Bad.cpp"_s, u"    // "_s + first, {*rule}), QStringList())
        << "a comment is no code";
}

INSTANTIATE_TEST_SUITE_P(Lines, BadSource, testing::ValuesIn(kBadLines), CaseName());

TEST(PlainTextRules, AreEachBrokenByABadLineOfThisTest)
{
    for (const SourceRule &rule : plainTextRules())
        EXPECT_TRUE(std::ranges::any_of(kBadLines, [&](const BadLine &bad) {
            return ruleOf(bad) == QLatin1String(rule.name);
        })) << rule.name;
}

TEST(PlainTextRules, AllowALineOnlyInItsFile)
{
    const QString line = u"    m_pages->setText(m_job.settings().pageRanges);\n"_s;
    const QString other = u"    m_pages->setText(anything);\n"_s;
    EXPECT_EQ(breaches(u"dialog/window/JobHeader.cpp"_s, line, plainTextRules()).size(), 0);
    EXPECT_EQ(breaches(u"dialog/window/JobHeader.cpp"_s, other, plainTextRules()).size(), 1);
    EXPECT_EQ(breaches(u"dialog/window/NoticeBar.cpp"_s, line, plainTextRules()).size(), 1);
}

TEST(PlainTextRules, AllowNothingThatIsNotThere)
{
    for (const SourceRule &rule : plainTextRules())
        for (const QString &place : rule.allowed) {
            const QString file = place.section(u": "_s, 0, 0);
            const QString line = place.section(u": "_s, 1);
            const QString text = contents(projectPath(file));
            EXPECT_FALSE(text.isEmpty()) << rule.name << ": " << file.toStdString();
            EXPECT_TRUE(text.contains(line)) << rule.name << ": " << place.toStdString();
        }
}

TEST(PlainTextRules, LetHarmlessLinesPass)
{
    const QString text = u"    QLabel *label = newPlainLabel(text);\n"
                         "    const auto *label = qobject_cast<QLabel *>(part);\n"
                         "    matrix.addRow();\n"
                         "    form->addRow(label(tr(\"&Copies:\"), m_copies), m_copies);\n"
                         "    class QLabel;\n"
                         "    setLabelText(label, text);\n"
                         "    auto *box = qobject_cast<QMessageBox *>(alert.window);\n"_s;
    EXPECT_EQ(breaches(u"dialog/window/Good.cpp"_s, text, plainTextRules()), QStringList());
}

} // namespace
