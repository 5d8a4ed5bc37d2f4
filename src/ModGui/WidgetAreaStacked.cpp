#include "WidgetAreaStacked.h"

#include <QStackedWidget>
#include <QVBoxLayout>

namespace nsModGui {

WidgetAreaStacked::WidgetAreaStacked(QWidget* parent)
    : QWidget(parent)
    , m_stack(new QStackedWidget(this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_stack);
    connect(m_stack, &QStackedWidget::widgetRemoved, this, [this] {
        if (m_stack->count() == 0)
            setVisible(false);
    });
    setVisible(false);
}

void WidgetAreaStacked::addWidget(QWidget* widget)
{
    if (widget == nullptr)
        return;
    removeWidget(widget);
    m_stack->addWidget(widget);
    m_stack->setCurrentWidget(widget);
    setVisible(true);
}

void WidgetAreaStacked::removeWidget(QWidget* widget)
{
    if (!hasWidget(widget))
        return;
    m_stack->removeWidget(widget);
    widget->setParent(nullptr);
}

bool WidgetAreaStacked::hasWidget(QWidget* widget) const
{
    return widget != nullptr && m_stack->indexOf(widget) >= 0;
}

QWidget* WidgetAreaStacked::currentAreaWidget() const
{
    return m_stack->currentWidget();
}

void WidgetAreaStacked::setCurrentWidget(QWidget* widget)
{
    if (hasWidget(widget))
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
