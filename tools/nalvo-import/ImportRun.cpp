#include "ImportRun.h"

#include "BatchOutput.h"

#include "ForeignImport.h"

#include <QJsonArray>
#include <QJsonObject>

namespace nsNalvoImport {

using namespace nsBatch;
using namespace nsImport;

namespace {

ProgramJob::Order orderOf(const ImportOptions& options)
{
    ProgramJob::Order order;
    order.source = options.source;
    order.dialect = options.dialect;
    order.folders = options.folders;
    order.reference = options.reference;
    order.folder = options.output;
    return order;
}

} // namespace

ImportRun::ImportRun(const ImportOptions& options)
    : m_options(options)
    , m_report(options.style)
    , m_job(orderOf(options))
{
}

bool ImportRun::run()
{
    m_job.convert();
    m_report.showNew(m_job);
    if (m_job.isCompared())
        showProof();
    m_job.write(m_options.force);
    m_report.showNew(m_job);
    // An image that can not be read has ended the run before there was anything to sum up.
    if (m_job.hasReference() || m_options.reference.isEmpty())
        showSummary();
    return m_job.isWhole() && m_job.isWritten() && !m_job.isUnproved();
}

void ImportRun::showProof()
{
    if (m_options.style.json) {
        showProofAsJson();
        return;
    }
    const ImageProofResult& proof = m_job.proof();
    const QStringList lines = proof.report();
    for (const QString& line : lines)
        m_report.say(line);
    for (const ImageDifference& difference : proof.first) {
        const ImportOrigin origin = m_job.origin(difference.oursPlace);
        if (origin.isValid())
            m_report.say(tr("%1 comes from %2:%3: %4")
                             .arg(QString::number(difference.address, 16).toUpper().rightJustified(3, '0'),
                                  shownPath(origin.file), QString::number(origin.line), origin.text.trimmed()));
    }
    if (m_job.unlistedCount() > 0)
        m_report.say(
            tr("%1 words that the program does not have itself are not in the reference.").arg(m_job.unlistedCount()));
}

void ImportRun::showProofAsJson()
{
    const ImageProofResult& proof = m_job.proof();
    QJsonArray differences;
    for (const ImageDifference& difference : proof.first) {
        QJsonObject object{{"address", difference.address}};
        if (difference.hasOurs)
            object.insert("word", int(difference.ours));
        if (difference.hasReference)
            object.insert("reference", int(difference.reference));
        const ImportOrigin origin = m_job.origin(difference.oursPlace);
        if (origin.isValid()) {
            object.insert("file", shownPath(origin.file));
            object.insert("line", origin.line);
        }
        differences.append(object);
    }
    m_report.object({{"proof", proof.equal ? "equal" : "different"},
                     {"equal", proof.equalCount},
                     {"different", proof.differenceCount},
                     {"differences", differences}});
}

QString ImportRun::proofText() const
{
    if (!m_job.isWhole())
        return tr("not proved, as lines are left");
    if (!m_job.isCompared())
        return tr("not proved, as there is no reference");
    return m_job.isProved() ? tr("proved against %1").arg(shownPath(m_options.reference)) : tr("words differ");
}

void ImportRun::showSummary()
{
    if (m_options.style.json) {
        showSummaryAsJson();
        return;
    }
    if (!m_job.hasResult()) {
        m_report.say(tr("Not imported."));
        return;
    }
    const ForeignImport& import = m_job.import();
    const int files = import.filesRead().size();
    m_report.say(tr("%1 words from %2 (%3), %4.")
                     .arg(QString::number(m_job.wordCount()), files == 1 ? tr("1 file") : tr("%1 files").arg(files),
                          QLatin1String(import.dialect().title), proofText()));
    for (const QString& note : m_job.notes())
        m_report.say(QStringLiteral("  ") + note);
    for (const ImportMessage& message : import.messages().all()) {
        const bool isTold = message.grade() == ModMsgHookIf::eMsgInfo && !m_options.style.verbose;
        if (isTold)
            m_report.say(QStringLiteral("  ") + message.text);
    }
    const int left = m_job.leftCount();
    if (left > 0)
        m_report.say(
            left == 1 ? tr("1 line is left to do: the assembler stops there (NO_COUNTERPART).")
                      : tr("%1 lines are left to do: the assembler stops at each of them (NO_COUNTERPART).").arg(left));
    m_report.say(m_job.isWritten() ? tr("Project: %1").arg(shownPath(m_job.projectFile()))
                                   : tr("Nothing was written."));
}

void ImportRun::showSummaryAsJson()
{
    QString outcome =
        m_job.isCompared() && !m_job.isProved() ? QStringLiteral("different") : QStringLiteral("imported");
    if (!m_job.isWritten())
        outcome = QStringLiteral("failed");
    else if (m_report.errors() > 0)
        outcome = QStringLiteral("incomplete");
    m_report.object({{"result", outcome},
                     {"project", m_job.isWritten() ? QJsonValue(shownPath(m_job.projectFile())) : QJsonValue()},
                     {"words", m_job.import().wordCount()},
                     {"proved", m_job.isProved()},
                     {"errors", m_report.errors()},
                     {"warnings", m_report.warnings()},
                     {"renamed", m_job.import().messages().count(infoImpRenamed)},
                     {"left", m_job.leftCount()},
                     {"notes", QJsonArray::fromStringList(m_job.notes())}});
}

} // namespace nsNalvoImport
