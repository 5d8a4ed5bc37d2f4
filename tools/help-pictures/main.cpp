// Takes the pictures of the help.
//
//     nalvo-help-pictures <folder of the examples> <output folder>
//
// Runs without a display. Ends with 0 if every picture has been taken, else with 1 and the names of the missing ones on
// the error stream.

#include "PictureWindow.h"
#include "Pictures.h"

#include <QApplication>
#include <QFileInfo>
#include <QTemporaryDir>

#include <clocale>
#include <cstdio>

namespace {

const int fontSize = 9; ///< points, as on most desktops

struct sScene_t
{
    void (*take)(PictureWindow& stage);
    QStringList pictures;
};

const QVector<sScene_t>& scenes()
{
    static const QVector<sScene_t> all = {
        {takeProjectManager, {"projectManager"}},
        {takeWindow, {"mainWindow", "navigator", "equList"}},
        {takeEditor, {"editor", "editorFindReplace", "editorTemplates"}},
        {takeSimulator, {"simulator", "simulatorState", "simulatorDevices", "simulatorWaves"}},
        {takeRecovery, {"recovery", "textCompare"}},
        {takeMessages, {"messageView"}},
        {takeSettings,
         {"configPagePrjInfo", "configPageSources", "configPageAsmFe", "configPageProcessor", "configPageEditor",
          "configPageSourceNavi", "configPageAppearance", "configPageShortcuts", "configPageNetwork",
          "configPageSwUpdate", "configPageHelp"}},
        {takeProcessorSettings,
         {"configPageXPBlze3Processor", "configPageXPBlze6Processor", "configPageLMico8v3xProcessor"}},
        {takeDeviceMaps, {"deviceMaps"}},
        {takeExternalPrograms, {"externalPrograms", "configPageSyscall"}},
        {takeImport, {"filesImport", "importProgram"}},
    };
    return all;
}

/// The platform without a display warns of every window.
void printMessage(QtMsgType, const QMessageLogContext&, const QString& message)
{
    if (!message.startsWith(QLatin1String("This plugin does not support ")))
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

} // namespace

int main(int argc, char* argv[])
{
    // Twice as many points as shown, so that the text stays sharp when the page is enlarged.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", "2");
    qputenv("LC_ALL", "C.UTF-8");
    for (const char* variable : {"QT_STYLE_OVERRIDE", "QT_FONT_DPI", "QT_SCREEN_SCALE_FACTORS", "SOURCE_DATE_EPOCH"})
        qunsetenv(variable);
    qSetGlobalQHashSeed(0);
    qInstallMessageHandler(printMessage);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    const QTemporaryDir runtime;
    qputenv("XDG_RUNTIME_DIR", runtime.path().toLocal8Bit());
    QApplication app(argc, argv);
    QApplication::setStyle(QStringLiteral("fusion"));
    QApplication::setCursorFlashTime(0);
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), fontSize));
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments.size() != 2) {
        std::fprintf(stderr, "usage: nalvo-help-pictures <examples> <output>\n");
        return 1;
    }
    PictureWindow stage(QFileInfo(arguments.at(0)).absoluteFilePath(), arguments.at(1));
    keepTexts(stage);
    stage.start();
    for (const sScene_t& scene : scenes()) {
        scene.take(stage);
        for (const QString& name : scene.pictures) {
            if (!stage.taken().contains(name))
                stage.fail(name + QStringLiteral(": the picture was not taken"));
        }
    }
    for (const QString& error : stage.errors())
        std::fprintf(stderr, "nalvo-help-pictures: %s\n", qPrintable(error));
    return stage.errors().isEmpty() ? 0 : 1;
}
