#include "ForeignImport.h"

#include "Assembly.h"
#include "DialectFinder.h"
#include "ForeignNumbers.h"
#include "ForeignReader.h"
#include "ForeignResolver.h"
#include "ImportProject.h"
#include "ProgramLayout.h"

#include "ProcTable.h"

#include <QFileInfo>

namespace nsImport {

namespace {

QString wordText(quint32 word)
{
    return QString::number(word, 16).toUpper().rightJustified(5, QLatin1Char('0'));
}

} // namespace

ForeignImport::ForeignImport(const Options& options)
    : m_options(options)
{
}

QString ForeignImport::name() const
{
    const QString base = QFileInfo(m_options.source).completeBaseName();
    return base.isEmpty() ? QStringLiteral("import") : base;
}

int ForeignImport::brokenCount() const
{
    int count = 0;
    for (const ForeignStatement& statement : m_program.statements)
        count += int(statement.isBroken);
    return count;
}

void ForeignImport::report(eImportMsg_t type, const QStringList& arguments, const ForeignStatement& statement)
{
    m_messages.add(type, arguments, m_program.files.at(statement.file).path, statement.line);
}

void ForeignImport::setReference(const ForeignStamp& stamp, int memorySize)
{
    m_options.stamp = stamp;
    m_options.memorySize = memorySize;
}

bool ForeignImport::run()
{
    if (!goesOn(stepRead) || !read() || !goesOn(stepConvert))
        return false;
    ForeignResolver resolver(m_program, m_options.stamp, m_messages);
    resolver.resolve();
    ProgramLayout layout(m_program, m_messages);
    const nsProc::ProcCoreConfig first = importSettings(m_program, 0, m_options.memorySize);
    layout.arrange(first.pageSize);
    if (layout.size() == 0) {
        m_messages.add(errImpNoInstructions, {}, QFileInfo(m_options.source).absoluteFilePath());
        return false;
    }
    write(layout);
    return m_hasResult && m_messages.errors() == 0;
}

bool ForeignImport::read()
{
    ForeignReader reader(m_options.source, m_options.folders, m_messages);
    const ForeignDialect* dialect = m_options.dialect;
    QString text;
    if (!reader.readMain(&text))
        return false;
    if (dialect == nullptr) {
        const DialectFinder finder(text);
        dialect = finder.dialect;
        if (dialect == nullptr) {
            m_messages.add(errImpDialectUnknown, {}, QFileInfo(m_options.source).absoluteFilePath());
            return false;
        }
        m_messages.add(infoImpDialectGuessed, {QLatin1String(dialect->title), finder.because});
    } else {
        m_messages.add(infoImpDialectChosen, {QLatin1String(dialect->title)});
    }
    const bool ok = reader.read(*dialect, &m_program);
    m_filesRead = reader.filesRead();
    return ok;
}

void ForeignImport::write(const ProgramLayout& layout)
{
    m_settings = importSettings(m_program, layout.size(), m_options.memorySize);
    const ProgramWriter writer(m_program, layout);
    m_sources = writer.write(false);
    m_fillers = layout.fillers();
    m_wordCount = writer.image().count() - m_fillers.size();
    writeProject(layout.size());
    m_hasResult = goesOn(stepCheck) && check(writer);
}

/// Does the result come to the words that were read?
bool ForeignImport::check(const ProgramWriter& writer)
{
    const ProgramImage wanted = writer.image();
    const bool isWhole = brokenCount() == 0 && m_messages.errors() == 0;
    const QVector<ImportSource> checked = isWhole ? m_sources : writer.write(true);
    QVector<AssemblySource> sources;
    for (const ImportSource& source : checked)
        sources.append({source.name, source.text});
    Assembly assembly(m_program.dialect->processor());
    assembly.settings = m_settings;
    assembly.config.behaviorCharset = nsModAsmFe::AsmFeConfig::charsetSilent;
    const AssemblyResult result = assembly.run(sources);
    if (!result.ok) {
        // Where something is wrong already, that is what the user must know.
        if (isWhole)
            m_messages.add(errImpWrongResult, {result.firstError()});
        return !isWhole;
    }
    for (int address = 0; address < qMax(wanted.size(), result.image.size()); ++address) {
        if (!wanted.contains(address) ||
            (result.image.contains(address) && result.image.word(address) == wanted.word(address)))
            continue;
        const QString found = result.image.contains(address) ? wordText(result.image.word(address)) : tr("nothing");
        m_messages.add(
            errImpWrongResult,
            {tr("address %1 has %2 instead of %3").arg(hexNumber(address), found, wordText(wanted.word(address)))});
        return false;
    }
    const bool hasMore = isWhole && result.image.count() != wanted.count();
    if (hasMore)
        m_messages.add(errImpWrongResult, {tr("it has more words than the program")});
    if (isWhole)
        m_image = result.image;
    return !hasMore;
}

void ForeignImport::writeProject(int)
{
    ImportProject project;
    project.title = name();
    project.comment = tr("Imported from %1 (%2)")
                          .arg(QFileInfo(m_options.source).fileName(), QLatin1String(m_program.dialect->title));
    for (const ImportSource& source : qAsConst(m_sources))
        project.sources.append(source.name);
    project.table = &m_program.dialect->processor();
    project.settings = m_settings;
    project.hexFile = m_options.output + '/' + name() + QStringLiteral(".hex");
    takeOutputs(&project);
    m_project = project.text();
    const int vector = interruptVectorOf(m_program);
    if (vector >= 0 && project.table->setting(nsProc::settingIntVectorAddr) != nullptr)
        m_messages.add(infoImpIntVector, {hexNumber(vector)});
}

/// What the program says of the files that the old tool writes.
void ForeignImport::takeOutputs(ImportProject* project)
{
    for (const ForeignStatement& statement : qAsConst(m_program.statements)) {
        if (statement.op() != opOutput || !statement.hasWord())
            continue;
        const QString word = statement.part(statement.word).toUpper();
        QString file = statement.operand(word == QLatin1String("VHDL") ? 1 : 0);
        file.remove('"');
        file.replace('\\', '/');
        file = QFileInfo(file).fileName();
        if (word == QLatin1String("VHDL"))
            takeVhdl(statement, project);
        else if (word == QLatin1String("MEM"))
            project->memFile = m_options.output + '/' + (file.isEmpty() ? name() + ".mem" : file);
        else if (!file.isEmpty())
            project->hexFile = m_options.output + '/' + file;
    }
}

void ForeignImport::takeVhdl(const ForeignStatement& statement, ImportProject* project)
{
    const auto operand = [&](int i) { return statement.operand(i).remove('"').replace('\\', '/'); };
    project->vhdlEntity = operand(2);
    project->vhdlFile = m_options.output + '/' + QFileInfo(operand(1)).fileName();
    project->vhdlTemplate = operand(0);
    report(warnImpOutput,
           {operand(1), tr("give the project a template with the tokens of this program, and enable the output")},
           statement);
}

ImageProofResult ForeignImport::prove(const ProgramImage& reference, int* unlisted) const
{
    ProgramImage whole = reference;
    *unlisted = 0;
    for (const int address : m_fillers) {
        if (whole.contains(address))
            continue;
        whole.setWord(address, m_image.word(address));
        ++*unlisted;
    }
    ImageProofResult result = ImageProof(dialect().processor()).compare(m_image, whole);
    result.equalCount -= *unlisted;
    return result;
}

const ForeignStatement* ForeignImport::origin(const QString& source, int line) const
{
    for (const ImportSource& own : m_sources) {
        if (own.name != source)
            continue;
        const int statement = own.statements.value(line - 1, -1);
        return statement >= 0 ? &m_program.statements.at(statement) : nullptr;
    }
    return nullptr;
}

} // namespace nsImport
