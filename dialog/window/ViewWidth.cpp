#include "dialog/window/ViewWidth.h"

#include <QtWidgets/QLayout>
#include <QtWidgets/QListView>

#include <algorithm>

namespace {

QList<QWidget *> partsOf(const QWidget &container)
{
    return container.findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
}

/// Only a container without a class of its own leaves its parts where a view has put them.
bool hasPlacedParts(const QWidget &container)
{
    return container.metaObject() == &QWidget::staticMetaObject && !container.layout();
}

int neededWidth(QWidget &part);

/// Puts the parts where they have room. Gives the width that the container needs for them.
int fitParts(QWidget &container)
{
    std::vector<WidthNeed> needs{{0, container.width(), 0}};
    const QList<QWidget *> parts = partsOf(container);
    for (QWidget *part : parts)
        if (part->width() > 0)
            needs.push_back({part->x(), part->x() + part->width(), neededWidth(*part)});
    const std::map<int, int> fitted = fittedEdges(needs);
    for (QWidget *part : parts)
        if (part->width() > 0) {
            const int left = fitted.at(part->x());
            const int right = fitted.at(part->x() + part->width());
            part->setGeometry(left, part->y(), right - left, part->height());
        }
    return fitted.at(container.width());
}

int neededWidth(QWidget &part)
{
    if (const auto *list = qobject_cast<const QListView *>(&part))
        return list->sizeHintForColumn(0) + 2 * (list->frameWidth() + list->spacing());
    return hasPlacedParts(part) ? fitParts(part) : part.minimumSizeHint().width();
}

} // namespace

std::map<int, int> fittedEdges(const std::vector<WidthNeed> &needs)
{
    std::map<int, int> fitted;
    for (const WidthNeed &need : needs)
        for (const int edge : {need.left, need.right})
            fitted[edge] = edge;
    int moved = 0; // all edges up to here, to the right
    for (auto &[edge, place] : fitted) {
        place = edge + moved;
        for (const WidthNeed &need : needs)
            if (need.right == edge)
                place = std::max(place, fitted[need.left] + need.width);
        moved = place - edge;
    }
    return fitted;
}

void fitWidth(QWidget &view)
{
    if (hasPlacedParts(view))
        view.setFixedWidth(fitParts(view));
}
