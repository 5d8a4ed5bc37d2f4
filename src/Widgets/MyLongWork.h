#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>

#include <functional>

class QLabel;
class QToolButton;

/// Progress of long work in the GUI thread, which its user can cancel: by the button beside the progress, or by Esc.
///
/// The work calls goesOn() from time to time. When it has lasted a second, a bar is shown, and events are handled now
/// and then: those of the user only for the bar and for a question that somebody else asks, so that nothing under the
/// work is changed by them. Timers and queued calls are handled, too.
///
///     MyLongWork work(tr("Assembling"), show, hide);
///     for (int line = 0; line < count; ++line) {
///         if (!work.goesOn(tr("%1 lines").arg(line)))
///             return false;
///         ...
///     }
class MyLongWork : public QObject
{
    Q_OBJECT

public:
    /// Duration after which a user wants to know more, in milliseconds.
    static const int usualDelay = 1000;
    /// Time after which a bar is shown from now on, in milliseconds.
    static void setDelay(int delay);

    /// @param what is done, as "Assembling"
    /// @param show puts the bar into the window; @param hide takes it out again. The bar stays here.
    MyLongWork(const QString& what, std::function<void(QWidget*)> show, std::function<void(QWidget*)> hide);
    ~MyLongWork() override;

    /// @param state how far the work is, for the user
    /// @return false: the user has cancelled the work
    bool goesOn(const QString& state);
    /// What follows belongs together: the work can not be cancelled any more, which the bar shows.
    void commits();
    /// The work rests, as the user is asked or waits for something else: the bar goes, and the time counts anew.
    void rests();
    bool isShown() const { return m_shown; }
    bool isCancelled() const { return m_cancelled; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void showBar();
    void hideBar();
    void cancel();

    QString m_what;
    std::function<void(QWidget*)> m_show;
    std::function<void(QWidget*)> m_hide;
    QElapsedTimer m_timer;
    QElapsedTimer m_handled; ///< since events were handled last
    QPointer<QWidget> m_bar;
    QPointer<QLabel> m_state;
    QPointer<QToolButton> m_button;
    bool m_shown = false;
    bool m_cancelled = false;
    bool m_committed = false;
    bool m_handles = false; ///< events are being handled
};
