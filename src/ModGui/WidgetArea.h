#pragma once

class QString;
class QWidget;

namespace nsModGui {

/// What all areas of the main window have in common. An area owns none of its widgets; a null widget and one of another
/// area are ignored, and a widget that its owner deletes is removed from the area.
class WidgetArea
{
public:
    virtual ~WidgetArea() = default;

    /// Puts the widget into the area and makes it the current one.
    /// @param name text of the tab; areas without tabs ignore it
    virtual void addWidget(const QString& name, QWidget* widget) = 0;
    /// Takes the widget out; it has no parent afterwards.
    virtual void removeWidget(QWidget* widget) = 0;
    virtual bool hasWidget(QWidget* widget) const = 0;
    /// Null while the area is empty.
    virtual QWidget* currentAreaWidget() const = 0;
    /// Brings the widget to the front and shows the area.
    virtual void showWidget(QWidget* widget) = 0;
    /// Enables or disables the widget's tab; areas without tabs do nothing.
    virtual void setWidgetEnabled(QWidget* widget, bool enabled) = 0;
    virtual void setAreaVisible(bool visible) = 0;
    virtual bool isAreaVisible() const = 0;
};

} // namespace nsModGui
