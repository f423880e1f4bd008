#include "dialog/advice/Adviser.h"
#include "dialog/advice/RemedyWords.h"
#include "dialog/host/HostSession.h"
#include "dialog/printing/ChangeWords.h"
#include "dialog/printing/PanelPicks.h"
#include "dialog/printing/SettingRequests.h"
#include "dialog/window/DialogTabs.h"
#include "dialog/window/DialogWindow.h"
#include "dialog/window/MissingChoices.h"
#include "dialog/window/PanelPane.h"
#include "dialog/work/Sentences.h"
#include "platform/toolkit/PlainLabel.h"
#include "platform/toolkit/PlainText.h"

#include <QtGui/QShortcut>
#include <QtWidgets/QMenu>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kMostRemedies = 2;   // as buttons
constexpr qsizetype kMostQuestions = 24; // in one menu
constexpr qsizetype kMostNames = 5;      // in a tip
constexpr qsizetype kLongestTitle = 40;  // characters, of a button

QString shortTitle(const QString &title)
{
    return title.size() > kLongestTitle ? title.left(kLongestTitle - 1).trimmed() + u'…' : title;
}

} // namespace

void DialogWindow::connectAdvice()
{
    m_controller.addSessionHook([this](HostSession &session) {
        m_adviser->follow(session);
        return Result<>();
    });
    connect(m_tabs, &DialogTabs::explanationWanted, this, &DialogWindow::offerQuestions);
    connect(m_tabs, &DialogTabs::tipWanted, this, &DialogWindow::showMissing);
    connect(new QShortcut(QKeySequence::WhatsThis, this), &QShortcut::activated, this, [this] {
        QWidget *focus = focusWidget();
        QWidget *shown = m_tabs->shownPart();
        const bool isInPart = focus && shown && shown->isAncestorOf(focus);
        const QWidget *beside = isInPart ? focus : shown;
        if (beside)
            offerQuestions(isInPart ? focus : nullptr,
                           beside->mapToGlobal(beside->rect().bottomLeft()));
    });
}

/// A menu of what can be asked about the part of the panel in front; null: about all of it.
void DialogWindow::offerQuestions(const QWidget *part, const QPoint &place)
{
    const DialogTabs::Part *front = m_tabs->currentPart();
    if (m_state != State::Ready || !front || !front->panel)
        return;
    auto *menu = new QMenu(this);
    menu->setObjectName(u"questionMenu"_s);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const QList<PPDMark> missing =
        missingChoices(job(), *front->panel, settingOf(*front->panel, part));
    for (const PPDMark &choice : missing.first(std::min(missing.size(), kMostQuestions)))
        menu->addAction(
            withoutMnemonic(tr("Why is there no \"%1\"?")
                                .arg(nameOfChoice(job().ppd(), choice.keyword, choice.choice))),
            this, [this, choice] { explain(choice); });
    if (missing.isEmpty())
        menu->addAction(tr("Everything here can be chosen."))->setEnabled(false);
    menu->popup(place);
}

/// A tip that names what is not to be had of the setting whose control the part is.
void DialogWindow::showMissing(QWidget *part, const QPoint &place)
{
    const DialogTabs::Part *front = m_tabs->currentPart();
    const QString setting = front && front->panel ? settingOf(*front->panel, part) : QString();
    if (setting.isNull())
        return;
    QStringList names;
    for (const PPDMark &choice : missingChoices(job(), *front->panel, setting))
        names += nameOfChoice(job().ppd(), choice.keyword, choice.choice);
    if (names.isEmpty())
        return;
    if (names.size() > kMostNames)
        names = names.first(kMostNames - 1) + QStringList{u"…"_s};
    showToolTip(place,
                tr("Not to be had now: %1\nShift+F1 or the context menu tells why.")
                    .arg(names.join(tr(", "))),
                part);
}

/// Tells why the choice is not to be had, and offers the way to it.
void DialogWindow::explain(const PPDMark &wanted)
{
    tellEvent(); // what was before
    tell(NoticeBar::Kind::Information, tr("Finding out…"));
    m_adviser->ask(wanted, [this, wanted](const std::optional<Advice> &advice) {
        if (!advice) {
            tell(NoticeBar::Kind::Information, tr("This cannot be explained."));
            return;
        }
        const Remedy best = advice->remedies.value(0);
        QStringList told{advice->sentence};
        if (const QString beside = changeSentence(job().ppd(), best.beside); !beside.isNull())
            told += tr("With that: %1").arg(beside);
        QList<NoticeOffer> offers;
        if (advice->outcome == Advice::Outcome::Possible)
            offers +=
                {u"getItButton"_s, tr("Get It"), [this, best, wanted] { take(best, wanted); }};
        tell(NoticeBar::Kind::Information, joinedSentences(told), offers);
    });
}

/// The ways to a choice that was refused, beside why it was.
void DialogWindow::offerRemedies(const PPDMark &refused, const QString &sentence)
{
    m_adviser->ask(refused, [this, refused, sentence](const std::optional<Advice> &advice) {
        if (m_state != State::Ready || !advice || advice->outcome != Advice::Outcome::Possible)
            return;
        QList<NoticeOffer> offers;
        for (const Remedy &remedy :
             advice->remedies.first(std::min(advice->remedies.size(), kMostRemedies))) {
            const QString words = tr("Use %1").arg(remedyWords(job().ppd(), remedy));
            offers += {u"remedyButton"_s, shortTitle(words),
                       [this, remedy, refused] { take(remedy, refused); }};
        }
        offers += {u"leaveButton"_s, tr("Leave It"), [this] { tellStanding(); }};
        tell(NoticeBar::Kind::Warning, sentence, offers);
    });
}

/// Makes the changes as a person would, and then picks what they are for: one step.
void DialogWindow::take(const Remedy &remedy, const PPDMark &wanted)
{
    tellEvent(); // what was before
    m_pick = wanted;
    prepareControls(*job().session());
    for (const SettingChange &change : remedy.changes)
        makeSetting(job(), {change.keyword, change.to});
    makeSetting(job(), {wanted.keyword, wanted.choice});
    showSettled();
    noteEvent();
}
