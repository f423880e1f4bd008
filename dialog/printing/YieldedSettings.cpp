#include "dialog/printing/YieldedSettings.h"

#include "dialog/printing/LostTogether.h"
#include "dialog/printing/PrintJob.h"
#include "dialog/printing/RequestedSettings.h"
#include "dialog/printing/SettingRequests.h"
#include "platform/ppd/PPDText.h"
#include "platform/toolkit/PlainText.h"

#include <QtCore/QCoreApplication>

#include <algorithm>

namespace {

/// What was saved and nobody has wished for otherwise.
QList<RequestedChoice> savedSettings(const PrintJob &job, const QList<JobOption> &starting,
                                     const QList<RequestedChoice> &wished)
{
    QList<RequestedChoice> saved;
    for (const JobOption &option : starting)
        if (findOption(job.ppd(), option.name) &&
            std::ranges::none_of(wished, [&](const RequestedChoice &wish) {
                return isSameName(wish.keyword, option.name);
            }))
            saved += RequestedChoice{option.name, option.value};
    return saved;
}

} // namespace

QString savedSentence(const QString &sentence)
{
    return QCoreApplication::translate("YieldedSettings", "Saved for this printer: %1")
        .arg(sentence);
}

QStringList yieldedSettings(PrintJob &job, const QList<JobOption> &starting,
                            QList<RequestedChoice> wished)
{
    QList<RequestedChoice> standing = savedSettings(job, starting, wished);
    QStringList sentences;
    for (const RequestedChoice &lost : lostSettings(job, standing))
        sentences += savedSentence(lossSentence(job, lost));
    standing.removeIf(
        [&](const RequestedChoice &one) { return !lostSettings(job, {one}).isEmpty(); });
    wished.removeIf(
        [&](const RequestedChoice &wish) { return !findOption(job.ppd(), wish.keyword); });
    if (standing.isEmpty() || wished.isEmpty())
        return sentences;
    for (const RequestedChoice &one : lostTogether(job, standing, wished))
        sentences += savedSentence(
            QCoreApplication::translate("YieldedSettings",
                                        "%1 cannot be chosen together with what was asked for; it "
                                        "is sent as it was saved.")
                .arg(displayText(one.keyword) + u'=' + displayText(one.choice)));
    return sentences;
}
