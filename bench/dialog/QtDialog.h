#pragma once

#include <QtCore/QString>

#include <functional>

class QComboBox;
class QWidget;

/// Shows Qt's own print dialog for the queue, presses its button for the queue's properties, and
/// chooses the tab with the options of the queue's PPD. Then calls `use` with that page, painted,
/// and closes everything again. False when the queue is unknown or has no options to show.
///
/// The queue is looked up at the server of the environment variable CUPS_SERVER.
bool withQtOptionsPage(const QString &queue, const std::function<void(QWidget &page)> &use);

/// The page's control of the option with this text; null without one.
QComboBox *qtOption(const QWidget &page, const QString &text);
