#pragma once

#include <QtCore/QJsonObject>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// A control as a line of a replay tells it.
struct ShownControl
{
    QString panel;
    QString name;
    bool isCheck = false;
    bool isUsable = false; ///< on screen and enabled
    bool isChecked = false;
    QStringList choices;        ///< that can be picked
    QStringList blockedChoices; ///< that are there, but disabled
};

/// What a person sees of a session: the last line that was printed.
class SessionView
{
public:
    explicit SessionView(QJsonObject line = {}) : m_line(std::move(line)) {}

    QStringList panels() const;
    bool isLoaded(const QString &panel) const;
    QList<ShownControl> controls() const;
    bool hasSliders() const; ///< that can be moved
    bool showsPicture() const;

private:
    QJsonObject panel(const QString &name) const;

    QJsonObject m_line;
};
