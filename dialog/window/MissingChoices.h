#pragma once

#include "dialog/host/PPDMarks.h"

#include <QtCore/QList>
#include <QtCore/QString>

struct HostPanel;
class PrintJob;
class QWidget;

/// The keyword whose control the part of the panel's view is, or is in; null without one.
QString settingOf(const HostPanel &panel, const QWidget *part);

/// The choices of the setting (null: of all that the panel has a control for) that the PPD has and
/// that cannot be picked now, though the control is shown: in the order of the panel and of the
/// PPD. What stands for a choice that can be picked is none of them, nor is the marked one.
QList<PPDMark> missingChoices(const PrintJob &job, const HostPanel &panel, const QString &keyword);
