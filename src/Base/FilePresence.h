#pragma once

#include <QByteArray>
#include <QObject>
#include <QSet>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

/// Which files of a list are there, for a list that nobody waits for. A disk that does not answer, such as a share of a
/// network that is down, holds up whoever asks it, for minutes: so each file is asked for in a thread of its own, and
/// the answer comes when it comes.
class FilePresence : public QObject
{
    Q_OBJECT

public:
    /// Is the file there? @param path as the system has it
    using Ask = std::function<bool(const QByteArray& path)>;

    explicit FilePresence(QObject* parent = nullptr);
    /// Answers that are still to come are dropped.
    ~FilePresence() override;

    /// Asks for the files anew. One that has not been answered for since the last time is not asked for again.
    void look(const QStringList& files);
    /// The last answer is that the file is not there. Without an answer it counts as there.
    bool isMissing(const QString& file) const { return m_missing.contains(file); }

    /// Asks in another way, for tests; null for the usual one. It is called by threads.
    static void setAsk(Ask ask);

signals:
    /// An answer differs from the one before.
    void changed();

private:
    struct sAnswers_t;

    void take(const QString& file, bool isThere);

    std::shared_ptr<sAnswers_t> m_answers; ///< shared with the threads, which may outlive this object
    QSet<QString> m_missing;
    QSet<QString> m_asked; ///< not answered yet
};
