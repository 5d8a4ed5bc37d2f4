// The project manager: the page without an open project, the collection of projects, and the links that lead on.

#include "ModPrj.h"

#include "HelpRef.h"
#include "NewProject.h"
#include "PrjHome.h"
#include "PrjMngrFile.h"
#include "PrjMngrListWidget.h"
#include "PrjMngrNewWidget.h"
#include "PrjMngrOpenWidget.h"
#include "PrjMngrWidget.h"

#include "ModCfgAppHookIf.h"
#include "ModGuiHookIf.h"
#include "ModHlpHookIf.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>

#include <utility>

namespace nsModPrj {

namespace {

const QString helpPage = QStringLiteral("pageId://projectManager");
const QString keyCollection = QStringLiteral("PrjMngr/collection");
const QString keyRecent = QStringLiteral("PrjMngr/recent");

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
        if (m_home != nullptr)
            m_prjMngr->setStartLinks(m_home->newStartLinks(m_prjMngr));
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
    m_afterNew = nullptr;
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

// --- what leads on ---

void ModPrj::setupHome()
{
    PrjHome::sAccess_t access;
    access.isOpen = [this] { return isValid(); };
    access.title = [this] { return prjTitle(); };
    access.steps = [this] {
        QList<PrjStep> steps;
        m_plugins.forEach([&steps](ModPrjPluginIf* plugin) { steps.append(plugin->prjSteps()); });
        return steps;
    };
    access.newProject = [this] { showNewProject(nullptr); };
    access.openProject = [this] { openProjectByDialog(); };
    access.open = [this](const QString& file) { prjMngrHndlEventOpen(file); };
    access.report = [this](const QString& text) { error(text); };
    // They reach the disk with all other settings, at the end of the program.
    access.recentsChanged = [this] { wrAppCfg(); };
    access.showStatus = [this](bool shown) {
        if (modGuiHook == nullptr ||
            modGuiHook->hasWidget(ModGuiHookIf::eLocationStatusThird, m_home->statusLink()) == shown)
            return;
        if (shown)
            modGuiHook->addWidget(this, ModGuiHookIf::eLocationStatusThird, m_home->statusLink(), QString());
        else
            modGuiHook->removeWidget(m_home->statusLink());
    };
    m_home = new PrjHome(std::move(access), this);
    modGuiHook->setEmptyPage(m_home->page());
    stepsChanged();
}

void ModPrj::stepsChanged()
{
    if (m_home != nullptr)
        m_home->refreshSoon();
}

void ModPrj::showNewProject(std::function<void()> opened)
{
    m_afterNew = std::move(opened);
    prjMngrSetup();
    prjMngrSetMode(eModeNew);
}

void ModPrj::openProjectByDialog()
{
    const QPointer<QFileDialog> dialog(new QFileDialog(m_home->page()->window(), tr("Select project file to open")));
    dialog->setNameFilters(PrjMngrFile::nameFilters());
    dialog->setDefaultSuffix(PrjMngrFile::suffix());
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    const QPointer<ModPrj> self(this);
    const bool accepted = dialog->exec() == QDialog::Accepted;
    const QStringList files = dialog ? dialog->selectedFiles() : QStringList();
    delete dialog;
    if (self && accepted && !files.isEmpty())
        prjMngrHndlEventOpen(files.constFirst());
}

bool ModPrj::generateFromPage(const QString& file, const QString& title)
{
    const NewProjectOptions options = m_prjMngr != nullptr ? m_prjMngr->newWidget()->options() : NewProjectOptions();
    if (options.isEmpty())
        return prjMngrGenerate(file, title);
    // Closing writes the open project into its file, so it must happen before the new content is written.
    if (isValid() && isSameFile(file, m_project.path()))
        closePrj();
    CfgTree tree;
    PrjConfig config;
    config.cfgTitle = title;
    wrPrjInfo(&tree, config);
    QString problem;
    if (!NewProject(file, title, options).fill(&tree, &problem)) {
        error(problem);
        return false;
    }
    return savePrjFile(&tree, file);
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
    if (m_home != nullptr) {
        m_home->recents().setFiles(modCfgAppHook->value(keyRecent, QStringList()));
        m_home->refreshSoon();
    }
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
    if (modCfgAppHook == nullptr)
        return;
    modCfgAppHook->setValue(keyCollection, m_collection);
    if (m_home != nullptr)
        modCfgAppHook->setValue(keyRecent, m_home->recents().files());
}

// --- events of the page ---

void ModPrj::prjMngrHndlEventGenerateAdd(QString file, QString title)
{
    if (!generateFromPage(file, title) || !prjMngrAddToCollection(file))
        return;
    // Shows that the project was added, and prepares the fields for the next one.
    m_prjMngr->newWidget()->clear();
    prjMngrSetMode(eModeOpen);
    m_prjMngr->listWidget()->showProject(file);
}

void ModPrj::prjMngrHndlEventGenerateOpen(QString file, QString title)
{
    nsModMsg::MsgGroup group(groupHook(), openingText(file));
    if (!group.end(generateFromPage(file, title)))
        return;
    prjMngrFetchCollection();
    const auto opened = std::exchange(m_afterNew, nullptr);
    if (group.end(openPrjInGroup(file)) && opened)
        opened();
}

void ModPrj::prjMngrHndlEventAdd(QString file)
{
    if (prjMngrAddToCollection(file))
        m_prjMngr->listWidget()->showProject(file);
}

void ModPrj::prjMngrHndlEventOpen(QString file)
{
    m_afterNew = nullptr;
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
