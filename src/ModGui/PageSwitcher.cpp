#include "PageSwitcher.h"

#include "WidgetAreaTabbed.h"

#include <QApplication>
#include <QKeyEvent>
#include <QListWidget>
#include <QVBoxLayout>

namespace nsModGui {

namespace {

const int maxRows = 16; ///< that are seen at once
const int minWidth = 240;
const int margin = 4; ///< pixels

} // namespace

PageSwitcher::PageSwitcher(WidgetAreaTabbed* tabs)
    : QFrame(tabs)
    , m_tabs(tabs)
{
    setObjectName(QStringLiteral("pageSwitcher"));
    setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
    setAutoFillBackground(true);
    hide();
    connect(m_tabs, &QTabWidget::currentChanged, this, &PageSwitcher::pageChanged);
}

void PageSwitcher::makeList()
{
    m_list = new QListWidget(this);
    m_list->setObjectName(QStringLiteral("pageSwitcherList"));
    m_list->setFocusPolicy(Qt::NoFocus);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setAccessibleName(tr("Pages in the order of their use"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->addWidget(m_list);
    connect(m_list, &QListWidget::itemClicked, this, [this] {
        show(m_list->currentRow());
        end();
    });
}

QList<QWidget*> PageSwitcher::order() const
{
    QList<QWidget*> pages;
    for (const QPointer<QWidget>& page : m_used) {
        if (page && m_tabs->indexOfPage(page) >= 0)
            pages.append(page);
    }
    // Pages that were never in front.
    for (int index = 0; index < m_tabs->count(); ++index) {
        if (!pages.contains(m_tabs->pageAt(index)))
            pages.append(m_tabs->pageAt(index));
    }
    return pages;
}

void PageSwitcher::pageChanged()
{
    if (m_isOn)
        return;
    QWidget* page = m_tabs->currentPage();
    m_used.removeAll(nullptr);
    m_used.removeAll(page);
    if (page != nullptr)
        m_used.prepend(page);
}

void PageSwitcher::begin()
{
    m_isOn = true;
    m_first = m_tabs->currentPage();
    m_shown.clear();
    if (m_list == nullptr)
        makeList();
    m_list->clear();
    for (QWidget* page : order()) {
        const int index = m_tabs->indexOfPage(page);
        if (!m_tabs->isTabEnabled(index))
            continue;
        m_shown.append(page);
        new QListWidgetItem(m_tabs->tabIcon(index), m_tabs->tabText(index), m_list);
    }
    m_list->setCurrentRow(0);
    // The style gives the rows their height when they are shown.
    raise();
    setVisible(true);
    const int rowHeight = qMax(1, m_list->sizeHintForRow(0));
    const int height = rowHeight * qMin(maxRows, m_list->count()) + 2 * (m_list->frameWidth() + frameWidth() + margin);
    const int width = qMax(minWidth, m_list->sizeHintForColumn(0) + 32);
    resize(qMin(width, m_tabs->width()), qMin(height, m_tabs->height()));
    move((m_tabs->width() - this->width()) / 2, (m_tabs->height() - this->height()) / 3);
    qApp->installEventFilter(this);
}

void PageSwitcher::step(int step, bool isHeld)
{
    if (!m_isOn)
        begin();
    const int count = m_shown.size();
    if (count > 0)
        show((m_list->currentRow() + step + count) % count);
    if (count == 0 || !isHeld)
        end();
}

void PageSwitcher::show(int row)
{
    m_list->setCurrentRow(row);
    QWidget* page = m_shown.value(row);
    if (page == nullptr || m_tabs->indexOfPage(page) < 0) {
        end();
        return;
    }
    m_tabs->setCurrentIndex(m_tabs->indexOfPage(page));
    page->setFocus(Qt::ShortcutFocusReason);
}

void PageSwitcher::end()
{
    if (!m_isOn)
        return;
    qApp->removeEventFilter(this);
    m_isOn = false;
    hide();
    pageChanged();
}

bool PageSwitcher::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyRelease:
        if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Control)
            end();
        break;
    case QEvent::KeyPress:
        if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
            const int row = m_shown.indexOf(m_first);
            if (row >= 0)
                show(row);
            end();
            return true;
        }
        break;
    case QEvent::MouseButtonPress: {
        const auto* widget = qobject_cast<QWidget*>(watched);
        if (widget != nullptr && widget != this && !isAncestorOf(widget))
            end();
        break;
    }
    case QEvent::ApplicationDeactivate:
    case QEvent::WindowDeactivate:
        end();
        break;
    default:
        break;
    }
    return QFrame::eventFilter(watched, event);
}

} // namespace nsModGui
