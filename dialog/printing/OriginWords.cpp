#include "dialog/printing/OriginWords.h"

#include "dialog/job/SettingTitle.h"
#include "dialog/printing/ChangeWords.h"
#include "dialog/printing/PrintJob.h"
#include "dialog/printing/SettingState.h"
#include "dialog/printing/SettingValues.h"
#include "platform/ppd/PPDText.h"
#include "platform/toolkit/PlainText.h"

#include <QtCore/QCoreApplication>

namespace {

struct OriginWords
{
    Q_DECLARE_TR_FUNCTIONS(OriginWords)
};

QString causeWords(ppd_file_t *ppd, const PPDMark &cause)
{
    if (!findOption(ppd, cause.keyword))
        return OriginWords::tr("Goes with your choices");
    return OriginWords::tr("Because you chose %1: %2")
        .arg(settingTitle(ppd, cause.keyword), choiceWords(ppd, cause.keyword, cause.choice));
}

} // namespace

QString originWords(ppd_file_t *ppd, const SettingOrigin &origin)
{
    switch (origin.kind) {
    case SettingOrigin::Kind::Queue:
        return OriginWords::tr("Saved with the printer");
    case SettingOrigin::Kind::Preset:
        return OriginWords::tr("From the preset %1").arg(displayText(origin.preset));
    case SettingOrigin::Kind::LastUsed:
        return OriginWords::tr("Last used");
    case SettingOrigin::Kind::CommandLine:
        return OriginWords::tr("From the command line");
    case SettingOrigin::Kind::You:
        return OriginWords::tr("Your choice");
    case SettingOrigin::Kind::Because:
        return causeWords(ppd, origin.cause);
    case SettingOrigin::Kind::Rules:
        return OriginWords::tr("Goes with the other settings");
    case SettingOrigin::Kind::Printer:
        break;
    }
    return OriginWords::tr("The printer's default");
}

QString originLine(const PrintJob &job, const SettingOrigins &origins, const QString &keyword)
{
    ppd_file_t *ppd = job.ppd();
    return OriginWords::tr("%1: %2 – %3")
        .arg(settingTitle(ppd, keyword),
             choiceWords(ppd, keyword, settingValues(job, settingState(job)).value(keyword)),
             originWords(ppd, origins.originOf(keyword)));
}
