#include "Nalvo.h"

#include "AppStyle.h"
#include "Display.h"
#include "HelpRef.h"
#include "LateContent.h"
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
#include "ModImport.h"
#include "ModMsg.h"
#include "ModNetwork.h"
#include "ModPrj.h"
#include "ModProcessor.h"
#include "ModScript.h"
#include "ModSources.h"
#include "ModSrcNavi.h"
#include "ModSwUpdate.h"
#include "ModSymbols.h"
#include "ModSyscall.h"
#include "ModTemplates.h"
#include "Unattended.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QMenu>
#include <QToolBar>

/// The pictures and the style sheet; at global scope, as the macro declares a function of the resource compiler.
static void initResources()
{
    Q_INIT_RESOURCE(nalvo);
}

Nalvo::Nalvo(int, char**)
    : QMainWindow(nullptr)
{
    initResources();
    AppStyle::install();
    HelpRef::set(this, QStringLiteral("pageId://mainWindow"));
    QCoreApplication::setOrganizationName(QStringLiteral("Brelmont"));
    QCoreApplication::setOrganizationDomain(QStringLiteral("brelmont.example"));
    QCoreApplication::setApplicationName(QStringLiteral("Nalvo"));

    LateContent::Start start;
    makeModules();
    m_phases.start();
    start.aboutToShow(this);
    // What is not seen yet is styled when it is.
    QCoreApplication::removePostedEvents(nullptr, QEvent::PolishRequest);
    setVisible(true);
    QCoreApplication::processEvents();
    start.seen();
    // The user may have closed it at first sight.
    if (!m_phases.isStopped())
        handleArgs();
}

void Nalvo::makeModules()
{
    // These three are kept as members, as the window needs them for the command line. The order of creation need not be
    // that of the list: the phases run in the order of the list, so the settings are read at the place of ModCfgApp.
    m_modArgs = new nsModArgs::ModArgs(this);
    m_modPrj = new nsModPrj::ModPrj(this);
    m_modScript = new nsModScript::ModScript(this);
    // The window is the first object that scripts can see.
    m_modScript->registerObject(this, QStringLiteral("app"));

    m_phases.append(new nsModMsg::ModMsg(this));
    m_phases.append(m_modPrj);
    m_phases.append(new nsModSources::ModSources(this));
    m_phases.append(new nsModProcessor::ModProcessor(this));
    m_phases.append(new nsModAsmFe::ModAsmFe(this));
    m_phases.append(new nsModSyscall::ModSyscall(this));
    m_phases.append(new nsModEditor::ModEditor(this));
    m_phases.append(new nsModSrcNavi::ModSrcNavi(this));
    m_phases.append(new nsModHlp::ModHlp(this));
    m_phases.append(new nsModNetwork::ModNetwork(this));
    m_phases.append(new nsModSwUpdate::ModSwUpdate(this));
    m_phases.append(new nsModAction::ModAction(this));
    m_phases.append(m_modArgs);
    m_phases.append(new nsModCfgApp::ModCfgApp(this));
    m_phases.append(new nsModClipboard::ModClipboard(this));
    m_phases.append(new nsModConfig::ModConfig(this));
    m_phases.append(new nsModFindReplace::ModFindReplace(this));
    m_phases.append(new nsModGui::ModGui(this));
    m_phases.append(new nsModTemplates::ModTemplates(this));
    m_phases.append(m_modScript);
    m_phases.append(new nsModImport::ModImport(this));
    m_phases.append(new nsModFonts::ModFonts(this));
    m_phases.append(new nsModSymbols::ModSymbols(this));
}

void Nalvo::handleArgs()
{
    if (m_modArgs->hasError())
        return;
    const QString project = m_modArgs->prjFile();
    const QString script = m_modArgs->scriptFile();
    // A script without a display runs by itself: a question would wait for ever.
    if (!script.isEmpty() && !Display::isThere())
        Unattended::setOn(true);
    // Keeps the messages of the start together with those of the project.
    if (!project.isEmpty() && !m_modPrj->openPrj(project, nsModMsg::MsgGroup::eKeepEarlier))
        return;
    if (!script.isEmpty())
        m_modScript->executeScriptFile(script);
}

void Nalvo::exit()
{
    QCoreApplication::exit(0);
}

QMenu* Nalvo::createPopupMenu()
{
    auto* menu = new QMenu(this);
    for (QToolBar* toolBar : findChildren<QToolBar*>(QString(), Qt::FindDirectChildrenOnly))
        menu->addAction(toolBar->toggleViewAction());
    return menu;
}

void Nalvo::closeEvent(QCloseEvent* event)
{
    if (m_modScript->isRunning()) {
        event->ignore();
        connect(m_modScript, &nsModScript::ModScript::ended, this, &QWidget::close,
                Qt::ConnectionType(Qt::QueuedConnection | Qt::UniqueConnection));
        m_modScript->stopScript();
        return;
    }
    // After a refusal the event is left unchanged.
    disconnect(m_modScript, &nsModScript::ModScript::ended, this, nullptr);
    if (m_phases.stop())
        event->accept();
}
