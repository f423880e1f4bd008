#pragma once

#include "platform/ppd/CupsPPD.h"

#include <QtCore/QList>
#include <QtCore/QStringList>

#include <span>

struct KeywordControl;

/// Something in a PPD that a panel will not understand.
struct PPDFinding
{
    QLatin1String sentence; ///< its key in the string table
    QStringList names;      ///< what stands in its places: a keyword and one or two other names

    friend bool operator==(const PPDFinding &, const PPDFinding &) = default;
};

/// Holds a PPD against what the panels know. Keywords that the PPD lacks are passed over: a printer
/// need not have everything. Each finding is noted once.
class PPDCheck
{
public:
    /// Not owned; only read.
    explicit PPDCheck(ppd_file_t *ppd) : m_ppd(ppd) {}

    bool has(const QString &keyword) const;

    /// As the PPD spells them.
    QStringList choices(const QString &keyword) const;

    /// The keyword's default must be one of its choices, letter for letter.
    void expectDefault(const QString &keyword);

    /// Those of the names that the keyword has must be spelt like this.
    void expectSpelling(const QString &keyword, const QStringList &names);

    /// The panels mark these choices, so the keyword must have them.
    void expectChoices(const QString &keyword, const QStringList &needed);

    /// The panels know these choices and no others.
    void expectNoOthersThan(const QString &keyword, const QStringList &known);

    /// The PPD must have the partner: a keyword, or a choice of one. `what` needs it: a keyword, or
    /// "KEYWORD=CHOICE".
    void expectPartner(const QString &what, const QString &keyword, const QString &choice = {});
    void expectAttribute(const QString &what, const char *attribute);

    /// The choices of the check boxes of a panel's table, and the defaults of all its keywords.
    void expectControls(std::span<const KeywordControl> table);

    /// A finding of a panel's own.
    void note(QLatin1String sentence, const QStringList &names);
    const QList<PPDFinding> &findings() const { return m_findings; }

private:
    ppd_file_t *m_ppd;
    QList<PPDFinding> m_findings;
};
