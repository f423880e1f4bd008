#pragma once

#include <QtCore/QStringList>

class PrintJob;
struct PrinterCondition;

/// What a person should know of the printer before the job goes there, one sentence each: that it
/// is a class of different models, what the job needs and is used up or low, and that its paper is
/// not in the tray.
QStringList doubtsAboutPrinter(const PrintJob &job, const PrinterCondition &printer);

/// The loaded media in words, each once: by the names of the job's printer where it has such
/// papers.
QStringList loadedTexts(const PrintJob &job, const PrinterCondition &printer);
