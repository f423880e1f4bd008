#pragma once

#include <QtCore/QString>

#include <array>
#include <functional>

class QWidget;

/// One of two radio buttons.
struct RadioTitle
{
    QString name; ///< of the object
    QString title;
};

/// Two radio buttons side by side; `chosen` is called with the index of the one that was clicked.
QWidget *newRadioPair(const std::array<RadioTitle, 2> &titles, int checked,
                      const std::function<void(int)> &chosen);
