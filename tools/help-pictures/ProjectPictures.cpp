// The project manager, the settings, the messages, the maps of devices, external programs.

#include "PictureWindow.h"
#include "Pictures.h"

#include "ModConfigHookIf.h"
#include "ModConfigPagePluginIf.h"
#include "ModGuiHookIf.h"
#include "ModPrj.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QFile>
#include <QPushButton>
#include <QTreeWidget>

namespace {

const ModGuiHookIf::eLocation_t docks[] = {ModGuiHookIf::eLocationDockLeft, ModGuiHookIf::eLocationDockRight,
                                           ModGuiHookIf::eLocationDockBottom};

/// Of the window when it shows nothing but a page.
const QSize pageSize(880, 640);
const int messagesHeight = 260;
const int mapsWidth = 340;

void showDocks(PictureWindow& stage, bool visible)
{
    for (const ModGuiHookIf::eLocation_t dock : docks)
        stage.module<ModGuiHookIf>()->setWidgetVisible(dock, visible);
}

/// @param isDefault as the page is on the first day
void takePage(PictureWindow& stage, const QString& title, const QString& name, bool isDefault = false)
{
    stage.module<ModConfigHookIf>()->openDialog(title);
    QWidget* dialog = stage.widget(QStringLiteral("configDialog"));
    if (dialog == nullptr)
        return;
    if (isDefault) {
        for (QPushButton* button : dialog->findChildren<QPushButton*>()) {
            if (button->text().remove('&') == QLatin1String("Set page default values"))
                button->click();
        }
    }
    stage.take(name, dialog);
}

} // namespace

void takeProjectManager(PictureWindow& stage)
{
    stage.resize(pageSize);
    showDocks(stage, false);
    auto* prj = stage.module<nsModPrj::ModPrj>();
    prj->prjMngrSetup();
    for (const char* name : {"uart_monitor", "motor_control", "keypad_lock"})
        prj->prjMngrAddToCollection(QStringLiteral("%1/%2.nalvo").arg(stage.example(name), QLatin1String(name)));
    prj->prjMngrSetMode(nsModPrj::ModPrj::eModeOpen);
    stage.take(QStringLiteral("projectManager"), stage.widget(QStringLiteral("prjMngr")));
    prj->prjMngrClose();
    showDocks(stage, true);
    stage.resize(PictureWindow::fullSize);
}

void takeSettings(PictureWindow& stage)
{
    stage.resize(pageSize);
    stage.open(QStringLiteral("uart_monitor"));
    showDocks(stage, false);
    takePage(stage, QStringLiteral("Info"), QStringLiteral("configPagePrjInfo"));
    takePage(stage, QStringLiteral("Sources"), QStringLiteral("configPageSources"));
    takePage(stage, QStringLiteral("Assembler"), QStringLiteral("configPageAsmFe"));
    takePage(stage, QStringLiteral("Processor"), QStringLiteral("configPageProcessor"));
    takePage(stage, QStringLiteral("Editor"), QStringLiteral("configPageEditor"), true);
    takePage(stage, QStringLiteral("Source Navi"), QStringLiteral("configPageSourceNavi"), true);
    takePage(stage, QStringLiteral("Appearance"), QStringLiteral("configPageAppearance"), true);
    takePage(stage, QStringLiteral("All shortcuts"), QStringLiteral("configPageShortcuts"), true);
    takePage(stage, QStringLiteral("Network"), QStringLiteral("configPageNetwork"), true);
    takePage(stage, QStringLiteral("Updates"), QStringLiteral("configPageSwUpdate"), true);
    takePage(stage, QStringLiteral("Help"), QStringLiteral("configPageHelp"), true);
    stage.module<ModConfigHookIf>()->closeDialog(false);
    showDocks(stage, true);
    stage.resize(PictureWindow::fullSize);
}

void takeProcessorSettings(PictureWindow& stage)
{
    const struct
    {
        const char* example;
        const char* picture;
    } processors[] = {{"uart_monitor", "configPageXPBlze3Processor"},
                      {"motor_control", "configPageXPBlze6Processor"},
                      {"keypad_lock", "configPageLMico8v3xProcessor"}};
    showDocks(stage, false);
    for (const auto& processor : processors) {
        stage.open(QLatin1String(processor.example));
        stage.module<ModConfigHookIf>()->openDialog(QStringLiteral("Processor"));
        stage.take(QLatin1String(processor.picture), stage.widget(QStringLiteral("processorConfig")));
        stage.module<ModConfigHookIf>()->closeDialog(false);
    }
    showDocks(stage, true);
}

void takeMessages(PictureWindow& stage)
{
    // An argument that does not exist, and one that is too large.
    const QString path = stage.example(QStringLiteral("uart_monitor")) + QStringLiteral("/src/timer.psm");
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite))
        return stage.fail(path + QStringLiteral(": the source can not be changed"));
    const QByteArray before = file.readAll();
    file.write("\n        LOAD    s0, TIMER_RELAOD\n        LOAD    s1, 256\n");
    file.close();
    stage.open(QStringLiteral("uart_monitor"));
    stage.trigger(QStringLiteral("Run assembler"));
    PictureWindow::rest();
    stage.resize(pageSize);
    stage.setBottomHeight(messagesHeight);
    stage.take(QStringLiteral("messageView"), stage.widget(QStringLiteral("dockBottom")));
    stage.resize(PictureWindow::fullSize);
    if (file.open(QIODevice::WriteOnly))
        file.write(before);
    file.close();
}

void takeDeviceMaps(PictureWindow& stage)
{
    stage.open(QStringLiteral("split_rams"));
    stage.trigger(QStringLiteral("Run assembler"));
    PictureWindow::rest();
    auto* maps = stage.window()->findChild<QWidget*>(QStringLiteral("ioDevViewerList"));
    stage.module<ModGuiHookIf>()->setCurrentWidget(maps);
    stage.module<ModGuiHookIf>()->setWidgetVisible(ModGuiHookIf::eLocationDockBottom, false);
    stage.setRightWidth(mapsWidth);
    stage.take(QStringLiteral("deviceMaps"), maps);
    stage.module<ModGuiHookIf>()->setWidgetVisible(ModGuiHookIf::eLocationDockBottom, true);
}

void takeExternalPrograms(PictureWindow& stage)
{
    stage.open(QStringLiteral("check_hex"));
    stage.trigger(QStringLiteral("Run assembler"));
    PictureWindow::rest();
    stage.onDialog(QStringLiteral("consentQuestion"), [](QDialog* dialog) {
        if (auto* buttons = dialog->findChild<QDialogButtonBox*>())
            buttons->button(QDialogButtonBox::Yes)->click();
    });
    stage.trigger(QStringLiteral("Write output files button 2"));
    PictureWindow::rest();
    auto* monitor = stage.window()->findChild<QWidget*>(QStringLiteral("syscallMonitor"));
    stage.module<ModGuiHookIf>()->setCurrentWidget(monitor);
    stage.resize(pageSize);
    stage.take(QStringLiteral("externalPrograms"), stage.widget(QStringLiteral("dockBottom")));
    showDocks(stage, false);
    takePage(stage, QStringLiteral("Ext progs"), QStringLiteral("configPageSyscall"));
    stage.module<ModConfigHookIf>()->closeDialog(false);
    showDocks(stage, true);
    stage.resize(PictureWindow::fullSize);
}
