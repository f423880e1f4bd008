#include "platform/foundation/UserDefaults.h"
#include "platform/printmanager/PMPrintSettings.h"
#include "printsettings/rules/ControlStates.h"
#include "printsettings/rules/DiscMedia.h"
#include "printsettings/rules/MediaQuality.h"
#include "printsettings/rules/PaperNames.h"
#include "tests/printsettings/PanelSnapshot.h"

#include <algorithm>
#include <map>
#include <utility>

using namespace Qt::StringLiterals;

// From every start state (paper, two-sided printing, colour matching, fax, medium, quality) every
// single pick is made through the real widgets. After each one
//   - the selected quality is an enabled item, and what is pending is what the dialog has marked;
//   - every pop-up that has enabled items can be changed;
//   - the qualities, the media and the boxes are those that the rules decide (rules/), by
//   themselves;
//   - a refresh changes nothing more and offers the dialog nothing but the direction, which it is
//     always told again.
// Where the panel's own steps make the last one fail, the case stands in the table of exceptions by
// name, with its reason and with what it may change; it must occur, and one refresh must settle it.

namespace {

struct Start
{
    QString paper;
    bool duplex;
    bool vendorColors;
    bool fax;
};

// One pick, and how the panel stands after it.
struct Pick
{
    QString keyword;
    QString choice;
    bool duplex;
    bool disc;
    bool directionLeftAlone; ///< envelope or postcard
    QString shownMedium;
    QString shownQuality;
};

struct Exception
{
    QString name;
    QString reason;
    bool (*applies)(const Pick &);
    QStringList changes; ///< what a refresh may change; empty: anything
    QStringList offers;  ///< what a refresh may offer beside the direction
};

bool isOneWay(const Pick &pick)
{
    return pick.directionLeftAlone || pick.shownQuality == "Best"_L1;
}

const std::vector<Exception> &exceptions()
{
    static const std::vector<Exception> table = {
        {u"two-sided printing on a disc"_s,
         u"The constraints put the disc's medium in the place of the two-sided one and back again: "
         "each refresh offers both."_s,
         [](const Pick &pick) { return pick.duplex && pick.disc; },
         {},
         {u"VKMediaType=PrintableDisc"_s, u"VKMediaType=PlainDuplex"_s,
          u"VKResolution=DiscNormal"_s, u"VKResolution=PlainNormal"_s}},
        {u"two-sided printing beside another medium"_s,
         u"The two-sided medium is committed whatever the pop-up shows; a refresh shows plain "
         u"paper, "
         "and everything that depends on the shown medium follows."_s,
         [](const Pick &pick) { return pick.duplex && pick.shownMedium != "Plain"_L1; },
         {},
         {u"VKResolution=PlainNormal"_s, u"VKResolution=Best"_s}},
        {u"a medium that the disc rules do not name"_s,
         u"VelkaroGlossy stays enabled on a disc; picked, it is replaced and then committed from "
         u"the "
         "pop-up, which only a refresh brings back to the disc."_s,
         [](const Pick &pick) { return pick.disc && pick.shownMedium == "VelkaroGlossy"_L1; },
         {},
         {u"VKMediaType=PrintableDisc"_s, u"VKResolution=DiscNormal"_s}},
        {u"a thickness for plain paper that prints in one direction"_s,
         u"The thickness turns the direction on; the box is disabled by the best quality, an "
         "envelope or a postcard, and the read-back turns it off."_s,
         [](const Pick &pick) {
             return pick.keyword == "VKColorPaperThick"_L1 && isOneWay(pick) &&
                    isKindOfPlainPaper(pick.shownMedium);
         },
         {u"pending VKBiDir"_s, u"marked VKBiDir"_s, u"biDirButton"_s},
         {}},
        {u"plain paper picked on an envelope or a postcard"_s,
         u"The medium's defaults tick the disabled box of the direction; pending is off, and a "
         "refresh shows it."_s,
         [](const Pick &pick) {
             return pick.directionLeftAlone && isKindOfPlainPaper(pick.shownMedium);
         },
         {u"biDirButton"_s},
         {}},
    };
    return table;
}

std::vector<Start> starts()
{
    std::vector<Start> all;
    for (const QString &paper : {u"A4"_s, u"A4.Fullbleed"_s, u"A3.Fullbleed"_s, u"120x120mm"_s,
                                 u"EnvDL"_s, u"Postcard"_s, u"VkHagaki_B"_s, u"Custom.300x400"_s}) {
        for (const bool duplex : {false, true}) {
            for (const bool vendorColors : {false, true}) {
                for (const bool fax : {false, true})
                    all.push_back({paper, duplex, vendorColors, fax});
            }
        }
    }
    return all;
}

class ExhaustiveWalk : public PrintPanelTest
{
protected:
    void begin(const Start &start)
    {
        useSample(u"velkaro-px-t900"_s);
        if (start.fax)
            session->mark(u"VKOutput"_s, u"FAX"_s);
        if (start.duplex)
            ppdMarkOption(session->ppd(), "Duplex", "DuplexNoTumble");
        if (!start.vendorColors)
            PMPrintSettingsSetValue(&session->host()->ticket(), u"AP_ColorMatchingMode"_s,
                                    u"AP_ApplicationColorMatching"_s, false);
        // A walk would raise it thousands of times.
        UserDefaults::standardUserDefaults().setPersistentDomain({{u"Best Alert"_s, false}},
                                                                 u"com.velkaro.print.pde"_s);
        show();
        const bool custom = start.paper.startsWith(u"Custom"_s);
        session->changePaper(start.paper, custom ? QString() : start.paper, {300, 400});
        controls = std::make_unique<PanelControls>(*panel);
        media = popup(u"mediaTypePopup"_s);
        qualities = popup(u"resolutionPopup"_s);
        startName = u"%1%2%3%4"_s.arg(start.paper, start.duplex ? u" two-sided"_s : u""_s,
                                      start.vendorColors ? u""_s : u" colours by application"_s,
                                      start.fax ? u" fax"_s : u""_s);
    }

