#pragma once

#include <QObject>

#include <functional>

class QWidget;

/// The inside of a panel, made when it is needed: at once, but for a panel of a window that is about to be shown for
/// the first time. There, panels that will be seen get theirs just before, as parts of a window that has its style, and
/// all others after the window is seen.
///
/// The program holds one Start while it starts. Not thread-safe: for the thread of the windows alone.
class LateContent : public QObject
{
public:
    /// The time from the first module to the first sight of the window. There is one at a time; a second one does
    /// nothing.
    class Start
    {
    public:
        Start();
        /// As seen().
        ~Start();
        Start(const Start&) = delete;
        Start& operator=(const Start&) = delete;

        /// Makes what will be seen with @p window, which is about to be shown.
        void aboutToShow(const QWidget* window);
        /// Makes all the rest, and then does what was put off by later(). What is created from now on is made at once.
        void seen();

    private:
        bool m_isFirst;
    };

    /// Does now, or while the program starts when its window is seen, what nothing of the first sight depends on.
    /// @param owner without which it is not done; not owned
    static void later(QObject* owner, std::function<void()> work);
    static bool isStarting();

    enum eTabs_t { eTabsOfPanel, eTabsOfItsOwn };
    /// @param panel whose inside it is; not owned, must have this object as its last member
    /// @param make fills the panel; called once, by this constructor unless the program starts
    /// @param tabs whether the fields get the place of the panel in the order of the tab key, or @p make orders them
    LateContent(QWidget* panel, std::function<void()> make, eTabs_t tabs = eTabsOfPanel);

    /// Makes the inside now, if it is not there. For each function of the panel that uses it.
    void need();
    bool isThere() const { return !m_make; }

private:
    std::function<void()> take();
    void orderTabs() const;

    QWidget* m_panel;
    eTabs_t m_tabs;
    std::function<void()> m_make; ///< null when it is done
};
