// The pages of the help: which are open, and what acts on the current one.

#include "ModHlp.h"

#include "HlpNetworkAccessManager.h"
#include "HlpWidget.h"
#include "ModFindReplaceHookIf.h"
#include "ModNetworkHookIf.h"
#include "ModPrjHookIf.h"

#include <QNetworkProxy>
#include <QWebView>

namespace nsModHlp {

namespace {

const QString keyOpenFiles = QStringLiteral("ModHlp/openFiles");
const QString keyCurrentFile = QStringLiteral("ModHlp/currentFile");

} // namespace

HlpWidget* ModHlp::currentPage() const
{
    QWidget* current = modGuiHook != nullptr ? modGuiHook->currentWidget(ModGuiHookIf::eLocationTabs) : nullptr;
    for (HlpWidget* page : m_pages) {
        if (page == current)
            return page;
    }
    return nullptr;
}

HlpWidget* ModHlp::addPage()
{
    auto* page = new HlpWidget(m_network);
    page->setObjectName(QStringLiteral("hlpPage"));
    m_pages.append(page);
    connect(page, &HlpWidget::linkClicked, this, &ModHlp::openPsmFile);
    connect(page, &HlpWidget::actionChanged, this, &ModHlp::enableActions);
    connect(page, &HlpWidget::titleChanged, this, &ModHlp::setFileName);
    connect(page, SIGNAL(newPage(QWebView**)), this, SLOT(openFile(QWebView**)));
    if (modNetworkHook != nullptr)
        m_network->setProxy(modNetworkHook->proxy());
    if (modFindReplaceHook != nullptr)
        modFindReplaceHook->registerPluginWidget(this, page, 0);
    if (modClipboardHook != nullptr)
        modClipboardHook->registerPluginWidget(this, page);
    if (modGuiHook != nullptr)
        modGuiHook->addWidget(this, ModGuiHookIf::eLocationTabs, page, tr("Untitled"));
    return page;
}

void ModHlp::openFile(QUrl url)
{
    if (url.isEmpty())
        return;
    HlpWidget* page = currentPage();
    if (page == nullptr && !m_pages.isEmpty())
        page = m_pages.last();
    if (!showOnlyOneHelpPage || page == nullptr)
        page = addPage();
    else if (modGuiHook != nullptr)
        modGuiHook->setCurrentWidget(page);
    page->setSource(url);
}

void ModHlp::openFile(QWebView** view)
{
    *view = addPage()->view();
}

void ModHlp::openPsmFile(QUrl) {}

void ModHlp::closeAllFiles()
{
    while (!m_pages.isEmpty())
        closeFile(m_pages.last());
}

void ModHlp::closeFile()
{
    closeFile(currentPage());
}

void ModHlp::closeFile(QWidget* widget)
{
    for (int i = 0; i < m_pages.size(); ++i) {
        HlpWidget* page = m_pages.at(i);
        if (page != widget)
            continue;
        m_pages.removeAt(i);
        page->disconnect(this);
        if (modFindReplaceHook != nullptr)
            modFindReplaceHook->unregisterPluginWidget(page);
        if (modClipboardHook != nullptr)
            modClipboardHook->unregisterPluginWidget(page);
        if (modGuiHook != nullptr)
            modGuiHook->removeWidget(page);
        // The call may come from the page itself.
        page->deleteLater();
        return;
    }
}

void ModHlp::removeWidgetRequest(QWidget* widget)
{
    closeFile(widget);
}

void ModHlp::setFocus(ModGuiHookIf::eLocation_t location, ModGuiPluginIf*, QWidget*)
{
    if (location == ModGuiHookIf::eLocationTabs)
        enableActions(currentPage());
}

void ModHlp::enableActions(HlpWidget* widget)
{
    HlpWidget* page = currentPage();
    if (widget != page || m_actionsNavi == nullptr)
        return;
    m_actionsNavi->setEnabled(HlpActionsNavi::eActionGoBack, page != nullptr && page->canGoBack());
    m_actionsNavi->setEnabled(HlpActionsNavi::eActionGoForward, page != nullptr && page->canGoForward());
    if (page != nullptr && modClipboardHook != nullptr)
        modClipboardHook->setFeatureEnable(ModClipboardHookIf::eClipboardFeatureCopy, page->hasSelection());
}

void ModHlp::setFileName(QWidget* widget, QString title)
{
    if (modGuiHook != nullptr)
        modGuiHook->setWidgetName(widget, title);
}

// --- beside dialogs ---

void ModHlp::showDialogHlpRef(QWidget* dialog, QString ref)
{
    showDialogHlp(dialog, QUrl(ref.toLower()));
}

void ModHlp::showDialogHlp(QWidget* dialog, const QUrl& url)
{
    if (dialog == nullptr || modGuiHook == nullptr)
        return;
    HlpWidget*& page = m_dialogPages[dialog];
    if (page == nullptr) {
        page = new HlpWidget(m_network);
        page->setObjectName(QStringLiteral("hlpDialogPage"));
        modGuiHook->addWidget(this, ModGuiHookIf::eLocationDockRight, page, tr("Help page"));
        connect(dialog, &QObject::destroyed, this, [this, dialog] { closeDialogHlp(dialog); });
    }
    page->setSource(url);
}

void ModHlp::closeDialogHlp(QWidget* dialog)
{
    HlpWidget* page = m_dialogPages.take(dialog);
    if (page == nullptr)
        return;
    if (modGuiHook != nullptr)
        modGuiHook->removeWidget(page);
    page->deleteLater();
}

// --- project ---

void ModHlp::prjOpen()
{
    const QStringList files = modPrjHook->value(keyOpenFiles, QStringList());
    const QString current = modPrjHook->value(keyCurrentFile, QString());
    for (const QString& file : files) {
        if (file != current)
            openFile(QUrl(file));
    }
    if (!current.isEmpty())
        openFile(QUrl(current));
}

void ModHlp::prjSave()
{
    QStringList files;
    for (const HlpWidget* page : qAsConst(m_pages))
        files.append(page->source().toString());
    const HlpWidget* current = currentPage();
    modPrjHook->setValue(keyOpenFiles, files);
    modPrjHook->setValue(keyCurrentFile, current != nullptr ? current->source().toString() : QString());
}

// --- find and clipboard ---

QString ModHlp::findInit()
{
    const HlpWidget* page = currentPage();
    return page != nullptr ? page->selectedText() : QString();
}

void ModHlp::findNext(bool)
{
    find(false);
}

void ModHlp::findPrev(bool)
{
    find(true);
}

void ModHlp::find(bool backwards)
{
    HlpWidget* page = currentPage();
    if (page == nullptr || modFindReplaceHook == nullptr || modFindReplaceHook->findString().isEmpty())
        return;
    const QString text = modFindReplaceHook->findString();
    const bool caseSensitive = modFindReplaceHook->isCaseSensitive();
    if (page->find(text, backwards, caseSensitive, false)) {
        if (modGuiHook != nullptr)
            modGuiHook->clearStatusBarText();
        return;
    }
    if (modGuiHook != nullptr)
        modGuiHook->setStatusBarText(tr("End of file reached."));
    page->find(text, backwards, caseSensitive, true);
}

void ModHlp::clipboardAction(ModClipboardHookIf::eClipboardFeature_t feature)
{
    HlpWidget* page = currentPage();
    if (page != nullptr && feature == ModClipboardHookIf::eClipboardFeatureCopy)
        page->copy();
}

} // namespace nsModHlp
