#include "bench/dialog/QtDialog.h"

#include <QtCore/QTimer>
#include <QtPrintSupport/QPrintDialog>
#include <QtPrintSupport/QPrinter>
#include <QtPrintSupport/QPrinterInfo>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTabWidget>

using namespace Qt::StringLiterals;

namespace {

// Null when the queue has no options there.
QWidget *chooseOptionsPage(const QWidget &properties)
{
    auto *tabs = properties.findChild<QTabWidget *>(u"tabs"_s);
    auto *page = properties.findChild<QWidget *>(u"cupsPropertiesPage"_s);
    if (!tabs || !page || !tabs->isTabEnabled(tabs->indexOf(page)))
        return nullptr;
    tabs->setCurrentWidget(page);
    QCoreApplication::processEvents();
    return page->findChild<QComboBox *>() ? page : nullptr;
}

} // namespace

bool withQtOptionsPage(const QString &queue, const std::function<void(QWidget &page)> &use)
{
    const QPrinterInfo info = QPrinterInfo::printerInfo(queue);
    if (info.isNull())
        return false;
    QPrinter printer(info);
    QPrintDialog dialog(&printer);
    dialog.show();
    QCoreApplication::processEvents();
    auto *button = dialog.findChild<QPushButton *>(u"properties"_s);
    bool isUsed = false;
    // The button runs the properties in an event loop of its own.
    QTimer::singleShot(0, [&] {
        QWidget *properties = QApplication::activeModalWidget();
        if (!properties)
            return;
        if (QWidget *page = chooseOptionsPage(*properties)) {
            use(*page);
            isUsed = true;
        }
        properties->close();
    });
    if (button)
        button->click();
    return isUsed;
}

QComboBox *qtOption(const QWidget &page, const QString &text)
{
    for (const QFormLayout *form : page.findChildren<QFormLayout *>())
        for (int row = 0; row < form->rowCount(); ++row) {
            const QLayoutItem *label = form->itemAt(row, QFormLayout::LabelRole);
            const QLayoutItem *field = form->itemAt(row, QFormLayout::FieldRole);
            auto *words = label ? qobject_cast<QLabel *>(label->widget()) : nullptr;
            if (words && field && words->text() == text)
                return field->widget()->findChild<QComboBox *>();
        }
    return nullptr;
}
