#include "NewProject.h"

#include "AsmFeConfig.h"
#include "CfgAccess.h"
#include "CfgStore.h"
#include "PrjSettings.h"
#include "ProcConfig.h"
#include "ProcTables.h"
#include "Processor.h"
#include "SafeFile.h"
#include "ShippedFolder.h"
#include "SourcesConfig.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

namespace nsModPrj {

namespace {

const QLatin1String firstSourceName("main.psm");
const QLatin1String usualTemplate("rom_1kx18");
const int maxTemplateBytes = 16 * 1024 * 1024;

/// Settings of a project whose paths are relative already.
class RelativeSettings : public CfgAccess<PrjSettings>
{
public:
    explicit RelativeSettings(CfgStore* tree)
        : CfgAccess(tree)
    {
    }

    QString convToRelPath(QString path) override { return path; }
    QString convToAbsPath(QString path) override { return path; }
};

/// The whole program that ships as an insertion template for the processor; empty if there is none.
QString shippedProgram(const QString& processor)
{
    const QRegularExpression fits(
        QStringLiteral("^Processors:.*\\b%1\\s*(,|$)").arg(QRegularExpression::escape(processor)),
        QRegularExpression::MultilineOption);
    const QRegularExpression whole(QStringLiteral("^Insert: program\\s*$"), QRegularExpression::MultilineOption);
    const QRegularExpression begin(QStringLiteral("^template\\s*=\\s*\\n"), QRegularExpression::MultilineOption);
    const QString dir = ShippedFolder::find(ShippedFolder::programDir(), QStringLiteral("asmTemplates"));
    if (dir.isEmpty())
        return QString();
    for (const QString& path : ShippedFolder::filesBelow(dir)) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            continue;
        const QString text = QString::fromUtf8(file.read(maxTemplateBytes)).remove(QLatin1Char('\r'));
        const QRegularExpressionMatch match = begin.match(text);
        const QString head = text.left(match.capturedStart());
        if (match.hasMatch() && fits.match(head).hasMatch() && whole.match(head).hasMatch())
            return text.mid(match.capturedEnd());
    }
    return QString();
}

} // namespace

bool NewProjectOptions::isEmpty() const
{
    return processor.isEmpty() && !firstSource && !hex && !mem && vhdlTemplate.isEmpty() && verilogTemplate.isEmpty();
}

NewProject::NewProject(const QString& prjFile, const QString& title, const NewProjectOptions& options)
    : m_dir(QFileInfo(prjFile).absolutePath())
    , m_name(QFileInfo(prjFile).completeBaseName())
    , m_title(title)
    , m_options(options)
{
}

QStringList NewProject::processors()
{
    QStringList names;
    for (const nsProc::ProcTable* table : nsProc::procTables())
        names.append(QString::fromLatin1(table->name));
    names.sort();
    return names;
}

QString NewProject::templateFolder()
{
    return ShippedFolder::find(ShippedFolder::programDir(), QStringLiteral("hdlTemplates"));
}

QStringList NewProject::templates(const QString& suffix)
{
    const QString folder = templateFolder();
    if (folder.isEmpty())
        return {};
    QStringList paths;
    const QStringList patterns{QStringLiteral("rom_*x18*.") + suffix};
    for (const QString& name : QDir(folder).entryList(patterns, QDir::Files | QDir::Readable, QDir::Name))
        paths.append(folder + QLatin1Char('/') + name);
    std::stable_partition(paths.begin(), paths.end(),
                          [](const QString& path) { return QFileInfo(path).completeBaseName() == usualTemplate; });
    return paths;
}

/// Name that the outputs begin with.
QString NewProject::base() const
{
    return m_name + QLatin1String("_rom");
}

/// A name that both languages take: the letters, digits and single low lines of the file's name.
QString NewProject::entity() const
{
    static const QRegularExpression foreign(QStringLiteral("[^A-Za-z0-9]+"));
    static const QRegularExpression ends(QStringLiteral("^[_0-9]+|_+$"));
    const QString name = QString(m_name).replace(foreign, QStringLiteral("_")).remove(ends);
    return (name.isEmpty() ? QStringLiteral("program") : name) + QLatin1String("_rom");
}

