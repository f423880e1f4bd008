#include "dialog/cups/IppAnswer.h"

#include "dialog/cups/ServerLimits.h"

#include <algorithm>

namespace {

constexpr qsizetype kHeaderSize = 8; // version, status, number of the request
constexpr int kLastSuccess = 0xFF;

int numberAt(const QByteArray &bytes, qsizetype position)
{
    return static_cast<uchar>(bytes[position]) << 8 | static_cast<uchar>(bytes[position + 1]);
}

bool isDelimiter(int tag)
{
    return tag < IPP_TAG_UNSUPPORTED_VALUE;
}

/// The walk over the tags of one message.
class Walk
{
public:
    explicit Walk(const QByteArray &bytes) : m_bytes(bytes) {}

    /// True when it comes to the end of the message.
    bool toTheEnd()
    {
        while (m_position < m_bytes.size()) {
            const int tag = static_cast<uchar>(m_bytes[m_position++]);
            if (tag == IPP_TAG_END)
                return m_depth == 0;
            if (isDelimiter(tag) ? !beginGroup(tag) : !takeValue(tag))
                return false;
        }
        return false;
    }

private:
    bool beginGroup(int tag)
    {
        m_inGroup = tag != IPP_TAG_ZERO;
        return m_inGroup && m_depth == 0;
    }

    bool takeValue(int tag)
    {
        if (tag == IPP_TAG_BEGIN_COLLECTION)
            ++m_depth;
        if (tag == IPP_TAG_END_COLLECTION)
            --m_depth;
        return m_inGroup && m_depth >= 0 && m_depth <= kDeepestCollection &&
               ++m_values <= kMostValues && skipText() && skipText();
    }

    /// A length of two bytes, and that many bytes.
    bool skipText()
    {
        if (m_bytes.size() - m_position < 2)
            return false;
        m_position += 2 + numberAt(m_bytes, m_position);
        return m_position <= m_bytes.size();
    }

    const QByteArray &m_bytes;
    qsizetype m_position = kHeaderSize;
    int m_depth = 0;
    int m_values = 0;
    bool m_inGroup = false;
};

struct Source
{
    const QByteArray &bytes;
    qsizetype position = 0;
};

ssize_t readFrom(void *context, ipp_uchar_t *buffer, size_t bytes)
{
    auto *source = static_cast<Source *>(context);
    const qsizetype length =
        std::min(static_cast<qsizetype>(bytes), source->bytes.size() - source->position);
    std::copy_n(source->bytes.constData() + source->position, length, buffer);
    source->position += length;
    return length;
}

IppHandle parse(const QByteArray &bytes)
{
    IppHandle message(ippNew());
    Source source{bytes};
    ipp_state_t state = IPP_STATE_IDLE;
    while (state != IPP_STATE_DATA && state != IPP_STATE_ERROR)
        state = ippReadIO(&source, readFrom, 1, nullptr, message.get());
    return state == IPP_STATE_DATA ? std::move(message) : nullptr;
}

} // namespace

bool isWholeMessage(const QByteArray &bytes)
{
    if (bytes.size() < kHeaderSize)
        return false;
    const int version = static_cast<uchar>(bytes[0]);
    return (version == 1 || version == 2) && Walk(bytes).toTheEnd();
}

IppAnswer readIppAnswer(const QByteArray &bytes)
{
    IppAnswer answer;
    if (isWholeMessage(bytes))
        answer.ipp = parse(bytes);
    if (!answer.ipp)
        return answer;
    answer.status = numberAt(bytes, 2);
    ipp_attribute_t *text = ippFindAttribute(answer.ipp.get(), "status-message", IPP_TAG_TEXT);
    answer.text = QString::fromUtf8(text ? ippGetString(text, 0, nullptr) : nullptr);
    return answer;
}

// libcups keeps groups of one kind apart by an attribute without a name.
std::vector<IppHandle> groupsOf(ipp_t *message, ipp_tag_t kind)
{
    std::vector<IppHandle> groups;
    bool isInGroup = false;
    for (ipp_attribute_t *one = ippFirstAttribute(message); one; one = ippNextAttribute(message)) {
        const bool isOfKind = ippGetGroupTag(one) == kind && ippGetName(one);
        if (isOfKind && !isInGroup)
            groups.emplace_back(ippNew());
        if (isOfKind)
            ippCopyAttribute(groups.back().get(), one, 0);
        isInGroup = isOfKind;
    }
    return groups;
}

bool isSuccess(int status)
{
    return status <= kLastSuccess;
}
