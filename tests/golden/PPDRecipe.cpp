#include "tests/golden/PPDRecipe.h"

#include <QtCore/QByteArrayList>
#include <QtCore/QHash>
#include <QtCore/QJsonArray>

using namespace Qt::StringLiterals;

namespace {

using Lines = QByteArrayList;

QByteArray member(const QJsonObject &edit, const char *name)
{
    return edit[QLatin1String(name)].toString().toUtf8();
}

/// Whether the line is about the main keyword, as "*Keyword:" or "*Keyword Choice/Text:" is.
bool isAbout(const QByteArray &line, const QByteArray &keyword)
{
    return line.startsWith('*' + keyword + ' ') || line.startsWith('*' + keyword + ':');
}

bool isChoice(const QByteArray &line, const QByteArray &keyword, const QByteArray &choice)
{
    const QByteArray start = '*' + keyword + ' ' + choice;
    return line.startsWith(start + '/') || line.startsWith(start + ':');
}

bool opens(const QByteArray &line, const QByteArray &keyword)
{
    return line.startsWith("*OpenUI *" + keyword + '/') ||
           line.startsWith("*OpenUI *" + keyword + ':');
}

bool closes(const QByteArray &line, const QByteArray &keyword)
{
    return line == "*CloseUI: *" + keyword;
}

struct Block
{
    qsizetype begin = -1;
    qsizetype end = -1; ///< behind the last line

