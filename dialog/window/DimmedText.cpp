#include "dialog/window/DimmedText.h"

#include <QtGui/QPalette>
#include <QtWidgets/QWidget>

#include <cmath>

namespace {

constexpr float kLeastContrast = 50; // of 255, in lightness
constexpr int kDimmedAlpha = 128;    // of 255, as the toolkit's own

/// As it is seen on the ground.
float contrast(const QColor &text, const QColor &ground)
{
    return text.alphaF() * static_cast<float>(std::abs(text.lightness() - ground.lightness()));
}

} // namespace

void keepDimmedTextReadable(QWidget &window)
{
    const QPalette &shown = window.palette();
    const QColor ground = shown.color(QPalette::Window);
    if (contrast(shown.color(QPalette::PlaceholderText), ground) >= kLeastContrast)
        return;
    QColor dimmed = shown.color(QPalette::WindowText);
    dimmed.setAlpha(kDimmedAlpha);
    if (contrast(dimmed, ground) < kLeastContrast)
        return; // nor is any other text to be read
    QPalette own;
    own.setColor(QPalette::PlaceholderText, dimmed);
    window.setPalette(own);
}
