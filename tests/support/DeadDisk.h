#pragma once

#include "FilePresence.h"

#include <QFile>
#include <QThread>

#include <atomic>
#include <condition_variable>
#include <memory>
#include <mutex>

/// The files of a name lie on a disk that answers when the test wants it to.
class DeadDisk
{
public:
    explicit DeadDisk(const QByteArray& name)
        : m_state(std::make_shared<sState_t>())
    {
        FilePresence::setAsk([state = m_state, name, window = QThread::currentThreadId()](const QByteArray& path) {
            // A window that waits would wait for ever.
            if (QThread::currentThreadId() == window) {
                state->isAskedByWindow = true;
            } else if (path.endsWith(name)) {
                std::unique_lock<std::mutex> lock(state->mutex);
                state->isAsked = true;
                state->answers.wait(lock, [&state] { return state->isAnswering; });
            }
            return QFile::exists(QFile::decodeName(path));
        });
    }
    ~DeadDisk()
    {
        answer();
        FilePresence::setAsk(nullptr);
    }
    DeadDisk(const DeadDisk&) = delete;
    DeadDisk& operator=(const DeadDisk&) = delete;

    void answer()
    {
        const std::lock_guard<std::mutex> lock(m_state->mutex);
        m_state->isAnswering = true;
        m_state->answers.notify_all();
    }
    /// Somebody waits, or has waited, for it.
    bool isAsked() const { return m_state->isAsked; }
    bool isAskedByWindow() const { return m_state->isAskedByWindow; }

private:
    struct sState_t
    {
        std::mutex mutex;
        std::condition_variable answers;
        bool isAnswering = false;
        std::atomic<bool> isAsked{false};
        std::atomic<bool> isAskedByWindow{false};
    };

    std::shared_ptr<sState_t> m_state; ///< shared with threads that may outlive the test
};
