#include "dialog/job/DocumentPatterns.h"

using namespace Qt::StringLiterals;

// The same kinds as in packaging/velkaro-print.desktop.
QStringList documentPatterns()
{
    return {u"*.pdf"_s,  u"*.ps"_s,  u"*.txt"_s,  u"*.png"_s,        u"*.jpg"_s,
            u"*.jpeg"_s, u"*.tif"_s, u"*.tiff"_s, u"*.velkaro-job"_s};
}
