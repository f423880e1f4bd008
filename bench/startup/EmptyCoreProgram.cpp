#include <QtCore/QCoreApplication>

// The least that a Qt program costs.
int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    return 0;
}
