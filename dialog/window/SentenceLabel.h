#pragma once

#include <QtWidgets/QLabel>

/// A sentence below a control, in lines of plain text. It asks for one width whatever it says, so
/// that nothing moves with its text, and is narrower where there is no room.
class SentenceLabel : public QLabel
{
public:
    explicit SentenceLabel(QWidget *parent);

    QSize sizeHint() const override;
};
