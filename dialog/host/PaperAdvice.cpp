#include "dialog/host/PaperAdvice.h"

#include <fnmatch.h>

#include <algorithm>

using namespace Qt::StringLiterals;

bool PaperAdvice::isFor(const QString &paper) const
{
    return std::ranges::any_of(papers, [&](const QString &pattern) {
        return fnmatch(pattern.toUtf8().constData(), paper.toUtf8().constData(), 0) == 0;
    });
}

QList<PaperAdvice> paperAdvice(const QVariantList &entry)
{
    QList<PaperAdvice> all;
    for (const QVariant &value : entry) {
        const QVariantMap fields = value.toMap();
        const PaperAdvice advice{fields["Papers"_L1].toStringList(),
                                 fields["Keyword"_L1].toString(), fields["Choice"_L1].toString()};
        if (!advice.papers.isEmpty() && !advice.keyword.isEmpty() && !advice.choice.isEmpty())
            all += advice;
    }
    return all;
}
