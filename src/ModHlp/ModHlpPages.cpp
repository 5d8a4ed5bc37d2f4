// The pages of the help: which are open, and what acts on the current one.

#include "ModHlp.h"

#include "HelpRef.h"
#include "HlpDialogWindow.h"
#include "HlpNetworkAccessManager.h"
#include "HlpWidget.h"
#include "ModFindReplaceHookIf.h"
#include "ModNetworkHookIf.h"
#include "ModPrjHookIf.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDialog>
#include <QHelpEngine>
#include <QHelpLink>
#include <QKeyEvent>
#include <QNetworkProxy>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTimer>
#include <QWhatsThis>
#include <QWhatsThisClickedEvent>

namespace nsModHlp {

namespace {

const QString keyOpenFiles = QStringLiteral("ModHlp/openFiles");
const QString keyCurrentFile = QStringLiteral("ModHlp/currentFile");
const int maxPages = 100; ///< that a project may open

bool isOfWeb(const QUrl& url)
{
    return url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
}

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

/// @return the page of the centre that shows the URL, or null
HlpWidget* ModHlp::pageAt(const QUrl& url) const
{
    for (HlpWidget* page : m_pages) {
        if (page->source() == url)
            return page;
    }
    return nullptr;
}

HlpWidget* ModHlp::addPage()
{
    auto* page = new HlpWidget(this);
    page->setObjectName(QStringLiteral("hlpPage"));
    m_pages.append(page);
    connect(page, &HlpWidget::linkClicked, this, &ModHlp::openPsmFile);
    connect(page, &HlpWidget::actionChanged, this, &ModHlp::enableActions);
    connect(page, &HlpWidget::titleChanged, this, &ModHlp::setFileName);
    connect(page, SIGNAL(newPage(QWebView**)), this, SLOT(openFile(QWebView**)));
    if (modNetworkHook != nullptr)
        network()->setProxy(modNetworkHook->proxy());
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
    if (isOfWeb(url)) {
        QDesktopServices::openUrl(url);
        return;
    }
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
    // Also the first page of a start, which is about to open.
    m_isStartDue = false;
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
        if (modFindReplaceHook != nullptr)
            modFindReplaceHook->unregisterPluginWidget(page);
        if (modClipboardHook != nullptr)
            modClipboardHook->unregisterPluginWidget(page);
        dropPage(page);
        return;
    }
}

/// Takes a page out of the window and deletes it.
void ModHlp::dropPage(HlpWidget* page)
{
    page->disconnect(this);
    if (modGuiHook != nullptr)
        modGuiHook->removeWidget(page);
    deleteSoon(page);
}

/// Later, as the call may come from a page itself; but before the network manager, if the program ends now.
void ModHlp::deleteSoon(QWidget* widget)
{
    widget->hide();
    widget->setParent(m_closedPages.get());
    widget->deleteLater();
}

/// Takes the page in front of a modal dialog away, if there is one.
void ModHlp::dropWindow()
{
    if (m_window == nullptr)
        return;
    deleteSoon(m_window);
    m_window = nullptr;
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

// --- what the user is at ---

namespace {

/// The pages of the instruction sets, by the names of the processors.
const struct
{
    const char* processor;
    const char* file;
} instructionPages[] = {
    {"Xilinx PicoBlaze 3", "instrxpblze3.html"},
    {"Xilinx PicoBlaze 6", "instrxpblze6.html"},
    {"Lattice Mico8 v3.x", "instrlmico8v3x.html"},
};

/// Is this a section about a word of the language, or a message? A label may be named as any section of the others.
bool explainsWord(const QUrl& url)
{
    static const QRegularExpression pages(QStringLiteral("^(instr|lang).*\\.html$|messages\\.html$"));
    return url.hasFragment() && pages.match(url.fileName()).hasMatch();
}

/// The word at the cursor, with the number sign of a directive.
QString wordAt(const QPlainTextEdit& text)
{
    const QTextCursor cursor = text.textCursor();
    const QString line = cursor.block().text();
    const auto isPart = [&](int at) { return line.at(at).isLetterOrNumber() || line.at(at) == '_'; };
    int start = cursor.positionInBlock();
    int end = start;
    while (start > 0 && isPart(start - 1))
        --start;
    while (end < line.size() && isPart(end))
        ++end;
    // With the cursor in front of the sign, the directive is meant, too.
    if (start == end && end < line.size() && line.at(end) == '#') {
        for (++end; end < line.size() && isPart(end);)
            ++end;
    } else if (start > 0 && line.at(start - 1) == '#') {
        --start;
    }
    return line.mid(start, end - start);
}

} // namespace

/// @return an empty URL if no page explains the word
QUrl ModHlp::urlOfWord(const QString& word)
{
    if (openedEngine() == nullptr || word.isEmpty())
        return QUrl();
    QList<QUrl> links;
    for (const QString& name : {word, word.toUpper(), '#' + word.toUpper()}) {
        for (const QHelpLink& link : m_collection.engine()->documentsForKeyword(name)) {
            if (explainsWord(link.url))
                links.append(link.url);
        }
        if (!links.isEmpty())
            break;
    }
    // Of the same instruction of several processors, the one of the project is meant.
    const QString processor =
        modPrjHook != nullptr ? modPrjHook->value(QStringLiteral("ModProcessor/processor"), QString()) : QString();
    for (const auto& page : instructionPages) {
        if (processor != QLatin1String(page.processor))
            continue;
        for (const QUrl& link : qAsConst(links)) {
            if (link.fileName() == QLatin1String(page.file))
                return link;
        }
    }
    return links.isEmpty() ? QUrl() : links.first();
}

/// Shows a page where the user can read it: in the centre, which a modal dialog locks.
void ModHlp::show(const QUrl& url)
{
    QWidget* modal = QApplication::activeModalWidget();
    if (modal == nullptr || isOfWeb(url)) {
        openFile(url);
        return;
    }
    // One that has been closed is deleted later.
    if (m_window != nullptr && (m_window->parentWidget() != modal || !m_window->isVisible()))
        dropWindow();
    if (m_window == nullptr)
        m_window = new HlpDialogWindow(this, modal);
    m_window->page()->setSource(url);
    m_window->show();
    m_window->raise();
    m_window->activateWindow();
}

void ModHlp::explain(QWidget* widget)
{
    if (const auto* text = qobject_cast<QPlainTextEdit*>(widget)) {
        const QString word = wordAt(*text);
        QUrl url = urlOfWord(word);
        if (url.isEmpty() && !word.isEmpty())
            url = QUrl(text->property(HelpRef::propertyForNames).toString());
        if (!url.isEmpty()) {
            show(url);
            return;
        }
    }
    for (QWidget* part = widget; part != nullptr; part = part->parentWidget()) {
        HlpWidget* beside = m_dialogPages.value(part);
        if (beside != nullptr && modGuiHook != nullptr) {
            modGuiHook->setCurrentWidget(beside);
            modGuiHook->setWidgetVisible(ModGuiHookIf::eLocationDockRight, true);
            return;
        }
        const QString ref = part->property(HelpRef::property).toString();
        if (!ref.isEmpty()) {
            show(QUrl(ref));
            return;
        }
    }
    show(pageStart());
}

void ModHlp::whatsThis(QWidget* widget)
{
    for (QWidget* part = widget; part != nullptr; part = part->parentWidget()) {
        if (part->whatsThis().isEmpty())
            continue;
        QWhatsThis::showText(widget->mapToGlobal(widget->rect().bottomLeft()), part->whatsThis(), part);
        return;
    }
    QWhatsThis::enterWhatsThisMode();
}

bool ModHlp::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Paint:
        if (watched == parent() && m_isStartDue)
            QTimer::singleShot(0, this, &ModHlp::openDueStart);
        if (watched == parent() && !isReady())
            QTimer::singleShot(0, this, &ModHlp::makeReady);
        return false;
    case QEvent::WhatsThisClicked:
        show(QUrl(static_cast<QWhatsThisClickedEvent*>(event)->href()));
        return true;
    case QEvent::HelpRequest:
        explain(qobject_cast<QWidget*>(watched));
        return true;
    case QEvent::KeyPress: {
        // The shortcut of the window does not reach into other windows.
        const auto* key = static_cast<QKeyEvent*>(event);
        auto* widget = qobject_cast<QWidget*>(watched);
        if (key->key() != Qt::Key_F1 || key->modifiers() != Qt::NoModifier || widget == nullptr ||
            qobject_cast<QDialog*>(widget->window()) == nullptr || widget->window() == m_window)
            return false;
        explain(widget);
        return true;
    }
    default:
        return false;
    }
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
    HlpWidget* page = m_dialogPages.value(dialog);
    if (page == nullptr) {
        page = new HlpWidget(this);
        page->setObjectName(QStringLiteral("hlpDialogPage"));
        m_dialogPages.insert(dialog, page);
        connect(dialog, &QObject::destroyed, page, [this, dialog] { closeDialogHlp(dialog); });
        modGuiHook->addWidget(this, ModGuiHookIf::eLocationDockRight, page, tr("Help page"));
    }
    page->setSource(url);
}

