#include "TabControls.h"

#include "WidgetAreaTabbed.h"

#include "PageProperties.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QMenu>
#include <QMouseEvent>
#include <QTabBar>

namespace nsModGui {

TabControls::TabControls(WidgetAreaTabbed* tabs)
    : QObject(tabs)
    , m_tabs(tabs)
{
    m_tabs->setTabsClosable(true);
    connect(m_tabs, &QTabWidget::tabCloseRequested, this,
            [this](int index) { emit closeRequested(m_tabs->pageAt(index)); });
    m_tabs->tabBar()->installEventFilter(this);
    m_tabs->tabBar()->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_tabs->tabBar(), &QWidget::customContextMenuRequested, this, &TabControls::showMenu);
}

bool TabControls::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonRelease) {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        if (mouse->button() == Qt::MiddleButton) {
            QWidget* page = m_tabs->pageAt(m_tabs->tabBar()->tabAt(mouse->pos()));
            if (event->type() == QEvent::MouseButtonPress)
                m_pressed = page;
            else if (page != nullptr && page == m_pressed)
                emit closeRequested(page);
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

void TabControls::showMenu(const QPoint& place)
{
    int index = m_tabs->tabBar()->tabAt(place);
    // The key for menus asks at the place of the focus.
    if (index < 0 && m_tabs->tabBar()->hasFocus())
        index = m_tabs->currentIndex();
    const QPointer<QWidget> page(m_tabs->pageAt(index));
    if (page.isNull())
        return;
    const QString path = page->property(PageProperties::file).toString();
    auto* menu = new QMenu(m_tabs);
    menu->setObjectName(QStringLiteral("tabMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    // Later, when the menu has gone: what is chosen may ask the user.
    const auto add = [this, menu](const QString& text, bool enabled, auto act) {
        QAction* action = menu->addAction(text);
        action->setEnabled(enabled);
        connect(action, &QAction::triggered, this, act, Qt::QueuedConnection);
    };
    add(tr("&Close"), true, [this, page] {
        if (page)
            emit closeRequested(page);
    });
    add(tr("Close &others"), m_tabs->count() > 1, [this, page] {
        if (page)
            closeAllBut(page);
    });
    add(tr("Close &all"), true, [this] { closeAllBut(nullptr); });
    menu->addSeparator();
    add(tr("Copy &path"), !path.isEmpty(),
        [path] { QApplication::clipboard()->setText(QDir::toNativeSeparators(path)); });
    add(tr("&Show in file list"), !path.isEmpty(), [this, path] { emit showFileRequested(path); });
    menu->popup(m_tabs->tabBar()->mapToGlobal(place));
}

void TabControls::closeAllBut(QWidget* kept)
{
    QList<QPointer<QWidget>> pages;
    for (int index = 0; index < m_tabs->count(); ++index)
        pages.append(m_tabs->pageAt(index));
    const QPointer<TabControls> self(this);
    for (const QPointer<QWidget>& page : qAsConst(pages)) {
        // The owner may ask, and the user may close anything meanwhile.
        if (self && page && page != kept && m_tabs->indexOfPage(page) >= 0)
            emit closeRequested(page);
    }
}

} // namespace nsModGui
