#pragma once

#include "platform/Export.h"

#include <QtWidgets/QToolButton>

class CaptionLabel;

/// The arrow that folds and unfolds a section: it points at the text beside it while the button is
/// off, and down while it is on, however it came to be so.
class VELKARO_PLATFORM_EXPORT DisclosureButton : public QToolButton
{
    Q_OBJECT
    /// The object name of the label beside it, which has its text. That label is not made for it as
    /// captions are for controls: assistive technology would call both the arrow and a box of the
    /// same title in its section by it.
    Q_PROPERTY(QString caption MEMBER m_caption)

public:
    explicit DisclosureButton(QWidget *parent = nullptr);

    /// Null without one.
    CaptionLabel *caption() const;

    /// Has Alt and a letter click it: the one that has an ampersand before it in `titled`, which is
    /// its caption's text and shown there. Null takes that back.
    void setMnemonic(const QString &titled);

    /// As large as the arrow.
    QSize minimumSizeHint() const override;

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void turnArrow();

    QString m_caption;
};
