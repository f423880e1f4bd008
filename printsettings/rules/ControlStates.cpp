#include "printsettings/rules/ControlStates.h"

#include "printsettings/rules/PrintDirection.h"

ControlStates controlStates(const ControlFacts &facts)
{
    ControlStates states;
    if (printsInOneDirection(facts.mediaType, facts.quality))
        states.direction = BoxState::DisabledAndOff;
    else if (facts.directionLeftAlone)
        states.direction = BoxState::Disabled;
    if (facts.slowDryingUnavailable)
        states.slowDrying = BoxState::DisabledAndOff;
    if (facts.transparenciesPending)
        states.mirror = BoxState::Disabled;
    states.jpeg = !facts.jpegUnavailable;
    return states;
}
