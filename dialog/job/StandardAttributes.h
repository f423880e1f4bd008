#pragma once

#include "dialog/host/AttributeRules.h"
#include "dialog/job/JobOption.h"
#include "platform/ppd/CupsPPD.h"

#include <QtCore/QList>

/// The rules that hold for a printer: those of its plug-in, then those of the PPD (null: none)
/// itself, which are its presets (`APPrinterPreset`) and what it does to finished sheets
/// (`cupsIPPFinishings`), then those for the keywords that CUPS itself defines.
QList<AttributeRule> attributeRulesFor(ppd_file_t *ppd, const QList<AttributeRule> &ofPlugIn);

/// The standard IPP attributes that say the same as the marks, where one of the choices that they
/// follow from is sent. For each attribute the first rule counts; `finishings` may be several.
///
/// A server adds `print-color-mode=color` to a job that says nothing of it, `finishings=3`, and
/// whatever its queue has as a default: so a grey job would contradict itself.
QList<JobOption> standardAttributes(const QList<PPDMark> &marks, const QList<JobOption> &sent,
                                    const QList<AttributeRule> &rules);
