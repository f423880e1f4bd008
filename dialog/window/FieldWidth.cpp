#include "dialog/window/FieldWidth.h"

#include <QtWidgets/QLineEdit>

namespace {

constexpr int kAroundText = 16; // pixels: frame, margins and the line that blinks

} // namespace

int widthForPlaceholder(const QLineEdit &field)
{
    return field.fontMetrics().horizontalAdvance(field.placeholderText()) + kAroundText;
}
