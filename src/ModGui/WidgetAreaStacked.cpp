#include "WidgetAreaStacked.h"

#include "PageProperties.h"

#include <QHBoxLayout>
#include <QStackedWidget>

namespace nsModGui {

WidgetAreaStacked::WidgetAreaStacked(QWidget* parent)
    : QWidget(parent)
    , m_stack(new QStackedWidget(this))
    , m_row(new QHBoxLayout(this))
{
    m_row->setContentsMargins(0, 0, 0, 0);
    m_row->setSpacing(0);
    m_row->addWidget(m_stack);
    connect(m_stack, &QStackedWidget::widgetRemoved, this, &WidgetAreaStacked::hideIfEmpty);
    setVisible(false);
}

WidgetAreaStacked::~WidgetAreaStacked()
{
    // What still stands here goes with the area.
    m_stack->disconnect(this);
    for (int i = 0; i < m_row->count(); ++i)
        m_row->itemAt(i)->widget()->disconnect(this);
}

void WidgetAreaStacked::hideIfEmpty()
{
    m_stack->setVisible(m_stack->count() > 0);
    if (m_stack->count() == 0 && m_row->count() == 1)
        setVisible(false);
}

void WidgetAreaStacked::addWidget(QWidget* widget)
{
    if (widget == nullptr)
        return;
    removeWidget(widget);
    if (widget->property(PageProperties::isCompanion).toBool()) {
        m_row->addWidget(widget);
        widget->show();
        connect(widget, &QObject::destroyed, this, [this, widget] {
            m_row->removeWidget(widget);
            hideIfEmpty();
        });
    } else {
        m_stack->addWidget(widget);
        m_stack->setCurrentWidget(widget);
    }
    hideIfEmpty();
    setVisible(true);
}

void WidgetAreaStacked::removeWidget(QWidget* widget)
{
    if (!hasWidget(widget))
        return;
    m_stack->removeWidget(widget);
    m_row->removeWidget(widget);
    widget->disconnect(this);
    widget->setParent(nullptr);
    hideIfEmpty();
}

bool WidgetAreaStacked::hasWidget(QWidget* widget) const
{
    return widget != nullptr && widget != m_stack && (m_stack->indexOf(widget) >= 0 || m_row->indexOf(widget) >= 0);
}

QWidget* WidgetAreaStacked::currentAreaWidget() const
{
    return m_stack->currentWidget();
}

void WidgetAreaStacked::setCurrentWidget(QWidget* widget)
{
    if (widget != nullptr && m_stack->indexOf(widget) >= 0)
        m_stack->setCurrentWidget(widget);
}

void WidgetAreaStacked::showWidget(QWidget* widget)
{
    if (!hasWidget(widget))
        return;
    setCurrentWidget(widget);
    setVisible(true);
}

} // namespace nsModGui
