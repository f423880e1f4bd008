#include "panel/PPDCheck.h"

#include "panel/ControlValue.h"
#include "panel/KeywordControls.h"
#include "platform/ppd/PPDText.h"

using namespace Qt::StringLiterals;

namespace {

// The one of the names that is the name in other letters; null without one.
QString inOtherLetters(const QString &name, const QStringList &names)
{
    for (const QString &other : names) {
        if (other != name && isSameName(other, name))
            return other;
    }
    return {};
}

} // namespace

bool PPDCheck::has(const QString &keyword) const
{
    return findOption(m_ppd, keyword) != nullptr;
}

QStringList PPDCheck::choices(const QString &keyword) const
{
    QStringList names;
    const ppd_option_t *option = findOption(m_ppd, keyword);
    for (int index = 0; option && index < option->num_choices; ++index)
        names << ppdName(option->choices[index].choice);
    return names;
}

void PPDCheck::note(QLatin1String sentence, const QStringList &names)
{
    const PPDFinding finding{sentence, names};
    if (!m_findings.contains(finding))
        m_findings << finding;
}

void PPDCheck::expectDefault(const QString &keyword)
{
    const ppd_option_t *option = findOption(m_ppd, keyword);
    const QString name = option ? ppdName(option->defchoice) : QString();
    if (!name.isEmpty() && !choices(keyword).contains(name))
        note("PPD Default"_L1, {keyword, name});
}

void PPDCheck::expectSpelling(const QString &keyword, const QStringList &names)
{
    const QStringList present = choices(keyword);
    for (const QString &name : names) {
        const QString spelt = inOtherLetters(name, present);
        if (!present.contains(name) && !spelt.isNull())
            note("PPD Letters"_L1, {keyword, spelt, name});
    }
}

void PPDCheck::expectChoices(const QString &keyword, const QStringList &needed)
{
    if (!has(keyword))
        return;
    expectSpelling(keyword, needed);
    const QStringList present = choices(keyword);
    for (const QString &name : needed) {
        if (!present.contains(name, Qt::CaseInsensitive))
            note("PPD Choice Missing"_L1, {keyword, name});
    }
}

void PPDCheck::expectNoOthersThan(const QString &keyword, const QStringList &known)
{
    expectSpelling(keyword, known);
    for (const QString &name : choices(keyword)) {
        if (!known.contains(name, Qt::CaseInsensitive))
            note("PPD Choice Unknown"_L1, {keyword, name});
    }
}

void PPDCheck::expectPartner(const QString &what, const QString &keyword, const QString &choice)
{
    if (choice.isNull() && !has(keyword))
        note("PPD Partner Missing"_L1, {what, keyword});
    else if (!choice.isNull() && !choices(keyword).contains(choice, Qt::CaseInsensitive))
        note("PPD Partner Missing"_L1, {what, keyword + u'=' + choice});
}

void PPDCheck::expectAttribute(const QString &what, const char *attribute)
{
    if (!ppdFindAttr(m_ppd, attribute, nullptr))
        note("PPD Partner Missing"_L1, {what, QString::fromLatin1(attribute)});
}

void PPDCheck::expectControls(std::span<const KeywordControl> table)
{
    for (const KeywordControl &row : table) {
        const QString keyword = row.keyword;
        const bool isCheckBox = !row.control.isEmpty() && row.label.isEmpty();
        const QStringList values{checkBoxValue(keyword, false), checkBoxValue(keyword, true)};
        if (isCheckBox) {
            expectNoOthersThan(keyword, values);
            expectChoices(keyword, values);
        }
        expectDefault(keyword);
    }
}
