#pragma once

#include "dialog/cups/Supplies.h"

#include <QtCore/QStringList>
#include <QtWidgets/QScrollArea>

class QGridLayout;

/// What a printer has left, for reading: its supplies as bars with their names and levels, and the
/// paper that is loaded.
class SuppliesPane : public QScrollArea
{
    Q_OBJECT

public:
    explicit SuppliesPane(QWidget *parent = nullptr);

    /// `papers`: the loaded ones in words.
    void setSupplies(const QList<Supply> &supplies, const QStringList &papers);

private:
    qsizetype focusedBar() const;
    void addSupply(QGridLayout *grid, const Supply &supply);
    void addPapers(QGridLayout *grid, const QStringList &papers);
};
