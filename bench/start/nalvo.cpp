// The window of the program up to its first paint. Argument: when it was started.

#include "FirstPaint.h"

#include "Nalvo.h"

int main(int argc, char** argv)
{
    if (argc != 2)
        return 2;
    const long long started = std::atoll(argv[1]);
    argc = 1;
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    FirstPaint application(argc, argv, started);
    Nalvo window(argc, argv);
    return QApplication::exec();
}
