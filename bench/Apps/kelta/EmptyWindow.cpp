#include "FirstPicture.h"

#include <QApplication>
#include <QMainWindow>

/// Paints an empty window of the usual size of kelta, and ends.
int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QMainWindow window;
    window.resize(1440, 860);
    window.show();
    const vxbench::PaintWatch watch(window);
    while (!watch.hasTold())
        QCoreApplication::processEvents();
    return 0;
}
