// Makes the main window with the command line that it is started with, and writes what came of it to the standard
// output.

#include "ModPluginIf.h"
#include "ModPrjHookIf.h"
#include "Nalvo.h"

#include <QApplication>
#include <QFontDatabase>
#include <QFontInfo>
#include <QSettings>
#include <QTextStream>
#include <QTreeWidget>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, QString::fromLocal8Bit(qgetenv("XDG_CONFIG_HOME")));
    Nalvo window(argc, argv);
    QTextStream out(stdout);
    out << "visible: " << window.isVisible() << "\n";
    for (ModPluginIf* module : window.modules()) {
        if (auto* project = dynamic_cast<ModPrjHookIf*>(module))
            out << "project: " << project->prjFileName() << "\n";
    }
    const QString fixed = QStringLiteral("DejaVu Sans Mono");
    out << "fixed font: " << QFontInfo(QFont(fixed, 9)).family() << "\n";
    for (const QString& style : QFontDatabase().styles(fixed))
        out << "style: " << style << "\n";
    for (QTreeWidgetItemIterator it(window.findChild<QTreeWidget*>("msgViewer")); *it != nullptr; ++it)
        out << "message: " << (*it)->text(0) << "\n";
    return 0;
}
