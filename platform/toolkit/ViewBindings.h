#pragma once

#include "platform/Export.h"

#include <QtCore/QString>

class ObservableDictionary;
class QWidget;

/// Binds a control to keys of the dictionary as its dynamic properties say:
///
///   bind.value      KEY             the control's value (both ways)
///   bind.enabled    KEY[,KEY...]    enabled when all of them are true
///   bind.hidden     [!]KEY          hidden when the value is true (with "!": when it is not)
///   bind.textColor  NAME:KEY[,...]  the text colour that the value transformer NAME gives
///
/// A key without an entry counts as false. What is bound is brought up to date at once, except for
/// values: a control keeps what the view resource gave it until its key is first written.
VELKARO_PLATFORM_EXPORT void bindView(QWidget *control, ObservableDictionary &dictionary);
