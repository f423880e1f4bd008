#include "dialog/window/BrokenTitle.h"

#include <QtCore/QStringList>
#include <QtCore/QTextBoundaryFinder>

QString brokenTitle(const QString &title, int lines)
{
    QTextBoundaryFinder places(QTextBoundaryFinder::Line, title);
    QStringList broken;
    qsizetype start = 0;
    for (int line = 1; line < lines; ++line) {
        places.setPosition(line * title.size() / lines);
        const qsizetype end = places.toNextBoundary();
        if (end > start && end < title.size()) {
            broken += title.mid(start, end - start).trimmed();
            start = end;
        }
    }
    return (broken + QStringList{title.mid(start)}).join(u'\n');
}
