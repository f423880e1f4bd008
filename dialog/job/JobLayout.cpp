#include "dialog/job/JobLayout.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDateTime>
#include <QtCore/QRegularExpression>
#include <QtCore/QStringList>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

// The values are those of IPP and of the manual of `lp`.

constexpr std::array kPagesPerSheet{LayoutChoice{"1"_L1, "1"}, LayoutChoice{"2"_L1, "2"},
                                    LayoutChoice{"4"_L1, "4"}, LayoutChoice{"6"_L1, "6"},
                                    LayoutChoice{"9"_L1, "9"}, LayoutChoice{"16"_L1, "16"}};

constexpr std::array kPageOrders{
    LayoutChoice{"lrtb"_L1, QT_TRANSLATE_NOOP("JobLayout", "Across, from the top left")},
    LayoutChoice{"rltb"_L1, QT_TRANSLATE_NOOP("JobLayout", "Across, from the top right")},
    LayoutChoice{"lrbt"_L1, QT_TRANSLATE_NOOP("JobLayout", "Across, from the bottom left")},
    LayoutChoice{"rlbt"_L1, QT_TRANSLATE_NOOP("JobLayout", "Across, from the bottom right")},
    LayoutChoice{"tblr"_L1, QT_TRANSLATE_NOOP("JobLayout", "Down, from the top left")},
    LayoutChoice{"tbrl"_L1, QT_TRANSLATE_NOOP("JobLayout", "Down, from the top right")},
    LayoutChoice{"btlr"_L1, QT_TRANSLATE_NOOP("JobLayout", "Up, from the bottom left")},
    LayoutChoice{"btrl"_L1, QT_TRANSLATE_NOOP("JobLayout", "Up, from the bottom right")}};

constexpr std::array kPageBorders{
    LayoutChoice{"none"_L1, QT_TRANSLATE_NOOP("JobLayout", "No border")},
    LayoutChoice{"single"_L1, QT_TRANSLATE_NOOP("JobLayout", "Thin line")},
    LayoutChoice{"single-thick"_L1, QT_TRANSLATE_NOOP("JobLayout", "Thick line")},
    LayoutChoice{"double"_L1, QT_TRANSLATE_NOOP("JobLayout", "Two thin lines")},
    LayoutChoice{"double-thick"_L1, QT_TRANSLATE_NOOP("JobLayout", "Two thick lines")}};

constexpr std::array kPageSets{
    LayoutChoice{"all"_L1, QT_TRANSLATE_NOOP("JobLayout", "All pages")},
    LayoutChoice{"odd"_L1, QT_TRANSLATE_NOOP("JobLayout", "Odd pages only")},
    LayoutChoice{"even"_L1, QT_TRANSLATE_NOOP("JobLayout", "Even pages only")}};

constexpr std::array kOutputOrders{
    LayoutChoice{"normal"_L1, QT_TRANSLATE_NOOP("JobLayout", "First page first")},
    LayoutChoice{"reverse"_L1, QT_TRANSLATE_NOOP("JobLayout", "Last page first")}};

constexpr std::array kCollations{LayoutChoice{"separate-documents-collated-copies"_L1,
                                              QT_TRANSLATE_NOOP("JobLayout", "Copy by copy")},
                                 LayoutChoice{"separate-documents-uncollated-copies"_L1,
                                              QT_TRANSLATE_NOOP("JobLayout", "Page by page")}};

constexpr std::array kBooklets{LayoutChoice{"off"_L1, QT_TRANSLATE_NOOP("JobLayout", "No")},
                               LayoutChoice{"on"_L1, QT_TRANSLATE_NOOP("JobLayout", "Yes")}};

constexpr std::array kHolds{
    LayoutChoice{"no-hold"_L1, QT_TRANSLATE_NOOP("JobLayout", "Now")},
    LayoutChoice{"indefinite"_L1, QT_TRANSLATE_NOOP("JobLayout", "When somebody releases it")},
    LayoutChoice{"day-time"_L1, QT_TRANSLATE_NOOP("JobLayout", "By day (6:00 to 18:00)")},
    LayoutChoice{"evening"_L1, QT_TRANSLATE_NOOP("JobLayout", "In the evening (from 18:00)")},
    LayoutChoice{"night"_L1, QT_TRANSLATE_NOOP("JobLayout", "At night (18:00 to 6:00)")},
    LayoutChoice{"second-shift"_L1,
                 QT_TRANSLATE_NOOP("JobLayout", "In the second shift (from 16:00)")},
    LayoutChoice{"third-shift"_L1,
                 QT_TRANSLATE_NOOP("JobLayout", "In the third shift (from midnight)")},
    LayoutChoice{"weekend"_L1, QT_TRANSLATE_NOOP("JobLayout", "At the weekend")}};

