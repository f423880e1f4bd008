#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <memory>

/// A password. Its copies share one place in memory, which is cleared when the last one goes; as
/// long as there is any password, the process leaves no core dump and no other one of the user may
/// look into it.
class Secret
{
public:
    /// None.
    Secret() = default;

    /// Takes the password out of the text, whose memory is cleared, and that of its copies with it.
    static Secret takeFrom(QByteArray &text);
    static Secret takeFrom(QString &text);

    bool isNull() const { return m_place == nullptr; }

    /// Ends with a zero, and stays where it is as long as a copy of the secret is there. Not of
    /// none.
    const char *text() const;

    bool operator==(const Secret &other) const;

private:
    class Place;

    std::shared_ptr<const Place> m_place;
};
