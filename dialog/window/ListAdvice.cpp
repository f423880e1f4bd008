#include "dialog/window/ListAdvice.h"

#include "dialog/advice/Adviser.h"
#include "dialog/advice/RemedyWords.h"
#include "dialog/printing/PrintJob.h"
#include "dialog/work/Sentences.h"
#include "platform/toolkit/AccessibleName.h"
#include "platform/toolkit/AccessibleRole.h"
#include "platform/toolkit/PlainLabel.h"
#include "platform/toolkit/PlainText.h"
#include "platform/toolkit/PopUpButton.h"

#include <QtGui/QScreen>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QLabel>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kMostTold = 2; // missing choices of one list
constexpr int kLeastLineWidth = 280;
constexpr int kLineMargin = 6;

/// A window of its own, in the looks of a tip, that takes no key and no click from the list.
QLabel *newLine(QWidget *list)
{
    QLabel *line = newPlainLabel(QString());
    line->setParent(list, Qt::ToolTip | Qt::WindowTransparentForInput);
    line->setObjectName(u"listAdvice"_s);
    line->setAttribute(Qt::WA_ShowWithoutActivating);
    line->setWordWrap(true);
    line->setMargin(kLineMargin);
    line->setFrameShape(QFrame::StyledPanel);
    return line;
}

} // namespace

ListAdvice::ListAdvice(Adviser &adviser, const PrintJob &job, const QList<PPDMark> &missing,
                       PopUpButton &popup)
    : m_adviser(adviser),
      m_job(job),
      m_missing(missing),
      m_popup(popup),
      m_line(newLine(popup.view()->window()))
{
    QAbstractItemView *rows = popup.view();
    connect(rows, &QAbstractItemView::entered, this, &ListAdvice::look);
    connect(rows->selectionModel(), &QItemSelectionModel::currentChanged, this, &ListAdvice::look);
    look(rows->currentIndex());
}

ListAdvice::~ListAdvice()
{
    if (m_isAsking)
        m_adviser.abandon();
    giveAccessibleText(m_popup.view(), QString());
    delete m_line;
}

void ListAdvice::look(const QModelIndex &row)
{
    const QString choice = m_popup.representedObject(row.row());
    const auto found = std::ranges::find(m_missing, choice, &PPDMark::choice);
    const bool isOff = found != m_missing.end() && !m_popup.isItemEnabled(row.row());
    m_lookedAt = isOff ? *found : PPDMark();
    show();
    askNext();
}

/// The choices that are told of now.
QList<PPDMark> ListAdvice::told() const
{
    if (!m_lookedAt.keyword.isNull())
        return {m_lookedAt};
    return m_missing.first(std::min(m_missing.size(), kMostTold));
}

void ListAdvice::askNext()
{
    const QList<PPDMark> wanted = told();
    const auto next = std::ranges::find_if(
        wanted, [this](const PPDMark &one) { return !m_sentences.contains(one.choice); });
    if (m_isAsking || next == wanted.end())
        return;
    m_isAsking = true;
    m_adviser.ask(*next, [this, choice = next->choice](const std::optional<Advice> &advice) {
        m_isAsking = false;
        m_sentences.insert(choice, advice ? advice->sentence : QString());
        show();
        askNext();
    });
}

/// What is known of those that are told of, and the names of all as long as nothing is.
QString ListAdvice::sentence() const
{
    QStringList known;
    for (const PPDMark &one : told())
        if (const QString answer = m_sentences.value(one.choice); !answer.isNull())
            known += answer;
    if (!known.isEmpty())
        return known.join(u'\n');
    QStringList names;
    for (const PPDMark &one : m_lookedAt.keyword.isNull() ? m_missing : QList{m_lookedAt})
        names += nameOfChoice(m_job.ppd(), one.keyword, one.choice);
    return tr("Not to be had now: %1").arg(shortList(names));
}

void ListAdvice::show()
{
    const QString words = sentence();
    if (!m_line || m_line->text() == words)
        return;
    setLabelText(m_line, words);
    giveAccessibleName(m_line, words);
    giveAccessibleText(m_popup.view(), words);
    place();
    m_line->show();
    announce(m_line);
}

/// Under the list, or above it where the screen ends.
void ListAdvice::place()
{
    const QRect list = m_popup.view()->window()->geometry();
    const QRect screen = m_popup.screen()->availableGeometry();
    const int width = std::max(list.width(), kLeastLineWidth);
    m_line->setFixedWidth(width);
    const int height = m_line->heightForWidth(width);
    m_line->setFixedHeight(height);
    const bool goesBelow = list.bottom() + 1 + height <= screen.bottom();
    m_line->move(std::min(list.left(), screen.right() - width),
                 goesBelow ? list.bottom() + 1 : list.top() - height);
}
