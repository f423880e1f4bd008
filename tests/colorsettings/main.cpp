#include "platform/foundation/UserDefaults.h"

#include <QtWidgets/QApplication>

#include <gtest/gtest.h>

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    // Nothing of the user's own is read or written.
    UserDefaults::standardUserDefaults().setFolder(QString());
    return RUN_ALL_TESTS();
}
