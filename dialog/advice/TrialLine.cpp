#include "dialog/advice/TrialLine.h"

#include <QtCore/QDataStream>
#include <QtCore/QIODevice>

namespace {

QDataStream &operator<<(QDataStream &out, const SettingChange &change)
{
    return out << change.keyword << change.from << change.to;
}

QDataStream &operator>>(QDataStream &in, SettingChange &change)
{
    return in >> change.keyword >> change.from >> change.to;
}

} // namespace

QByteArray lineOfTrial(const Trial &trial)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << trial.change << trial.isHad << trial.isNearer << qint32(trial.beside.size());
    for (const SettingChange &change : trial.beside)
        out << change;
    out << trial.effect << trial.state;
    return bytes.toBase64();
}

std::optional<Trial> trialOfLine(const QByteArray &line)
{
    QDataStream in(QByteArray::fromBase64(line));
    Trial trial;
    qint32 count = 0;
    in >> trial.change >> trial.isHad >> trial.isNearer >> count;
    for (qint32 index = 0; index < count && in.status() == QDataStream::Ok; ++index) {
        SettingChange change;
        in >> change;
        trial.beside += change;
    }
    in >> trial.effect >> trial.state;
    return in.status() == QDataStream::Ok ? std::optional(trial) : std::nullopt;
}
