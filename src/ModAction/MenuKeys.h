#pragma once

#include <QObject>

class QKeyEvent;
class QMainWindow;
class QMenu;

namespace nsModAction {

/// Opens the menus of the main window by Alt and the first letter of their titles, which have no letter marked.
///
/// Keys of actions and of buttons go first: this hears of a key only after nobody has taken it as a shortcut, but before
/// the widget with the focus does, so that no field takes the letter for text.
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
