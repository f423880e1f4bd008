#pragma once

#include <QtCore/QString>

#include <optional>

/// Page ranges as IPP wants them (ascending, none touching another: "1-3,7") from what a person
/// typed ("7, 1-2, 3"). An open end ("5-") goes up to the last page. Empty for an empty text: all
/// pages; null when the text is no list of page numbers from 1 on.
QString normalizedPageRanges(const QString &typed);

/// The first page of the first range that lies wholly beyond a document of so many pages (or sides,
/// where those are counted); none where every range has a page of it. `ranges` as
/// normalizedPageRanges() gives them.
std::optional<int> pageBeyond(const QString &ranges, int pages);
