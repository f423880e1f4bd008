#include "dialog/host/PrinterMatch.h"

#include "platform/ppd/PPDText.h"

#include <algorithm>
#include <fnmatch.h>

using namespace Qt::StringLiterals;

namespace {

void addKeywords(const ppd_group_t *groups, int count, QStringList &keywords)
{
    for (int group = 0; group < count; ++group) {
        for (int option = 0; option < groups[group].num_options; ++option)
            keywords << ppdName(groups[group].options[option].keyword);
        addKeywords(groups[group].subgroups, groups[group].num_subgroups, keywords);
    }
}

/// Most patterns are plain names, for which fnmatch() would have the locale's letters loaded.
bool isPlain(const QString &pattern)
{
    return std::ranges::none_of(pattern, [](QChar sign) { return u"*?[\\"_s.contains(sign); });
}

bool fits(const QVariant &value, const QString &text)
{
    const QString pattern = value.toString();
    if (isPlain(pattern))
        return text.compare(pattern, Qt::CaseInsensitive) == 0;
    return fnmatch(pattern.toUtf8().constData(), text.toUtf8().constData(), FNM_CASEFOLD) == 0;
}

bool fitsAttributes(const QVariant &patterns, const PrinterFacts &facts)
{
    const QVariantMap wanted = patterns.toMap();
    const auto isThere = [&](const QString &name) {
        return std::ranges::any_of(facts.attributes, [&](const PrinterFacts::Attribute &found) {
            return found.name.compare(name, Qt::CaseInsensitive) == 0 &&
                   fits(wanted[name], found.value);
        });
    };
    return !wanted.isEmpty() && std::ranges::all_of(wanted.keys(), isThere);
}

bool fitsKeyword(const QVariant &pattern, const PrinterFacts &facts)
{
    return std::ranges::any_of(facts.keywords,
                               [&](const QString &keyword) { return fits(pattern, keyword); });
}

bool fitsManufacturer(const QVariant &pattern, const PrinterFacts &facts)
{
    return fits(pattern, facts.manufacturer);
}

bool fitsModel(const QVariant &pattern, const PrinterFacts &facts)
{
    return fits(pattern, facts.model);
}

struct Member
{
    QLatin1String name;
    bool (*fits)(const QVariant &pattern, const PrinterFacts &facts);
    bool namesTheModel; ///< whether its characters count for how close the match is
};

constexpr Member kMembers[] = {
    {"Manufacturer"_L1, fitsManufacturer, true},
    {"Model"_L1, fitsModel, true},
    {"Keyword"_L1, fitsKeyword, false},
    {"Attributes"_L1, fitsAttributes, false},
};

const Member *memberNamed(const QString &name)
{
    const auto *found = std::ranges::find(kMembers, name, &Member::name);
    return found == std::end(kMembers) ? nullptr : found;
}

bool fits(const QVariantMap &description, const PrinterFacts &facts)
{
    const auto memberFits = [&](const QString &name) {
        const Member *member = memberNamed(name);
        return member && member->fits(description[name], facts);
    };
    return !description.isEmpty() && std::ranges::all_of(description.keys(), memberFits);
}

qsizetype charactersNamed(const QString &pattern)
{
    return pattern.size() - pattern.count(u'*') - pattern.count(u'?');
}

qsizetype charactersNamed(const QVariantMap &description)
{
    qsizetype named = 0;
    for (const Member &member : kMembers) {
        if (member.namesTheModel)
            named += charactersNamed(description[member.name].toString());
    }
    return named;
}

} // namespace

PrinterFacts printerFacts(ppd_file_t *ppd)
{
    PrinterFacts facts{ppdText(ppd->manufacturer),
                       ppdText(ppd->modelname ? ppd->modelname : ppd->nickname),
                       {},
                       {}};
    addKeywords(ppd->groups, ppd->num_groups, facts.keywords);
    for (int index = 0; index < ppd->num_attrs; ++index)
        facts.attributes += {ppdName(ppd->attrs[index]->name), ppdText(ppd->attrs[index]->value)};
    return facts;
}

std::optional<qsizetype> matchLength(const QVariant &printers, const PrinterFacts &facts)
{
    std::optional<qsizetype> longest;
    for (const QVariant &printer : printers.toList()) {
        const QVariantMap description = printer.toMap();
        const qsizetype length = charactersNamed(description);
        if (length > longest && fits(description, facts)) // none is less than any
            longest = length;
    }
    return longest;
}

QString bestBundle(const QList<BundleCandidate> &candidates, const PrinterFacts &facts)
{
    QString best;
    std::optional<qsizetype> longest;
    for (const BundleCandidate &candidate : candidates) {
        const std::optional<qsizetype> length = matchLength(candidate.printers, facts);
        if (length > longest) {
            longest = length;
            best = candidate.path;
        }
    }
    return best;
}
