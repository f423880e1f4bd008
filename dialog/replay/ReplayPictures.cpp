#include "dialog/replay/ReplayPictures.h"

#include <QtCore/QBuffer>
#include <QtCore/QFileInfo>
#include <QtGui/QImage>

using namespace Qt::StringLiterals;

bool isPlainName(const QString &name)
{
    // Half of a surrogate pair would become a byte of the path (pathOfBytes()), perhaps a slash.
    return !name.isEmpty() && name.isValidUtf16() && !name.startsWith(u'.') &&
           !name.contains(u'/') && !name.contains(QChar::Null);
}

Result<> ReplayPictures::write(const QImage &picture, const QDir &folder, const QString &name)
{
    if (!isPlainName(name))
        return Fault{FaultKind::Output, u"\"%1\" is no plain file name"_s.arg(name)};
    const QString path = folder.absoluteFilePath(name);
    const bool isStream = verdictAt(path, m_terms) == OutputVerdict::Append;
    if (isStream || QFileInfo(path).isSymLink())
        return Fault{FaultKind::Output, u"%1 is no ordinary file"_s.arg(path)};
    QBuffer png;
    picture.save(&png, "PNG");
    OutputFile file;
    Result<> written =
        file.open(path, m_terms).andThen([&] { return file.write(png.data()); }).andThen([&] {
            return file.commit();
        });
    if (written)
        m_terms.written += *file.identity();
    return written;
}
