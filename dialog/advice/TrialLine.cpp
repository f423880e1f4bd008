#include "dialog/advice/TrialLine.h"

namespace {

template <typename Value> void write(QDataStream &out, const QList<Value> &values)
{
    out << qint32(values.size());
    for (const Value &value : values)
        out << value;
}

template <typename Value> void read(QDataStream &in, QList<Value> &values)
{
    qint32 count = 0;
    in >> count;
    for (; count > 0 && in.status() == QDataStream::Ok; --count) {
        Value value;
        in >> value;
        values += value;
    }
}

} // namespace

QDataStream &operator<<(QDataStream &out, const SettingChange &change)
{
    return out << change.keyword << change.from << change.to;
}

QDataStream &operator>>(QDataStream &in, SettingChange &change)
{
    return in >> change.keyword >> change.from >> change.to;
}

QDataStream &operator<<(QDataStream &out, const Prospect &prospect)
{
    return out << prospect.isNearer << prospect.mayBeHad << prospect.clashes;
}

QDataStream &operator>>(QDataStream &in, Prospect &prospect)
{
    return in >> prospect.isNearer >> prospect.mayBeHad >> prospect.clashes;
}

QDataStream &operator<<(QDataStream &out, const Glance &glance)
{
    write(out << glance.effect << glance.state, glance.prospects);
    return out;
}

QDataStream &operator>>(QDataStream &in, Glance &glance)
{
    read(in >> glance.effect >> glance.state, glance.prospects);
    return in;
}

QDataStream &operator<<(QDataStream &out, const TrialOutcome &outcome)
{
    write(out << outcome.isHad, outcome.beside);
    return out;
}

QDataStream &operator>>(QDataStream &in, TrialOutcome &outcome)
{
    read(in >> outcome.isHad, outcome.beside);
    return in;
}

QDataStream &operator<<(QDataStream &out, const PossibleTrials &possible)
{
    write(out, possible.changes);
    write(out, possible.prospects);
    return out;
}

QDataStream &operator>>(QDataStream &in, PossibleTrials &possible)
{
    read(in, possible.changes);
    read(in, possible.prospects);
    return in;
}
