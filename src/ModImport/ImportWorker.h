#pragma once

#include "ImportJob.h"

#include <QObject>

#include <functional>
#include <memory>

class QThreadPool;

namespace nsModImport {

struct ImportWorkerRun;

/// Does an import beside the event loop: the window lives on.
///
/// A job that is cancelled is forgotten at once; its thread ends before its next step. Only write() writes, which can
/// not be cancelled and leaves all or nothing.
class ImportWorker : public QObject
{
    Q_OBJECT

public:
    using Job = std::shared_ptr<nsImport::ImportJob>;

    /// @param pool not owned; must live longer, and end its threads before the program ends
    explicit ImportWorker(QThreadPool* pool, QObject* parent = nullptr);
    /// Cancels.
    ~ImportWorker() override;

    /// Does nothing while it is busy, and so does write().
    void convert(const Job& job);
    void write(const Job& job, bool force);
    /// Nothing more is heard of a conversion.
    void cancel();
    bool isBusy() const { return m_run != nullptr; }
    bool isWriting() const { return m_isWriting; }

signals:
    /// A step begins. @param step of nsImport::eImportStep_t
    void stepBegun(int step);
    /// The job has ended, and is the caller's alone again.
    void converted();
    void written();

private:
    void start(const Job& job, bool isWriting, const std::function<void()>& work);
    void finish(int number);

    QThreadPool* m_pool;
    std::shared_ptr<ImportWorkerRun> m_run; ///< null: not busy
    int m_number = 0;                       ///< of the run; calls of an earlier one may still be on their way
    bool m_isWriting = false;
};

} // namespace nsModImport