// Those that come with CUPS; a server may have others.
constexpr std::array kCovers{
    LayoutChoice{"none"_L1, QT_TRANSLATE_NOOP("JobLayout", "None")},
    LayoutChoice{"standard"_L1, QT_TRANSLATE_NOOP("JobLayout", "Standard")},
    LayoutChoice{"unclassified"_L1, QT_TRANSLATE_NOOP("JobLayout", "Unclassified")},
    LayoutChoice{"classified"_L1, QT_TRANSLATE_NOOP("JobLayout", "Classified")},
    LayoutChoice{"confidential"_L1, QT_TRANSLATE_NOOP("JobLayout", "Confidential")},
    LayoutChoice{"secret"_L1, QT_TRANSLATE_NOOP("JobLayout", "Secret")},
    LayoutChoice{"topsecret"_L1, QT_TRANSLATE_NOOP("JobLayout", "Top secret")}};

constexpr int kHighestPriority = 100;
constexpr qsizetype kMostCovers = 2;
constexpr auto kNoCover = "none"_L1;
constexpr auto kTimeOfHours = "HH:mm"_L1;
constexpr auto kTimeOfSeconds = "HH:mm:ss"_L1;
constexpr auto kMail = "mailto:"_L1;

QTime timeOf(const QString &text)
{
    const QTime exact = QTime::fromString(text, u"H:mm:ss"_s);
    return exact.isValid() ? exact : QTime::fromString(text, u"H:mm"_s);
}

QString textOfTime(const QTime &time)
{
    return time.toString(time.second() == 0 ? kTimeOfHours : kTimeOfSeconds);
}

QString normalizedHold(const QString &value)
{
    const QTime time = timeOf(value);
    return time.isValid() ? textOfTime(time) : QString();
}

QString normalizedPriority(const QString &value)
{
    const int priority = value.toInt();
    return priority >= 1 && priority <= kHighestPriority ? QString::number(priority) : QString();
}

/// Servers have templates of their own: any word may be the name of one.
QString normalizedCovers(const QString &value)
{
    static const QRegularExpression word(u"^[\\w.-]+$"_s);
    QStringList covers = value.split(u',');
    const bool areNames =
        std::ranges::all_of(covers, [](const QString &one) { return word.match(one).hasMatch(); });
    if (!areNames || covers.size() > kMostCovers)
        return {};
    if (covers.size() < kMostCovers)
        covers += kNoCover;
    return covers.join(u',');
}

/// An address without its scheme is one of mail.
QString normalizedNotification(const QString &value)
{
    static const QRegularExpression mail(u"^mailto:[^\\s@,<>\"]+@[^\\s@,<>\"]+$"_s);
    const QString uri = value.startsWith(kMail) ? value : kMail + value;
    return mail.match(uri).hasMatch() ? uri : QString();
}

QString translatedText(const char *text)
{
    return QCoreApplication::translate("JobLayout", text);
}

QString holdText(const QString &value)
{
    return QCoreApplication::translate("JobLayout", "At %1").arg(localTime(value));
}

QString coversText(const QString &value)
{
    const QString before = value.section(u',', 0, 0);
    const QString after = value.section(u',', 1, 1);
    if (before == kNoCover && after == kNoCover)
        return coverText(kNoCover);
    if (after == kNoCover)
        return QCoreApplication::translate("JobLayout", "%1 before the job").arg(coverText(before));
    if (before == kNoCover)
        return QCoreApplication::translate("JobLayout", "%1 after the job").arg(coverText(after));
    return QCoreApplication::translate("JobLayout", "%1 before the job, %2 after it")
        .arg(coverText(before), coverText(after));
}

QString addressText(const QString &value)
{
    return value.mid(kMail.size());
}

