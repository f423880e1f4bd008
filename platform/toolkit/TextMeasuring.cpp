#include "platform/toolkit/TextMeasuring.h"

#include <QtGui/QTextLayout>
#include <QtGui/QTextOption>

namespace {

double paragraphHeight(const QString &text, const QFont &font, double width)
{
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    QTextLayout layout(text, font);
    layout.setTextOption(option);
    layout.beginLayout();
    double height = 0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        height += line.height();
    }
    layout.endLayout();
    return height;
}

} // namespace

double laidOutHeight(const QString &text, const QFont &font, double width)
{
    double height = 0;
    for (const QString &paragraph : text.split(u'\n'))
        height += paragraphHeight(paragraph, font, width);
    return height;
}
