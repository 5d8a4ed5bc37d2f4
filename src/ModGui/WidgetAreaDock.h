#pragma once

#include "WidgetArea.h"

#include <QDockWidget>

class QTabWidget;

namespace nsModGui {

/// A dock with tabs, which can be neither moved, closed nor floated. It is seen only while it has a tab.
class WidgetAreaDock : public QDockWidget, public WidgetArea
{
    Q_OBJECT

public:
    explicit WidgetAreaDock(const QString& title, QWidget* parent = nullptr);

    /// @param height in pixels, of the tabs and their page
    void setHeight(int height);
    /// Shows or hides the dock; while it has no tab, takes effect when the first tab is added.
    void setVisible(bool visible) override;
    /// Hides the dock while a page of the centre does not want it, whatever happens in the dock.
    void setAway(bool away);

    // WidgetArea
    void addWidget(const QString& name, QWidget* widget) override;
    void removeWidget(QWidget* widget) override;
    bool hasWidget(QWidget* widget) const override;
    QWidget* currentAreaWidget() const override;
    void showWidget(QWidget* widget) override { setCurrentWidget(widget); }
    void setWidgetEnabled(QWidget* widget, bool enabled) override;
    void setAreaVisible(bool visible) override { setVisible(visible); }
    bool isAreaVisible() const override { return !isHidden(); }

public slots:
    /// Brings the widget to the front of the dock and shows the dock.
    void setCurrentWidget(QWidget* widget);

signals:
    /// @param area this
    /// @param widget the current page, null when the last one was removed
    void currentWidgetChanged(QWidget* area, QWidget* widget);

private:
    void updateVisibility();

    QTabWidget* m_tabs;
    bool m_wantedVisible = true;
    bool m_away = false;
};

} // namespace nsModGui
