#include "dialog/job/PrinterFeatures.h"

#include "dialog/job/ReservedNames.h"
#include "platform/ppd/PPDText.h"

#include <algorithm>
#include <array>
#include <span>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kInstalledGroup = "InstallableOptions"_L1;
constexpr auto kTrue = "True"_L1;
constexpr auto kFalse = "False"_L1;
constexpr std::array kNoChoice{"None"_L1, "Off"_L1, "False"_L1};

// The paper is chosen in the page setup.
constexpr std::array kPaperKeywords{"PageSize"_L1, "PageRegion"_L1};

bool isSwitch(ppd_option_t &option)
{
    return option.ui == PPD_UI_BOOLEAN && option.num_choices == 2 && findChoice(&option, kTrue) &&
           findChoice(&option, kFalse);
}

PrinterFeature::Kind kindOf(ppd_option_t &option)
{
    if (option.ui == PPD_UI_PICKMANY)
        return PrinterFeature::Kind::Many;
    return isSwitch(option) ? PrinterFeature::Kind::Switch : PrinterFeature::Kind::One;
}

bool isAmong(const QString &name, const QStringList &names)
{
    return names.contains(name, Qt::CaseInsensitive);
}

bool isPaper(const QString &keyword)
{
    return std::ranges::any_of(kPaperKeywords,
                               [&](QLatin1String paper) { return isSameName(keyword, paper); });
}

bool hasSomethingToChoose(const ppd_option_t &option)
{
    return option.num_choices > (option.ui == PPD_UI_PICKMANY ? 0 : 1);
}

class FeatureCollector
{
public:
    FeatureCollector(ppd_file_t *ppd, const QStringList &leftOut) : m_ppd(ppd), m_leftOut(leftOut)
    {}

    void addGroups(std::span<ppd_group_t> groups)
    {
        for (const ppd_group_t &group : groups) {
            const bool isInstalled = isSameName(ppdName(group.name), kInstalledGroup);
            FeatureGroup made{ppdText(group.text), isInstalled, {}};
            for (ppd_option_t &option : std::span(group.options, size(group.num_options)))
                if (isOffered(option, isInstalled))
                    made.features += PrinterFeature{ppdName(option.keyword), ppdText(option.text),
                                                    kindOf(option)};
            if (!made.features.isEmpty())
                m_groups += made;
            addGroups(std::span(group.subgroups, size(group.num_subgroups)));
        }
    }

    QList<FeatureGroup> take()
    {
        std::ranges::stable_sort(m_groups, {}, &FeatureGroup::isInstalled);
        return std::move(m_groups);
    }

private:
    static std::size_t size(int count) { return static_cast<std::size_t>(std::max(0, count)); }

    bool isOffered(const ppd_option_t &option, bool isInstalled) const
    {
        const QString keyword = ppdName(option.keyword);
        // Of several options of one keyword libcups finds one.
        const bool isFound = ppdFindOption(m_ppd, option.keyword) == &option;
        if (!isFound || isPaper(keyword) || isAmong(keyword, m_leftOut))
            return false;
        return isInstalled ? option.num_choices > 0
                           : hasSomethingToChoose(option) && !isReservedName(keyword);
    }

    ppd_file_t *m_ppd;
    const QStringList &m_leftOut;
    QList<FeatureGroup> m_groups;
};

/// The choice of a feature of many that stands for none of them; null without one.
QString noChoice(ppd_option_t *option)
{
    for (const QLatin1String name : kNoChoice)
        if (const ppd_choice_t *found = findChoice(option, name))
            return ppdName(found->choice);
    return {};
}

} // namespace

QList<FeatureGroup> printerFeatures(ppd_file_t *ppd, const QStringList &leftOut)
{
    if (!ppd)
        return {};
    FeatureCollector collector(ppd, leftOut);
    collector.addGroups(std::span(ppd->groups, static_cast<std::size_t>(ppd->num_groups)));
    return collector.take();
}

QString switchChoice(ppd_file_t *ppd, const PrinterFeature &feature, bool isOn)
{
    const ppd_choice_t *found = findChoice(findOption(ppd, feature.keyword), isOn ? kTrue : kFalse);
    return found ? ppdName(found->choice) : QString();
}

QStringList markedChoices(ppd_file_t *ppd, const PrinterFeature &feature)
{
    const QString single = markedChoice(ppd, feature.keyword);
    if (feature.kind != PrinterFeature::Kind::Many)
        return single.isNull() ? QStringList() : QStringList(single);
    QStringList marked;
    const ppd_option_t *option = findOption(ppd, feature.keyword);
    for (int index = 0; option && index < option->num_choices; ++index)
        if (option->choices[index].marked)
            marked += ppdName(option->choices[index].choice);
    return marked;
}

QStringList choicesAfter(ppd_file_t *ppd, const PrinterFeature &feature, const QString &choice,
                         bool isTicked)
{
    const QString none = noChoice(findOption(ppd, feature.keyword));
    QStringList choices = markedChoices(ppd, feature);
    choices.removeAll(choice);
    if (isTicked && choice == none)
        return {none};
    if (isTicked) {
        choices.removeAll(none);
        choices += choice;
    }
    if (choices.isEmpty() && !none.isNull())
        choices += none;
    return choices;
}
