#pragma once

#include "platform/Export.h"

#include <QtWidgets/QLabel>

/// The caption before a control, which is its buddy: one line of plain text at the control's side
/// of the label. It is cut at its end where it is too long, with an ellipsis; the whole text is
/// then its tool tip. For texts from outside too, whose length nobody knows.
///
/// An ampersand in the text is one. A dialog gives the caption its mnemonic beside the text.
class VELKARO_PLATFORM_EXPORT CaptionLabel : public QLabel
{
    Q_OBJECT

public:
    explicit CaptionLabel(QWidget *parent = nullptr);

    /// Makes ready for another text, which setLabelText() sets: it has no mnemonic yet, and names
    /// what the caption is for to assistive technology.
    void prepareFor(const QString &text);

    /// Has the buddy get the focus by Alt and a letter, which is underlined where `titled` has an
    /// ampersand before it: the text, or one that says the same. Without a buddy it is underlined
    /// only. Null takes that back. text() stays.
    void setMnemonic(const QString &titled);

    /// The text with its mnemonic; null without one.
    QString mnemonicText() const { return m_titled; }

    /// The text as it is shown at the present width.
    QString shownText() const;

    /// The tool tip of a text that is cut; null for one that is shown whole.
    QString wholeTextTip() const;

    /// As wide as the text, but never so wide that the control is left without room.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    int textWidth() const;

    QString m_titled;
    int m_shortcut = 0; ///< the toolkit's number of it; 0: none
};
