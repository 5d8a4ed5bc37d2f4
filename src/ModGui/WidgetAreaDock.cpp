#include "WidgetAreaDock.h"

#include <QMainWindow>
#include <QMetaMethod>
#include <QTabWidget>

#include <functional>

namespace nsModGui {

namespace {

const char* const contentChangedSignature = "contentChanged(QWidget*)";

/// A tab widget that calls a function when a tab was added or removed, also by deleting its widget.
class DockTabs : public QTabWidget
{
public:
    DockTabs(QWidget* parent, std::function<void()> countChanged)
        : QTabWidget(parent)
        , m_countChanged(std::move(countChanged))
    {
    }

protected:
    void tabInserted(int index) override
    {
        QTabWidget::tabInserted(index);
        m_countChanged();
    }
    void tabRemoved(int index) override
    {
        QTabWidget::tabRemoved(index);
        m_countChanged();
    }

private:
    std::function<void()> m_countChanged;
};

} // namespace

WidgetAreaDock::WidgetAreaDock(const QString& title, QWidget* parent)
    : QDockWidget(title, parent)
    , m_tabs(new DockTabs(this, [this] { updateVisibility(); }))
{
    m_tabs->setMovable(true);
    m_tabs->setAccessibleName(title);
    setWidget(m_tabs);
    setTitleBarWidget(new QWidget(this));
    setFeatures(QDockWidget::DockWidgetVerticalTitleBar);
    connect(m_tabs, &QTabWidget::currentChanged, this,
            [this](int index) { emit currentWidgetChanged(this, m_tabs->widget(index)); });
    updateVisibility();
}

void WidgetAreaDock::addWidget(const QString& name, QWidget* widget)
{
    if (widget == nullptr)
        return;
    removeWidget(widget);
    // A widget that reports new content comes to the front.
    if (widget->metaObject()->indexOfSignal(contentChangedSignature) >= 0)
        connect(widget, SIGNAL(contentChanged(QWidget*)), this, SLOT(setCurrentWidget(QWidget*)));
    m_tabs->addTab(widget, name);
    m_tabs->setCurrentWidget(widget);
}

void WidgetAreaDock::removeWidget(QWidget* widget)
{
    if (!hasWidget(widget))
        return;
    if (widget->metaObject()->indexOfSignal(contentChangedSignature) >= 0)
        disconnect(widget, SIGNAL(contentChanged(QWidget*)), this, SLOT(setCurrentWidget(QWidget*)));
    m_tabs->removeTab(m_tabs->indexOf(widget));
    widget->setParent(nullptr);
}

bool WidgetAreaDock::hasWidget(QWidget* widget) const
{
    return widget != nullptr && m_tabs->indexOf(widget) >= 0;
}

QWidget* WidgetAreaDock::currentAreaWidget() const
{
    return m_tabs->currentWidget();
}

void WidgetAreaDock::setCurrentWidget(QWidget* widget)
{
    if (!hasWidget(widget))
        return;
    if (m_tabs->currentWidget() != widget)
        m_tabs->setCurrentWidget(widget);
    if (isHidden() || !m_wantedVisible)
        setVisible(true);
}

void WidgetAreaDock::setWidgetEnabled(QWidget* widget, bool enabled)
{
    if (hasWidget(widget))
        m_tabs->setTabEnabled(m_tabs->indexOf(widget), enabled);
}

void WidgetAreaDock::setHeight(int height)
{
    m_tabs->resize(m_tabs->width(), height);
    // The layout of the window decides on the sizes of docks, so it needs the height, too.
    if (auto* window = qobject_cast<QMainWindow*>(parentWidget()))
        window->resizeDocks({this}, {height}, Qt::Vertical);
}

void WidgetAreaDock::setVisible(bool visible)
{
    m_wantedVisible = visible;
    updateVisibility();
}

void WidgetAreaDock::setAway(bool away)
{
    m_away = away;
    updateVisibility();
}

void WidgetAreaDock::updateVisibility()
{
    QDockWidget::setVisible(m_wantedVisible && !m_away && m_tabs->count() > 0);
}

} // namespace nsModGui
