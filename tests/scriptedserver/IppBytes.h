#pragma once

#include <QtCore/QByteArray>

#include <cups/ipp.h>

/// An IPP message put together byte by byte, so that it may be wrong in every way.
class IppBytes
{
public:
    /// Begins with the operation attributes that every answer has, and no more than that.
    explicit IppBytes(int status = IPP_STATUS_OK);

    /// A message that begins with these eight bytes instead: version, status and request.
    static IppBytes beginningWith(const QByteArray &header);

    IppBytes &group(ipp_tag_t tag);
    IppBytes &attribute(ipp_tag_t tag, const QByteArray &name, const QByteArray &value);
    IppBytes &integer(ipp_tag_t tag, const QByteArray &name, int value);
    IppBytes &boolean(const QByteArray &name, bool value);

    /// An attribute that holds a collection, which holds a collection, and so on.
    IppBytes &nested(const QByteArray &name, int depth);

    IppBytes &raw(const QByteArray &bytes);

    /// The message with the tag that ends it.
    QByteArray ended() const;

    /// The message without it.
    QByteArray cut() const { return m_bytes; }

private:
    QByteArray m_bytes;
};

/// A number as IPP writes it, the most significant byte first.
QByteArray ippNumber(int value, int bytes);
