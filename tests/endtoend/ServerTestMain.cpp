#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryDir>
#include <QtWidgets/QApplication>

#include <gtest/gtest.h>

#include <cstdio>

namespace {

constexpr int kSkipped = 77; // what CTest reports as skipped

bool mayGoWithout()
{
    return qgetenv("VELKARO_WITHOUT_CUPSD") == "1" &&
           QStandardPaths::findExecutable(QStringLiteral("cupsd"),
                                          {QStringLiteral("/usr/sbin"), QStringLiteral("/sbin")})
               .isEmpty();
}

} // namespace

// Without a print server these tests fail; only who says that this machine cannot have one gets by.
int main(int argc, char **argv)
{
    if (mayGoWithout()) {
        std::fputs("NOT TESTED: there is no cupsd here, and VELKARO_WITHOUT_CUPSD=1 allows it.\n"
                   "Nothing that talks to a print server has been checked.\n",
                   stderr);
        return kSkipped;
    }
    // The user's own saved queues must not show up in a test, and nothing is written among them.
    const QTemporaryDir home;
    qputenv("CUPS_SERVERROOT", "/nonexistent");
    qputenv("HOME", home.path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
    qunsetenv("LPDEST");
    qunsetenv("PRINTER");
    QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
