#include "ImportRun.h"

#include "BatchOutput.h"

#include "ForeignDialect.h"
#include "ImageReader.h"
#include "ProcTable.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>

namespace nsNalvoImport {

using namespace nsBatch;
using namespace nsImport;

ImportRun::ImportRun(const ImportOptions& options)
    : m_options(options)
    , m_report(options.style)
{
}

bool ImportRun::run()
{
    ForeignImport::Options options;
    options.source = m_options.source;
    options.dialect = m_options.dialect;
    options.folders = m_options.folders;
    m_folder = m_options.output;
    if (m_folder.isEmpty())
        m_folder = ForeignImport(options).name();
    if (!m_options.reference.isEmpty() && !readReference())
        return false;
    options.stamp = m_hasReference ? ForeignStamp::ofImage(m_reference) : ForeignStamp();
    options.memorySize = m_hasReference ? m_reference.memorySize() : 0;
    ForeignImport import(options);
    const bool isWhole = import.run();
    m_report.showAll(import.messages());
    if (!import.hasResult()) {
        showSummary(import);
        return false;
    }
    if (isWhole)
        prove(import);
    m_isWritten = write(import);
    showSummary(import);
    return isWhole && m_isWritten && (m_isProved || m_options.reference.isEmpty());
}

bool ImportRun::readReference()
{
    const ImageResult result = ImageReader().readFile(m_options.reference);
    if (!result.ok) {
        const QString place = result.errorLine > 0 ? tr("line %1: ").arg(result.errorLine) : QString();
        m_report.show(errImpReference, {shownPath(m_options.reference), place + result.error});
        return false;
    }
    m_reference = result.image;
    m_hasReference = true;
    return true;
}

void ImportRun::prove(const ForeignImport& import)
{
    if (!m_hasReference) {
        m_report.show(warnImpNoReference, {});
        m_proof = tr("not proved, as there is no reference");
        return;
    }
    int unlisted = 0;
    const ImageProofResult result = import.prove(m_reference, &unlisted);
    m_isProved = result.equal;
    m_proof = result.equal ? tr("proved against %1").arg(shownPath(m_options.reference)) : tr("words differ");
    showProof(import, result);
    if (unlisted > 0)
        m_report.say(tr("%1 words that the program does not have itself are not in the reference.").arg(unlisted));
}

void ImportRun::showProof(const ForeignImport& import, const ImageProofResult& proof)
{
    if (m_options.style.json) {
        QJsonArray differences;
        for (const ImageDifference& difference : proof.first) {
            QJsonObject object{{"address", difference.address}};
            if (difference.hasOurs)
                object.insert("word", int(difference.ours));
            if (difference.hasReference)
                object.insert("reference", int(difference.reference));
            if (const ForeignStatement* origin = import.origin(difference.oursPlace.file, difference.oursPlace.line)) {
                object.insert("file", shownPath(import.program().files.at(origin->file).path));
                object.insert("line", origin->line);
            }
            differences.append(object);
        }
        const QJsonObject object{{"proof", proof.equal ? "equal" : "different"},
                                 {"equal", proof.equalCount},
                                 {"different", proof.differenceCount},
                                 {"differences", differences}};
        m_report.object(object);
        return;
    }
    const QStringList lines = proof.report();
    for (const QString& line : lines)
        m_report.say(line);
    for (const ImageDifference& difference : proof.first) {
        if (const ForeignStatement* origin = import.origin(difference.oursPlace.file, difference.oursPlace.line))
            m_report.say(tr("%1 comes from %2:%3: %4")
                             .arg(QString::number(difference.address, 16).toUpper().rightJustified(3, '0'),
                                  shownPath(import.program().files.at(origin->file).path),
                                  QString::number(origin->line), origin->text.trimmed()));
    }
}

bool ImportRun::write(const ForeignImport& import)
{
    QVector<ImportFile> files;
    for (const ImportSource& source : import.sources())
        files.append({source.name, source.text});
    files.append({import.name() + QStringLiteral(".nalvo"), import.project()});
    QStringList originals = import.filesRead();
    if (!m_options.reference.isEmpty())
        originals.append(QFileInfo(m_options.reference).canonicalFilePath());
    ImportMessages messages;
    const bool isWritten = ImportFolder(m_folder).write(files, originals, m_options.force, messages);
    m_report.showAll(messages);
    return isWritten;
}

void ImportRun::showSummary(const ForeignImport& import)
{
    const ImportMessages& messages = import.messages();
    const int renamed = messages.count(infoImpRenamed);
    const int broken = import.hasResult() ? import.brokenCount() : 0;
    const QString project = m_isWritten ? m_folder + '/' + import.name() + QStringLiteral(".nalvo") : QString();
    if (m_options.style.json) {
        const bool isDifferent = m_hasReference && !m_proof.isEmpty() && !m_isProved;
        QString outcome = isDifferent ? QStringLiteral("different") : QStringLiteral("imported");
        if (!m_isWritten)
            outcome = QStringLiteral("failed");
        else if (m_report.errors() > 0)
            outcome = QStringLiteral("incomplete");
        const QJsonObject object{{"result", outcome},
                                 {"project", project.isEmpty() ? QJsonValue() : QJsonValue(shownPath(project))},
                                 {"words", import.wordCount()},
                                 {"proved", m_isProved},
                                 {"errors", m_report.errors()},
                                 {"warnings", m_report.warnings()},
                                 {"renamed", renamed},
                                 {"left", broken}};
        m_report.object(object);
        return;
    }
    if (!import.hasResult()) {
        m_report.say(tr("Not imported."));
        return;
    }
    const QString proof = m_proof.isEmpty() ? tr("not proved, as lines are left") : m_proof;
    const int files = import.filesRead().size();
    m_report.say(tr("%1 words from %2 (%3), %4.")
                     .arg(QString::number(import.wordCount()), files == 1 ? tr("1 file") : tr("%1 files").arg(files),
                          QLatin1String(import.dialect().title), proof));
    for (const ImportMessage& message : messages.all()) {
        const bool isTold = message.grade() == ModMsgHookIf::eMsgInfo && !m_options.style.verbose;
        if (isTold)
            m_report.say(QStringLiteral("  ") + message.text);
    }
    if (broken > 0)
        m_report.say(
            broken == 1
                ? tr("1 line is left to do: the assembler stops there (NO_COUNTERPART).")
                : tr("%1 lines are left to do: the assembler stops at each of them (NO_COUNTERPART).").arg(broken));
    m_report.say(m_isWritten ? tr("Project: %1").arg(shownPath(project)) : tr("Nothing was written."));
}

} // namespace nsNalvoImport
