#pragma once

#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QTimer>

#include <functional>
#include <vector>

/// Answers modal dialogs that come one after the other, each with a function of its own: waits for them without
/// sleeping.
///
/// A dialog that its function leaves open is rejected, and so is each dialog without a function, so that a test can
/// fail but not hang.
class ModalAnswers : public QObject
{
public:
    explicit ModalAnswers(std::vector<std::function<void(QDialog*)>> answers)
        : m_answers(std::move(answers))
    {
        QObject::connect(&m_timer, &QTimer::timeout, this, [this] { look(); });
        m_timer.start(1);
    }

    /// Number of dialogs that were seen.
    int seen() const { return m_seen; }

private:
    void look()
    {
        // The answer may delete the dialog with all that it stands on.
        const QPointer<QDialog> dialog(qobject_cast<QDialog*>(QApplication::activeModalWidget()));
        if (!dialog || !dialog->isVisible() || m_busy)
            return;
        m_busy = true;
        const auto index = static_cast<std::size_t>(m_seen++);
        if (index < m_answers.size())
            m_answers[index](dialog);
        if (dialog && dialog->isVisible())
            dialog->reject();
        m_busy = false;
    }

    std::vector<std::function<void(QDialog*)>> m_answers;
    QTimer m_timer;
    int m_seen = 0;
    bool m_busy = false;
};