    PanelSnapshot snapshot() const { return {*panel, *session, *controls}; }
    void restore(const PanelSnapshot &state) { state.restore(*panel, *session, *controls); }

    // None in a pop-up that is disabled as a whole, as all are in a fax job.
    static QStringList enabledChoices(const PopUpButton &button)
    {
        QStringList choices;
        for (int index = 0; button.isEnabled() && index < button.count(); ++index) {
            if (button.isItemEnabled(index))
                choices << button.representedObject(index);
        }
        return choices;
    }

    void walk()
    {
        const PanelSnapshot first = snapshot();
        for (const QString &medium : enabledChoices(*media)) {
            restore(first);
            pickChoice(media, medium);
            const PanelSnapshot ofMedium = snapshot();
            for (const QString &quality : enabledChoices(*qualities)) {
                restore(ofMedium);
                pickChoice(qualities, quality);
                pickEverything();
            }
        }
        restore(first);
    }

    void pickEverything()
    {
        const PanelSnapshot start = snapshot();
        for (PopUpButton *button : controls->popups) {
            for (const QString &choice : enabledChoices(*button)) {
                pickChoice(button, choice);
                check(button, choice);
                restore(start);
            }
        }
        for (QAbstractButton *button : controls->boxes) {
            if (!button->isEnabled())
                continue;
            button->click();
            check(button, stateOf(button));
            restore(start);
        }
    }

    void check(QWidget *control, const QString &choice)
    {
        ++picks;
        pick = {panel->determineKey(control),   choice,
                panel->hasFlag(DuplexOn),       panel->hasFlag(DiscPaper),
                panel->hasFlag(BiDirLeftAlone), media->selectedObject(),
                qualities->selectedObject()};
        if (!qualities->isItemEnabled(qualities->currentIndex()))
            fault(u"the selected quality is disabled: "_s + itemsOf(qualities));
        for (const PopUpButton *button : controls->popups) {
            if (!button->isEnabled() && !panel->hasFlag(FaxOutput))
                fault(u"unusable: "_s + button->objectName());
        }
        const PanelSnapshot after = snapshot();
        if (after.pending() != after.marks())
            fault(u"what is pending is not what is marked"_s);
        checkAgreement(false);
        checkRefresh(after);
    }

    // What the widgets show against what the rules say of the medium and the quality on screen.
    void checkAgreement(bool refreshed)
    {
        if (panel->hasFlag(FaxOutput))
            return;
        const QString when = refreshed ? u"after a refresh"_s : u"after the pick"_s;
        checkQualities(when);
        checkMedia(when);
        ControlFacts facts;
        facts.mediaType = media->selectedObject();
        facts.quality = qualities->selectedObject();
        facts.directionLeftAlone = panel->hasFlag(BiDirLeftAlone);
        facts.slowDryingUnavailable = panel->hasFlag(SlowDryingUnavailable);
        facts.transparenciesPending = panel->hasFlag(TransparenciesMedium);
        const ControlStates states = controlStates(facts);
        const std::pair<QString, BoxState> boxes[] = {{u"biDirButton"_s, states.direction},
                                                      {u"slowDryButton"_s, states.slowDrying},
                                                      {u"mirrorButton"_s, states.mirror}};
        for (const auto &[name, state] : boxes) {
            if (!isInState(*box(name), state) && (refreshed || !mayChange(name)))
                fault(u"otherwise than by the rules "_s + when + u": "_s + name);
        }
    }

