#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>

// The least that a Qt Widgets program costs that paints one window.
int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QLabel window(QStringLiteral("Hello"));
    window.resize(400, 300);
    window.show();
    QCoreApplication::processEvents();
    window.grab();
    return 0;
}
