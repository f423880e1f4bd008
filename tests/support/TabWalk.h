#pragma once

#include <QtCore/QStringList>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>

/// The names of the widgets that the Tab key visits in the active window, as many as asked for,
/// beginning with `first`.
inline QStringList visitedByTab(QWidget &first, qsizetype count)
{
    first.setFocus();
    QStringList visited;
    while (visited.size() < count) {
        visited << QApplication::focusWidget()->objectName();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    return visited;
}
