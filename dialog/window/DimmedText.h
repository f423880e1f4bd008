#pragma once

class QWidget;

/// Gives the window a color for dimmed text (the palette's for placeholders) where the desktop's
/// cannot be told from the ground: of a dark desktop's colors the toolkit leaves that one black. To
/// be called again when the window's palette has changed.
void keepDimmedTextReadable(QWidget &window);
