#include "colorsettings/ColorPPDCheck.h"

#include "colorsettings/ColorControls.h"
#include "colorsettings/rules/TicketColors.h"
#include "panel/PPDCheck.h"
#include "platform/foundation/Bundle.h"
#include "platform/printmanager/PMTicketKeys.h"

using namespace Qt::StringLiterals;

void checkColorSettings(PPDCheck &check, const Bundle &bundle)
{
    const QString matching = u"VKColorMatching"_s;
    check.expectChoices(matching, {matchingChoice(true), matchingChoice(false)});
    for (const QString &choice : check.choices(matching)) {
        if (bundle.pathForResource(choice, u"tiff"_s).isNull())
            check.note("PPD Picture"_L1, {matching, choice});
    }
    check.expectSpelling(u"VKHalfTonePattern"_s, {halftoneChoice(false), halftoneChoice(true)});
    check.expectControls(kColorControlTable);
    if (check.has(matching))
        check.expectAttribute(matching, kPMCustomColorMatchingAttribute);
}