    bool exists() const { return begin >= 0 && end > begin; }
};

Block blockOf(const Lines &lines, const QByteArray &keyword)
{
    Block block;
    for (qsizetype index = 0; index < lines.size() && block.end < 0; ++index) {
        if (block.begin < 0 && opens(lines[index], keyword))
            block.begin = index;
        else if (block.begin >= 0 && closes(lines[index], keyword))
            block.end = index + 1;
    }
    return block;
}

template <typename Condition> void dropLines(Lines &lines, Condition condition)
{
    lines.removeIf(condition);
}

/// A line of the option's block, put in front of its choices.
void insertIntoBlock(Lines &lines, const QByteArray &keyword, const QByteArray &line)
{
    const Block block = blockOf(lines, keyword);
    if (block.exists())
        lines.insert(block.begin + 1, line);
}

void drop(Lines &lines, const QJsonObject &edit)
{
    const Block block = blockOf(lines, member(edit, "keyword"));
    if (block.exists())
        lines.remove(block.begin, block.end - block.begin);
}

void dropChoice(Lines &lines, const QJsonObject &edit)
{
    dropLines(lines, [&](const QByteArray &line) {
        return isChoice(line, member(edit, "keyword"), member(edit, "choice"));
    });
}

void noDefault(Lines &lines, const QJsonObject &edit)
{
    dropLines(lines, [&](const QByteArray &line) {
        return isAbout(line, "Default" + member(edit, "keyword"));
    });
}

void changeDefault(Lines &lines, const QJsonObject &edit)
{
    noDefault(lines, edit);
    insertIntoBlock(lines, member(edit, "keyword"),
                    "*Default" + member(edit, "keyword") + ": " + member(edit, "choice"));
}

void only(Lines &lines, const QJsonObject &edit)
{
    const QByteArray keyword = member(edit, "keyword");
    dropLines(lines, [&](const QByteArray &line) {
        return isAbout(line, keyword) && !isChoice(line, keyword, member(edit, "choice"));
    });
    changeDefault(lines, edit);
}

void renameKeyword(Lines &lines, const QJsonObject &edit)
{
    const QByteArray keyword = member(edit, "keyword");
    const QByteArray to = member(edit, "to");
    for (QByteArray &line : lines) {
        if (isAbout(line, keyword))
            line.replace(0, keyword.size() + 1, '*' + to);
        else if (isAbout(line, "Default" + keyword))
            line.replace("*Default" + keyword, "*Default" + to);
        else if (opens(line, keyword) || closes(line, keyword) ||
                 line.startsWith("*OrderDependency"))
            line.replace(" *" + keyword, " *" + to);
    }
}

void renameChoice(Lines &lines, const QJsonObject &edit)
{
    const QByteArray keyword = member(edit, "keyword");
    const QByteArray choice = member(edit, "choice");
    for (QByteArray &line : lines) {
        if (isChoice(line, keyword, choice))
            line.replace(keyword.size() + 2, choice.size(), member(edit, "to"));
        else if (line == "*Default" + keyword + ": " + choice)
            line = "*Default" + keyword + ": " + member(edit, "to");
    }
}

void changeTitle(Lines &lines, const QJsonObject &edit)
{
    for (QByteArray &line : lines) {
        const qsizetype slash = line.indexOf('/');
        const qsizetype colon = line.indexOf(": \"");
        if (isChoice(line, member(edit, "keyword"), member(edit, "choice")) && slash < colon)
            line.replace(slash + 1, colon - slash - 1, member(edit, "to"));
    }
}

void changeType(Lines &lines, const QJsonObject &edit)
{
    for (QByteArray &line : lines)
        if (opens(line, member(edit, "keyword")))
            line = line.left(line.lastIndexOf(' ') + 1) + member(edit, "to");
}

void standTwice(Lines &lines, const QJsonObject &edit)
{
    const Block block = blockOf(lines, member(edit, "keyword"));
    if (!block.exists())
        return;
    const Lines option = lines.mid(block.begin, block.end - block.begin);
    lines += QByteArray("*OpenGroup: Again/Again");
    lines += option;
    lines += QByteArray("*CloseGroup: Again");
}

void addChoice(Lines &lines, const QJsonObject &edit)
{
    const QByteArray keyword = member(edit, "keyword");
    insertIntoBlock(lines, keyword, '*' + keyword + ' ' + member(edit, "choice") + ": \"\"");
}

void changeModel(Lines &lines, const QJsonObject &edit)
{
    for (const char *keyword : {"ModelName", "ShortNickName", "NickName"})
        for (QByteArray &line : lines)
            if (isAbout(line, keyword))
                line = '*' + QByteArray(keyword) + ": \"" + member(edit, "to") + '"';
}

void changeAttribute(Lines &lines, const QJsonObject &edit)
{
    const QByteArray keyword = member(edit, "keyword");
    dropLines(lines, [&](const QByteArray &line) { return isAbout(line, keyword); });
    const Block papers = blockOf(lines, "PageSize");
    if (edit["to"_L1].isString() && papers.exists())
        lines.insert(papers.begin, '*' + keyword + ": \"" + member(edit, "to") + '"');
}

void constrain(Lines &lines, const QJsonObject &edit)
{
    const QByteArray one = member(edit, "one");
    const QByteArray other = member(edit, "other");
    lines += "*UIConstraints: " + one + ' ' + other;
    lines += "*UIConstraints: " + other + ' ' + one;
}

void noCustom(Lines &lines, const QJsonObject &)
{
    dropLines(lines, [](const QByteArray &line) {
        return isAbout(line, "CustomPageSize") || isAbout(line, "ParamCustomPageSize") ||
               isAbout(line, "MaxMediaWidth") || isAbout(line, "MaxMediaHeight");
    });
}

using Edit = void (*)(Lines &lines, const QJsonObject &edit);

const QHash<QString, Edit> &edits()
{
    static const QHash<QString, Edit> table{
        {u"drop"_s, drop},           {u"dropChoice"_s, dropChoice},
        {u"only"_s, only},           {u"default"_s, changeDefault},
        {u"noDefault"_s, noDefault}, {u"rename"_s, renameKeyword},
        {u"title"_s, changeTitle},   {u"renameChoice"_s, renameChoice},
        {u"type"_s, changeType},     {u"twice"_s, standTwice},
        {u"model"_s, changeModel},   {u"attribute"_s, changeAttribute},
        {u"noCustom"_s, noCustom},   {u"constraint"_s, constrain},
        {u"addChoice"_s, addChoice},
    };
    return table;
}

} // namespace

QByteArray preparedPPD(const QJsonObject &recipe, QByteArray base)
{
    Lines lines = base.replace('\r', "").trimmed().split('\n');
    for (const QJsonValue edit : recipe["edits"_L1].toArray()) {
        const Edit make = edits().value(edit["edit"_L1].toString());
        if (!make)
            qFatal("no such edit of a PPD: %s", qPrintable(edit["edit"_L1].toString()));
        make(lines, edit.toObject());
    }
    return lines.join('\n') + '\n';
}

QString baseOfRecipe(const QJsonObject &recipe)
{
    return recipe["base"_L1].toString();
}