    void checkQualities(const QString &when)
    {
        QStringList shown;
        QStringList disabled;
        for (int index = 0; index < qualities->count(); ++index) {
            shown << qualities->representedObject(index);
            if (!qualities->isItemEnabled(index))
                disabled << shown.last();
        }
        const AllowedQualities allowed = allowedQualities(
            media->selectedObject(), panel->hasFlag(DiscPaper), panel->hasFlag(DuplexOn));
        if (shown != allowed.qualities)
            fault(u"other qualities than the rules' "_s + when + u": "_s + shown.join(u' '));
        QStringList expected;
        if (panel->hasFlag(BorderlessPaper)) {
            for (const QString &quality : unavailableWithoutBorders(panel->paperName)) {
                if (shown.contains(quality))
                    expected << quality;
            }
        }
        if (disabled != expected)
            fault(u"other qualities disabled than by the rules "_s + when + u": "_s +
                  disabled.join(u' '));
    }

    void checkMedia(const QString &when)
    {
        const bool disc = panel->hasFlag(DiscPaper);
        std::map<QString, bool> enabled;
        for (const MediaChange &change : shownMedia(disc, panel->hasFlag(BorderlessPaper))) {
            for (const QString &medium : change.media)
                enabled[medium] = change.enable;
        }
        for (const auto &[medium, expected] : enabled) {
            const int index = media->indexOfRepresentedObject(medium);
            if (index >= 0 && media->isItemEnabled(index) != expected)
                fault(u"enabled otherwise than by the rules "_s + when + u": "_s + medium);
        }
    }

    static bool isInState(const QAbstractButton &button, BoxState state)
    {
        return button.isEnabled() == (state == BoxState::Usable) &&
               !(state == BoxState::DisabledAndOff && button.isChecked());
    }

    void checkRefresh(const PanelSnapshot &after)
    {
        log();
        panel->restoreValuesAndReturnError(nullptr);
        const QStringList offers = session->log().takeOffers();
        const PanelSnapshot refreshed = snapshot();
        checkAgreement(true);
        const QStringList changes = after.differences(refreshed);
        const Exception *exception = exceptionFor(changes, offers);
        for (const QString &change : changes) {
            if (!exception || !isAllowed(*exception, change))
                fault(u"a refresh changes "_s + change);
        }
        for (const QString &offer : offers) {
            if (!isToldAgain(offer) && !(exception && exception->offers.contains(offer)))
                fault(u"a refresh offers "_s + offer);
        }
        if (exception)
            checkSettled(*exception, refreshed);
    }

    // Once refreshed, an exception changes nothing more either.
    void checkSettled(const Exception &exception, const PanelSnapshot &refreshed)
    {
        ++occurrences[exception.name];
        panel->restoreValuesAndReturnError(nullptr);
        for (const QString &change : refreshed.differences(snapshot()))
            fault(exception.name + u": a second refresh changes "_s + change);
        log();
    }

    // What an exception lets a refresh change need not be as the rules say before it.
    bool mayChange(const QString &control) const
    {
        return std::any_of(exceptions().begin(), exceptions().end(),
                           [&](const Exception &exception) {
                               return exception.applies(pick) && isAllowed(exception, control);
                           });
    }

    const Exception *exceptionFor(const QStringList &changes, const QStringList &offers) const
    {
        const bool steady =
            changes.isEmpty() && std::all_of(offers.begin(), offers.end(), isToldAgain);
        if (steady)
            return nullptr;
        for (const Exception &exception : exceptions()) {
            if (exception.applies(pick))
                return &exception;
        }
        return nullptr;
    }

    static bool isToldAgain(const QString &offer) { return offer.startsWith(u"VKBiDir="_s); }

    static bool isAllowed(const Exception &exception, const QString &change)
    {
        return exception.changes.isEmpty() ||
               exception.changes.contains(change.section(u": "_s, 0, 0));
    }

    // Kept once each with an example: a broken rule breaks thousands of picks.
    void fault(const QString &what)
    {
        faults.try_emplace(what, startName + u", "_s + pick.shownMedium + u'/' + pick.shownQuality +
                                     u", picked "_s + pick.keyword + u'=' + pick.choice);
    }

    std::unique_ptr<PanelControls> controls;
    PopUpButton *media = nullptr;
    PopUpButton *qualities = nullptr;
    QString startName;
    Pick pick;
    int picks = 0;
    std::map<QString, int> occurrences;
    std::map<QString, QString> faults;
};

TEST_F(ExhaustiveWalk, EveryPickLeavesThePanelConsistentAndUsable)
{
    for (const Start &start : starts()) {
        const int before = picks;
        begin(start);
        walk();
        EXPECT_EQ(picks > before, !start.fax) << qPrintable(startName);
    }
    for (const auto &[what, where] : faults)
        ADD_FAILURE() << qPrintable(what) << "\n  " << qPrintable(where);
    for (const Exception &exception : exceptions()) {
        EXPECT_GT(occurrences[exception.name], 0)
            << qPrintable(exception.name) << ": " << qPrintable(exception.reason);
        RecordProperty(exception.name.toStdString(), occurrences[exception.name]);
    }
    RecordProperty("picks", picks);
}

} // namespace
