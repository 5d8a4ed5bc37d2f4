#pragma once

#include <QApplication>
#include <QDialog>
#include <QTimer>

#include <functional>

/// Answers the next modal dialog: waits for it without sleeping, runs the function on it once, and counts.
///
/// A dialog that the function leaves open is rejected, so that a test can fail but not hang.
class ModalHelper : public QObject
{
public:
    explicit ModalHelper(std::function<void(QDialog*)> answer)
        : m_answer(std::move(answer))
    {
        QObject::connect(&m_timer, &QTimer::timeout, this, [this] { look(); });
        m_timer.start(1);
    }

    /// Number of dialogs that were seen.
    int seen() const { return m_seen; }

private:
    void look()
    {
        QDialog* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || !dialog->isVisible())
            return;
        ++m_seen;
        if (m_seen == 1 && m_answer)
            m_answer(dialog);
        if (dialog->isVisible())
            dialog->reject();
    }

    std::function<void(QDialog*)> m_answer;
    QTimer m_timer;
    int m_seen = 0;
};
