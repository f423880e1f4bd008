#include "dialog/window/RadioPair.h"

#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QRadioButton>

QWidget *newRadioPair(const std::array<RadioTitle, 2> &titles, int checked,
                      const std::function<void(int)> &chosen)
{
    auto *row = new QWidget;
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *group = new QButtonGroup(row);
    for (int index = 0; const RadioTitle &title : titles) {
        auto *button = new QRadioButton(title.title, row);
        button->setObjectName(title.name);
        button->setChecked(index == checked);
        group->addButton(button, index++);
        layout->addWidget(button);
    }
    layout->addStretch(1);
    QObject::connect(group, &QButtonGroup::idClicked, row, chosen);
    return row;
}
