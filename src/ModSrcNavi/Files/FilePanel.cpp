#include "FilePanel.h"

#include "DialogParent.h"
#include "FileListWidget.h"
#include "NaviTag.h"
#include "NaviTagList.h"

#include "ModEditorHookIf.h"
#include "ModGuiHookIf.h"
#include "ModPrjHookIf.h"
#include "ModSourcesHookIf.h"
#include "ModSrcNaviPluginIf.h"
#include "PageProperties.h"

#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QMenu>

namespace nsModSrcNavi {

namespace {

const int maxPathLength = 4096; ///< characters

QString fileOf(const QWidget* page)
{
    return page != nullptr ? page->property(PageProperties::file).toString() : QString();
}

} // namespace

FilePanel::FilePanel(std::function<sServices_t()> services, QObject* parent)
    : QObject(parent)
    , m_services(std::move(services))
    , m_widget(new FileListWidget)
    , m_menu(new QMenu(tr("Recent files")))
{
    m_widget->setEnabled(false);
    m_menu->menuAction()->setEnabled(false);
    m_menu->menuAction()->setToolTip(tr("Files that were shown last"));
    connect(m_menu, &QMenu::aboutToShow, this, &FilePanel::fillMenu);
    connect(&m_presence, &FilePresence::changed, this, &FilePanel::markMissing);
    connect(m_widget, &FileListWidget::openRequested, this, &FilePanel::open);
    connect(m_widget, &FileListWidget::addRequested, this, [this] {
        if (ModSourcesHookIf* sources = m_services().sources)
            sources->addFilesByDialog(m_widget != nullptr ? m_widget->window() : nullptr);
    });
    connect(m_widget, &FileListWidget::removeRequested, this, [this](const ProjectFiles::sSource_t& source) {
        changeSources(source, [](QStringList* files, int row) {
            files->removeAt(row);
            return qMin(row, files->size() - 1);
        });
    });
    connect(m_widget, &FileListWidget::moveRequested, this, [this](const ProjectFiles::sSource_t& source, int target) {
        changeSources(source, [target](QStringList* files, int row) {
            const int place = qBound(0, target, files->size() - 1);
            files->move(row, place);
            return place;
        });
    });
}

/// Changes the list as it is now, which need not be the one that is shown, and shows the result at once.
/// @param change gets the list and the row of the source in it; its result becomes the current row
void FilePanel::changeSources(const ProjectFiles::sSource_t& source,
                              const std::function<int(QStringList*, int row)>& change)
{
    ModSourcesHookIf* sources = m_services().sources;
    if (sources == nullptr)
        return;
    QStringList files = sources->files();
    const int row = ProjectFiles::rowOf(files, source);
    const int place = row < 0 ? row : change(&files, row);
    refresh(row >= 0 && sources->setFiles(files) ? place : -1);
}

FilePanel::~FilePanel()
{
    delete m_menu;
    // A panel inside of the window is deleted by the window.
    if (m_widget != nullptr && m_widget->parentWidget() == nullptr)
        delete m_widget;
}

FileListWidget* FilePanel::widget() const
{
    return m_widget;
}

void FilePanel::setProjectOpen(bool isOpen)
{
    m_isOpen = isOpen;
    if (isOpen)
        m_presence.look(m_recent);
    updateMenu();
    if (m_widget == nullptr)
        return;
    m_widget->setEnabled(isOpen);
    if (!isOpen) {
        m_files = ProjectFiles();
        m_widget->clear();
    }
    refreshSoon();
}

void FilePanel::setTargets(const QStringList& templates, const QStringList& outputs, const QMap<QString, int>& errors)
{
    m_files.templates = templates;
    m_files.outputs = outputs;
    m_files.errors = errors;
    refreshSoon();
}

void FilePanel::refreshSoon()
{
    if (m_refreshes)
        return;
    m_refreshes = true;
    QMetaObject::invokeMethod(
        this, [this] { refresh(); }, Qt::QueuedConnection);
}

void FilePanel::refresh(int currentSource)
{
    m_refreshes = false;
    const sServices_t services = m_services();
    if (m_widget == nullptr || !m_isOpen || services.prj == nullptr)
        return;
    m_files.sources = services.sources != nullptr ? services.sources->files() : QStringList();
    m_files.open.clear();
    m_files.changed.clear();
    if (services.gui != nullptr) {
        for (QWidget* page : services.gui->centerWidgetList()) {
            const QString file = fileOf(page);
            if (file.isEmpty())
                continue;
            m_files.open.append(file);
            if (page->property(PageProperties::modified).toBool())
                m_files.changed.append(file);
            page->removeEventFilter(this);
            page->installEventFilter(this);
        }
    }
    m_widget->setFiles(m_files, services.prj->prjDir(), currentSource);
}

bool FilePanel::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::DynamicPropertyChange)
        refreshSoon();
    return QObject::eventFilter(watched, event);
}

void FilePanel::pageShown(QWidget* page)
{
    refreshSoon();
    const QString file = fileOf(page);
    if (file.isEmpty())
        return;
    m_recent.removeAll(file);
    m_recent.prepend(file);
    while (m_recent.size() > maxRecent)
        m_recent.removeLast();
    updateMenu();
}

