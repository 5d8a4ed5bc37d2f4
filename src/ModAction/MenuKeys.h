#pragma once

#include <QObject>

class QKeyEvent;
class QMainWindow;
class QMenu;

namespace nsModAction {

/// Opens the menus of the main window by Alt and the first letter of their titles, which have no letter marked.
///
/// Shortcuts of actions and buttons have priority: this class gets a key only if no shortcut uses it, but before the
/// widget with the focus gets it, so that no field takes the letter as text.
class MenuKeys : public QObject
{
    Q_OBJECT

public:
    /// @param window owns this; its menu bar may be filled later
    explicit MenuKeys(QMainWindow* window);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// The menu with this first letter, usable or not; null if there is none.
    QMenu* menuOf(QChar letter) const;
    bool openMenu(const QKeyEvent* event);

    QMainWindow* m_window;
};

} // namespace nsModAction
