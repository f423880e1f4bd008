#include "dialog/job/JobOptions.h"

#include "dialog/job/ReservedNames.h"
#include "dialog/job/StandardAttributes.h"
#include "platform/ppd/PPDText.h"
#include "platform/printmanager/PMTicketKeys.h"
#include "platform/toolkit/PlainText.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLocale>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kLongestText = 255; // bytes: an IPP name
constexpr auto kLandscape = "4"_L1;     // orientation-requested
constexpr auto kCollationOption = "multiple-document-handling"_L1;

bool isNameCharacter(QChar character)
{
    return (character.unicode() < 0x80 && character.isLetterOrNumber()) || character == u'.' ||
           character == u'_' || character == u'-';
}

bool isValueCharacter(uint character)
{
    const bool breaksLine =
        character == QChar::LineSeparator || character == QChar::ParagraphSeparator;
    return QChar::isPrint(character) && !breaksLine;
}

// Half of a surrogate pair has no UTF-8: the server would get a question mark.
bool isValue(const QString &value)
{
    return !value.isEmpty() && value.isValidUtf16() &&
           std::ranges::all_of(value.toUcs4(), isValueCharacter);
}

QList<JobOption> changedChoices(const JobValues &values, const QList<PPDMark> &marks)
{
    QList<JobOption> choices;
    for (const PPDMark &mark : marks) {
        const bool isSent = !values.defaultMarks.contains(mark) ||
                            values.settled.contains(mark.keyword, Qt::CaseInsensitive);
        if (isSent && !isReservedName(mark.keyword) && !values.inTicket.contains(mark.keyword))
            choices += JobOption{mark.keyword, mark.choice};
    }
    return choices;
}

void put(QList<JobOption> &options, const JobOption &option)
{
    options.removeIf([&](const JobOption &old) { return isSameName(old.name, option.name); });
    options += option;
}

/// The sheet in the printer, where it is not simply the marked choice: a size of the user's, or the
/// paper that the document's page is mapped to.
void putPaper(QList<JobOption> &options, const JobValues &values)
{
    const std::optional<PMPaper> &paper = values.format.paper;
    if (values.ppd && paper && paper->ppdName.isNull() && paper->width > 0 && paper->height > 0)
        put(options, {u"PageSize"_s, customPageSize(paper->width, paper->height)});
    const QString mapped = values.ticket.values().value(kPMMappedPaperKey).toString();
    if (const ppd_choice_t *found = findChoice(findOption(values.ppd, u"PageSize"_s), mapped))
        put(options, {u"PageSize"_s, ppdName(found->choice)});
}

/// The server turns a page that is higher than wide by a quarter, as it was told, and then once
/// more so that it fills the upright sheet: it would come out upside down. Pictures lie right only
/// so.
void putLandscape(QList<JobOption> &options, bool havePages)
{
    put(options, {u"orientation-requested"_s, kLandscape});
    if (havePages)
        put(options, {u"pdfAutoRotate"_s, u"false"_s});
}

/// A server that is told nothing of several copies prints them page by page.
void putCopies(QList<JobOption> &options, const HostSettings &settings)
{
    if (settings.copies < 2)
        return;
    put(options, {u"copies"_s, QString::number(settings.copies)});
    if (optionValue(options, kCollationOption).isNull())
        put(options, {kCollationOption, collationOf(settings)});
}

void putSettings(QList<JobOption> &options, const JobValues &values)
{
    putCopies(options, values.settings);
    if (!values.settings.pageRanges.isEmpty())
        put(options, {u"page-ranges"_s, values.settings.pageRanges});
    put(options, {u"print-scaling"_s, scalingKeyword(values.settings.scaling)});
    if (values.format.orientation == PMOrientation::Landscape)
        putLandscape(options, values.havePages);
    for (const JobOption &option : layoutOptions(values.settings.layout))
        put(options, option);
}

QString ticketText(const QVariant &value)
{
    if (value.typeId() == QMetaType::Bool)
        return value.toBool() ? u"true"_s : u"false"_s;
    if (value.typeId() == QMetaType::Double || value.typeId() == QMetaType::Float)
        return QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest);
    return value.toString();
}

void putTicket(QList<JobOption> &options, const QVariantMap &ticket)
{
    for (auto entry = ticket.cbegin(); entry != ticket.cend(); ++entry) {
        const QString &key = entry.key();
        if (key == kPMColorMatchingModeKey || isVendorTicketKey(key))
            put(options, {key, ticketText(entry.value())});
    }
}

bool isSendableName(const QString &name)
{
    return !name.isEmpty() && name.size() <= kLongestText &&
           std::ranges::all_of(name, isNameCharacter);
}

QString fault(const JobOption &option)
{
    if (!isSendableName(option.name))
        return QCoreApplication::translate("JobOptions",
                                           "The setting \"%1\" cannot be sent: a print server may "
                                           "be given no setting of that name.")
            .arg(displayText(option.name.left(80)));
    return QCoreApplication::translate("JobOptions",
                                       "The setting %1 cannot be sent: \"%2\" is no value that a "
                                       "print server may be given.")
        .arg(displayText(option.name.left(80)), displayText(option.value.left(80)));
}

} // namespace

QString collationOf(const HostSettings &settings)
{
    if (settings.copies < 2 || !settings.layout.collation.isEmpty())
        return settings.layout.collation;
    return layoutSetting(kCollationOption)->choices.front().value;
}

bool isVendorTicketKey(const QString &key)
{
    return key.contains(u'.') && !key.startsWith(kPMPlatformKeyPrefix);
}

bool isChoice(ppd_file_t *ppd, const QString &name)
{
    return findOption(ppd, name) && !isReservedName(name);
}

bool isSendable(const JobOption &option)
{
    return isSendableName(option.name) && isValue(option.value) &&
           option.value.toUtf8().size() <= kLongestText;
}

QString customPageSize(double width, double height)
{
    const auto number = [](double points) {
        return QString::number(qRound(points * 100) / 100.0, 'g', 8);
    };
    return u"Custom.%1x%2"_s.arg(number(width), number(height));
}

JobOptions jobOptions(const JobValues &values)
{
    QList<JobOption> made;
    for (const JobOption &option : values.saved)
        if (option.name != "media"_L1 && !isChoice(values.ppd, option.name))
            put(made, option);
    const QList<PPDMark> marks = marksOf(values.ppd);
    const QList<JobOption> choices = changedChoices(values, marks);
    for (const JobOption &option :
         choices + standardAttributes(marks, choices, values.attributeRules))
        put(made, option);
    putPaper(made, values);
    putSettings(made, values);
    putTicket(made, values.ticket.values());

    JobOptions job;
    for (const JobOption &option : made) {
        if (isSendable(option))
            job.options += option;
        else
            job.faults += fault(option);
    }
    return job;
}
