#include "ProgramJob.h"

#include "ForeignImport.h"

#include <QFileInfo>

namespace nsImport {

namespace {

ForeignImport::Options optionsOf(const ProgramJob::Order& order)
{
    ForeignImport::Options options;
    options.source = order.source;
    options.dialect = order.dialect;
    options.folders = order.folders;
    return options;
}

} // namespace

QVector<ProgramJob::Dialect> ProgramJob::dialects()
{
    QVector<Dialect> dialects;
    for (int i = 0; i < ForeignDialect::eDialectCount; ++i) {
        const ForeignDialect& dialect = ForeignDialect::of(ForeignDialect::eDialect_t(i));
        dialects.append({QLatin1String(dialect.key), QLatin1String(dialect.title)});
    }
    return dialects;
}

const ForeignDialect* ProgramJob::dialectOf(const QString& key)
{
    return ForeignDialect::ofKey(key);
}

ProgramJob::ProgramJob(const Order& order)
    : ImportJob(order.folder)
    , m_order(order)
    , m_import(std::make_unique<ForeignImport>(optionsOf(order)))
{
    if (m_folder.isEmpty())
        m_folder = m_import->name();
}

ProgramJob::~ProgramJob() = default;

QString ProgramJob::name() const
{
    return m_import->name();
}

QString ProgramJob::dialectTitle() const
{
    return QLatin1String(m_import->dialect().title);
}

int ProgramJob::fileCount() const
{
    return m_import->filesRead().size();
}

int ProgramJob::renamedCount() const
{
    return m_import->messages().count(infoImpRenamed);
}

void ProgramJob::doConvert()
{
    if (!m_order.reference.isEmpty()) {
        if (!goesOn(stepReference) || !readImage(m_order.reference, &m_reference))
            return;
        m_hasReference = true;
        m_import->setReference(ForeignStamp::ofImage(m_reference), m_reference.memorySize());
    }
    m_import->setWatch([this](eImportStep_t step) { return goesOn(step); });
    m_isWhole = m_import->run();
    take(m_import->messages());
    m_hasResult = m_import->hasResult();
    if (!m_hasResult)
        return;
    m_wordCount = m_import->wordCount();
    m_leftCount = m_import->brokenCount();
    if (m_isWhole)
        compare();
}

void ProgramJob::compare()
{
    if (!m_hasReference) {
        report(warnImpNoReference, {});
        return;
    }
    if (!goesOn(stepCompare))
        return;
    m_proof = m_import->prove(m_reference, &m_unlisted);
    m_isCompared = true;
    m_isProved = m_proof.equal;
}

ImportOrigin ProgramJob::origin(const ProgramImage::Place& place) const
{
    ImportOrigin origin;
    if (const ForeignStatement* statement = m_import->origin(place.file, place.line)) {
        origin.file = m_import->program().files.at(statement->file).path;
        origin.line = statement->line;
        origin.text = statement->text;
    }
    return origin;
}

QVector<ImportFile> ProgramJob::files() const
{
    QVector<ImportFile> files;
    for (const ImportSource& source : m_import->sources())
        files.append({source.name, source.text});
    files.append({name() + QStringLiteral(".nalvo"), m_import->project()});
    return files;
}

QStringList ProgramJob::originals() const
{
    QStringList originals = m_import->filesRead();
    if (!m_order.reference.isEmpty())
        originals.append(QFileInfo(m_order.reference).canonicalFilePath());
    return originals;
}

} // namespace nsImport
