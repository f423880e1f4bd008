#pragma once

#include <QtCore/QString>

#include <map>
#include <span>
#include <vector>

class QWidget;
class ViewConnections;

/// A row of a panel's table of controls: a PPD keyword, and what its control and its label are
/// called in the view resource. All that a panel needs to have another control is another row.
struct KeywordControl
{
    QLatin1String keyword;
    QLatin1String control; ///< empty: the keyword has a label alone
    QLatin1String label;   ///< empty: the control bears its own title
};

/// The table's controls and labels once the view is loaded; before, and where the view has no such
/// widget, all answers are null. A control may stand in several rows, and a keyword in one.
class KeywordControls
{
public:
    explicit KeywordControls(std::span<const KeywordControl> table);
    KeywordControls(const KeywordControls &) = delete;
    KeywordControls &operator=(const KeywordControls &) = delete;

    /// Makes every control and label of the table an outlet. Must outlive the connections.
    void connect(ViewConnections &connections);

    QWidget *control(const QString &keyword) const;
    QWidget *label(const QString &keyword) const;

    /// The keyword of the first row with the control; null for no control and for another one.
    QString keyword(const QWidget *control) const;

private:
    struct Row
    {
        QLatin1String keyword;
        QWidget *const *control; ///< never null; into m_outlets
        QWidget *const *label;
    };
    const Row *row(const QString &keyword) const;

    std::map<QString, QWidget *> m_outlets;
    std::vector<Row> m_rows;
};