constexpr std::array kLayoutSettings{
    LayoutSetting{"number-up"_L1, &JobLayout::pagesPerSheet,
                  QT_TRANSLATE_NOOP("JobLayout", "Pages per Sheet"), kPagesPerSheet},
    LayoutSetting{"number-up-layout"_L1, &JobLayout::pageOrder,
                  QT_TRANSLATE_NOOP("JobLayout", "Order on the Sheet"), kPageOrders},
    LayoutSetting{"page-border"_L1, &JobLayout::pageBorder,
                  QT_TRANSLATE_NOOP("JobLayout", "Border"), kPageBorders},
    LayoutSetting{"booklet"_L1, &JobLayout::booklet, QT_TRANSLATE_NOOP("JobLayout", "Booklet"),
                  kBooklets},
    LayoutSetting{"page-set"_L1, &JobLayout::pageSet,
                  QT_TRANSLATE_NOOP("JobLayout", "Even and Odd"), kPageSets},
    LayoutSetting{"outputorder"_L1, &JobLayout::outputOrder,
                  QT_TRANSLATE_NOOP("JobLayout", "Page Order"), kOutputOrders},
    LayoutSetting{"multiple-document-handling"_L1, &JobLayout::collation,
                  QT_TRANSLATE_NOOP("JobLayout", "Several Copies"), kCollations},
    LayoutSetting{"job-hold-until"_L1, &JobLayout::hold,
                  QT_TRANSLATE_NOOP("JobLayout", "When to Print"), kHolds, normalizedHold, holdText,
                  "HH:MM"_L1},
    LayoutSetting{"job-priority"_L1,
                  &JobLayout::priority,
                  QT_TRANSLATE_NOOP("JobLayout", "Priority"),
                  {},
                  normalizedPriority,
                  nullptr,
                  "1-100"_L1},
    LayoutSetting{"job-sheets"_L1,
                  &JobLayout::coverPages,
                  QT_TRANSLATE_NOOP("JobLayout", "Cover Pages"),
                  {},
                  normalizedCovers,
                  coversText,
                  "standard,none"_L1},
    LayoutSetting{"notify-recipient-uri"_L1,
                  &JobLayout::notification,
                  QT_TRANSLATE_NOOP("JobLayout", "Notification"),
                  {},
                  normalizedNotification,
                  addressText,
                  "me@example.com"_L1},
};

/// A time of today from one scale to the other; empty for what is no time.
QString converted(const QString &text, Qt::TimeSpec from, Qt::TimeSpec to)
{
    const QTime time = timeOf(text);
    if (!time.isValid())
        return {};
    return textOfTime(QDateTime(QDate::currentDate(), time, from).toTimeSpec(to).time());
}

} // namespace

std::span<const LayoutSetting> layoutSettings()
{
    return kLayoutSettings;
}

const LayoutSetting *layoutSetting(const QString &option)
{
    const auto *found = std::ranges::find(kLayoutSettings, option, &LayoutSetting::option);
    return found == kLayoutSettings.end() ? nullptr : found;
}

QString normalizedLayoutValue(const LayoutSetting &setting, const QString &value)
{
    const auto choice = std::ranges::find(setting.choices, value, &LayoutChoice::value);
    if (choice != setting.choices.end())
        return value;
    return setting.normalized ? setting.normalized(value) : QString();
}

QStringList layoutValues(const LayoutSetting &setting)
{
    QStringList values;
    if (!setting.form.isEmpty())
        values += setting.form; // of long lists people are told the beginning
    for (const LayoutChoice &choice : setting.choices)
        values += choice.value;
    return values;
}

QString layoutTitle(const LayoutSetting &setting)
{
    return translatedText(setting.title);
}

QString layoutText(const LayoutSetting &setting, const QString &value)
{
    const auto choice = std::ranges::find(setting.choices, value, &LayoutChoice::value);
    if (choice != setting.choices.end())
        return translatedText(choice->text);
    return setting.text && !value.isEmpty() ? setting.text(value) : value;
}

QString coverText(const QString &name)
{
    const auto *cover = std::ranges::find(kCovers, name, &LayoutChoice::value);
    return cover == kCovers.end() ? name : translatedText(cover->text);
}

QList<JobOption> layoutOptions(const JobLayout &layout)
{
    QList<JobOption> options;
    for (const LayoutSetting &setting : kLayoutSettings)
        if (const QString &value = layout.*setting.value; !value.isEmpty())
            options += JobOption{setting.option, value};
    return options;
}

QString utcTime(const QString &local)
{
    return converted(local, Qt::LocalTime, Qt::UTC);
}

QString localTime(const QString &utc)
{
    return converted(utc, Qt::UTC, Qt::LocalTime);
}
