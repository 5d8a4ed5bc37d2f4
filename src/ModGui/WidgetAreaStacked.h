#pragma once

#include "WidgetArea.h"

#include <QWidget>

class QHBoxLayout;
class QStackedWidget;

namespace nsModGui {

/// An area that shows one of its widgets at a time and is hidden while it has none. A companion, as PageProperties has
/// it, stands beside the shown one and is never the current widget.
class WidgetAreaStacked : public QWidget, public WidgetArea
{
    Q_OBJECT

public:
    explicit WidgetAreaStacked(QWidget* parent = nullptr);
    ~WidgetAreaStacked() override;

    void addWidget(QWidget* widget);
    void setCurrentWidget(QWidget* widget);

    // WidgetArea
    void addWidget(const QString&, QWidget* widget) override { addWidget(widget); }
    void removeWidget(QWidget* widget) override;
    bool hasWidget(QWidget* widget) const override;
    QWidget* currentAreaWidget() const override;
    void showWidget(QWidget* widget) override;
    void setWidgetEnabled(QWidget*, bool) override {}
    void setAreaVisible(bool visible) override { setVisible(visible); }
    bool isAreaVisible() const override { return !isHidden(); }

private:
    void hideIfEmpty();

    QStackedWidget* m_stack;
    QHBoxLayout* m_row; ///< the stack, then the companions
};

} // namespace nsModGui
