#pragma once

#include "RecoveryStore.h"

#include <QHash>
#include <QObject>
#include <QThreadPool>
#include <QTimer>

#include <functional>
#include <memory>

namespace nsModEditor {

class EditorWidget;

/// Keeps the texts of changed documents in the RecoveryStore, some seconds behind what the user types, and what a close
/// drops.
///
/// The only part of the window that has a thread of its own: it writes there, one job after the other, and the jobs
/// hold values only. All operations are called from the thread of the window.
class EditorRecovery : public QObject
{
    Q_OBJECT

public:
    explicit EditorRecovery(QObject* parent = nullptr);
    /// Ends after all that was to be written is written. Entries of documents that are still there stay.
    ~EditorRecovery() override;

    /// Time between two looks at the documents, in milliseconds.
    void setDelay(int delay) { m_timer.setInterval(delay); }

    /// The document is looked after from now on. Not owned.
    void add(EditorWidget* widget);
    /// The document goes. What keep() has put aside stays.
    void forget(EditorWidget* widget);
    /// The text of the document is in its file: its entry goes.
    void setSaved(EditorWidget* widget);
    /// What keep() has put aside is no longer that of the document, which goes on.
    void release(EditorWidget* widget);
    /// Project file that new entries name, absolute; empty without a project.
    void setProject(const QString& project) { m_project = project; }

    /// Writes the present text as that of a document that nobody saves, and waits until it is on the disk.
    /// @param isNew the next start is to tell the user of it
    /// @param error why it failed, may be null
    bool keep(EditorWidget* widget, bool isNew, QString* error);
    /// Is the present text what keep() has written?
    bool isKept(EditorWidget* widget) const;
    /// The document holds the text of this entry from now on, and its entry is this one. @return false: it is gone
    bool take(const QString& id, EditorWidget* widget);

    /// What waitForDone() has not made sure of may not be in these.
    RecoveryStore* store() { return &m_store; }
    void putSession(const RecoveryStore::Session& session);
    void waitForDone() { m_pool.waitForDone(); }

public slots:
    /// Hands over the changed texts for writing.
    void writeChanged();

signals:
    /// It is time to look at what is open.
    void looking();
    /// A text can not be kept; reported once until it can be again.
    void failed(QString reason);

private:
    struct State
    {
        std::shared_ptr<QString> id = std::make_shared<QString>(); ///< of the entry; belongs to the jobs
        bool hasEntry = false;
        bool isKept = false;
        QString text; ///< of the entry
        int revision = -1;
        bool isStale = false; ///< the last try to write it failed
    };

    bool hasChanged(EditorWidget* widget, const State& state) const;
    void write(EditorWidget* widget, State* state, RecoveryStore::eKind_t kind, bool isNew, QString* error = nullptr);
    void removeEntry(State* state);
    void report(const QString& error);
    /// Throws away what is too old, or too much.
    void prune();

    RecoveryStore m_store;
    QThreadPool m_pool; ///< of one thread, so that the jobs keep their order
    QTimer m_timer;
    QHash<EditorWidget*, State> m_states;
    QString m_project;
    RecoveryStore::Session m_session;
    bool m_failureReported = false;
};

} // namespace nsModEditor
