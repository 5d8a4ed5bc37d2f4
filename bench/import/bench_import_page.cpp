// "Convert all" of the import page on 100,000 lines, with each filter that ships, in a window with its painting.
//
// The longest pause is the longest time between two looks at the events, as the user has it: from a tick of a timer
// without a delay to the next one, the start and the end of the conversion included.

#include "ImportEditorWidget.h"
#include "ImportWidget.h"

#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QMainWindow>
#include <QProgressBar>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTimer>

namespace {

using namespace nsModImport;

const int lineCount = 100000;

struct sFilter_t
{
    const char* name;
    const char* figure;
    const char* lines[4];
};

const sFilter_t filters[] = {
    {"KCPSM3", "kcpsm3", {"        LOAD s1, 1F ; load", "        JUMP NZ, loop", "", "; a comment that says why"}},
    {"KCPSM6", "kcpsm6", {"        LOAD s1, 20'd ; load", "        JUMP NZ, loop", "", "; a comment that says why"}},
    {"pBlazIDE", "pblazide", {"        LOAD s1, $1F ; load", "        JUMP NZ, loop", "", "; a comment that says why"}},
    {"Mico8 (vendor's assembler)",
     "mico8_vendor",
     {"        movi r1, 0x1F ; load", "        bnz loop", "", "; a comment that says why"}},
    {"Mico8 (GNU assembler)",
     "mico8_gnu",
     {"        movi r1, 0x1F ; load", "        bnz loop", "", "; a comment that says why"}},
};

struct Figures
{
    double seconds = 0;
    double longestPause = 0; ///< milliseconds
    bool ok = false;
};

Figures convertAll(ImportWidget* page, const sFilter_t& filter, const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return {};
    for (int i = 0; i < lineCount; ++i)
        file.write(QByteArray(filter.lines[i % 4]) + (i + 1 < lineCount ? "\n" : ""));
    file.close();
    if (!page->setImportFilter(QLatin1String(filter.name)) || !page->openFile(path))
        return {};
    QApplication::processEvents();

    auto* progress = page->findChild<QProgressBar*>();
    Figures figures;
    bool wasShown = false;
    QElapsedTimer sinceTick;
    const auto tick = [&] {
        figures.longestPause = qMax(figures.longestPause, double(sinceTick.nsecsElapsed()) * 1e-6);
        sinceTick.start();
        wasShown = wasShown || progress->isVisible();
    };
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, tick);
    sinceTick.start();
    timer.start(0);
    QElapsedTimer clock;
    clock.start();
    page->findChild<QPushButton*>(QStringLiteral("importConvertAll"))->click();
    QApplication::processEvents();
    tick();
    figures.seconds = double(clock.nsecsElapsed()) * 1e-9;
    auto* result = page->findChild<ImportEditorWidget*>(QStringLiteral("importDestination"));
    figures.ok = wasShown && result->blockCount() == lineCount &&
                 page->findChild<QPushButton*>(QStringLiteral("importUse"))->isEnabled();
    return figures;
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("fusion"));
    Q_INIT_RESOURCE(nalvo);
    const QTemporaryDir folder;
    QMainWindow window;
    auto* page = new ImportWidget(&window);
    window.setCentralWidget(page);
    window.resize(1280, 750);
    window.show();
    QApplication::processEvents();
    QTextStream out(stdout);
    double longestPause = 0;
    double slowest = 0;
    for (const sFilter_t& filter : filters) {
        const Figures figures = convertAll(page, filter, folder.filePath(QStringLiteral("program.psm")));
        if (!figures.ok) {
            QTextStream(stderr) << "bench_import_page: not all lines are converted: " << filter.name << "\n";
            return 1;
        }
        out << "convert_all_" << filter.figure << "_seconds: " << figures.seconds << "\n";
        slowest = qMax(slowest, figures.seconds);
        longestPause = qMax(longestPause, figures.longestPause);
    }
    out << "convert_all_seconds: " << slowest << "\n";
    out << "convert_all_longest_pause_ms: " << longestPause << "\n";
    return 0;
}
