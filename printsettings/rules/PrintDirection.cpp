#include "printsettings/rules/PrintDirection.h"

#include "printsettings/rules/PaperNames.h"

#include <QtCore/QStringList>

using namespace Qt::StringLiterals;

QString directionOfMedium(const QString &mediaType)
{
    return isKindOfPlainPaper(mediaType) ? u"ON"_s : u"OFF"_s;
}

QString directionAfterThickness(bool customEnvelope, const QString &mediaType)
{
    if (customEnvelope)
        return u"OFF"_s;
    return isKindOfPlainPaper(mediaType) ? u"ON"_s : QString();
}

bool printsInOneDirection(const QString &mediaType, const QString &quality)
{
    static const QStringList qualities = {u"Photo"_s, u"Best"_s};
    static const QStringList media = {u"PrintableDisc"_s, u"GlossyPrintableDisc"_s, u"Inkjet"_s,
                                      u"VelkaroQM41Matte"_s, u"Transparencies"_s};
    return qualities.contains(quality) || media.contains(mediaType);
}
