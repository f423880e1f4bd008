#pragma once

#include <QtWidgets/QFrame>

class QAbstractItemDelegate;
class QAbstractItemModel;
class QLabel;
class QLineEdit;
class QListView;
class SearchModel;

/// A list in a window of its own that shows the rows in which all typed words are found, in their
/// titles or details. Arrow keys move in the list while the words are being typed, Return or a
/// click picks, Escape closes. Rows that cannot be picked are headings, and are no finds. Where
/// nothing is found a line says so. The rows must be of one height.
class SearchList : public QFrame
{
    Q_OBJECT

public:
    /// The model must outlive the list. The delegate stays the caller's.
    SearchList(QAbstractItemModel *rows, QAbstractItemDelegate *delegate, QWidget *parent);

    /// Opens under the widget, or above it where there is more room, with the row in front and the
    /// text typed already.
    void openAt(const QWidget &anchor, int row, const QString &typed);

Q_SIGNALS:
    /// The user has picked the row of the model.
    void picked(int row);
    void closed();

protected:
    void hideEvent(QHideEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void search(const QString &words);
    void tellWhetherFound();
    void pickCurrent();
    bool takeKey(QEvent *event, int key);

    SearchModel *m_found;
    QLineEdit *m_words;
    QListView *m_list;
    QLabel *m_nothing; ///< in place of the list
};
