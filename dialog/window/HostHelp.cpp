#include "dialog/window/HostHelp.h"

#include "dialog/window/SheetLayout.h"
#include "platform/toolkit/PlainLabel.h"

#include <QtCore/QCoreApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int kTextWidth = 460;

constexpr std::array kParagraphs{
    QT_TRANSLATE_NOOP("HostHelp",
                      "Page Setup holds the paper, its orientation, two-sided printing and what "
                      "else the printer leaves to this dialog. A size of your own is entered below "
                      "the paper; a word beside the field says when the printer cannot take it."),
    QT_TRANSLATE_NOOP("HostHelp", "\"Scaling\" says how the pages of the document come to the size "
                                  "of the paper in the printer. What comes of each choice stands "
                                  "below it."),
    QT_TRANSLATE_NOOP("HostHelp", "When the printer does not allow two settings together, the "
                                  "second one is not made, and a line below the tabs names both."),
    QT_TRANSLATE_NOOP("HostHelp",
                      "Ctrl+Z takes back what you have set, step by step, and Ctrl+Shift+Z does it "
                      "again. Shift+F1 and the context menu of a setting tell why something cannot "
                      "be chosen there, and how it can."),
    QT_TRANSLATE_NOOP(
        "HostHelp", "Summary lists everything that will be printed with. \"Save to File\" keeps "
                    "the job with its documents; open it here later, as a document, to print it."),
};

QWidget *newText()
{
    auto *text = new QWidget;
    auto *column = new QVBoxLayout(text);
    column->setContentsMargins(0, 0, 0, 0);
    for (const char *paragraph : kParagraphs) {
        QLabel *label = newPlainLabel(QCoreApplication::translate("HostHelp", paragraph));
        label->setWordWrap(true);
        label->setMinimumWidth(kTextWidth);
        column->addWidget(label);
    }
    return text;
}

} // namespace

void showHostHelp(QWidget *parent)
{
    auto *window = new QDialog(parent);
    window->setObjectName(u"hostHelp"_s);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setWindowTitle(QCoreApplication::translate("HostHelp", "Print Help"));
    auto *buttons = new QDialogButtonBox(window);
    buttons->addButton(QCoreApplication::translate("HostHelp", "Close"),
                       QDialogButtonBox::RejectRole);
    QObject::connect(buttons, &QDialogButtonBox::rejected, window, &QDialog::reject);
    layOutSheet(*window, newText(), buttons);
    window->show();
}
