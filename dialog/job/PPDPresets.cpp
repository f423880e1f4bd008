#include "dialog/job/PPDPresets.h"

#include "dialog/job/ReservedNames.h"
#include "platform/ppd/PPDText.h"

#include <QtCore/QStringList>

#include <algorithm>

namespace {

constexpr auto kPresetAttribute = "APPrinterPreset";

/// The choices that the value names, "*KEYWORD CHOICE" in pairs. What stands between them describes
/// the preset to other programs: identifiers, each with a value.
QList<JobOption> optionsOf(ppd_file_t *ppd, const char *value)
{
    QList<JobOption> options;
    const QStringList words = ppdText(value).split(u' ', Qt::SkipEmptyParts);
    for (qsizetype index = 0; index + 1 < words.size(); ++index) {
        if (!words[index].startsWith(u'*'))
            continue;
        ppd_option_t *option = findOption(ppd, words[index].mid(1));
        const ppd_choice_t *choice = findChoice(option, words[index + 1]);
        if (choice && !isReservedName(ppdName(option->keyword)))
            options += JobOption{ppdName(option->keyword), ppdName(choice->choice)};
    }
    return options;
}

/// The preset's text in the language that the PPD's other texts are in.
QString textOf(ppd_file_t *ppd, const ppd_attr_t &preset)
{
    const ppd_attr_t *localized = ppdLocalizeAttr(ppd, kPresetAttribute, preset.spec);
    const QString text = ppdText(localized ? localized->text : preset.text);
    return text.isEmpty() ? ppdName(preset.spec) : text;
}

} // namespace

QList<PPDPreset> presetsOf(ppd_file_t *ppd)
{
    QList<PPDPreset> presets;
    for (const ppd_attr_t *attribute = ppd ? ppdFindAttr(ppd, kPresetAttribute, nullptr) : nullptr;
         attribute; attribute = ppdFindNextAttr(ppd, kPresetAttribute, nullptr)) {
        PPDPreset preset{ppdName(attribute->spec), {}, optionsOf(ppd, attribute->value)};
        const bool isKnown =
            std::ranges::find(presets, preset.name, &PPDPreset::name) != presets.end();
        if (!preset.options.isEmpty() && !isKnown)
            presets += preset;
    }
    // Looking texts up moves on in the list of attributes.
    for (PPDPreset &preset : presets)
        preset.text =
            textOf(ppd, *ppdFindAttr(ppd, kPresetAttribute, preset.name.toLatin1().constData()));
    return presets;
}
