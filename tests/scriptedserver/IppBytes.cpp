#include "tests/scriptedserver/IppBytes.h"

QByteArray ippNumber(int value, int bytes)
{
    QByteArray number;
    for (int byte = bytes - 1; byte >= 0; --byte)
        number += static_cast<char>((value >> (8 * byte)) & 0xFF);
    return number;
}

IppBytes::IppBytes(int status)
{
    raw(QByteArray("\2\0", 2)).raw(ippNumber(status, 2)).raw(ippNumber(1, 4));
    group(IPP_TAG_OPERATION);
    attribute(IPP_TAG_CHARSET, "attributes-charset", "utf-8");
    attribute(IPP_TAG_LANGUAGE, "attributes-natural-language", "en");
}

IppBytes IppBytes::beginningWith(const QByteArray &header)
{
    IppBytes message;
    message.m_bytes.replace(0, header.size(), header);
    return message;
}

IppBytes &IppBytes::raw(const QByteArray &bytes)
{
    m_bytes += bytes;
    return *this;
}

IppBytes &IppBytes::group(ipp_tag_t tag)
{
    return raw(ippNumber(tag, 1));
}

IppBytes &IppBytes::attribute(ipp_tag_t tag, const QByteArray &name, const QByteArray &value)
{
    return raw(ippNumber(tag, 1) + ippNumber(static_cast<int>(name.size()), 2) + name +
               ippNumber(static_cast<int>(value.size()), 2) + value);
}

IppBytes &IppBytes::integer(ipp_tag_t tag, const QByteArray &name, int value)
{
    return attribute(tag, name, ippNumber(value, 4));
}

IppBytes &IppBytes::boolean(const QByteArray &name, bool value)
{
    return attribute(IPP_TAG_BOOLEAN, name, ippNumber(value ? 1 : 0, 1));
}

IppBytes &IppBytes::nested(const QByteArray &name, int depth)
{
    attribute(IPP_TAG_BEGIN_COLLECTION, name, {});
    for (int level = 1; level < depth; ++level)
        attribute(IPP_TAG_MEMBERNAME, {}, "m").attribute(IPP_TAG_BEGIN_COLLECTION, {}, {});
    for (int level = 0; level < depth; ++level)
        attribute(IPP_TAG_END_COLLECTION, {}, {});
    return *this;
}

QByteArray IppBytes::ended() const
{
    return m_bytes + ippNumber(IPP_TAG_END, 1);
}