void FilePanel::setRecent(const QStringList& files)
{
    m_recent.clear();
    for (const QString& file : files) {
        if (file.size() <= maxPathLength && QDir::isAbsolutePath(file) && !file.contains(QChar(0)) &&
            !m_recent.contains(file) && m_recent.size() < maxRecent)
            m_recent.append(file);
    }
    updateMenu();
}

void FilePanel::updateMenu()
{
    if (m_menu != nullptr)
        m_menu->menuAction()->setEnabled(m_isOpen && !m_recent.isEmpty());
}

void FilePanel::fillMenu()
{
    m_menu->clear();
    m_presence.look(m_recent);
    const sServices_t services = m_services();
    for (const QString& file : qAsConst(m_recent)) {
        if (services.prj == nullptr || m_presence.isMissing(file))
            continue;
        const QString name = services.prj->convToRelPath(file).replace(QLatin1Char('&'), QLatin1String("&&"));
        m_menu->addAction(name, this, [this, file] { open(file); })->setData(file);
    }
    if (m_menu->isEmpty())
        m_menu->addAction(tr("None"))->setEnabled(false);
}

/// What is known since the menu was shown. Its lines stay where they are.
void FilePanel::markMissing()
{
    if (m_menu == nullptr || !m_menu->isVisible())
        return;
    for (QAction* entry : m_menu->actions()) {
        const QString file = entry->data().toString();
        if (!file.isEmpty())
            entry->setEnabled(!m_presence.isMissing(file));
    }
}

bool FilePanel::select(const QString& file)
{
    refresh();
    return m_widget != nullptr && m_widget->select(file);
}

void FilePanel::open(const QString& file)
{
    if (ModEditorHookIf* editor = m_services().editor)
        editor->openFile(file);
}

QVector<QuickOpen::sTarget_t> FilePanel::targets(const NaviTagList& tags) const
{
    const sServices_t services = m_services();
    QVector<QuickOpen::sTarget_t> targets;
    QStringList files = m_recent;
    if (services.sources != nullptr)
        files += services.sources->files();
    files += m_files.templates;
    files += m_files.outputs;
    files.removeDuplicates();
    for (const QString& file : qAsConst(files)) {
        const QFileInfo info(file);
        // A recent file may be anywhere, also on a disk that does not answer.
        if (m_recent.contains(file) ? m_presence.isMissing(file) : !info.exists())
            continue;
        const QString relative = services.prj->convToRelPath(file);
        QuickOpen::sTarget_t target;
        target.name = info.fileName();
        target.detail = relative == target.name ? QString() : relative;
        target.file = file;
        targets.append(target);
    }
    const auto placeOf = [&services](const QString& file, int line) {
        return services.prj->convToRelPath(file) + QLatin1Char('#') + QString::number(line + 1);
    };
    const QVector<NaviSymbol> names =
        services.symbols != nullptr ? services.symbols->naviSymbols() : QVector<NaviSymbol>();
    for (const NaviSymbol& symbol : names) {
        QuickOpen::sTarget_t target;
        target.name = symbol.name;
        target.detail = symbol.note + QLatin1String("    ") + placeOf(symbol.file, symbol.line);
        target.file = symbol.file;
        target.isSymbol = true;
        target.symbol = symbol;
        targets.append(target);
    }
    for (const NaviTag* tag : tags.tagListDocument()) {
        // The labels are among the names of the program, where there are any.
        const bool isTitle = tag->type == NaviTag::typeConstant || tag->type == NaviTag::typeHardware ||
                             (tag->type == NaviTag::typeLabel && names.isEmpty());
        if (!isTitle || tag->disabled || tag->title.isEmpty())
            continue;
        QuickOpen::sTarget_t target;
        target.name = tag->title;
        target.detail = placeOf(tag->filePath, tag->line);
        target.file = tag->filePath;
        target.line = tag->line;
        target.lineRef = tag->lineRef;
        target.isSymbol = true;
        targets.append(target);
    }
    return targets;
}

void FilePanel::quickOpen(const NaviTagList& tags)
{
    if (m_services().prj == nullptr || !m_isOpen)
        return;
    const QPointer<FilePanel> self(this);
    m_presence.look(m_recent);
    const QPointer<QuickOpen> dialog(new QuickOpen(targets(tags), DialogParent::get()));
    connect(&m_presence, &FilePresence::changed, dialog, [this, dialog] {
        if (dialog != nullptr)
            dialog->leaveOut([this](const QString& file) { return m_presence.isMissing(file); });
    });
    const bool accepted = dialog->exec() == QDialog::Accepted;
    const QuickOpen::sTarget_t chosen = dialog ? dialog->chosen() : QuickOpen::sTarget_t();
    delete dialog;
    ModEditorHookIf* editor = self ? m_services().editor : nullptr;
    if (!accepted || editor == nullptr || !m_isOpen || chosen.file.isEmpty())
        return;
    ModSrcNaviPluginIfSymbols* symbols = m_services().symbols;
    if (!chosen.symbol.name.isEmpty() && symbols != nullptr)
        symbols->showNaviSymbol(chosen.symbol);
    else if (chosen.line < 0)
        editor->openFile(chosen.file);
    else
        editor->setCursorToLine(chosen.file, chosen.line);
}

} // namespace nsModSrcNavi
