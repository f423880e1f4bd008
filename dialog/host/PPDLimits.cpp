#include "dialog/host/PPDLimits.h"

#include "dialog/host/PPDSentence.h"

#include <QtCore/QByteArray>
#include <QtCore/QHash>

#include <algorithm>
#include <array>
#include <utility>

namespace {

constexpr std::array kLimits{
    PPDLimit{"bytes", &PPDCensus::bytes, kLargestPPD, 610'000,
             QT_TRANSLATE_NOOP("PPDFile", "The PPD file %1 is too large: it has more than %2 "
                                          "bytes.")},
    PPDLimit{"lines", &PPDCensus::lines, 60'000, 11'656,
             QT_TRANSLATE_NOOP("PPDFile", "The PPD file %1 cannot be used: it has more than %2 "
                                          "lines.")},
    PPDLimit{"groups", &PPDCensus::groups, 200, 11,
             QT_TRANSLATE_NOOP("PPDFile", "The PPD file %1 cannot be used: it has more than %2 "
                                          "groups of options.")},
    PPDLimit{"options", &PPDCensus::options, 1'000, 85,
             QT_TRANSLATE_NOOP("PPDFile", "The PPD file %1 cannot be used: it has more than %2 "
                                          "options.")},
    PPDLimit{"choices", &PPDCensus::choices, 2'500, 226,
             QT_TRANSLATE_NOOP("PPDFile", "The PPD file %1 cannot be used: an option has more "
                                          "than %2 choices.")},
    PPDLimit{"papers", &PPDCensus::papers, 1'000, 80,
             QT_TRANSLATE_NOOP("PPDFile", "The PPD file %1 cannot be used: it has more than %2 "
                                          "papers.")},
    PPDLimit{"parameters", &PPDCensus::parameters, 1'000, 16,
             QT_TRANSLATE_NOOP("PPDFile", "The PPD file %1 cannot be used: it has more than %2 "
                                          "custom parameters.")},
    PPDLimit{"UIConstraints", &PPDCensus::constraints, 36'000, 7'007,
             QT_TRANSLATE_NOOP("PPDFile", "The PPD file %1 cannot be used: it has more than %2 "
                                          "UIConstraints.")},
    PPDLimit{"cupsUIConstraints", &PPDCensus::newConstraints, 4'000, 0,
             QT_TRANSLATE_NOOP("PPDFile", "The PPD file %1 cannot be used: it has more than %2 "
                                          "cupsUIConstraints.")},
    PPDLimit{"cupsUIConstraints' options", &PPDCensus::newTerms, 20'000, 0,
             QT_TRANSLATE_NOOP("PPDFile", "The PPD file %1 cannot be used: its cupsUIConstraints "
                                          "name more than %2 options.")},
    PPDLimit{"attributes", &PPDCensus::attributes, 16'000, 0,
             QT_TRANSLATE_NOOP("PPDFile", "The PPD file %1 cannot be used: it has more than %2 "
                                          "attributes.")},
};

/// The keywords of a PPD, line by line. A line that begins with an asterisk counts even within a
/// quoted value: what looks quoted here need not be so for libcups.
class Counter
{
public:
    void count(QByteArrayView line)
    {
        ++m_census.lines;
        if (m_isInTerms)
            countTerms(line);
        if (line.startsWith('*') && !line.startsWith("*%"))
            countKeyword(line.sliced(1));
    }

    PPDCensus census()
    {
        closeOption();
        PPDCensus census = m_census;
        for (const qsizetype choices : m_choices)
            census.choices = std::max(census.choices, choices);
        census.papers = std::max({m_choices.value("pagesize"), m_sizes, m_areas});
        return census;
    }

private:
    void countKeyword(QByteArrayView line)
    {
        const auto end = std::ranges::find_if(
            line, [](char each) { return each == ':' || each == ' ' || each == '\t'; });
        const QByteArrayView keyword(line.begin(), end);
        const QByteArrayView rest(end, line.end());
        if (keyword == "cupsUIConstraints" || keyword == "cupsUIResolver")
            countTerms(rest);
        if (keyword == "OpenUI" || keyword == "JCLOpenUI")
            openOption(rest);
        else if (keyword == "CloseUI" || keyword == "JCLCloseUI")
            closeOption();
        else
            ++countOf(keyword);
    }

