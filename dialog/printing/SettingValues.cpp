#include "dialog/printing/SettingValues.h"

#include "dialog/host/HostSession.h"
#include "dialog/host/controls/PanelParts.h"
#include "dialog/job/SavedOptions.h"
#include "dialog/printing/PrintJob.h"
#include "dialog/printing/SettingState.h"
#include "dialog/printing/StandardSettings.h"
#include "platform/printmanager/PMTicketKeys.h"
#include "platform/toolkit/FractionSlider.h"
#include "platform/toolkit/ViewLoader.h"

using namespace Qt::StringLiterals;

namespace {

void addOwnSettings(SettingValues &values, const PrintJob &job)
{
    const HostSettings &settings = job.settings();
    if (settings.copies != HostSettings().copies)
        values.insert(u"copies"_s, QString::number(settings.copies));
    if (!settings.pageRanges.isEmpty())
        values.insert(u"page-ranges"_s, settings.pageRanges);
    if (settings.scaling != HostSettings().scaling)
        values.insert(u"print-scaling"_s, QString::number(static_cast<int>(settings.scaling)));
    if (job.orientation() != PMOrientation::Portrait)
        values.insert(u"orientation-requested"_s, u"landscape"_s);
    if (!job.ownTitle().isEmpty())
        values.insert(u"job-name"_s, job.ownTitle());
    for (const JobOption &option : layoutOptions(settings.layout))
        values.insert(option.name, option.value);
}

void addTicket(SettingValues &values, const HostSession &session)
{
    const QStringList folds = session.foldStateKeys();
    const QVariantMap &ticket = session.ticket().values();
    for (auto entry = ticket.cbegin(); entry != ticket.cend(); ++entry) {
        const QString keyword = session.keywordOfTicketKey(entry.key());
        const bool isDefault =
            entry.key() == kPMColorMatchingModeKey && entry->toString() == kPMVendorColorMatching;
        if (!folds.contains(entry.key()) && !isDefault)
            values.insert(keyword.isNull() ? entry.key() : keyword, entry->toString());
    }
    // What a slider shows is in the ticket only after its panel has saved it, cut to a whole
    // number.
    for (const FractionSlider *slider : partsOfViews<FractionSlider>(session))
        if (const QString keyword = boundKeyOf(slider); session.titledKeywords().contains(keyword))
            values.insert(keyword, QString::number(static_cast<int>(slider->doubleValue())));
}

/// What became of the option, where another preset than the queue's own has it.
SettingOrigin originOf(const PrinterSource &source, const JobOption &option,
                       const QList<JobOption> &ofQueue, const QList<JobOption> &ofStart)
{
    using enum SettingOrigin::Kind;
    if (ofQueue.contains(option))
        return {Queue, {}, {}};
    if (!ofStart.contains(option))
        return {You, {}, {}};
    if (source.start.kind == StartingSettings::Kind::LastUsed)
        return {LastUsed, {}, {}};
    return {Preset,
            source.start.kind == StartingSettings::Kind::OfPPD ? source.start.name
                                                               : source.queue.instance,
            {}};
}

} // namespace

SettingValues settingValues(const PrintJob &job, const SettingState &state)
{
    SettingValues values;
    for (const PPDMark &mark : state.marks)
        values.insert(mark.keyword, mark.choice);
    addOwnSettings(values, job);
    if (job.session())
        addTicket(values, *job.session());
    return values;
}

SettingValues defaultValues(const PrintJob &job)
{
    SettingValues values;
    if (job.session())
        for (const PPDMark &mark : job.session()->defaultMarks())
            values.insert(mark.keyword, mark.choice);
    return values;
}

QHash<QString, SettingOrigin> startingOrigins(const PrintJob &job, const QList<JobOption> &starting)
{
    const PrinterSource &source = job.source();
    const QList<JobOption> ofQueue =
        source.queue.queue.isEmpty() ? QList<JobOption>() : savedOptions({source.queue.queue, {}});
    PrinterSource former = source;
    former.kept.reset();
    const QList<JobOption> ofStart = source.kept ? startingOptions(former, job.ppd()) : starting;
    QHash<QString, SettingOrigin> origins;
    for (const JobOption &option : starting) {
        const SettingOrigin origin = originOf(source, option, ofQueue, ofStart);
        const QString titled =
            job.session() ? job.session()->keywordOfTicketKey(option.name) : QString();
        origins.insert(titled.isNull() ? option.name : titled, origin);
        for (const RequestedChoice &named :
             inPrintersNames(job.ppd(), {}, {{option.name, option.value}}).wanted)
            origins.insert(named.keyword, origin);
    }
    return origins;
}
