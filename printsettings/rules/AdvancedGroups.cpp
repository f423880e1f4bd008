#include "printsettings/rules/AdvancedGroups.h"

#include <algorithm>

using namespace Qt::StringLiterals;

std::vector<AdvancedGroup> advancedGroups(const QStringList &managedKeywords)
{
    static const QStringList layout = {u"MirrorPrint"_s, u"VKMirror"_s, u"VKReverse"_s};
    const bool hasLayout = std::any_of(layout.begin(), layout.end(), [&](const QString &keyword) {
        return managedKeywords.contains(keyword);
    });
    return {
        {u"Layout"_s, false, hasLayout},
        {u"VKJpeg"_s, true, managedKeywords.contains(u"VKJpeg"_s)},
        {u"VKDuplexMode"_s, true, managedKeywords.contains(u"VKDuplexMode"_s)},
        {u"OtherOption"_s, false, true},
    };
}
