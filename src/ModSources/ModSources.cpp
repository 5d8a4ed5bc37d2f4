#include "ModSources.h"

#include "DialogParent.h"
#include "SourcesConfigPage.h"

#include "ModConfigHookIf.h"
#include "ModMsgHookIf.h"
#include "ModPrjHookIf.h"
#include "ModScriptHookIf.h"
#include "MsgGroup.h"

#include <QApplication>
#include <QDir>
#include <QMessageBox>

namespace nsModSources {

ModSources::ModSources(QObject* parent)
    : QObject(parent)
{
}

ModSources::~ModSources()
{
    delete m_page;
}

// --- clients ---

void ModSources::registerPlugin(ModSourcesPluginIf* plugin)
{
    if (m_plugins.add(plugin))
        plugin->modSourcesHook = this;
}

void ModSources::unregisterPlugin(ModSourcesPluginIf* plugin)
{
    if (m_plugins.remove(plugin))
        plugin->modSourcesHook = nullptr;
}

// --- the list ---

QStringList ModSources::files()
{
    return srcFiles;
}

void ModSources::setFileContentChanged()
{
    m_plugins.forEach([](ModSourcesPluginIf* plugin) { plugin->srcFileContentChanged(); });
}

bool ModSources::setFiles(QStringList files)
{
    // What the dialog holds would replace it again.
    if (m_page || modPrjHook == nullptr || !modPrjHook->isValid())
        return false;
    QStringList clean;
    for (const QString& file : files)
        clean.append(QDir::cleanPath(file));
    if (clean == srcFiles)
        return true;
    srcFiles = clean;
    setFilesListChanged();
    return true;
}

/// A settings page of its own, which is never seen, asks for the files and checks them.
void ModSources::addFilesByDialog(QWidget* parent)
{
    if (m_page || modPrjHook == nullptr || !modPrjHook->isValid())
        return;
    const QPointer<ModSources> self(this);
    const QString project = modPrjHook->prjDir().absoluteFilePath(modPrjHook->prjFileName());
    const QPointer<SourcesConfigPage> page(new SourcesConfigPage(parent));
    page->hide();
    page->setConfig(srcFiles, modPrjHook->prjDir());
    page->addFile();
    const QStringList files = page ? page->files() : QStringList();
    const bool isThere = !page.isNull();
    delete page;
    // While the dialog was open, the project may have been closed, or another one opened.
    if (!self || !isThere || modPrjHook == nullptr || !modPrjHook->isValid() ||
        modPrjHook->prjDir().absoluteFilePath(modPrjHook->prjFileName()) != project)
        return;
    setFiles(files);
}

void ModSources::setFilesListChanged()
{
    if (modPrjHook != nullptr)
        modPrjHook->stepsChanged();
    m_plugins.forEach([](ModSourcesPluginIf* plugin) { plugin->srcFileListChanged(); });
}

void ModSources::addFile(QString path)
{
    path = QDir::cleanPath(path);
    if (srcFiles.contains(path))
        return;
    srcFiles.append(path);
    // Adding the file starts a run, which must not clear the messages of the open or save that has added it.
    const nsModMsg::MsgGroup group(modMsgHook, tr("Adding a file to the project..."), nsModMsg::MsgGroup::eKeepEarlier);
    if (m_page)
        m_page->insertFile(path);
    if (modMsgHook != nullptr)
        modMsgHook->showInfoMessage(tr("Added file to the project: ") + path);
    setFilesListChanged();
}

void ModSources::removeFile(QString path)
{
    path = QDir::cleanPath(path);
    if (!srcFiles.removeOne(path))
        return;
    if (m_page)
        m_page->dropFile(path);
    setFilesListChanged();
}

bool ModSources::chkProjectMembership(QString path)
{
    path = QDir::cleanPath(path);
    const bool listed = srcFiles.contains(path);
    if (listed || path.isEmpty())
        return listed;
    if (!askToAdd(path))
        return false;
    addFile(path);
    return true;
}

bool ModSources::askToAdd(const QString& path)
{
    // A program without windows can not ask the user.
    if (qobject_cast<QApplication*>(QCoreApplication::instance()) == nullptr)
        return false;
    const QString shown = modPrjHook != nullptr ? modPrjHook->convToRelPath(path) : path;
    const QString text = QLatin1String("<p>") + tr("The file is not added to the project:") + QLatin1String("</p>") +
                         QLatin1String("<p><b>") + shown.toHtmlEscaped() + QLatin1String("</b><p>") +
                         QLatin1String("<p>") + tr("Do you want to add the file to the project?") +
                         QLatin1String("</p>");
    return QMessageBox::warning(DialogParent::get(), tr("Add file to project"), text,
                                QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}

// --- project ---

void ModSources::prjOpen()
{
    rdSourcesConfig(modPrjHook, modMsgHook);
}

void ModSources::prjOpened()
{
    setFilesListChanged();
}

void ModSources::prjSave()
{
    if (modPrjHook != nullptr)
        wrSourcesConfig(modPrjHook, modMsgHook);
}

void ModSources::prjClose()
{
    clearSourcesConfig();
    if (m_page)
        m_page->setConfig(QStringList(), QDir());
}

QList<PrjStep> ModSources::prjSteps()
{
    if (modPrjHook == nullptr || !modPrjHook->isValid() || modConfigHook == nullptr || !srcFiles.isEmpty())
        return {};
    // Whoever has no file yet writes one, which the editor offers first.
    return {{PrjStep::eOrderSource, false, tr("Add sources that exist..."),
             tr("Opens the list of sources in the settings"),
             [this] { modConfigHook->openDialog(QStringLiteral("Sources")); }}};
}

// --- life cycle ---

void ModSources::modRegisterPlugins(QList<ModPluginIf*> modules)
{
    registerPluginsOf<ModSourcesPluginIf>(modules, this);
}

void ModSources::modInit() {}

void ModSources::modInitIntermod()
{
    if (modScriptHook != nullptr)
        modScriptHook->registerObject(this, QStringLiteral("sources"));
}

void ModSources::modRun() {}

bool ModSources::modExitRequest()
{
    return true;
}

void ModSources::modExitIntermod() {}

void ModSources::modExit() {}

// --- settings dialog ---

nsModConfig::ModConfigPagePluginIf* ModSources::configPage(int)
{
    if (!m_page)
        m_page = new SourcesConfigPage;
    return m_page;
}

void ModSources::configPageSetConfig(nsModConfig::ModConfigPagePluginIf*)
{
    if (m_page)
        m_page->setConfig(srcFiles, modPrjHook != nullptr ? modPrjHook->prjDir() : QDir());
}

void ModSources::configPageClose(bool accepted)
{
    // Without a project there is nothing that the list could belong to.
    if (m_page && accepted && modPrjHook != nullptr && modPrjHook->isValid())
        srcFiles = m_page->files();
    delete m_page;
}

void ModSources::configPagesClosed(bool accepted)
{
    if (accepted && modPrjHook != nullptr && modPrjHook->isValid())
        setFilesListChanged();
}

} // namespace nsModSources
