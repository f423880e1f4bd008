#include "dialog/printing/Presets.h"

#include "dialog/host/CustomParameters.h"
#include "dialog/job/LpoptionsFile.h"
#include "dialog/job/StandardAttributes.h"
#include "dialog/printing/PrintJob.h"
#include "platform/ppd/PPDText.h"
#include "platform/toolkit/PlainText.h"

#include <QtCore/QCollator>
#include <QtCore/QCoreApplication>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kLongestPresetName = 127; // bytes

// Of one document or one occasion.
constexpr std::array kPassing{"copies"_L1,
                              "page-ranges"_L1,
                              "page-set"_L1,
                              "job-name"_L1,
                              "title"_L1,
                              "job-hold-until"_L1,
                              "job-sheets"_L1,
                              "job-priority"_L1,
                              "notify-recipient-uri"_L1,
                              "notify-events"_L1,
                              "job-billing"_L1,
                              "document-name"_L1,
                              "job-password"_L1,
                              "job-password-encryption"_L1};

bool isSecretChoice(const PrintJob &job, const JobOption &option)
{
    const QList<CustomParameter> values =
        parametersOf(option.value, customParameters(job.ppd(), option.name));
    return std::ranges::any_of(values, isSecret);
}

/// What only several copies say, as long as nobody has chosen it.
bool isOfCopies(const PrintJob &job, const JobOption &option)
{
    return option.name == "multiple-document-handling"_L1 &&
           job.settings().layout.collation.isEmpty();
}

Fault presetFault(const QString &sentence)
{
    return {FaultKind::Request, sentence};
}

Fault noSuchPreset(const QueueName &preset)
{
    const Result<> known = checkInstance(preset);
    if (!known)
        return known.fault();
    return presetFault(QCoreApplication::translate(
                           "Presets", "The preset \"%1\" was set up for everybody who uses "
                                      "this computer; it cannot be changed here.")
                           .arg(displayText(preset.instance)));
}

/// What the queue's own saved settings say and the preset does not, as it is now: else they would
/// show through.
QList<JobOption> neutralised(const PrintJob &job, const QList<JobOption> &options)
{
    QList<JobOption> added;
    for (const JobOption &option : savedOptions({job.source().queue.queue, {}})) {
        if (!optionValue(options, option.name).isNull())
            continue;
        if (isChoice(job.ppd(), option.name))
            added += JobOption{option.name, markedChoice(job.ppd(), option.name)};
        else if (option.name == "orientation-requested"_L1)
            added += JobOption{option.name, u"3"_s};
    }
    added.removeIf([](const JobOption &option) { return option.value.isEmpty(); });
    return added + standardAttributes(marksOf(job.ppd()), added, job.attributeRules());
}

QList<JobOption> presetOptions(const PrintJob &job)
{
    const QList<JobOption> options = lastingOptions(job, job.options().options);
    return options + neutralised(job, options);
}

} // namespace

QStringList presetNames(const QString &queue)
{
    QStringList names;
    for (const QueueName &instance : savedInstances())
        if (isSameQueue({instance.queue, {}}, {queue, {}}))
            names += instance.instance;
    QCollator order;
    order.setNumericMode(true);
    std::ranges::sort(names, order);
    return names;
}

QString presetNameFault(const QString &name)
{
    const auto isForbidden = [](QChar character) {
        return character.isSpace() || !character.isPrint() || u"/#\"'\\{}"_s.contains(character);
    };
    if (name.isEmpty())
        return QCoreApplication::translate("Presets", "Give the preset a name.");
    if (!name.isValidUtf16() || std::ranges::any_of(name, isForbidden))
        return QCoreApplication::translate(
            "Presets", "The name of a preset has no spaces, slashes, quotes, braces or #; other "
                       "programs would not find it. \"-\" and \"_\" are fine.");
    if (name.toUtf8().size() > kLongestPresetName)
        return QCoreApplication::translate("Presets", "The name is too long.");
    return {};
}

bool isPassing(const QString &option)
{
    return std::ranges::find(kPassing, option) != kPassing.end();
}

QList<JobOption> lastingOptions(const PrintJob &job, const QList<JobOption> &options)
{
    QList<JobOption> lasting;
    for (const JobOption &option : options)
        if (!isPassing(option.name) && !isOfCopies(job, option) && !isSecretChoice(job, option))
            lasting += option;
    return lasting;
}

Result<> savePreset(const PrintJob &job, const QString &name)
{
    const JobOptions now = job.options();
    if (!now.faults.isEmpty())
        return presetFault(now.faults.constFirst());
    if (const QString fault = presetNameFault(name); !fault.isNull())
        return presetFault(fault);
    const QueueName preset{job.source().queue.queue, name};
    return changeLpoptions([&](const QByteArray &text) {
        return Result<QByteArray>(withSavedLine(text, preset, presetOptions(job)));
    });
}

bool isAsSaved(const PrintJob &job, const QString &name)
{
    const QList<JobOption> saved = savedOptions({job.source().queue.queue, name});
    return std::ranges::all_of(presetOptions(job), [&](const JobOption &option) {
        return optionValue(saved, option.name) == option.value;
    });
}

Result<> renamePreset(const QueueName &preset, const QString &name)
{
    if (const QString fault = presetNameFault(name); !fault.isNull())
        return presetFault(fault);
    const QueueName renamed{preset.queue, name};
    return changeLpoptions([&](const QByteArray &text) -> Result<QByteArray> {
        if (!hasSavedLine(text, preset))
            return noSuchPreset(preset);
        if (!isSameQueue(preset, renamed) && checkInstance(renamed))
            return presetFault(
                QCoreApplication::translate("Presets", "There is a preset \"%1\" already.")
                    .arg(displayText(name)));
        return withRenamedLine(text, preset, name);
    });
}

Result<> deletePreset(const QueueName &preset)
{
    return changeLpoptions([&](const QByteArray &text) -> Result<QByteArray> {
        if (!hasSavedLine(text, preset))
            return noSuchPreset(preset);
        return withoutSavedLine(text, preset);
    });
}
