#include "dialog/window/OwnQuestion.h"

#include "platform/toolkit/AlertObserver.h"

int askOwn(const AlertContent &question)
{
    const UnobservedAlerts own;
    return runAlert(question).button;
}
