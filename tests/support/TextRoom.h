#pragma once

#include <QtCore/QStringList>

class QWidget;

/// What cannot be read whole in what is shown of a window: a label, a button, a tab, the choice of
/// a pop-up or the numbers of a field that has less room than it needs, lies over another one, or
/// sticks out of what holds it. One line each, with class, name, text and the pixels that are
/// missing; none where all is well. What can be scrolled to is in sight, and so is a choice that is
/// not made: pop-ups are judged by all of theirs.
QStringList cutTexts(QWidget &window);
