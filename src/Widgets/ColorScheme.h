#pragma once

#include <QObject>
#include <QPointer>

class QWidget;

/// Keeps the whole program in one colour scheme: the palette of the application, the style sheet of the window, Colors.
///
/// The scheme is the user's choice, or that of the system, which may change while the program runs.
class ColorScheme : public QObject
{
    Q_OBJECT

public:
    /// As the settings hold it.
    enum eChoice_t { eAsSystem, eAlwaysLight, eAlwaysDark };

    /// Follows the system until setChoice() is called.
    /// @param window the main window, which gets the style sheet; not owned, parent of this object
    explicit ColorScheme(QWidget* window);

    void setChoice(eChoice_t choice);
    eChoice_t choice() const { return m_choice; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void readSystem();
    void apply();

    QWidget* m_window; ///< not owned, lives as long as this object
    eChoice_t m_choice = eAsSystem;
    bool m_isSystemDark = false;
    bool m_isBusy = false; ///< the palette is being changed here
};
