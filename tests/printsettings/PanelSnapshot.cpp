#include "tests/printsettings/PanelSnapshot.h"

#include "dialog/host/PPDMarks.h"

using namespace Qt::StringLiterals;

namespace {

QVariantMap marksOf(const TestedPanel &panel, PanelSession &session)
{
    QVariantMap marks;
    for (const QString &keyword : panel.supportedPPDOptionKeys().value_or(QStringList()))
        marks.insert(keyword, session.marked(keyword));
    return marks;
}

void compare(QStringList &differences, const QVariantMap &before, const QVariantMap &after,
             const QString &what)
{
    for (auto entry = after.cbegin(); entry != after.cend(); ++entry) {
        if (before.value(entry.key()) != entry.value())
            differences << what + u' ' + entry.key() + u": "_s + entry.value().toString();
    }
}

template <typename State>
void compareControls(QStringList &differences, const std::vector<State> &before,
                     const std::vector<State> &after)
{
    for (std::size_t index = 0; index < before.size(); ++index) {
        if (before[index].words != after[index].words)
            differences << before[index].name + u": "_s + after[index].words;
    }
}

} // namespace

PanelControls::PanelControls(const TestedPanel &panel)
{
    for (const QString &keyword : panel.supportedPPDOptionKeys().value_or(QStringList())) {
        QWidget *control = panel.determineUI(keyword);
        if (auto *popup = qobject_cast<PopUpButton *>(control))
            popups.push_back(popup);
        else if (auto *box = qobject_cast<QAbstractButton *>(control))
            boxes.push_back(box);
    }
}

PanelSnapshot::PanelSnapshot(const TestedPanel &panel, PanelSession &session,
                             const PanelControls &controls)
    : flags_(panel.imageModeFlag()), pending_(panel.outputBin()), marks_(marksOf(panel, session))
{
    for (const PopUpButton *popup : controls.popups)
        popups_.push_back(stateOfPopUp(*popup));
    for (const QAbstractButton *box : controls.boxes)
        boxes_.push_back({box->objectName(), stateOf(box), box->isChecked(), box->isEnabled()});
}

PanelSnapshot::PopUp PanelSnapshot::stateOfPopUp(const PopUpButton &popup)
{
    PopUp state{popup.objectName(),
                {},
                {},
                itemsOf(&popup) + (popup.isEnabled() ? u""_s : u" off"_s),
                popup.currentIndex(),
                popup.isEnabled()};
    for (int index = 0; index < popup.count(); ++index) {
        state.items.push_back({popup.itemText(index), popup.representedObject(index)});
        state.itemsEnabled.push_back(popup.isItemEnabled(index));
    }
    return state;
}

void PanelSnapshot::restorePopUp(const PopUp &saved, PopUpButton &popup)
{
    if (stateOfPopUp(popup).words == saved.words)
        return;
    popup.setItems(saved.items);
    for (int index = 0; index < popup.count(); ++index)
        popup.setItemEnabled(index, saved.itemsEnabled[static_cast<std::size_t>(index)]);
    popup.setCurrentIndex(saved.selected);
    popup.setEnabled(saved.enabled);
}

void PanelSnapshot::restore(TestedPanel &panel, PanelSession &session,
                            const PanelControls &controls) const
{
    for (auto mark = marks_.cbegin(); mark != marks_.cend(); ++mark) {
        if (session.marked(mark.key()) != mark.value().toString())
            forceChoice(session.ppd(), mark.key(), mark.value().toString());
    }
    panel.setOutputBin(pending_);
    panel.setFlag(static_cast<ImageModeFlag>(-1), false);
    panel.setFlag(static_cast<ImageModeFlag>(flags_), true);
    for (std::size_t index = 0; index < popups_.size(); ++index)
        restorePopUp(popups_[index], *controls.popups[index]);
    for (std::size_t index = 0; index < boxes_.size(); ++index) {
        controls.boxes[index]->setChecked(boxes_[index].checked);
        controls.boxes[index]->setEnabled(boxes_[index].enabled);
    }
}

QStringList PanelSnapshot::differences(const PanelSnapshot &later) const
{
    QStringList differences;
    if (flags_ != later.flags_)
        differences << u"flags: %1"_s.arg(later.flags_, 0, 16);
    compare(differences, pending_, later.pending_, u"pending"_s);
    compare(differences, marks_, later.marks_, u"marked"_s);
    compareControls(differences, popups_, later.popups_);
    compareControls(differences, boxes_, later.boxes_);
    return differences;
}
