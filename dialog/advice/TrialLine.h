#pragma once

#include "dialog/advice/TrialJob.h"

#include <QtCore/QByteArray>
#include <QtCore/QDataStream>
#include <QtCore/QIODevice>

#include <optional>

// What the copy of a process that tries something out tells of it, as lines.

QDataStream &operator<<(QDataStream &out, const SettingChange &change);
QDataStream &operator>>(QDataStream &in, SettingChange &change);
QDataStream &operator<<(QDataStream &out, const Prospect &prospect);
QDataStream &operator>>(QDataStream &in, Prospect &prospect);
QDataStream &operator<<(QDataStream &out, const Glance &glance);
QDataStream &operator>>(QDataStream &in, Glance &glance);
QDataStream &operator<<(QDataStream &out, const TrialOutcome &outcome);
QDataStream &operator>>(QDataStream &in, TrialOutcome &outcome);
QDataStream &operator<<(QDataStream &out, const PossibleTrials &possible);
QDataStream &operator>>(QDataStream &in, PossibleTrials &possible);

template <typename Value> QByteArray lineOf(const Value &value)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << value;
    return bytes.toBase64();
}

/// None for a line that is none of it.
template <typename Value> std::optional<Value> valueOfLine(const QByteArray &line)
{
    QDataStream in(QByteArray::fromBase64(line));
    Value value;
    in >> value;
    return in.status() == QDataStream::Ok ? std::optional(value) : std::nullopt;
}
