#include "dialog/files/PathBytes.h"

#include "platform/toolkit/PlainText.h"

#include <QtCore/QCoreApplication>

namespace {

constexpr char16_t kSurrogates = 0xdc00;

QChar keptByte(char byte)
{
    const auto value = static_cast<unsigned char>(byte);
    return QChar(value < 0x80 ? char16_t{value} : static_cast<char16_t>(kSurrogates + value));
}

} // namespace

QString pathOfBytes(const QByteArray &bytes)
{
    QString text = QString::fromUtf8(bytes);
    if (text.toUtf8() == bytes)
        return text;
    QString kept;
    for (const char byte : bytes)
        kept += keptByte(byte);
    return kept;
}

QByteArray bytesOfPath(const QString &path)
{
    if (path.isValidUtf16())
        return path.toUtf8();
    QByteArray bytes;
    for (const QChar kept : path)
        bytes += static_cast<char>(kept.unicode() & 0xff);
    return bytes;
}

QString shownPath(const QString &path)
{
    if (path == QLatin1String("/dev/stdout"))
        return QCoreApplication::translate("PathBytes", "standard output");
    return displayText(QString::fromUtf8(bytesOfPath(path)));
}
