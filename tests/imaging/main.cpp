#include <QCoreApplication>

#include <gtest/gtest.h>

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    // Finds the decoders of picture files; nothing here needs a display.
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
