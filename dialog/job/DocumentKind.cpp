#include "dialog/job/DocumentKind.h"

#include <QtCore/QByteArray>

#include <algorithm>
#include <array>
#include <string_view>

using namespace std::string_view_literals;

namespace {

struct Magic
{
    std::string_view bytes; ///< with which the document begins
    DocumentKind kind;
};

// As the MIME types of CUPS have them.
constexpr std::array kMagics{
    Magic{"%PDF"sv, DocumentKind::Pages},      Magic{"%!"sv, DocumentKind::Pages},
    Magic{"\x04%!"sv, DocumentKind::Pages},    Magic{"\xFF\xD8\xFF"sv, DocumentKind::Picture},
    Magic{"\x89PNG"sv, DocumentKind::Picture}, Magic{"GIF8"sv, DocumentKind::Picture},
    Magic{"II*\0"sv, DocumentKind::Picture},   Magic{"MM\0*"sv, DocumentKind::Picture},
};
constexpr qint64 kLongestMagic = 8;

DocumentKind kindOf(const Document &document)
{
    QByteArray beginning(kLongestMagic, Qt::Uninitialized);
    const qint64 length =
        document.isPipe() ? 0 : document.read(0, beginning.data(), beginning.size());
    const std::string_view bytes(beginning.constData(),
                                 static_cast<std::size_t>(std::max<qint64>(0, length)));
    const auto magic = std::ranges::find_if(
        kMagics, [&](const Magic &row) { return bytes.starts_with(row.bytes); });
    return magic == kMagics.end() ? DocumentKind::Other : magic->kind;
}

} // namespace

QList<DocumentKind> kindsOf(const Documents &documents)
{
    QList<DocumentKind> kinds;
    for (const Document &document : documents)
        kinds += kindOf(document);
    return kinds;
}
