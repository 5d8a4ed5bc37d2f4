#pragma once

#include <QObject>
#include <QPointer>

class QWidget;

namespace nsModGui {

class WidgetAreaTabbed;

/// What the user can do on a tab of the centre: a close button, the middle mouse button, and a menu.
class TabControls : public QObject
{
    Q_OBJECT

public:
    /// @param tabs parent of this object
    explicit TabControls(WidgetAreaTabbed* tabs);

signals:
    void closeRequested(QWidget* page);
    /// The file of a page is to be shown in the list of files.
    void showFileRequested(const QString& path);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void showMenu(const QPoint& place);
    /// Asks for each page in turn; one that refuses stays.
    void closeAllBut(QWidget* kept);

    WidgetAreaTabbed* m_tabs;
    QPointer<QWidget> m_pressed; ///< page on whose tab the middle button went down
};

} // namespace nsModGui
