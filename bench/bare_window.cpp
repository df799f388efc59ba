// What any program of this toolkit pays before it does anything of its own.
#include <QApplication>
#include <QWidget>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QWidget window;
    window.resize(880, 600);
    window.show();
    return QApplication::exec();
}
