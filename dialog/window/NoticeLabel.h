#pragma once

#include <QtGui/QTextLayout>
#include <QtWidgets/QLabel>

/// A label for plain text with the room of two lines, and of more where its text needs them at its
/// width. What is longer than it may be ends in an ellipsis and is whole in the tool tip.
class NoticeLabel : public QLabel
{
    Q_OBJECT

public:
    explicit NoticeLabel(QWidget *parent = nullptr);

    /// How high it may be; but there is room for two lines always.
    void setMostHeight(int pixels);

    /// Shows the text, in its room.
    void showText(const QString &text);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// The lines as they are shown.
    QStringList shownLines() const;

protected:
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    int mostLines() const;
    int shownCount() const;
    bool isCut() const;
    QString lastLine() const;
    void breakLines();
    void takeRoom();

    QTextLayout
        m_layout; ///< the text at the present width, one line more than there may be room for
    int m_mostHeight = 0; ///< pixels
    int m_lines = 2;      ///< that there is room for
};
