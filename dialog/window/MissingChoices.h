#pragma once

#include "dialog/host/PPDMarks.h"

#include <QtCore/QList>

struct HostPanel;
class PrintJob;
class QWidget;

/// The choices of the PPD that a panel has a control for and that cannot be picked there now,
/// though the control is shown: in the order of the panel and of the PPD. `part` is the widget of
/// the view that is asked about; null, or one without a setting: the whole view. What stands for a
/// choice that can be picked is none of them, nor is the marked one.
QList<PPDMark> missingChoices(const PrintJob &job, const HostPanel &panel, const QWidget *part);
