#include "panel/PrintSettingChange.h"

#include "panel/TicketValue.h"

#include <QtCore/QString>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

using Subject = PrintSettingChange::Subject;

constexpr auto kPointTo = "PointTo"_L1;

struct Row
{
    Subject subject;
    QLatin1String keyword; // what "PointTo" names
    QLatin1String entry;   // which has the value
};

constexpr std::array kRows{
    Row{Subject::MonoColor, "VKMonoColor"_L1, "VKMonoColor"_L1},
    Row{Subject::HalfTonePattern, "VKHalfTonePattern"_L1, "VKHalfTonePattern"_L1},
    Row{Subject::ColorMatching, "VKColorMatching"_L1, "Natural"_L1},
};

const Row &rowOf(Subject subject)
{
    return *std::ranges::find(kRows, subject, &Row::subject);
}

} // namespace

QVariantMap userInfoOf(const PrintSettingChange &change)
{
    const Row &row = rowOf(change.subject);
    return {{row.entry, change.on}, {kPointTo, QString(row.keyword)}};
}

std::optional<PrintSettingChange> printSettingChange(const QVariantMap &userInfo)
{
    const QString keyword = userInfo.value(kPointTo).toString();
    const auto row = std::ranges::find(kRows, keyword, &Row::keyword);
    if (row == kRows.end())
        return std::nullopt;
    return PrintSettingChange{row->subject, ticketBoolean(userInfo.value(row->entry))};
}

QString keywordOf(Subject subject)
{
    return rowOf(subject).keyword;
}
