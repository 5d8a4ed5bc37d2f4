#pragma once

class QAbstractButton;
class QAction;

/// The command of the menus that a button stands for, beside those of the tool bars: its tool tip then names the keys
/// that the command has at the moment.
namespace ButtonCommand {

/// @param action not owned
void set(QAbstractButton* button, QAction* action);
/// @return null: the button stands for no command
QAction* of(const QAbstractButton* button);

} // namespace ButtonCommand
