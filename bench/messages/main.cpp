// How long 50,000 messages take, in nested groups and with links, from the first call until the window is painted.

#include "ModGui.h"
#include "ModMsg.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMainWindow>
#include <QTextStream>
#include <QTreeWidget>

namespace {

const int messageCount = 50000;
const int messagesPerGroup = 100;

nsModMsg::MsgUrl sourceLink(int line)
{
    nsModMsg::MsgUrl url;
    url.setUrl(QStringLiteral("file:///home/user/project/src/main.psm"));
    url.setFragment(line);
    url.setDisplayName(QStringLiteral("main.psm: line %1").arg(line + 1));
    return url;
}

/// As a run of the assembler reports: one group around all, a group a stage, one inside that, every third message with
/// a grade.
void report(ModMsgHookIf* hook)
{
    hook->openMessageGroup(QStringLiteral("Run"));
    for (int i = 0; i < messageCount; i += messagesPerGroup) {
        hook->openMessageGroup(QStringLiteral("Stage %1").arg(i),
                               QUrl(QStringLiteral("pageid://asmFeMessages#grpStage")));
        hook->openMessageGroup(QStringLiteral("Part"));
        for (int k = 0; k < messagesPerGroup - 2; ++k) {
            const auto type = static_cast<ModMsgHookIf::eMsgType_t>(i % 300 == 0 ? k % 3 : ModMsgHookIf::eMsgInfo);
            hook->showMessage(type, QStringLiteral("Message number %1 of this run").arg(i + k),
                              QUrl(QStringLiteral("pageid://asmFeMessages#key")), sourceLink(i + k));
        }
        hook->closeMessageGroup(true);
        hook->closeMessageGroup(true);
    }
    hook->closeMessageGroup(true);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("fusion"));
    Q_INIT_RESOURCE(nalvo);
    QMainWindow window;
    auto* gui = new nsModGui::ModGui(&window);
    auto* msg = new nsModMsg::ModMsg(&window);
    gui->registerPlugin(msg);
    msg->modInit();
    msg->modInitIntermod();
    window.resize(1280, 750);
    window.show();
    QApplication::processEvents();
    auto* view = window.findChild<QTreeWidget*>(QStringLiteral("msgViewer"));

    QElapsedTimer clock;
    clock.start();
    report(msg);
    const double called = clock.nsecsElapsed() * 1e-9;
    QApplication::processEvents();
    // Paints what the event loop has not painted yet.
    window.grab();
    const double painted = clock.nsecsElapsed() * 1e-9;

    QElapsedTimer use;
    use.start();
    view->expandAll();
    QApplication::processEvents();
    view->scrollToTop();
    window.grab();
    view->scrollToBottom();
    window.grab();

    QTextStream out(stdout);
    out << "calls_50000: " << called << "\n";
    out << "expand_and_scroll: " << use.nsecsElapsed() * 1e-9 << "\n";
    out << "seconds_50000: " << painted << "\n";
    return 0;
}
