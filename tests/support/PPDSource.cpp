#include "tests/support/PPDSource.h"

#include "tests/built/BuiltFiles.h"
#include "tests/support/Files.h"

#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

#include <utility>

namespace {

PPDHandle openOrFail(const QString &path)
{
    auto opened = openPPD(path);
    EXPECT_TRUE(opened.isGood()) << qPrintable(opened.sentence());
    return opened ? std::move(opened->ppd) : nullptr;
}

const char kHead[] = R"ppd(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: UTF-8
*PCFileName: "TEST.PPD"
*Manufacturer: "Velkaro"
*Product: "(Test)"
*PSVersion: "(3010.000) 0"
)ppd";

QByteArray nameOf(const QByteArray &nameAndText)
{
    return nameAndText.split('/').constFirst();
}

QByteArray withText(const QByteArray &nameAndText)
{
    return nameAndText.contains('/') ? nameAndText : nameAndText + '/' + nameAndText;
}

QByteArray defaultLine(const QByteArray &keyword, const QByteArray &choice)
{
    return "*Default" + keyword + ": " + choice + '\n';
}

QByteArray choiceLine(const QByteArray &keyword, const QByteArray &choice, const QByteArray &value)
{
    return "*" + keyword + ' ' + withText(choice) + ": \"" + value + "\"\n";
}

QByteArray optionLines(const QByteArray &option, const QByteArrayList &choices,
                       const QByteArray &defaultLine)
{
    const QByteArray keyword = nameOf(option);
    QByteArray lines = "*OpenUI *" + withText(option) + ": PickOne\n" + defaultLine;
    for (const QByteArray &choice : choices)
        lines += choiceLine(keyword, choice, {});
    return lines + "*CloseUI: *" + keyword + '\n';
}

QByteArray area(const QByteArray &origin, int right, int top)
{
    return origin + QByteArray::number(right) + ' ' + QByteArray::number(top);
}

} // namespace

PPDSource &PPDSource::modelName(const QByteArray &name)
{
    m_modelName = name;
    return *this;
}

PPDSource &PPDSource::modelNumber(int number)
{
    return attribute("cupsModelNumber", QByteArray::number(number));
}

PPDSource &PPDSource::attribute(const QByteArray &keyword, const QByteArray &value)
{
    m_body += "*" + keyword + ": \"" + value + "\"\n";
    return *this;
}

PPDSource &PPDSource::option(const QByteArray &option, const QByteArrayList &choices)
{
    return optionWithDefault(option, choices, nameOf(choices.value(0)));
}

PPDSource &PPDSource::optionWithDefault(const QByteArray &option, const QByteArrayList &choices,
                                        const QByteArray &defaultChoice)
{
    m_body += optionLines(option, choices, defaultLine(nameOf(option), defaultChoice));
    return *this;
}

PPDSource &PPDSource::optionWithoutDefault(const QByteArray &option, const QByteArrayList &choices)
{
    m_body += optionLines(option, choices, {});
    return *this;
}

PPDSource &PPDSource::papers(const QList<Paper> &papers)
{
    QByteArrayList names;
    for (const Paper &paper : papers)
        names << paper.name;
    option("PageSize", names).option("PageRegion", names);
    m_body += defaultLine("PaperDimension", names.value(0));
    m_body += defaultLine("ImageableArea", names.value(0));
    for (const Paper &paper : papers) {
        m_body += choiceLine("PaperDimension", paper.name, area({}, paper.width, paper.height));
        m_body += choiceLine("ImageableArea", paper.name,
                             area("10 10 ", paper.width - 10, paper.height - 10));
    }
    return *this;
}

PPDSource &PPDSource::constraint(const QByteArray &one, const QByteArray &other)
{
    m_body += "*UIConstraints: *" + one + " *" + other + "\n";
    m_body += "*UIConstraints: *" + other + " *" + one + "\n";
    return *this;
}

QByteArray PPDSource::text() const
{
    return kHead + ("*ModelName: \"" + m_modelName) + "\"\n*ShortNickName: \"" + m_modelName +
           "\"\n*NickName: \"" + m_modelName + ", 1.0\"\n" + m_body;
}

PPDHandle PPDSource::open() const
{
    return openText(text());
}

PPDHandle openSample(const QString &name)
{
    return openOrFail(samplePPD(name));
}

QByteArray sampleText(const QString &name)
{
    return readFile(samplePPD(name));
}

QByteArray sampleWithoutDefaults(const QString &name, const QByteArrayList &keywords)
{
    QByteArrayList lines = sampleText(name).split('\n');
    for (const QByteArray &keyword : keywords) {
        const auto tellsDefault = [&](const QByteArray &line) {
            return line.startsWith("*Default" + keyword + ':');
        };
        EXPECT_EQ(lines.removeIf(tellsDefault), 1) << keyword.constData();
    }
    return lines.join('\n');
}

PPDHandle openText(const QByteArray &text)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("test.ppd"));
    writeFile(path, text);
    return openOrFail(path);
}

void unmark(ppd_file_t *ppd, const char *keyword)
{
    ppd_choice_t *choice = ppdFindMarkedChoice(ppd, keyword);
    ASSERT_TRUE(choice) << keyword;
    choice->marked = 0;
    cupsArrayRemove(ppd->marked, choice);
}