    qsizetype &countOf(QByteArrayView keyword)
    {
        if (m_option.size() == keyword.size() && !m_option.isEmpty() &&
            m_option.compare(keyword, Qt::CaseInsensitive) == 0)
            return m_openChoices;
        if (keyword == "OpenGroup" || keyword == "OpenSubGroup")
            return m_census.groups;
        if (keyword == "UIConstraints" || keyword == "NonUIConstraints")
            return m_census.constraints;
        if (keyword == "cupsUIConstraints")
            return m_census.newConstraints;
        if (keyword == "PaperDimension")
            return m_sizes;
        if (keyword == "ImageableArea")
            return m_areas;
        if (keyword.startsWith("ParamCustom") || keyword.startsWith("Custom"))
            return m_census.parameters;
        return m_census.attributes;
    }

    // " *Keyword/Text: PickOne"; libcups finds options without regard to case.
    void openOption(QByteArrayView rest)
    {
        closeOption();
        ++m_census.options;
        const auto isEnd = [](char each) { return each == '/' || each == ':' || each == ' '; };
        rest = rest.sliced(rest.indexOf('*') + 1);
        m_option =
            QByteArrayView(rest.begin(), std::ranges::find_if(rest, isEnd)).toByteArray().toLower();
    }

    void closeOption()
    {
        m_choices[m_option] += std::exchange(m_openChoices, 0);
        m_option.clear();
    }

    // "*Keyword Choice *Keyword Choice", on as many lines as it likes.
    void countTerms(QByteArrayView text)
    {
        m_census.newTerms += std::ranges::count(text, '*');
        if (std::ranges::count(text, '"') % 2 == 1)
            m_isInTerms = !m_isInTerms;
    }

    PPDCensus m_census;
    QByteArray m_option; // that is open, in small letters
    qsizetype m_openChoices = 0;
    QHash<QByteArray, qsizetype> m_choices; // of the options that were closed
    qsizetype m_sizes = 0;
    qsizetype m_areas = 0;
    bool m_isInTerms = false; // a quoted value goes on over the line's end
};

/// What ends with the character, or at the end of the text; an empty text is one empty line.
template <typename Visit> void eachLine(QByteArrayView text, char end, Visit visit)
{
    qsizetype start = 0;
    for (qsizetype at = text.indexOf(end); at >= 0; at = text.indexOf(end, start)) {
        visit(text.sliced(start, at - start));
        start = at + 1;
    }
    if (start < text.size() || text.isEmpty())
        visit(text.sliced(start));
}

} // namespace

PPDCensus censusOf(QByteArrayView ppd)
{
    Counter counter;
    eachLine(ppd, '\n', [&](QByteArrayView line) {
        // libcups takes a carriage return alone for the end of a line too.
        eachLine(line.endsWith('\r') ? line.chopped(1) : line, '\r',
                 [&](QByteArrayView part) { counter.count(part); });
    });
    PPDCensus census = counter.census();
    census.bytes = ppd.size();
    return census;
}

std::span<const PPDLimit> ppdLimits()
{
    return kLimits;
}

QString sentenceOf(const PPDLimit &limit, const QString &path)
{
    return ppdSentence(limit.sentence, path, QString::number(limit.most));
}

const PPDLimit *exceededLimit(const PPDCensus &census)
{
    const auto exceeded = std::ranges::find_if(
        kLimits, [&](const PPDLimit &limit) { return census.*limit.count > limit.most; });
    return exceeded == kLimits.end() ? nullptr : &*exceeded;
}
