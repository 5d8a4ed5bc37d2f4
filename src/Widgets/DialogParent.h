#pragma once

class QWidget;

/// The window that a dialog stands above, and whose look it takes.
class DialogParent
{
public:
    /// The active window; where none is active, as right after another dialog has closed, the main window. Null in a
    /// program without one. Whoever opens a dialog on it keeps the dialog on the heap: the window can go while it is
    /// open.
    static QWidget* get();
};
