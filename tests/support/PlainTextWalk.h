#pragma once

#include <QtCore/QSet>
#include <QtCore/QString>

class QWidget;

/// Looks at every text of every widget of the program, and fails the test for one that would be
/// drawn as rich text, would hide what it says, or has lost an ampersand to a mnemonic.
///
/// The texts from outside hold kForeignMark, so that the walk can tell what it has seen.
class PlainTextWalk
{
public:
    /// Stands in every text from outside: markup, an entity, a control character, and one that
    /// turns the direction of writing.
    static QString foreignText(const QString &opened);

    /// Looks at all widgets there are, shown or not, and at the tool tips of those that are shown.
    void look();

    /// Where texts from outside have been seen: "CLASS OBJECTNAME", or "tip of CLASS OBJECTNAME".
    const QSet<QString> &seen() const { return m_seen; }

private:
    void lookAt(QWidget &widget);
    void askForToolTip(QWidget &widget);
    void judge(const QWidget &widget, const char *what, const QString &text);
    void judgeWithMnemonic(const QWidget &widget, const char *what, const QString &text);

    QSet<QString> m_seen;
};
