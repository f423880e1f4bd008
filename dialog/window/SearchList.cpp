#include "dialog/window/SearchList.h"

#include "dialog/window/SearchModel.h"
#include "platform/toolkit/AccessibleName.h"
#include "platform/toolkit/PlainLabel.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QScreen>
#include <QtWidgets/QAbstractItemDelegate>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>
#include <array>

namespace {

constexpr int kSearchMargin = 6;
constexpr int kLeastSearchWidth = 360;
constexpr int kMostHeight = 420;
constexpr std::array kListKeys{Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown};

QRect placeBeside(const QWidget &anchor)
{
    const QRect screen = anchor.screen()->availableGeometry();
    const QRect button(anchor.mapToGlobal(QPoint(0, 0)), anchor.size());
    const int below = screen.bottom() - button.bottom();
    const int above = button.top() - screen.top();
    const QSize size(std::min(std::max(button.width(), kLeastSearchWidth), screen.width()),
                     std::min(std::max(below, above), kMostHeight));
    const int x = std::clamp(button.left(), screen.left(),
                             std::max(screen.left(), screen.right() - size.width()));
    const bool goesBelow = below >= size.height() || below >= above;
    return {QPoint(x, goesBelow ? button.bottom() + 1 : button.top() - size.height()), size};
}

} // namespace

SearchList::SearchList(QAbstractItemModel *rows, QAbstractItemDelegate *delegate, QWidget *parent)
    : QFrame(parent, Qt::Popup),
      m_found(new SearchModel(this)),
      m_words(new QLineEdit(this)),
      m_list(new QListView(this)),
      m_nothing(newPlainLabel(tr("Nothing was found."), this))
{
    setObjectName(QStringLiteral("searchList"));
    setFrameShape(QFrame::StyledPanel);
    m_found->setSourceModel(rows);
    m_words->setObjectName(QStringLiteral("searchField"));
    m_words->setPlaceholderText(tr("Search"));
    m_words->setClearButtonEnabled(true);
    giveAccessibleName(m_words, tr("Search"));
    m_words->installEventFilter(this);
    m_list->setObjectName(QStringLiteral("searchRows"));
    m_list->setUniformItemSizes(true);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->setFocusPolicy(Qt::NoFocus); // the words keep it
    m_list->setItemDelegate(delegate);
    m_list->setModel(m_found);
    giveAccessibleName(m_list, tr("What was found"));
    m_nothing->setObjectName(QStringLiteral("searchNothing"));
    m_nothing->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_nothing->setMargin(kSearchMargin);
    m_nothing->hide();
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(kSearchMargin, kSearchMargin, kSearchMargin, kSearchMargin);
    layout->addWidget(m_words);
    layout->addWidget(m_list, 1);
    layout->addWidget(m_nothing, 1);
    setFocusProxy(m_words);
    connect(m_words, &QLineEdit::textChanged, this, &SearchList::search);
    connect(m_list, &QListView::clicked, this, [this](const QModelIndex &row) {
        if (row.flags().testFlag(Qt::ItemIsEnabled))
            pickCurrent();
    });
}

void SearchList::openAt(const QWidget &anchor, int row, const QString &typed)
{
    setGeometry(placeBeside(anchor));
    m_words->clear();
    m_list->setCurrentIndex(m_found->mapFromSource(m_found->sourceModel()->index(row, 0)));
    show();
    m_list->scrollTo(m_list->currentIndex(), QAbstractItemView::PositionAtCenter);
    m_words->setFocus(Qt::PopupFocusReason);
    // Nothing would count as another search, which goes to the first row.
    if (!typed.isEmpty())
        m_words->insert(typed);
}

/// The first row that can be picked is the one that Return picks.
void SearchList::search(const QString &words)
{
    m_found->setWords(words);
    int row = 0;
    while (row + 1 < m_found->rowCount() &&
           !m_found->index(row, 0).flags().testFlag(Qt::ItemIsEnabled))
        ++row;
    m_list->setCurrentIndex(m_found->index(row, 0));
    m_list->scrollToTop();
    tellWhetherFound();
}

/// The words have the focus: what is read of them says it, too.
void SearchList::tellWhetherFound()
{
    const bool isFound = m_found->rowCount() > 0;
    if (isFound == m_nothing->isHidden())
        return;
    m_list->setVisible(isFound);
    m_nothing->setHidden(isFound);
    giveAccessibleText(m_words, isFound ? QString() : m_nothing->text());
}

void SearchList::pickCurrent()
{
    const QModelIndex chosen = m_found->mapToSource(m_list->currentIndex());
    close();
    if (chosen.isValid())
        Q_EMIT picked(chosen.row());
}

bool SearchList::takeKey(QEvent *event, int key)
{
    if (std::ranges::find(kListKeys, key) != kListKeys.end())
        QApplication::sendEvent(m_list, event);
    else if (key == Qt::Key_Return || key == Qt::Key_Enter)
        pickCurrent();
    else if (key == Qt::Key_Escape)
        close();
    else
        return false;
    return true;
}

bool SearchList::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_words && event->type() == QEvent::KeyPress)
        return takeKey(event, static_cast<QKeyEvent *>(event)->key());
    return QFrame::eventFilter(watched, event);
}

void SearchList::hideEvent(QHideEvent *event)
{
    QFrame::hideEvent(event);
    Q_EMIT closed();
}
