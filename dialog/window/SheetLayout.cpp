#include "dialog/window/SheetLayout.h"

#include "dialog/window/ScrolledBody.h"

#include <QtGui/QScreen>
#include <QtWidgets/QDialog>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

namespace {

int heightOfContent(const QWidget &content, int width)
{
    return content.hasHeightForWidth() ? content.heightForWidth(width)
                                       : content.sizeHint().height();
}

/// The content, which is as high as it is at the sheet's width.
void fitToContent(QDialog &sheet, const ScrolledBody &body)
{
    const QSize most = sheet.screen()->availableSize();
    const int width = std::min(sheet.layout()->totalSizeHint().width(), most.width());
    sheet.resize(width, most.height());
    sheet.layout()->activate();
    const int others = sheet.height() - body.height();
    const int wanted = others + heightOfContent(*body.widget(), body.width());
    // Beside a bar that scrolls it up and down nothing is to be scrolled to the side.
    const int bar = wanted > most.height() ? body.verticalScrollBar()->sizeHint().width() : 0;
    sheet.resize(QSize(width + bar, wanted).boundedTo(most));
}

} // namespace

void layOutSheet(QDialog &sheet, QWidget *content, QWidget *buttons)
{
    auto *body = new ScrolledBody(&sheet);
    body->setContent(content);
    auto *column = new QVBoxLayout(&sheet);
    column->addWidget(body, 1);
    column->addWidget(buttons);
    const QMargins margins = column->contentsMargins();
    const int most = sheet.screen()->availableSize().width() - margins.left() - margins.right();
    auto *box = qobject_cast<QDialogButtonBox *>(buttons);
    if (box && box->sizeHint().width() > most)
        box->setOrientation(Qt::Vertical);
    fitToContent(sheet, *body);
}