QStringList NewProject::files() const
{
    QStringList names;
    if (m_options.firstSource)
        names.append(firstSourceName);
    for (const QString& path : {m_options.vhdlTemplate, m_options.verilogTemplate}) {
        if (!path.isEmpty())
            names.append(QFileInfo(path).fileName());
    }
    if (m_options.hex)
        names.append(base() + QLatin1String(".hex"));
    if (m_options.mem)
        names.append(base() + QLatin1String(".mem"));
    if (!m_options.vhdlTemplate.isEmpty())
        names.append(base() + QLatin1String(".vhd"));
    if (!m_options.verilogTemplate.isEmpty())
        names.append(base() + QLatin1String(".v"));
    return names;
}

QString NewProject::sourceText() const
{
    QString title = m_title.simplified();
    title.remove(QLatin1Char('"'));
    QString text = m_options.processor.isEmpty() ? QString() : shippedProgram(m_options.processor);
    if (text.isEmpty())
        return QStringLiteral("; %1\n\nstart:\n        JUMP    start\n").arg(title);
    const QLatin1String head("; Title\n");
    if (text.startsWith(head))
        text.replace(0, head.size(), QStringLiteral("; %1\n").arg(title));
    return text.replace(QLatin1String("\\navSep \"Title\""), QStringLiteral("\\navSep \"%1\"").arg(title));
}

bool NewProject::writeNew(const QString& name, const QByteArray& content, QString* error) const
{
    const QString path = m_dir + QLatin1Char('/') + name;
    if (QFileInfo::exists(path))
        return true;
    QString reason;
    if (SafeFile::replace(path, content, &reason))
        return true;
    *error = tr("Can not write %1: %2").arg(path, reason);
    return false;
}

bool NewProject::copyTemplate(const QString& from, QString* error) const
{
    if (from.isEmpty())
        return true;
    QFile file(from);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = tr("Can not read the template %1").arg(from);
        return false;
    }
    return writeNew(QFileInfo(from).fileName(), file.readAll(), error);
}

bool NewProject::fill(CfgStore* tree, QString* error) const
{
    if (m_options.isEmpty())
        return true;
    if (!copyTemplate(m_options.vhdlTemplate, error) || !copyTemplate(m_options.verilogTemplate, error))
        return false;
    RelativeSettings settings(tree);
    if (m_options.firstSource) {
        if (!writeNew(firstSourceName, sourceText().toUtf8(), error))
            return false;
        nsModSources::SourcesConfig sources;
        sources.srcFiles = QStringList(firstSourceName);
        sources.wrSourcesConfig(&settings, nullptr);
    }
    if (const nsProc::ProcTable* table = nsProc::procTable(m_options.processor)) {
        nsModProcessor::ProcConfig choice;
        choice.processor = m_options.processor;
        choice.wrProcConfig(&settings);
        nsProc::Processor(*table).writeSettings(&settings);
    }
    nsModAsmFe::AsmFeConfig config;
    const auto enable = [&](nsModAsmFe::eTargetKind_t kind, bool enabled, const char* suffix,
                            const QString& hdlTemplate) {
        nsModAsmFe::TargetConfig& target = config.targets[kind];
        target.en = enabled;
        // An event of an output that is off would cause a warning in each run.
        target.writeFileEventBut1 = enabled;
        target.writeFileEventBut2 = enabled;
        if (!enabled)
            return;
        target.outputFile = base() + QLatin1String(suffix);
        target.templateFile = QFileInfo(hdlTemplate).fileName();
        target.entityName = hdlTemplate.isEmpty() ? QString() : entity();
    };
    enable(nsModAsmFe::kindHex, m_options.hex, ".hex", QString());
    enable(nsModAsmFe::kindMem, m_options.mem, ".mem", QString());
    enable(nsModAsmFe::kindVhdl, !m_options.vhdlTemplate.isEmpty(), ".vhd", m_options.vhdlTemplate);
    enable(nsModAsmFe::kindVerilog, !m_options.verilogTemplate.isEmpty(), ".v", m_options.verilogTemplate);
    if (m_options.hex || m_options.mem || !m_options.vhdlTemplate.isEmpty() || !m_options.verilogTemplate.isEmpty())
        config.wrAsmFeConfig(&settings);
    return true;
}

} // namespace nsModPrj
