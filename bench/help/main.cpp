// Time from the request for a page of the help until it is painted, and what the help adds to the start of the program.

#include "HlpNetworkAccessManager.h"
#include "HlpWidget.h"
#include "ModAction.h"
#include "ModArgs.h"
#include "ModAsmFe.h"
#include "ModCfgApp.h"
#include "ModClipboard.h"
#include "ModConfig.h"
#include "ModEditor.h"
#include "ModFindReplace.h"
#include "ModFonts.h"
#include "ModGui.h"
#include "ModHlp.h"
#include "ModMsg.h"
#include "ModNetwork.h"
#include "ModPrj.h"
#include "ModProcessor.h"
#include "ModScript.h"
#include "ModSources.h"
#include "ModSrcNavi.h"
#include "ModSwUpdate.h"
#include "ModSyscall.h"
#include "ModTemplates.h"
#include "ModulePhases.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QHelpEngineCore>
#include <QMainWindow>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>
#include <QVector>
#include <QWebView>

#include <algorithm>
#include <cstdio>
#include <functional>

namespace {

const int starts = 9; ///< of each kind; the first of each warms the caches of the machine

double median(QVector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.isEmpty() ? 0 : values.at(values.size() / 2);
}

double largest(const QVector<double>& values)
{
    return values.isEmpty() ? 0 : *std::max_element(values.cbegin(), values.cend());
}

/// The window of the program, with or without the help.
class Window : public QMainWindow
{
public:
    explicit Window(bool withHelp)
    {
        add(new nsModMsg::ModMsg(this));
        add(new nsModPrj::ModPrj(this));
        add(new nsModSources::ModSources(this));
        add(new nsModProcessor::ModProcessor(this));
        add(new nsModAsmFe::ModAsmFe(this));
        add(new nsModSyscall::ModSyscall(this));
        add(new nsModEditor::ModEditor(this));
        add(new nsModSrcNavi::ModSrcNavi(this));
        if (withHelp)
            add(new nsModHlp::ModHlp(this));
        add(new nsModNetwork::ModNetwork(this));
        add(new nsModSwUpdate::ModSwUpdate(this));
        add(new nsModAction::ModAction(this));
        add(new nsModArgs::ModArgs(this));
        add(new nsModCfgApp::ModCfgApp(this));
        add(new nsModClipboard::ModClipboard(this));
        add(new nsModConfig::ModConfig(this));
        add(new nsModFindReplace::ModFindReplace(this));
        add(new nsModGui::ModGui(this));
        add(new nsModTemplates::ModTemplates(this));
        add(new nsModScript::ModScript(this));
        add(new nsModFonts::ModFonts(this));
        m_phases.start();
    }

    /// Called when the window has been painted for the first time.
    std::function<void()> painted;

protected:
    bool event(QEvent* event) override
    {
        const bool result = QMainWindow::event(event);
        // The window system has got the picture of the whole window when this one comes back.
        if (event->type() == QEvent::UpdateRequest && painted) {
            const auto call = painted;
            painted = nullptr;
            call();
        }
        return result;
    }

private:
    void add(ModPluginIf* module) { m_phases.append(module); }

    ModulePhases m_phases;
};

/// Prints the milliseconds from here until the window is painted, and until it has nothing left to do.
int measureStart(bool withHelp)
{
    QElapsedTimer clock;
    clock.start();
    double shown = 0;
    Window window(withHelp);
    window.painted = [&] { shown = double(clock.nsecsElapsed()) / 1e6; };
    window.show();
    // Lowest priority first: what is posted and due is done when there is nothing to process any more.
    for (int idle = 0; idle < 3;) {
        QElapsedTimer turn;
        turn.start();
        QCoreApplication::processEvents();
        idle = turn.nsecsElapsed() < 200000 ? idle + 1 : 0;
    }
    std::printf("%f %f\n", shown, double(clock.nsecsElapsed()) / 1e6);
    std::fflush(stdout);
    // Without the exit phases.
    std::_Exit(0);
}

struct sStart_t
{
    double shown = 0;
    double idle = 0;
};

sStart_t startOnce(bool withHelp)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {withHelp ? "--start-with" : "--start-without"});
    process.waitForFinished(60000);
    const QList<QByteArray> words = process.readAllStandardOutput().simplified().split(' ');
    return {words.value(0).toDouble(), words.value(1).toDouble()};
}

