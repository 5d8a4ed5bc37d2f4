#include "RescueJob.h"

#include "ImportProject.h"
#include "Rescue.h"

#include "ProcTables.h"

#include <QFileInfo>

namespace nsImport {

namespace {

QString hexadecimal(quint32 value, int digits)
{
    return QString::number(value, 16).toUpper().rightJustified(digits, QLatin1Char('0'));
}

struct sProcessorKey_t
{
    const char* key;
    const nsProc::ProcTable& (*table)();
};

const sProcessorKey_t processors[] = {
    {"pb3", nsProc::xpBlze3Table},
    {"pb6", nsProc::xpBlze6Table},
    {"mico8", nsProc::lMico8v3xTable},
};

} // namespace

QStringList RescueJob::processorKeys()
{
    QStringList keys;
    for (const sProcessorKey_t& processor : processors)
        keys.append(QLatin1String(processor.key));
    return keys;
}

const nsProc::ProcTable* RescueJob::processorOf(const QString& key)
{
    for (const sProcessorKey_t& processor : processors) {
        if (key == QLatin1String(processor.key))
            return &processor.table();
    }
    return nullptr;
}

QString RescueJob::processorName(const QString& key)
{
    const nsProc::ProcTable* table = processorOf(key);
    return table != nullptr ? QString::fromLatin1(table->name) : QString();
}

RescueJob::RescueJob(const QString& image, const nsProc::ProcTable& processor, const QString& folder)
    : ImportJob(folder)
    , m_image(image)
    , m_processor(processor)
    , m_result(std::make_unique<RescueResult>())
{
    if (m_folder.isEmpty())
        m_folder = RescueJob::name();
}

RescueJob::~RescueJob() = default;

QString RescueJob::name() const
{
    const QString base = QFileInfo(m_image).completeBaseName();
    return base.isEmpty() ? QStringLiteral("rescued") : base;
}

void RescueJob::doConvert()
{
    ProgramImage image;
    if (!goesOn(stepRead) || !readImage(m_image, &image) || !goesOn(stepConvert))
        return;
    RescueOptions options;
    options.name = QFileInfo(m_image).fileName();
    *m_result = Rescue(m_processor, options).run(image);
    if (!m_result->ok)
        report(errImpRescue, {m_image, m_result->error});
    reportInvalidWords();
    m_notes += m_result->notes;
    m_hasResult = m_result->ok;
    m_leftCount = m_result->invalid.size();
    m_isWhole = m_hasResult && m_leftCount == 0;
    m_isProved = m_isWhole;
    m_wordCount = m_result->wordCount;
}

void RescueJob::reportInvalidWords()
{
    ImportMessages messages;
    for (const RescueInvalidWord& invalid : qAsConst(m_result->invalid)) {
        const QString flow = invalid.reachable ? tr("and the program may run into it") : tr("and nothing leads there");
        QString reason = invalid.reason;
        if (reason.endsWith(QLatin1Char('.')))
            reason.chop(1);
        messages.add(errImpNoInstruction, {hexadecimal(quint32(invalid.address), 3), hexadecimal(invalid.word, 5),
                                           reason.isEmpty() ? flow : QStringLiteral("%1 (%2)").arg(flow, reason)});
    }
    take(messages);
}

QVector<ImportFile> RescueJob::files() const
{
    ImportProject project;
    project.title = name();
    project.comment = tr("Made from the image %1").arg(QFileInfo(m_image).fileName());
    const QString source = QStringLiteral("src/") + name() + QStringLiteral(".psm");
    project.sources.append(source);
    project.table = &m_processor;
    project.settings = m_result->settings;
    project.hexFile = QStringLiteral("output/") + name() + QStringLiteral(".hex");
    return {{source, m_result->source}, {name() + QStringLiteral(".nalvo"), project.text()}};
}

QStringList RescueJob::originals() const
{
    return {QFileInfo(m_image).canonicalFilePath()};
}

} // namespace nsImport
