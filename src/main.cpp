#include "Nalvo.h"
#include "ProgramInfo.h"

#include <QApplication>

#include <new>

int main(int argc, char** argv)
{
    if (ProgramInfo::isAsked(argc, argv))
        return ProgramInfo::show(argc, argv);
    // By this name the desktop finds name and icon of the windows.
    QGuiApplication::setDesktopFileName(QStringLiteral("example.brelmont.nalvo"));
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    // Both live until the process ends.
    static QApplication* const application = new (std::nothrow) QApplication(argc, argv);
    if (application == nullptr)
        return -1;
    static Nalvo* const window = new (std::nothrow) Nalvo(argc, argv);
    if (window == nullptr)
        return -1;
    return QApplication::exec();
}
