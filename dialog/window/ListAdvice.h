#pragma once

#include "dialog/host/PPDMarks.h"

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QPointer>

class Adviser;
class PopUpButton;
class PrintJob;
class QLabel;
class QModelIndex;

/// Tells under the open list of a pop-up why choices are not to be had there: of the one that is
/// switched off and that the pointer or the keys are on, else of the first ones that are missing.
/// It asks as long as it lives, one choice after the other: make it when the list has opened, and
/// destroy it when that closes.
class ListAdvice : public QObject
{
    Q_OBJECT

public:
    /// The choices are those of the pop-up's setting that are not to be had, one or more.
    ListAdvice(Adviser &adviser, const PrintJob &job, const QList<PPDMark> &missing,
               PopUpButton &popup);
    ~ListAdvice() override;

private:
    void look(const QModelIndex &row);
    void askNext();
    void show();
    void place();
    QList<PPDMark> told() const;
    QString sentence() const;

    Adviser &m_adviser;
    const PrintJob &m_job;
    const QList<PPDMark> m_missing;
    PopUpButton &m_popup;
    PPDMark m_lookedAt;                  ///< that is switched off; a null keyword: none
    QHash<QString, QString> m_sentences; ///< answers, by choice
    bool m_isAsking = false;
    QPointer<QLabel> m_line;
};
