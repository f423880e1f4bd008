#include <QtCore/QTemporaryDir>
#include <QtWidgets/QApplication>

#include <gtest/gtest.h>

// Nothing of the user's own is read or written: home and configuration are an empty folder of this
// run, and printers that the user has saved do not show up.
int main(int argc, char **argv)
{
    const QTemporaryDir home;
    qputenv("HOME", home.path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
    qputenv("CUPS_SERVERROOT", "/nonexistent");
    const QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
