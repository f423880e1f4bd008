#pragma once

#include <QtWidgets/QMessageBox>

/// The toolkit's message box, which asks nobody how large the screen is. Where it would be larger
/// than that, its texts are scrolled, and buttons that have no room side by side stand one above
/// the other.
class AlertBox : public QMessageBox
{
    Q_OBJECT

public:
    explicit AlertBox(QWidget *parent);

protected:
    bool event(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    bool cutsButtons() const;
    void fitToScreen();
    void scrollTexts();

    QWidget *m_texts = nullptr; ///< scrolled; null where all has room
    QSize m_size;               ///< where they are scrolled
};
