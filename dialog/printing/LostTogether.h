#pragma once

#include "dialog/printing/PrintWishes.h"

class PrintJob;

/// Those of the settings, which the job has, that it would not have if they were asked for together
/// with the wanted ones: panels may leave what was saved alone, and change it when it is picked.
/// That is tried out in a copy of this process, in which the caller's is the only thread.
QList<RequestedChoice> lostTogether(PrintJob &job, const QList<RequestedChoice> &settings,
                                    const QList<RequestedChoice> &wanted);
