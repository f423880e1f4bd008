#include "dialog/window/DialogAdvice.h"

#include "dialog/advice/Adviser.h"
#include "dialog/advice/RemedyWords.h"
#include "dialog/host/HostSession.h"
#include "dialog/printing/ChangeWords.h"
#include "dialog/printing/OriginWords.h"
#include "dialog/printing/PrintController.h"
#include "dialog/window/DialogTabs.h"
#include "dialog/window/ListAdvice.h"
#include "dialog/window/MissingChoices.h"
#include "dialog/window/SessionUndo.h"
#include "dialog/work/Sentences.h"
#include "platform/toolkit/PlainLabel.h"
#include "platform/toolkit/PlainText.h"
#include "platform/toolkit/PopUpButton.h"

#include <QtGui/QShortcut>
#include <QtWidgets/QMenu>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kMostRemedies = 2;   // as buttons
constexpr qsizetype kMostQuestions = 24; // in one menu
constexpr qsizetype kMostNames = 5;      // in a tip

} // namespace

DialogAdvice::DialogAdvice(PrintController &controller, SessionUndo &undo, DialogTabs &tabs,
                           QWidget &window)
    : QObject(&window),
      m_controller(controller),
      m_undo(undo),
      m_tabs(tabs),
      m_window(window),
      m_adviser(std::make_unique<Adviser>())
{
    controller.addSessionHook([this](HostSession &session) {
        m_adviser->follow(session);
        return Result<>();
    });
    connect(&tabs, &DialogTabs::explanationWanted, this, &DialogAdvice::offerQuestions);
    connect(&tabs, &DialogTabs::tipWanted, this, &DialogAdvice::showMissing);
    connect(&tabs, &DialogTabs::listOpened, this, &DialogAdvice::openList);
    connect(&tabs, &DialogTabs::listClosed, this, &DialogAdvice::closeList);
    connect(new QShortcut(QKeySequence::WhatsThis, &window), &QShortcut::activated, this,
            &DialogAdvice::askOfFocus);
}

DialogAdvice::~DialogAdvice() = default;

PrintJob &DialogAdvice::job()
{
    return m_controller.job();
}

void DialogAdvice::askOfFocus()
{
    const QWidget *focus = m_window.focusWidget();
    const QWidget *shown = m_tabs.shownPart();
    const bool isInPart = focus && shown && shown->isAncestorOf(focus);
    if (const QWidget *beside = isInPart ? focus : shown)
        offerQuestions(isInPart ? focus : nullptr,
                       beside->mapToGlobal(beside->rect().bottomLeft()));
}

/// A menu of what can be asked about the part of the panel in front; null: about all of it.
void DialogAdvice::offerQuestions(const QWidget *part, const QPoint &place)
{
    const DialogTabs::Part *front = m_tabs.currentPart();
    if (!m_tabs.isEnabled() || !front || !front->panel)
        return;
    Q_EMIT asked();
    auto *menu = new QMenu(&m_window);
    menu->setObjectName(u"questionMenu"_s);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const QString setting = settingOf(*front->panel, part);
    if (!setting.isNull()) {
        menu->addAction(withoutMnemonic(originLine(job(), m_undo.origins(), setting)), this,
                        [this, setting] { tellOrigin(setting); });
        menu->addSeparator();
    }
    const QList<PPDMark> missing = missingChoices(job(), *front->panel, setting);
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
void DialogAdvice::showMissing(QWidget *part, const QPoint &place)
{
    const DialogTabs::Part *front = m_tabs.currentPart();
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

/// Out loud, for those who cannot keep a menu in view.
void DialogAdvice::tellOrigin(const QString &setting)
{
    Q_EMIT told(NoticeBar::Kind::Information, originLine(job(), m_undo.origins(), setting), {});
}

/// Tells why the choice is not to be had, and offers the way to it.
void DialogAdvice::explain(const PPDMark &wanted)
{
    Q_EMIT asked();
    Q_EMIT told(NoticeBar::Kind::Information, tr("Finding out…"), {});
    m_adviser->ask(wanted, [this](const std::optional<Advice> &advice) {
        if (advice)
            tellAnswer(*advice);
        else
            Q_EMIT told(NoticeBar::Kind::Information, tr("This cannot be explained."), {});
    });
}

void DialogAdvice::tellAnswer(const Advice &advice)
{
    QStringList sentences{advice.sentence};
    const QString beside = changeSentence(job().ppd(), advice.remedies.value(0).beside);
    if (!beside.isNull())
        sentences += tr("With that: %1").arg(beside);
    Q_EMIT told(NoticeBar::Kind::Information, joinedSentences(sentences), waysTo(advice));
}

/// The best way, and all that the sentence lists where that is cut.
QList<NoticeOffer> DialogAdvice::waysTo(const Advice &advice)
{
    if (advice.outcome != Advice::Outcome::Possible)
        return {};
    const PPDMark wanted{advice.keyword, advice.choice};
    QList<NoticeOffer> offers{
        way(u"getItButton"_s, tr("Get It"), advice.remedies.constFirst(), wanted)};
    const QList<Remedy> listed = remediesOfOneSetting(job().ppd(), advice);
    if (!isListCut(listed.size()))
        return offers;
    NoticeOffer all{u"allWaysButton"_s, tr("All %1").arg(listed.size()), {}, {}};
    for (const Remedy &remedy : listed)
        all.menu += way(QString(), remedyWords(job().ppd(), remedy), remedy, wanted);
    return offers + QList{all};
}

NoticeOffer DialogAdvice::way(const QString &name, const QString &title, const Remedy &remedy,
                              const PPDMark &wanted)
{
    return {name, title, [this, remedy, wanted] { Q_EMIT taken(remedy, wanted); }, {}};
}

void DialogAdvice::offerRemedies(const PPDMark &lost, NoticeBar::Kind kind, const QString &sentence,
                                 const QList<NoticeOffer> &others)
{
    m_adviser->ask(lost, [=, this](const std::optional<Advice> &advice) {
        if (!m_tabs.isEnabled() || !advice || advice->outcome != Advice::Outcome::Possible)
            return;
        QList<NoticeOffer> offers;
        for (const Remedy &remedy :
             advice->remedies.first(std::min(advice->remedies.size(), kMostRemedies)))
            offers += way(u"remedyButton"_s, remedyTitle(job().ppd(), remedy, lost), remedy, lost);
        Q_EMIT told(kind, sentence, offers + others);
    });
}

/// What somebody waits for in the notice is not put off for a list.
void DialogAdvice::openList(PopUpButton *popup)
{
    const DialogTabs::Part *front = m_tabs.currentPart();
    const QString setting = front && front->panel ? settingOf(*front->panel, popup) : QString();
    if (setting.isNull() || m_adviser->isAsked())
        return;
    const QList<PPDMark> missing = missingChoices(job(), *front->panel, setting);
    if (!missing.isEmpty())
        m_list = std::make_unique<ListAdvice>(*m_adviser, job(), missing, *popup);
}

void DialogAdvice::closeList()
{
    m_list.reset();
}
