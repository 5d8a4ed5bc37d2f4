#include "PrjHome.h"

#include "DesktopRecents.h"
#include "ExamplesDialog.h"

#include "MyLinkButton.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QMenu>
#include <QTimer>

#include <algorithm>

namespace nsModPrj {

namespace {

// Widths of the window, in pixels, from which on the status bar has room for the link.
const int widthForLink = 1000;

/// Shown for a project: the name of its file without the suffix.
QString nameOf(const QString& file)
{
    return QFileInfo(file).completeBaseName();
}

} // namespace

PrjHome::PrjHome(sAccess_t access, QObject* parent)
    : QObject(parent)
    , m_access(std::move(access))
    , m_page(new MyLinkList)
    , m_status(new QWidget)
    , m_statusButton(new MyLinkButton(QString(), m_status))
    , m_menu(new QMenu(tr("Recent projects")))
{
    m_page->setObjectName(QStringLiteral("homeLinks"));
    m_status->setObjectName(QStringLiteral("nextStep"));
    m_statusButton->setObjectName(QStringLiteral("nextStepLink"));
    m_statusButton->setShortText(tr("Next..."));
    auto* layout = new QHBoxLayout(m_status);
    layout->setContentsMargins(4, 0, 4, 0);
    layout->addWidget(m_statusButton);
    connect(m_statusButton, &QPushButton::clicked, this, [this] {
        if (const auto act = m_statusAct)
            act();
    });
    connect(&m_presence, &FilePresence::changed, this, &PrjHome::refreshSoon);
    m_menu->setToolTipsVisible(true);
    connect(m_menu, &QMenu::aboutToShow, this, &PrjHome::fillMenu);
    fillMenu();
}

PrjHome::~PrjHome()
{
    delete m_page;
    delete m_status;
    delete m_menu;
}

MyLinkList* PrjHome::newStartLinks(QWidget* parent)
{
    auto* links = new MyLinkList(parent);
    links->setObjectName(QStringLiteral("startLinks"));
    links->setSections(startSections());
    m_startLinks.removeAll(nullptr);
    m_startLinks.append(links);
    m_presence.look(m_recents.files());
    return links;
}

void PrjHome::refreshSoon()
{
    if (m_refreshes)
        return;
    m_refreshes = true;
    QMetaObject::invokeMethod(
        this, [this] { refresh(); }, Qt::QueuedConnection);
}

void PrjHome::setLocked(bool locked)
{
    m_locked = locked;
    for (QWidget* widget : {static_cast<QWidget*>(m_page), m_status.data()}) {
        if (widget != nullptr)
            widget->setEnabled(!locked);
    }
    for (const QPointer<MyLinkList>& links : qAsConst(m_startLinks)) {
        if (links)
            links->setEnabled(!locked);
    }
    fillMenu();
}

void PrjHome::refresh()
{
    m_refreshes = false;
    QList<PrjStep> steps = m_access.steps();
    std::stable_sort(steps.begin(), steps.end(), [](const PrjStep& a, const PrjStep& b) { return a.order < b.order; });
    const bool isOpen = m_access.isOpen();
    m_startLinks.removeAll(nullptr);
    if (!isOpen || !m_startLinks.isEmpty())
        m_presence.look(m_recents.files());
    if (m_page)
        m_page->setSections(isOpen ? projectSections(steps) : startSections());
    for (const QPointer<MyLinkList>& links : qAsConst(m_startLinks)) {
        if (links)
            links->setSections(startSections());
    }
    showStatus(isOpen ? steps : QList<PrjStep>());
}

QVector<MyLinkList::sSection_t> PrjHome::startSections() const
{
    QVector<MyLinkList::sSection_t> sections;
    MyLinkList::sSection_t begin{tr("Start"), {}};
    // A page with these links may outlive this object.
    const QPointer<PrjHome> self(const_cast<PrjHome*>(this));
    const auto guarded = [self](std::function<void()> sAccess_t::*act) {
        return [self, act] {
            if (self)
                (self->m_access.*act)();
        };
    };
    begin.links.append({tr("New project..."), QString(), tr("Makes a project with its processor and outputs"), true,
                        guarded(&sAccess_t::newProject), nullptr});
    begin.links.append({tr("Open project..."), QString(), tr("Opens a project file"), false,
                        guarded(&sAccess_t::openProject), nullptr});
    begin.links.append({tr("Open an example..."), QString(),
                        tr("Copies an example into a folder of yours and opens the copy"), false,
                        [self] {
                            if (self)
                                self->openExample();
                        },
                        nullptr});
    if (!m_access.isOpen()) {
        for (const PrjStep& step : m_access.steps()) {
            if (step.order == PrjStep::eOrderStart)
                begin.links.append({step.text, QString(), step.toolTip, false, step.act, nullptr});
        }
    }
    sections.append(begin);
    MyLinkList::sSection_t recent{tr("Recent projects"), {}};
    for (const QString& file : m_recents.files()) {
        MyLinkList::sLink_t link;
        link.text = nameOf(file);
        link.detail = QDir::toNativeSeparators(file);
        if (m_presence.isMissing(file))
            link.detail = tr("missing: %1").arg(link.detail);
        link.toolTip = QDir::toNativeSeparators(file);
        link.act = [self, file] {
            if (self)
                self->openRecent(file);
        };
        link.remove = [self, file] {
            if (self)
                self->removeRecent(file);
        };
        recent.links.append(link);
    }
    sections.append(recent);
    return sections;
}

QVector<MyLinkList::sSection_t> PrjHome::projectSections(const QList<PrjStep>& steps) const
{
    MyLinkList::sSection_t next{tr("Next step"), {}};
    MyLinkList::sSection_t more{tr("Then"), {}};
    MyLinkList::sSection_t files{tr("Files of the project"), {}};
    for (const PrjStep& step : steps) {
        const bool leads = next.links.isEmpty() && step.isMissing;
        const MyLinkList::sLink_t link{step.text, QString(), step.toolTip, leads, step.act, nullptr};
        if (step.order == PrjStep::eOrderFile)
            files.links.append(link);
        else if (leads)
            next.links.append(link);
        else if (step.order < PrjStep::eOrderFile)
            more.links.append(link);
    }
    return {next, more, files};
}

void PrjHome::showStatus(const QList<PrjStep>& steps)
{
    if (!m_status)
        return;
    const auto missing = std::find_if(steps.begin(), steps.end(), [](const PrjStep& step) { return step.isMissing; });
    const bool any = missing != steps.end();
    m_statusAct = any ? missing->act : nullptr;
    m_statusButton->setText(any ? tr("Next: %1").arg(missing->text) : QString());
    m_statusButton->setToolTip(any ? QStringLiteral("%1: %2").arg(missing->text, missing->toolTip) : QString());
    if (m_page && m_window != m_page->window()) {
        m_window = m_page->window();
        m_window->installEventFilter(this);
    }
    fitStatus();
}

/// In a small window the link gives way to what else stands in the status bar.
void PrjHome::fitStatus()
{
    const int width = m_window != nullptr ? m_window->width() : 0;
    m_access.showStatus(m_statusAct != nullptr && width >= widthForLink);
}

bool PrjHome::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_window && event->type() == QEvent::Resize && m_statusAct != nullptr)
        fitStatus();
    return QObject::eventFilter(watched, event);
}

