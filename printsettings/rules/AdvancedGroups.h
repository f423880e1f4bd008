#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <vector>

/// A group of advanced options: a row of the list, and the page of the same id.
struct AdvancedGroup
{
    QString id;
    /// Its label is the text of the PPD option of this id; else the localised text of the id.
    bool titledByPPD = false;
    bool offered = false; ///< it has a row

    friend bool operator==(const AdvancedGroup &, const AdvancedGroup &) = default;
};

/// All groups in the order of the list, for a panel that manages these keywords.
std::vector<AdvancedGroup> advancedGroups(const QStringList &managedKeywords);
