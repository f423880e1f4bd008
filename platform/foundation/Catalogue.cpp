#include "platform/foundation/Catalogue.h"

#include <QtCore/QFile>
#include <QtCore/QList>
#include <QtCore/QTranslator>
#include <QtCore/QtEndian>

#include <algorithm>
#include <array>
#include <optional>
#include <utility>
#include <vector>

namespace {

constexpr qint64 kLargest = 4 << 20; // bytes

constexpr std::array<unsigned char, 16> kMagic{0x3c, 0xb8, 0x64, 0x18, 0xca, 0xef, 0x9c, 0x95,
                                               0xcd, 0x21, 0x1c, 0xbf, 0x60, 0xa1, 0xbd, 0xdd};

// What the sections of a file begin with; the others (contexts, dependencies) are of no use here.
enum Section : quint8 {
    Hashes = 0x42,
    Messages = 0x69,
    NumerusRules = 0x88, // the translator checks them by itself
    Language = 0xa7,
};

// What the parts of a message begin with.
enum Part : quint8 {
    End = 1,
    Translation = 3, // UTF-16
    SourceText = 6,
    Context = 7,
    Comment = 8,
};

/// Takes a file apart from its front; nothing is taken that is not whole.
class Reader
{
public:
    explicit Reader(QByteArrayView bytes) : m_rest(bytes) {}

    bool atEnd() const { return m_rest.isEmpty(); }
    qsizetype left() const { return m_rest.size(); }

    std::optional<QByteArrayView> take(qsizetype size)
    {
        if (size > m_rest.size())
            return std::nullopt;
        const QByteArrayView taken = m_rest.first(size);
        m_rest = m_rest.sliced(size);
        return taken;
    }

    template <typename Number> std::optional<Number> number()
    {
        const auto bytes = take(sizeof(Number));
        return bytes ? std::optional(qFromBigEndian<Number>(bytes->data())) : std::nullopt;
    }

    /// As many bytes as the number before them says.
    std::optional<QByteArrayView> block()
    {
        const auto size = number<quint32>();
        return size ? take(*size) : std::nullopt;
    }

private:
    QByteArrayView m_rest;
};

struct Sections
{
    QByteArrayView hashes;
    QByteArrayView messages;
};

/// None where a section is cut, empty, unknown or there twice.
std::optional<Sections> sectionsOf(QByteArrayView catalogue)
{
    Reader file(catalogue);
    const auto magic = file.take(kMagic.size());
    if (!magic || !std::equal(kMagic.begin(), kMagic.end(), magic->begin(),
                              [](auto one, char other) { return one == quint8(other); }))
        return std::nullopt;
    Sections sections;
    QList<quint8> known{Hashes, Messages, NumerusRules, Language};
    while (!file.atEnd()) {
        const auto tag = file.number<quint8>();
        const auto block = file.block();
        if (!block || block->isEmpty() || !known.removeOne(*tag))
            return std::nullopt;
        if (*tag == Hashes)
            sections.hashes = *block;
        else if (*tag == Messages)
            sections.messages = *block;
    }
    return sections;
}

bool takeMessage(Reader &messages)
{
    for (;;) {
        const auto tag = messages.number<quint8>();
        if (tag == End)
            return true;
        const bool isKnown =
            tag == Translation || tag == SourceText || tag == Context || tag == Comment;
        const auto text = isKnown ? messages.block() : std::nullopt;
        if (!text || (tag == Translation && text->size() % 2 != 0))
            return false;
    }
}

/// Where the messages begin, which lie one behind the other; none where one is cut.
std::optional<std::vector<quint32>> beginnings(QByteArrayView messages)
{
    std::vector<quint32> found; // in ascending order
    Reader reader(messages);
    while (!reader.atEnd()) {
        found.push_back(static_cast<quint32>(messages.size() - reader.left()));
        if (!takeMessage(reader))
            return std::nullopt;
    }
    return found;
}

/// Whether all hashes, in the order in which they are searched, lead to a message.
bool leadToMessages(QByteArrayView hashes, const std::vector<quint32> &messages)
{
    quint32 former = 0;
    for (Reader reader(hashes); !reader.atEnd();) {
        const auto hash = reader.number<quint32>();
        const auto offset = reader.number<quint32>();
        if (!offset || *hash < former || !std::ranges::binary_search(messages, *offset))
            return false;
        former = *hash;
    }
    return true;
}

/// Looks up in a text of its own: a file may change while it is mapped.
class MemoryTranslator : public QTranslator
{
public:
    explicit MemoryTranslator(QByteArray catalogue) : m_catalogue(std::move(catalogue)) {}

    bool loadIt()
    {
        return load(reinterpret_cast<const uchar *>(m_catalogue.constData()),
                    static_cast<int>(m_catalogue.size()));
    }

private:
    const QByteArray m_catalogue;
};

} // namespace

bool isSoundCatalogue(const QByteArray &catalogue)
{
    const std::optional<Sections> sections = sectionsOf(catalogue);
    const auto messages = sections ? beginnings(sections->messages) : std::nullopt;
    return messages && leadToMessages(sections->hashes, *messages);
}

std::unique_ptr<QTranslator> openCatalogue(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return nullptr;
    const QByteArray text = file.read(std::min(file.size(), kLargest) + 1);
    if (text.size() > kLargest || !isSoundCatalogue(text))
        return nullptr;
    auto translator = std::make_unique<MemoryTranslator>(text);
    return translator->loadIt() ? std::move(translator) : nullptr;
}
