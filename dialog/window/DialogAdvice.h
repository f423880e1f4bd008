#pragma once

#include "dialog/advice/Remedy.h"
#include "dialog/host/PPDMarks.h"
#include "dialog/window/NoticeBar.h"

#include <QtCore/QObject>

#include <memory>

class Adviser;
class DialogTabs;
class ListAdvice;
class PopUpButton;
class PrintController;
class PrintJob;
class SessionUndo;

/// Answers what a person asks about the choices of the panel in front: why one is not to be had
/// and how it is, and where a value comes from. Questions are a menu, a tip, and the open list of a
/// pop-up; answers are told as notices, with the ways to the choice as their offers.
class DialogAdvice : public QObject
{
    Q_OBJECT

public:
    /// All of them must outlive it; the controller opens no printer before.
    DialogAdvice(PrintController &controller, SessionUndo &undo, DialogTabs &tabs, QWidget &window);
    ~DialogAdvice() override;

    /// Looks for the ways to a choice that was refused or taken away. When there are any, they are
    /// told beside the sentence that told of it, before its other offers.
    void offerRemedies(const PPDMark &lost, NoticeBar::Kind kind, const QString &sentence,
                       const QList<NoticeOffer> &others);

Q_SIGNALS:
    /// Somebody asks something: what he has done before is over.
    void asked();

    void told(NoticeBar::Kind kind, const QString &sentence, const QList<NoticeOffer> &offers);

    /// Somebody wants the remedy's changes, and then the choice.
    void taken(const Remedy &remedy, const PPDMark &wanted);

private:
    PrintJob &job();
    void askOfFocus();
    void offerQuestions(const QWidget *part, const QPoint &place);
    void showMissing(QWidget *part, const QPoint &place);
    void tellOrigin(const QString &setting);
    void explain(const PPDMark &wanted);
    void tellAnswer(const Advice &advice);
    QList<NoticeOffer> waysTo(const Advice &advice);
    NoticeOffer way(const QString &name, const QString &title, const Remedy &remedy,
                    const PPDMark &wanted);
    void openList(PopUpButton *popup);
    void closeList();

    PrintController &m_controller;
    SessionUndo &m_undo;
    DialogTabs &m_tabs;
    QWidget &m_window;
    const std::unique_ptr<Adviser> m_adviser;
    std::unique_ptr<ListAdvice> m_list; ///< of the list that is open; null: none is
};
