#pragma once

#include <QtCore/QPointer>
#include <QtWidgets/QScrollArea>

class PopUpButton;

/// Holds the view of a panel, which the panel owns: the pane never destroys it. It makes the view
/// as wide as its texts need it. A view that is larger than the pane can be scrolled.
class PanelPane : public QScrollArea
{
    Q_OBJECT

public:
    explicit PanelPane(QWidget *parent = nullptr);
    ~PanelPane() override;

    /// The view comes to lie in the pane; again when its texts may be others. Null: none.
    void setView(QWidget *view);
    QWidget *view() const { return m_view; }

    /// Gives the view back; its panel may then be destroyed.
    void releaseView();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The view has come to another size by itself.
    void viewResized();

    /// Somebody asks about a part of the view, at a place on the screen; null: about all of it.
    void explanationWanted(const QWidget *part, const QPoint &place);

    /// The pointer rests on a part of the view that has no tip of its own.
    void tipWanted(QWidget *part, const QPoint &place);

    /// The list of a pop-up of the view has come on screen, or goes.
    void listOpened(PopUpButton *popup);
    void listClosed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void takeView(QWidget *view);
    void watchList(QWidget *list, QEvent *event);

    QPointer<QWidget> m_view;
};
