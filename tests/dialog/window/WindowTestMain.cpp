#include "platform/foundation/UserDefaults.h"

#include <QtWidgets/QApplication>

#include <gtest/gtest.h>

int main(int argc, char **argv)
{
    qputenv("CUPS_SERVERROOT", "/nonexistent");
    qputenv("HOME", "/nonexistent");
    QApplication application(argc, argv);
    UserDefaults::standardUserDefaults().setFolder(QString());
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
