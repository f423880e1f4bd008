#include "tests/sources/IncludeRules.h"

#include <QtCore/QList>
#include <QtCore/QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// What the sources below a folder may include: own headers of itself and of `others`, and of the
/// systems' headers those of Qt Core alone when `onQtCoreAlone` says so.
struct IncludeRule
{
    QString folder;
    QStringList others;
    bool onQtCoreAlone = false;
};

/// The first row counts whose folder the file stands below.
const QList<IncludeRule> &rules()
{
    static const QList<IncludeRule> all{
        {u"printsettings/rules"_s, {}, true},
        {u"colorsettings/rules"_s, {}, true},
        {u"plugin"_s, {u"printsettings"_s, u"colorsettings"_s, u"panel"_s, u"platform"_s}},
        {u"printsettings"_s, {u"panel"_s, u"platform"_s}},
        {u"colorsettings"_s, {u"panel"_s, u"platform"_s}},
        {u"panel"_s, {u"platform"_s}},
        {u"platform"_s, {}},
        {u"dialog/work"_s, {}},
        {u"dialog/pagecount"_s, {}},
        {u"dialog/files"_s, {u"platform"_s, u"dialog/work"_s}},
        {u"dialog/host"_s, {u"platform"_s, u"dialog/work"_s, u"dialog/files"_s}},
        {u"dialog/replay"_s,
         {u"platform"_s, u"dialog/work"_s, u"dialog/files"_s, u"dialog/host"_s}},
        {u"dialog/job"_s, {u"platform"_s, u"dialog/work"_s, u"dialog/files"_s, u"dialog/host"_s}},
        {u"dialog/cups"_s,
         {u"platform"_s, u"dialog/work"_s, u"dialog/files"_s, u"dialog/host"_s, u"dialog/job"_s}},
        {u"dialog/printing"_s,
         {u"platform"_s, u"dialog/work"_s, u"dialog/files"_s, u"dialog/host"_s, u"dialog/job"_s,
          u"dialog/cups"_s}},
        {u"dialog/advice"_s,
         {u"platform"_s, u"dialog/work"_s, u"dialog/files"_s, u"dialog/host"_s, u"dialog/job"_s,
          u"dialog/cups"_s, u"dialog/printing"_s, u"dialog/replay"_s}},
        {u"dialog/keyring"_s, {}},
        {u"dialog/window"_s,
         {u"platform"_s, u"dialog/work"_s, u"dialog/files"_s, u"dialog/host"_s, u"dialog/job"_s,
          u"dialog/cups"_s, u"dialog/printing"_s, u"dialog/replay"_s, u"dialog/advice"_s,
          u"dialog/keyring"_s}},
        {u"dialog/program"_s, {u"platform"_s, u"dialog"_s}},
    };
    return all;
}

bool isBelow(const QString &path, const QString &folder)
{
    return path.startsWith(folder + u'/');
}

bool mayInclude(const IncludeRule &rule, const QString &header)
{
    return isBelow(header, rule.folder) ||
           std::ranges::any_of(rule.others,
                               [&](const QString &one) { return isBelow(header, one); });
}

/// Headers of the systems: the C++ library has no '/' and no '.' in them.
bool mayIncludeSystem(const IncludeRule &rule, const QString &header)
{
    return !rule.onQtCoreAlone || header.startsWith("QtCore/"_L1) ||
           !(header.contains(u'/') || header.contains(u'.'));
}

QString allowedBy(const IncludeRule &rule)
{
    return (QStringList{rule.folder} + rule.others).join(u", "_s) +
           (rule.onQtCoreAlone ? u" and Qt Core"_s : QString());
}

} // namespace

QStringList includeBreaches(const QString &file, const QString &text)
{
    static const QRegularExpression include(u"^\\s*#\\s*include\\s*([\"<])([^\">]+)[\">]"_s);
    const auto rule = std::ranges::find_if(
        rules(), [&](const IncludeRule &one) { return isBelow(file, one.folder); });
    QStringList found;
    if (rule == rules().end())
        return found;
    const QStringList lines = text.split(u'\n');
    for (qsizetype index = 0; index < lines.size(); ++index) {
        const QRegularExpressionMatch match = include.match(lines[index]);
        // A header without a folder is one that the build makes.
        const QString header = match.captured(2);
        const bool isOwn = match.captured(1) == u"\"" && header.contains(u'/');
        const bool isAllowed = isOwn ? mayInclude(*rule, header) : mayIncludeSystem(*rule, header);
        if (match.hasMatch() && !isAllowed)
            found += u"%1:%2: %3: %4 may include %5 alone"_s.arg(file, QString::number(index + 1),
                                                                 lines[index].trimmed(),
                                                                 rule->folder, allowedBy(*rule));
    }
    return found;
}

QStringList foldersWithIncludeRules()
{
    QStringList folders;
    for (const IncludeRule &rule : rules())
        folders += rule.folder;
    return folders;
}
