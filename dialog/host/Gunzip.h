#pragma once

#include <QtCore/QByteArray>

#include <optional>

/// Whether the bytes begin as a file packed by gzip does.
bool isPacked(const QByteArray &bytes);

/// What unpacking came to.
struct Unpacked
{
    enum class State {
        Whole,
        CutOff,  ///< the bytes end in the midst of a packed file
        Damaged, ///< they are not what gzip wrote
        TooLarge ///< they unpack to more than was allowed
    };

    State state = State::Whole;
    QByteArray bytes; ///< empty unless whole
};

/// Unpacks one packed file or several in a row, up to so many bytes in all.
Unpacked unpacked(const QByteArray &packed, qsizetype most);
