#include "dialog/window/SuppliesPane.h"

#include "dialog/window/SupplyBar.h"
#include "platform/toolkit/PlainLabel.h"

#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>

using namespace Qt::StringLiterals;

namespace {

constexpr int kSuppliesMargin = 16;
constexpr int kSuppliesSpacing = 8;
constexpr int kNameColumn = 0;
constexpr int kBarColumn = 1;
constexpr int kLevelColumn = 2;

QLabel *supplyLabel(const QString &text, Qt::Alignment side)
{
    QLabel *made = newPlainLabel(text);
    made->setWordWrap(true);
    made->setAlignment(side | Qt::AlignVCenter);
    return made;
}

} // namespace

SuppliesPane::SuppliesPane(QWidget *parent) : QScrollArea(parent)
{
    setObjectName(u"suppliesPane"_s);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus); // it scrolls to the bar that has it
    setWidgetResizable(true);
    viewport()->setAutoFillBackground(false);
}

void SuppliesPane::setSupplies(const QList<Supply> &supplies, const QStringList &papers)
{
    const qsizetype focused = focusedBar();
    auto *page = new QWidget;
    auto *grid = new QGridLayout(page);
    grid->setContentsMargins(kSuppliesMargin, kSuppliesMargin, kSuppliesMargin, kSuppliesMargin);
    grid->setHorizontalSpacing(kSuppliesMargin);
    grid->setVerticalSpacing(kSuppliesSpacing);
    grid->setColumnStretch(kNameColumn, 2);
    grid->setColumnStretch(kBarColumn, 3);
    grid->setColumnStretch(kLevelColumn, 2);
    for (const Supply &supply : supplies)
        addSupply(grid, supply);
    addPapers(grid, papers);
    grid->setRowStretch(grid->rowCount(), 1);
    setWidget(page); // the former page goes
    page->setAutoFillBackground(false);
    if (SupplyBar *bar = page->findChildren<SupplyBar *>().value(focused))
        bar->setFocus();
}

/// -1: none.
qsizetype SuppliesPane::focusedBar() const
{
    return findChildren<SupplyBar *>().indexOf(qobject_cast<SupplyBar *>(focusWidget()));
}

void SuppliesPane::addSupply(QGridLayout *grid, const Supply &supply)
{
    const int row = grid->rowCount();
    auto *bar = new SupplyBar(supply);
    QLabel *name = supplyLabel(supply.name, Qt::AlignRight);
    name->setObjectName(u"supplyName"_s);
    QLabel *level = supplyLabel(levelText(supply), Qt::AlignLeft);
    level->setObjectName(u"supplyLevel"_s);
    grid->addWidget(name, row, kNameColumn);
    grid->addWidget(bar, row, kBarColumn);
    grid->addWidget(level, row, kLevelColumn);
}

void SuppliesPane::addPapers(QGridLayout *grid, const QStringList &papers)
{
    if (papers.isEmpty())
        return;
    const int row = grid->rowCount();
    QLabel *loaded = supplyLabel(papers.join(tr(", ")), Qt::AlignLeft);
    loaded->setObjectName(u"loadedPapers"_s);
    grid->addWidget(supplyLabel(tr("Paper in the printer:"), Qt::AlignRight), row, kNameColumn);
    grid->addWidget(loaded, row, kBarColumn, 1, 2);
}
