#include "dialog/window/SetupPopUp.h"

#include "platform/ppd/PPDText.h"

namespace {

constexpr int kContentsLength = 30; // characters: a pop-up does not measure hundreds of texts

} // namespace

PopUpButton *newSetupPopUp(const QString &name, QWidget *parent)
{
    auto *popup = new PopUpButton(parent);
    shapeSetupPopUp(popup, name);
    return popup;
}

void shapeSetupPopUp(PopUpButton *popup, const QString &name)
{
    popup->setObjectName(name);
    popup->setMinimumContentsLength(kContentsLength);
}

std::vector<PopUpButton::Item> itemsOf(const ppd_option_t *option)
{
    std::vector<PopUpButton::Item> items;
    for (int index = 0; option && index < option->num_choices; ++index) {
        const ppd_choice_t &choice = option->choices[index];
        items.push_back({ppdText(choice.text), ppdName(choice.choice)});
    }
    return items;
}

void showChoice(PopUpButton *popup, const QString &choice)
{
    popup->setCurrentIndex(popup->indexOfRepresentedObject(choice));
}
