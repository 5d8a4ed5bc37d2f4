#include "FilePresence.h"

#include <QFile>

#include <mutex>
#include <system_error>
#include <thread>

#include <unistd.h>

namespace {

bool isThere(const QByteArray& path)
{
    return ::access(path.constData(), F_OK) == 0;
}

FilePresence::Ask& presentAsk()
{
    static FilePresence::Ask ask = isThere;
    return ask;
}

} // namespace

struct FilePresence::sAnswers_t
{
    std::mutex mutex;
    FilePresence* owner = nullptr; ///< null: nobody waits any more
};

FilePresence::FilePresence(QObject* parent)
    : QObject(parent)
    , m_answers(std::make_shared<sAnswers_t>())
{
    m_answers->owner = this;
}

FilePresence::~FilePresence()
{
    const std::lock_guard<std::mutex> lock(m_answers->mutex);
    m_answers->owner = nullptr;
}

void FilePresence::setAsk(Ask ask)
{
    presentAsk() = ask ? std::move(ask) : isThere;
}

void FilePresence::look(const QStringList& files)
{
    for (const QString& file : files) {
        if (m_asked.contains(file))
            continue;
        m_asked.insert(file);
        // Nobody waits for the thread, not even the end of the program: it may never come back.
        try {
            std::thread([answers = m_answers, ask = presentAsk(), file, path = QFile::encodeName(file)] {
                const bool found = ask(path);
                const std::lock_guard<std::mutex> lock(answers->mutex);
                if (answers->owner != nullptr)
                    QMetaObject::invokeMethod(
                        answers->owner, [owner = answers->owner, file, found] { owner->take(file, found); },
                        Qt::QueuedConnection);
            }).detach();
        } catch (const std::system_error&) {
            // No thread is left: the next look asks.
            m_asked.remove(file);
        }
    }
}

void FilePresence::take(const QString& file, bool isThere)
{
    m_asked.remove(file);
    if (isMissing(file) != isThere)
        return;
    if (isThere)
        m_missing.remove(file);
    else
        m_missing.insert(file);
    emit changed();
}
