#include "dialog/window/RadioPair.h"

#include "dialog/window/FlowLayout.h"

#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QRadioButton>

QWidget *newRadioPair(const std::array<RadioTitle, 2> &titles, int checked,
                      const std::function<void(int)> &chosen)
{
    auto *row = new QWidget;
    auto *layout = new FlowLayout(row);
    auto *group = new QButtonGroup(row);
    for (int index = 0; const RadioTitle &title : titles) {
        auto *button = new QRadioButton(title.title, row);
        button->setObjectName(title.name);
        button->setChecked(index == checked);
        group->addButton(button, index++);
        layout->addWidget(button);
    }
    QObject::connect(group, &QButtonGroup::idClicked, row, chosen);
    return row;
}
