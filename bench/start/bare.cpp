// An empty window up to its first paint: what no program of this toolkit can be faster than. Argument: when it was
// started.

#include "FirstPaint.h"

int main(int argc, char** argv)
{
    if (argc != 2)
        return 2;
    const long long started = std::atoll(argv[1]);
    argc = 1;
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    FirstPaint application(argc, argv, started);
    QApplication::setStyle(QStringLiteral("fusion"));
    QMainWindow window;
    window.resize(1280, 800);
    window.show();
    return QApplication::exec();
}
