#pragma once

#include <QtCore/QList>
#include <QtCore/QString>

/// One setting of a job as it is sent to the server: a PPD keyword, a standard attribute, or a
/// ticket key, and its value as text.
struct JobOption
{
    QString name;
    QString value;

    bool operator==(const JobOption &) const = default;
};

/// The value under the name; null when there is none. The last one of a name counts.
inline QString optionValue(const QList<JobOption> &options, const QString &name)
{
    for (qsizetype index = options.size() - 1; index >= 0; --index)
        if (options[index].name == name)
            return options[index].value;
    return {};
}