void ModHlp::closeDialogHlp(QWidget* dialog)
{
    HlpWidget* page = m_dialogPages.take(dialog);
    if (page != nullptr)
        dropPage(page);
}

// --- project ---

void ModHlp::prjOpen()
{
    const QString current = modPrjHook->value(keyCurrentFile, QString());
    QWidget* inFront = modGuiHook != nullptr ? modGuiHook->currentWidget(ModGuiHookIf::eLocationTabs) : nullptr;
    // A project of the command line may be open before the window is seen.
    openDueStart();
    QStringList files = modPrjHook->value(keyOpenFiles, QStringList()).mid(0, maxPages);
    files.removeAll(current);
    files.append(current);
    for (const QString& file : qAsConst(files)) {
        // Whoever has written the project: it opens pages of the help and nothing else.
        const QUrl url = network()->resolved(QUrl(file));
        if (!network()->isOfCollection(url))
            continue;
        HlpWidget* present = pageAt(url);
        if (present == nullptr)
            openFile(url);
        else if (file == current && modGuiHook != nullptr)
            modGuiHook->setCurrentWidget(present);
    }
    if (current.isEmpty() && inFront != nullptr)
        modGuiHook->setCurrentWidget(inFront);
}

ModHlp::sOpenPages_t ModHlp::openPages() const
{
    sOpenPages_t pages;
    for (const HlpWidget* page : m_pages)
        pages.files.append(page->source().toString());
    const HlpWidget* current = currentPage();
    if (current != nullptr)
        pages.current = current->source().toString();
    return pages;
}

void ModHlp::prjSave()
{
    const sOpenPages_t pages = m_lastPages.value_or(openPages());
    modPrjHook->setValue(keyOpenFiles, pages.files);
    modPrjHook->setValue(keyCurrentFile, pages.current);
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