// --- recent projects ---

void PrjHome::addRecent(const QString& file)
{
    const QString path = QFileInfo(file).absoluteFilePath();
    m_recents.add(path);
    // Waits for the disk, so the project is shown first.
    QTimer::singleShot(0, this, [path] { DesktopRecents::add(path); });
    fillMenu();
    m_access.recentsChanged();
}

void PrjHome::removeRecent(const QString& file)
{
    m_recents.remove(file);
    fillMenu();
    m_access.recentsChanged();
    refreshSoon();
}

void PrjHome::openRecent(const QString& file)
{
    if (QFileInfo::exists(file)) {
        m_access.open(file);
        return;
    }
    m_access.report(tr("Project file does not exist: ") + file);
    refreshSoon();
}

void PrjHome::fillMenu()
{
    if (!m_menu)
        return;
    m_menu->clear();
    for (const QString& file : m_recents.files()) {
        QAction* action = m_menu->addAction(nameOf(file).replace(QLatin1Char('&'), QLatin1String("&&")), this,
                                            [this, file] { openRecent(file); });
        action->setToolTip(QStringLiteral("<p>%1</p>").arg(QDir::toNativeSeparators(file).toHtmlEscaped()));
        action->setStatusTip(QDir::toNativeSeparators(file));
    }
    m_menu->menuAction()->setEnabled(!m_locked && !m_recents.files().isEmpty());
    m_menu->menuAction()->setToolTip(tr("Projects that were opened last"));
}

// --- examples ---

void PrjHome::openExample()
{
    if (m_exampleFolder.isEmpty())
        m_exampleFolder = ExamplesDialog::usersFolder();
    QWidget* parent = m_page != nullptr && m_page->window() != m_page ? m_page->window() : nullptr;
    if (parent == nullptr)
        parent = QApplication::activeWindow();
    const QPointer<PrjHome> self(this);
    const QPointer<ExamplesDialog> dialog(new ExamplesDialog(ExampleProjects::shipped(), m_exampleFolder, parent));
    const bool accepted = dialog->exec() == QDialog::Accepted;
    const QString file = dialog ? dialog->projectFile() : QString();
    const QString folder = dialog ? dialog->folder() : QString();
    delete dialog;
    if (!self || !accepted || file.isEmpty())
        return;
    m_exampleFolder = folder;
    m_access.open(file);
}

} // namespace nsModPrj
