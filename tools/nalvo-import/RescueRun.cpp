#include "RescueRun.h"

#include "BatchOutput.h"

#include <QJsonArray>
#include <QJsonObject>

namespace nsNalvoImport {

using namespace nsBatch;
using namespace nsImport;

RescueRun::RescueRun(const ImportOptions& options)
    : m_options(options)
    , m_report(options.style)
    , m_job(options.image, *options.processor, options.output)
{
}

bool RescueRun::run()
{
    m_job.convert();
    m_report.showNew(m_job);
    m_job.write(m_options.force);
    m_report.showNew(m_job);
    showSummary();
    return m_job.isWhole() && m_job.isWritten();
}

void RescueRun::showSummary()
{
    const QString project = m_job.isWritten() ? shownPath(m_job.projectFile()) : QString();
    m_report.object({{"result", !m_job.isWritten() ? "failed"
                                : m_job.isWhole()  ? "imported"
                                                   : "incomplete"},
                     {"project", m_job.isWritten() ? QJsonValue(project) : QJsonValue()},
                     {"words", m_job.wordCount()},
                     {"proved", m_job.isProved()},
                     {"errors", m_report.errors()},
                     {"warnings", m_report.warnings()},
                     {"left", m_job.leftCount()},
                     {"notes", QJsonArray::fromStringList(m_job.notes())}});
    if (m_job.hasResult()) {
        m_report.say(tr("%1 words, which the sources assemble to again.").arg(m_job.wordCount()));
        for (const QString& note : m_job.notes())
            m_report.say(QStringLiteral("  ") + note);
        if (m_job.leftCount() > 0)
            m_report.say(
                tr("%1 words are no instructions: the assembler stops at each of them.").arg(m_job.leftCount()));
    }
    m_report.say(m_job.isWritten() ? tr("Project: %1").arg(project) : tr("Nothing was written."));
}

} // namespace nsNalvoImport
