#include <gtest/gtest.h>

#include <QtCore/QTemporaryDir>
#include <QtWidgets/QApplication>

// For tests of widgets. Nothing of the user's own is read or written: the configuration folder is
// one of the test's own.
int main(int argc, char **argv)
{
    const QTemporaryDir configuration;
    qputenv("XDG_CONFIG_HOME", configuration.path().toLocal8Bit());
    QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
