#include "RescueRun.h"

#include "ImportFolder.h"

#include "BatchOutput.h"

#include "ImageReader.h"
#include "ImportProject.h"
#include "ProcTable.h"
#include "Rescue.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>

namespace nsNalvoImport {

using namespace nsBatch;
using namespace nsImport;

namespace {

QString hexadecimal(quint32 value, int digits)
{
    return QString::number(value, 16).toUpper().rightJustified(digits, QLatin1Char('0'));
}

} // namespace

RescueRun::RescueRun(const ImportOptions& options)
    : m_options(options)
    , m_report(options.style)
{
    m_folder = m_options.output.isEmpty() ? name() : m_options.output;
}

QString RescueRun::name() const
{
    const QString base = QFileInfo(m_options.image).completeBaseName();
    return base.isEmpty() ? QStringLiteral("rescued") : base;
}

bool RescueRun::run()
{
    const ImageResult image = ImageReader().readFile(m_options.image);
    RescueResult result;
    bool isWritten = false;
    if (!image.ok) {
        const QString place = image.errorLine > 0 ? tr("line %1: ").arg(image.errorLine) : QString();
        m_report.show(errImpReference, {shownPath(m_options.image), place + image.error});
    } else {
        RescueOptions options;
        options.name = QFileInfo(m_options.image).fileName();
        result = Rescue(*m_options.processor, options).run(image.image);
        if (!result.ok)
            m_report.show(errImpRescue, {shownPath(m_options.image), result.error});
        showInvalidWords(result);
        isWritten = result.ok && write(result);
    }
    showSummary(result, isWritten);
    return isWritten && result.invalid.isEmpty();
}

void RescueRun::showInvalidWords(const RescueResult& result)
{
    ImportMessages messages;
    for (const RescueInvalidWord& invalid : result.invalid)
        messages.add(errImpNoInstruction,
                     {hexadecimal(quint32(invalid.address), 3), hexadecimal(invalid.word, 5),
                      invalid.reachable ? tr("and the program may run into it") : tr("and nothing leads there")});
    m_report.showAll(messages);
}

bool RescueRun::write(const RescueResult& result)
{
    ImportProject project;
    project.title = name();
    project.comment = tr("Made from the image %1").arg(QFileInfo(m_options.image).fileName());
    const QString source = QStringLiteral("src/") + name() + QStringLiteral(".psm");
    project.sources.append(source);
    project.table = m_options.processor;
    project.settings = result.settings;
    project.hexFile = QStringLiteral("output/") + name() + QStringLiteral(".hex");
    const QVector<ImportFile> files{{source, result.source}, {name() + QStringLiteral(".nalvo"), project.text()}};
    ImportMessages messages;
    const QStringList originals{QFileInfo(m_options.image).canonicalFilePath()};
    const bool isWritten = ImportFolder(m_folder).write(files, originals, m_options.force, messages);
    m_report.showAll(messages);
    return isWritten;
}

void RescueRun::showSummary(const RescueResult& result, bool isWritten)
{
    const QString project = m_folder + '/' + name() + QStringLiteral(".nalvo");
    m_report.object({{"result", !isWritten                 ? "failed"
                                : result.invalid.isEmpty() ? "imported"
                                                           : "incomplete"},
                     {"project", isWritten ? QJsonValue(shownPath(project)) : QJsonValue()},
                     {"words", result.wordCount},
                     {"proved", result.ok && result.invalid.isEmpty()},
                     {"errors", m_report.errors()},
                     {"warnings", m_report.warnings()},
                     {"left", result.invalid.size()},
                     {"notes", QJsonArray::fromStringList(result.notes)}});
    if (result.ok) {
        m_report.say(tr("%1 words, which the sources assemble to again.").arg(result.wordCount));
        for (const QString& note : result.notes)
            m_report.say(QStringLiteral("  ") + note);
        if (!result.invalid.isEmpty())
            m_report.say(
                tr("%1 words are no instructions: the assembler stops at each of them.").arg(result.invalid.size()));
    }
    m_report.say(isWritten ? tr("Project: %1").arg(shownPath(project)) : tr("Nothing was written."));
}

} // namespace nsNalvoImport
