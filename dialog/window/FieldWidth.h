#pragma once

class QLineEdit;

/// How wide a field must be for all of its placeholder to be read, in pixels.
int widthForPlaceholder(const QLineEdit &field);
