// The project manager: the page without an open project, and the collection of projects.

#include "ModPrj.h"

#include "HelpRef.h"
#include "PrjMngrListWidget.h"
#include "PrjMngrNewWidget.h"
#include "PrjMngrOpenWidget.h"
#include "PrjMngrWidget.h"

#include "ModCfgAppHookIf.h"
#include "ModGuiHookIf.h"
#include "ModHlpHookIf.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace nsModPrj {

namespace {

const QString helpPage = QStringLiteral("pageId://projectManager");
const QString keyCollection = QStringLiteral("PrjMngr/collection");

/// Do both paths name the same file? Links are resolved.
bool isSameFile(const QString& a, const QString& b)
{
    const QFileInfo infoA(a);
    const QFileInfo infoB(b);
    return infoA.exists() && infoB.exists() && infoA.canonicalFilePath() == infoB.canonicalFilePath();
}

/// Lets the window paint its new state. Input of the user is handled later.
void spinEvents()
{
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

} // namespace

// --- the page ---

void ModPrj::prjMngrSetup()
{
    if (modGuiHook == nullptr)
        return;
    if (m_prjMngr == nullptr) {
        m_prjMngr = new PrjMngrWidget;
        connect(m_prjMngr->newWidget(), &PrjMngrNewWidget::generateAdd, this, &ModPrj::prjMngrHndlEventGenerateAdd);
        connect(m_prjMngr->newWidget(), &PrjMngrNewWidget::generateOpen, this, &ModPrj::prjMngrHndlEventGenerateOpen);
        connect(m_prjMngr->openWidget(), &PrjMngrOpenWidget::add, this, &ModPrj::prjMngrHndlEventAdd);
        connect(m_prjMngr->openWidget(), &PrjMngrOpenWidget::open, this, &ModPrj::prjMngrHndlEventOpen);
        connect(m_prjMngr->listWidget(), &PrjMngrListWidget::open, this, &ModPrj::prjMngrHndlEventOpen);
        connect(m_prjMngr, &PrjMngrWidget::saveAndCloseRequested, this, &ModPrj::prjMngrHndlEventClose);
        connect(m_prjMngr, &PrjMngrWidget::cancelRequested, this, &ModPrj::prjMngrHndlEventCancel);
        for (const QString& file : qAsConst(m_collection))
            prjMngrAddToCollection(file);
        // A script can bring the page up while the settings dialog is open.
        m_prjMngr->setTabsEnabled(m_page.isNull());
        HelpRef::set(m_prjMngr, helpPage);
        modGuiHook->addWidget(this, ModGuiHookIf::eLocationTabs, m_prjMngr, tr("Project Manager"));
        if (modHlpHook != nullptr)
            modHlpHook->showDialogHlpRef(m_prjMngr, helpPage);
        updateCloseAction();
        spinEvents();
    }
    if (m_prjMngr != nullptr)
        modGuiHook->setCurrentWidget(m_prjMngr);
}

void ModPrj::prjMngrClose()
{
    if (m_prjMngr == nullptr)
        return;
    PrjMngrWidget* page = m_prjMngr;
    m_prjMngr = nullptr;
    if (modHlpHook != nullptr)
        modHlpHook->closeDialogHlp(page);
    if (modGuiHook != nullptr)
        modGuiHook->removeWidget(page);
    // Deleted later, as the call may come from one of its buttons.
    page->hide();
    page->deleteLater();
    updateCloseAction();
    spinEvents();
}

void ModPrj::prjMngrSetMode(eMode_t mode)
{
    if (m_prjMngr != nullptr)
        m_prjMngr->setCurrentTab(mode);
}

// --- collection ---

void ModPrj::prjMngrFetchCollection()
{
    if (m_prjMngr == nullptr)
        return;
    m_collection = m_prjMngr->listWidget()->prjCollection();
    if (modCfgAppHook == nullptr)
        return;
    wrAppCfg();
    modCfgAppHook->saveAppConfig();
}

bool ModPrj::prjMngrAddToCollection(const QString& file)
{
    CfgTree tree;
    if (m_prjMngr == nullptr || !readPrjFile(&tree, file))
        return false;
    PrjConfig config;
    rdPrjInfo(&tree, &config);
    m_prjMngr->listWidget()->addValid(file, config.cfgTitle, config.cfgVersion, config.cfgComment);
    return true;
}

bool ModPrj::prjMngrGenerate(const QString& file, const QString& title)
{
    // Closing writes the open project into its file, so it must happen before the new content is written.
    if (isValid() && isSameFile(file, m_project.path()))
        closePrj();
    CfgTree tree;
    PrjConfig config;
    config.cfgTitle = title;
    wrPrjInfo(&tree, config);
    return savePrjFile(&tree, file);
}

void ModPrj::rdAppCfg()
{
    if (modCfgAppHook == nullptr)
        return;
    m_collection.clear();
    for (const QString& file : modCfgAppHook->value(keyCollection, QStringList())) {
        if (QFileInfo::exists(file))
            m_collection.append(file);
        else
            warning(tr("Can not find project file %1. Removing it from project collection").arg(file));
    }
}

void ModPrj::wrAppCfg()
{
    if (modCfgAppHook != nullptr)
        modCfgAppHook->setValue(keyCollection, m_collection);
}

// --- events of the page ---

void ModPrj::prjMngrHndlEventGenerateAdd(QString file, QString title)
{
    if (!prjMngrGenerate(file, title) || !prjMngrAddToCollection(file))
        return;
    // Shows that the project was added, and prepares the fields for the next one.
    m_prjMngr->newWidget()->clear();
    prjMngrSetMode(eModeOpen);
}

void ModPrj::prjMngrHndlEventGenerateOpen(QString file, QString title)
{
    nsModMsg::MsgGroup group(groupHook(), openingText(file));
    if (!group.end(prjMngrGenerate(file, title)))
        return;
    prjMngrFetchCollection();
    group.end(openPrjInGroup(file));
}

void ModPrj::prjMngrHndlEventAdd(QString file)
{
    prjMngrAddToCollection(file);
}

void ModPrj::prjMngrHndlEventOpen(QString file)
{
    nsModMsg::MsgGroup group(groupHook(), openingText(file));
    prjMngrFetchCollection();
    group.end(openPrjInGroup(file));
}

void ModPrj::prjMngrHndlEventClose()
{
    prjMngrFetchCollection();
    prjMngrClose();
}

void ModPrj::prjMngrHndlEventCancel()
{
    prjMngrClose();
}

} // namespace nsModPrj
