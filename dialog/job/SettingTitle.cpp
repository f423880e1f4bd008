#include "dialog/job/SettingTitle.h"

#include "dialog/job/JobLayout.h"
#include "platform/ppd/PPDText.h"
#include "platform/printmanager/PMTicketKeys.h"
#include "platform/toolkit/PlainText.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

struct OwnTitle
{
    QLatin1String name;
    const char *text; ///< for people, to be translated ("SettingTitle")
};

// Page Setup and the head of the window call them so, whatever a PPD has for them.
constexpr std::array kOwnTitles{
    OwnTitle{"PageSize"_L1, QT_TRANSLATE_NOOP("SettingTitle", "Paper in the Printer")},
    OwnTitle{kPMMappedPaperKey, QT_TRANSLATE_NOOP("SettingTitle", "Document Page")},
    OwnTitle{"print-scaling"_L1, QT_TRANSLATE_NOOP("SettingTitle", "Scaling")},
    OwnTitle{"orientation-requested"_L1, QT_TRANSLATE_NOOP("SettingTitle", "Orientation")},
    OwnTitle{"copies"_L1, QT_TRANSLATE_NOOP("SettingTitle", "Copies")},
    OwnTitle{"page-ranges"_L1, QT_TRANSLATE_NOOP("SettingTitle", "Pages")},
    OwnTitle{kPMColorMatchingModeKey, QT_TRANSLATE_NOOP("SettingTitle", "Color Management")},
    OwnTitle{"job-name"_L1, QT_TRANSLATE_NOOP("SettingTitle", "Job Title")}};

} // namespace

QString settingTitle(ppd_file_t *ppd, const QString &name)
{
    const auto *own = std::ranges::find_if(
        kOwnTitles, [&](const OwnTitle &one) { return isSameName(one.name, name); });
    if (own != kOwnTitles.end())
        return QCoreApplication::translate("SettingTitle", own->text);
    if (const LayoutSetting *setting = layoutSetting(name))
        return layoutTitle(*setting);
    const ppd_option_t *option = findOption(ppd, name);
    return displayText(option ? ppdText(option->text) : name);
}
