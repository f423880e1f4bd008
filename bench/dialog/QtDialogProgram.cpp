// Qt's own print dialog for the queue of the command line, up to the options of the queue's PPD.
#include "bench/dialog/QtDialog.h"

#include <QtWidgets/QApplication>

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const QString queue = QCoreApplication::arguments().value(1);
    return withQtOptionsPage(queue, [](QWidget &) {}) ? 0 : 1;
}
