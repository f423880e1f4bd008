#pragma once

#include "dialog/printing/PrintWishes.h"
#include "dialog/work/Result.h"

#include <functional>

class PrintJob;

/// Makes all the settings that were asked for, in an order of its own: in whichever order they were
/// asked for, they come to the same job or to the same fault. A setting that others stand in the
/// way of is tried again after them. `madeOne` is told of each that was tried.
///
/// A fault of kind Request tells the first setting that the printer does not have, or that was
/// asked for in two ways; the other ones are made all the same. A fault of kind Vetoed tells all
/// that could not be had, in sentences one behind the other.
Result<> makeSettings(PrintJob &job, const QList<RequestedChoice> &wanted,
                      const std::function<void(const RequestedChoice &)> &madeOne = {});

/// Those of the settings that the printer has, by its names, and the job has not.
QList<RequestedChoice> lostSettings(const PrintJob &job, const QList<RequestedChoice> &wanted);
