#include "panel/ListedChoices.h"

#include "platform/ppd/PPDText.h"

bool isListedChoice(const QString &name, const QString &text)
{
    return !text.isNull() && !text.startsWith(QLatin1String("Hagaki")) &&
           name != QLatin1String("PlainDuplex");
}

std::vector<PopUpButton::Item> listedChoices(const ppd_option_t &option)
{
    std::vector<PopUpButton::Item> items;
    items.reserve(static_cast<std::size_t>(option.num_choices));
    for (int index = 0; index < option.num_choices; ++index) {
        const ppd_choice_t &choice = option.choices[index];
        const QString name = ppdName(choice.choice);
        const QString text = ppdText(choice.text);
        if (isListedChoice(name, text))
            items.push_back({text, name});
    }
    return items;
}
