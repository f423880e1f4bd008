#pragma once

#include <QtCore/QString>

/// The title of a button in so many lines of about the same length.
QString brokenTitle(const QString &title, int lines);
