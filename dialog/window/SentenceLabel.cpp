#include "dialog/window/SentenceLabel.h"

#include "platform/toolkit/PlainLabel.h"

namespace {

constexpr int kSentenceLength = 36; // characters

} // namespace

SentenceLabel::SentenceLabel(QWidget *parent) : QLabel(parent)
{
    setWordWrap(true);
    setLabelText(this, QString());
}

QSize SentenceLabel::sizeHint() const
{
    const int width = kSentenceLength * fontMetrics().horizontalAdvance(u'X');
    return {width, heightForWidth(width)};
}