void measureStarts()
{
    QVector<double> shown[2];
    QVector<double> idle[2];
    for (int round = 0; round < starts; ++round) {
        for (bool withHelp : {false, true}) {
            const sStart_t start = startOnce(withHelp);
            if (round == 0)
                continue;
            shown[withHelp ? 1 : 0].append(start.shown);
            idle[withHelp ? 1 : 0].append(start.idle);
        }
    }
    std::printf("start_ms_without: %.1f\n", median(shown[0]));
    std::printf("start_ms_with: %.1f\n", median(shown[1]));
    std::printf("start_ms_added: %.1f\n", median(shown[1]) - median(shown[0]));
    std::printf("start_ratio: %.3f\n", median(shown[1]) / median(shown[0]));
    std::printf("start_idle_ms_added: %.1f\n", median(idle[1]) - median(idle[0]));
}

/// Milliseconds from openFile() until the page is loaded and painted.
double show(nsModHlp::ModHlp* help, const QUrl& url, QElapsedTimer* clock)
{
    bool loaded = false;
    clock->start();
    help->openFile(url);
    nsModHlp::HlpWidget* page = help->pages().last();
    page->resize(900, 700);
    page->show();
    const auto connection =
        QObject::connect(page->view(), &QWebView::loadFinished, page, [&loaded](bool) { loaded = true; });
    while (!loaded)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    page->view()->grab();
    QObject::disconnect(connection);
    return double(clock->nsecsElapsed()) / 1e6;
}

void measurePages()
{
    nsModHlp::ModHlp help;
    help.hlpIndexSideRight = nsModHlp::HlpConfig::indexDisabled;
    help.showGettingStarted = false;
    help.showOnlyOneHelpPage = true;
    help.modInit();
    QElapsedTimer clock;
    clock.start();
    if (!help.setupData()) {
        std::fputs("There is no collection of help pages.\n", stderr);
        std::exit(1);
    }
    std::printf("setup_ms: %.1f\n", double(clock.nsecsElapsed()) / 1e6);
    QVector<double> first;
    QVector<double> warm;
    QString slowest;
    const QStringList ids = help.network()->pageIds();
    std::printf("pages: %d\n", ids.size());
    const double start = show(&help, QUrl("pageId://gettingStarted"), &clock);
    for (int round = 0; round < 2; ++round) {
        for (const QString& id : ids) {
            const double time = show(&help, QUrl("pageId://" + id), &clock);
            (round == 0 ? first : warm).append(time);
            if (time >= largest(first) && time >= largest(warm))
                slowest = id;
        }
    }
    std::printf("page_ms_very_first: %.1f\n", start);
    std::printf("page_ms_first: %.1f\n", median(first));
    std::printf("page_ms_first_max: %.1f\n", largest(first));
    std::printf("page_ms_warm: %.1f\n", median(warm));
    std::printf("page_ms_warm_max: %.1f\n", largest(warm));
    std::printf("slowest: %s\n", qPrintable(slowest));
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication::setOrganizationName("NalvoBench");
    QCoreApplication::setApplicationName("NalvoBench");
    const bool isStart = argc > 1;
    QTemporaryDir home;
    if (!isStart) {
        // The starts that are compared share one folder, as those of a user do.
        for (const char* name : {"XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"})
            qputenv(name, home.path().toLocal8Bit());
    }
    QApplication app(argc, argv);
    QApplication::setStyle("fusion");
    if (isStart)
        return measureStart(QByteArray(argv[1]) == "--start-with");
    measurePages();
    measureStarts();
    return 0;
}
