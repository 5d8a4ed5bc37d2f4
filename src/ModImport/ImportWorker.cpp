#include "ImportWorker.h"

#include <QMutex>
#include <QMutexLocker>
#include <QThreadPool>

namespace nsModImport {

/// What the window and the thread share of a run. The thread may outlive the worker.
struct ImportWorkerRun
{
    explicit ImportWorkerRun(ImportWorker* worker)
        : owner(worker)
    {
    }

    /// Hands a call over to the thread of the window. @return false: nobody waits for it any more
    bool post(const std::function<void()>& call)
    {
        QMutexLocker lock(&mutex);
        if (owner == nullptr)
            return false;
        return QMetaObject::invokeMethod(owner, call, Qt::QueuedConnection);
    }
    void leave()
    {
        QMutexLocker lock(&mutex);
        owner = nullptr;
    }

    QMutex mutex;
    ImportWorker* owner; ///< null once it is no longer interested
};

ImportWorker::ImportWorker(QThreadPool* pool, QObject* parent)
    : QObject(parent)
    , m_pool(pool)
{
}

ImportWorker::~ImportWorker()
{
    if (m_run != nullptr)
        m_run->leave();
}

void ImportWorker::convert(const Job& job)
{
    start(job, false, [job] { job->convert(); });
}

void ImportWorker::write(const Job& job, bool force)
{
    start(job, true, [job, force] { job->write(force); });
}

void ImportWorker::start(const Job& job, bool isWriting, const std::function<void()>& work)
{
    if (isBusy())
        return;
    const auto run = std::make_shared<ImportWorkerRun>(this);
    m_run = run;
    m_isWriting = isWriting;
    const int number = ++m_number;
    // The work holds the run, and asks the watch.
    job->setWatch([run = run.get(), number, this](nsImport::eImportStep_t step) {
        return run->post([this, number, step] {
            if (m_run != nullptr && m_number == number)
                emit stepBegun(step);
        });
    });
    m_pool->start([run, number, work, this] {
        work();
        run->post([this, number] { finish(number); });
    });
}

void ImportWorker::finish(int number)
{
    // A call that was on its way when the run was cancelled.
    if (m_run == nullptr || m_number != number)
        return;
    m_run.reset();
    if (m_isWriting)
        emit written();
    else
        emit converted();
}

void ImportWorker::cancel()
{
    if (m_run == nullptr || m_isWriting)
        return;
    m_run->leave();
    m_run.reset();
}

} // namespace nsModImport
