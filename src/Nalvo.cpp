#include "Nalvo.h"

#include "ModAction.h"
#include "ModGui.h"
#include "ModMsg.h"

#if __has_include("ModArgs.h")
#include "ModArgs.h"
#endif
#if __has_include("ModAsmFe.h")
#include "ModAsmFe.h"
#endif
#if __has_include("ModCfgApp.h")
#include "ModCfgApp.h"
#endif
#if __has_include("ModPrj.h")
#include "ModPrj.h"
#endif
#if __has_include("ModProcessor.h")
#include "ModProcessor.h"
#endif
#if __has_include("ModSources.h")
#include "ModSources.h"
#endif

#include <QCloseEvent>
#include <QCoreApplication>
#include <QMenu>
#include <QToolBar>

/// The pictures and the style sheet; at global scope, as the macro declares a function of the resource compiler.
static void initResources()
{
#ifdef NALVO_HAS_RESOURCES
    Q_INIT_RESOURCE(nalvo);
#endif
}

Nalvo::Nalvo(int, char**)
    : QMainWindow(nullptr)
{
    initResources();
    QCoreApplication::setOrganizationName(QStringLiteral("Brelmont"));
    QCoreApplication::setOrganizationDomain(QStringLiteral("brelmont.example"));
    QCoreApplication::setApplicationName(QStringLiteral("Nalvo"));

    makeModules();
    m_phases.start();

    setVisible(true);
    QCoreApplication::processEvents();
    handleArgs();
}

void Nalvo::makeModules()
{
    // The order of creation and that of the list differ: settings, for one, are read at the place of ModCfgApp in the list.
#if __has_include("ModArgs.h")
    m_modArgs = new nsModArgs::ModArgs(this);
#endif
#if __has_include("ModPrj.h")
    m_modPrj = new nsModPrj::ModPrj(this);
#endif
    m_phases.append(new nsModMsg::ModMsg(this));
#if __has_include("ModPrj.h")
    m_phases.append(m_modPrj);
#endif
#if __has_include("ModSources.h")
    m_phases.append(new nsModSources::ModSources(this));
#endif
#if __has_include("ModProcessor.h")
    m_phases.append(new nsModProcessor::ModProcessor(this));
#endif
#if __has_include("ModAsmFe.h")
    m_phases.append(new nsModAsmFe::ModAsmFe(this));
#endif
    m_phases.append(new nsModAction::ModAction(this));
#if __has_include("ModArgs.h")
    m_phases.append(m_modArgs);
#endif
#if __has_include("ModCfgApp.h")
    m_phases.append(new nsModCfgApp::ModCfgApp(this));
#endif
    m_phases.append(new nsModGui::ModGui(this));
}

void Nalvo::handleArgs()
{
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
    // After a refusal the event stays as it came.
    if (m_phases.stop())
        event->accept();
}
