#include "FirstPicture.h"

#include <QApplication>

int main(int argc, char** argv)
{
    const QApplication app(argc, argv);
    bench::endAtFirstPicture();
    QWidget window;
    window.resize(800, 600);
    window.show();
    return QApplication::exec();
}
