#include "CoreSource.h"

#include "PortMap.h"

#include "BatchOutput.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace nsNalvoProve {

using nsBatch::shownPath;

namespace {

const qint64 largestFile = 16 << 20; ///< bytes
const int mostFiles = 2000;

QString tr(const char* text)
{
    return QCoreApplication::translate("nalvo-prove", text);
}

/// @return false if the name is not that of a source in one of the languages
bool languageOf(const QString& path, bool* isVhdl)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    *isVhdl = suffix == "vhd" || suffix == "vhdl";
    return *isVhdl || suffix == "v" || suffix == "sv" || suffix == "vo";
}

/// The text without comments and strings, with blanks in their places.
QString codeOf(const QString& text, bool isVhdl)
{
    static const QRegularExpression verilog(R"(//[^\n]*|/\*.*?\*/|"(?:[^"\\\n]|\\.)*")",
                                            QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression vhdl(R"(--[^\n]*|"[^"\n]*")");
    QString code = text;
    code.replace(isVhdl ? vhdl : verilog, " ");
    return isVhdl ? code.toLower() : code;
}

QStringList captures(const QString& text, const QRegularExpression& pattern)
{
    QStringList result;
    for (auto matches = pattern.globalMatch(text); matches.hasNext();)
        result.append(matches.next().captured(1));
    return result;
}

QStringList unitsOf(const QString& code, bool isVhdl)
{
    static const QRegularExpression module(R"(\bmodule\s+(\w+))");
    static const QRegularExpression unit(R"(\b(?:entity|package)\s+(\w+)\s+is\b)");
    return captures(code, isVhdl ? unit : module);
}

QSet<QString> wordsOf(const QString& code)
{
    static const QRegularExpression word(R"(\b([A-Za-z_]\w*)\b)");
    const QStringList words = captures(code, word);
    return QSet<QString>(words.cbegin(), words.cend());
}

/// The libraries that a source names, without those that are always there.
QStringList librariesOf(const QString& code, bool isVhdl)
{
    static const QRegularExpression clause(R"(\blibrary\s+([\w\s,]+);)");
    static const QRegularExpression separators(R"([\s,]+)");
    QStringList names;
    for (const QString& list : isVhdl ? captures(code, clause) : QStringList())
        names += list.split(separators, Qt::SkipEmptyParts);
    for (const char* name : {"ieee", "std", "work", "synopsys"})
        names.removeAll(name);
    return names;
}

/// The components that a source instantiates.
QSet<QString> instancesOf(const QString& code, bool isVhdl)
{
    static const QRegularExpression instance(R"(:\s*(?:component\s+)?(\w+)\s+(?:generic|port)\s+map\b)");
    const QStringList names = isVhdl ? captures(code, instance) : QStringList();
    return QSet<QString>(names.cbegin(), names.cend());
}

QString languageName(bool isVhdl)
{
    return isVhdl ? "VHDL" : "Verilog";
}

} // namespace

const CoreKind* CoreKind::find(const QString& section)
{
    static const QStringList common = {"address",       "instruction",  "in_port",     "out_port",
                                       "port_id",       "write_strobe", "read_strobe", "interrupt",
                                       "interrupt_ack", "reset",        "clk"};
    static const CoreKind kinds[] = {
        {corePicoBlaze3, "kcpsm3", "PicoBlaze 3", 1024, common},
        {corePicoBlaze6, "kcpsm6", "PicoBlaze 6", 4096, common + QStringList{"bram_enable", "k_write_strobe", "sleep"}},
        {coreMico8,
         "lm8",
         "Mico8",
         4096,
         {"clk", "rst_n", "prom_addr", "prom_en", "prom_data", "ext_addr", "ext_dout", "ext_io_wr", "ext_io_rd",
          "ext_io_din", "ext_ready", "intr", "intr_ack"}}};
    return section == "XPBlze3"     ? &kinds[0]
           : section == "XPBlze6"   ? &kinds[1]
           : section == "LMico8v3x" ? &kinds[2]
                                    : nullptr;
}

QString CoreSource::find(const CoreKind& kind, const QString& path, eLanguage_t language)
{
    const QString failure = read(path);
    return failure.isEmpty() ? choose(kind, path, language) : failure;
}

QString CoreSource::read(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return tr("There is no such file or folder with the core: %1").arg(path);
    if (!info.isDir() && !info.isFile())
        return tr("The core is neither a file nor a folder: %1").arg(path);
    return info.isDir() ? readFolder(path) : readFile(info.absoluteFilePath(), true);
}

QString CoreSource::readFolder(const QString& path)
{
    QStringList names;
    QDirIterator it(QFileInfo(path).absoluteFilePath(), QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        bool isVhdl = false;
        if (languageOf(it.next(), &isVhdl))
            names.append(it.filePath());
        if (names.size() > mostFiles)
            return tr("More than %1 HDL files are in the folder; name the file of the core: %2")
                .arg(QString::number(mostFiles), path);
    }
    if (names.isEmpty())
        return tr("No Verilog or VHDL file is in the folder: %1").arg(path);
    names.sort();
    for (const QString& name : names) {
        const QString failure = readFile(name, false);
        if (!failure.isEmpty())
            return failure;
    }
    return QString();
}

QString CoreSource::readFile(const QString& path, bool isNamed)
{
    sFile_t source;
    source.path = path;
    if (!languageOf(path, &source.isVhdl))
        return tr("The core must be a file .v, .vhd or .vhdl: %1").arg(shownPath(path));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return tr("Can not read %1: %2").arg(shownPath(path), file.errorString());
    const QByteArray bytes = file.read(largestFile + 1);
    if (bytes.size() > largestFile)
        return isNamed ? tr("The file is too large for a core: %1").arg(shownPath(path)) : QString();
    source.text = codeOf(QString::fromLatin1(bytes), source.isVhdl);
    source.units = unitsOf(source.text, source.isVhdl);
    m_read.append(source);
    return QString();
}

QString CoreSource::choose(const CoreKind& kind, const QString& path, eLanguage_t language)
{
    QString failure;
    bool isThere = false;
    for (const bool isVhdl : {false, true}) {
        if (language != ProveOptions::languageAny && (language == ProveOptions::languageVhdl) != isVhdl)
            continue;
        QList<const sFile_t*> tops;
        for (const sFile_t& file : m_read) {
            if (file.isVhdl == isVhdl && file.units.contains(kind.name))
                tops.append(&file);
        }
        if (tops.isEmpty()) {
            const QString why = chooseMapped(kind, isVhdl);
            if (!m_files.isEmpty())
                return QString();
            failure = why.isEmpty() ? failure : why;
            isThere = isThere || !why.isEmpty();
            continue;
        }
        isThere = true;
        if (tops.size() > 1) {
            failure = tr("Several files have a %1 in %2; name the one: %3, %4")
                          .arg(kind.name, languageName(isVhdl), shownPath(tops[0]->path), shownPath(tops[1]->path));
            continue;
        }
        const QString why = take(kind, *tops.first());
        if (why.isEmpty())
            return QString();
        failure = why;
    }
    if (isThere)
        return failure;
    const QString wanted = language == ProveOptions::languageAny    ? tr("module or entity")
                           : language == ProveOptions::languageVhdl ? tr("VHDL entity")
                                                                    : tr("Verilog module");
    return tr("The project is for %1, but no %2 %3 is in %4").arg(kind.shown, wanted, kind.name, path);
}

/// Looks for a Mico8 whose module has a name of its own.
/// @return why it can not be used; empty if it can, or if there is none
QString CoreSource::chooseMapped(const CoreKind& kind, bool isVhdl)
{
    if (kind.core != CoreKind::coreMico8 || isVhdl)
        return QString();
    static const QRegularExpression likely("lm8|isp8|mico8", QRegularExpression::CaseInsensitiveOption);
    QString failure;
    QStringList found;
    for (const sFile_t& file : m_read) {
        for (const QString& unit : file.units) {
            if (file.isVhdl || !likely.match(unit).hasMatch())
                continue;
            const PortMap ports(unit, file.text);
            if (!ports.missing().isEmpty()) {
                failure = lacks(unit, file, kind, ports.missing());
                continue;
            }
            takeFile(file);
            m_adapter = ports.adapter();
            found.append(unit);
        }
    }
    if (found.size() < 2)
        return found.isEmpty() ? failure : QString();
    m_files.clear();
    return tr("Several modules look like a %1; name the file of the one: %2").arg(kind.shown, found.join(", "));
}

QString CoreSource::lacks(const QString& unit, const sFile_t& file, const CoreKind& kind, const QStringList& ports)
{
    return tr("%1 in %2 is not the core of %3 as it is known: it has no port %4")
        .arg(unit, shownPath(file.path), kind.shown, ports.join(", "));
}

QString CoreSource::take(const CoreKind& kind, const sFile_t& top)
{
    QStringList missing = missingPorts(kind, top);
    if (!missing.isEmpty() && kind.core == CoreKind::coreMico8 && !top.isVhdl) {
        const PortMap ports(kind.name, top.text);
        missing = ports.missing();
        m_adapter = missing.isEmpty() ? ports.adapter() : QByteArray();
    }
    if (!missing.isEmpty())
        return lacks(kind.name, top, kind, missing);
    takeFile(top);
    return QString();
}

void CoreSource::takeFile(const sFile_t& top)
{
    m_language = top.isVhdl ? ProveOptions::languageVhdl : ProveOptions::languageVerilog;
    follow(top);
    findFlags(top.text);
}

QStringList CoreSource::missingPorts(const CoreKind& kind, const sFile_t& top)
{
    // From the name to the end of the unit: old Verilog declares the ports behind the header.
    const QRegularExpression unit(
        QString(top.isVhdl ? R"(\bentity\s+%1\s+is\b(.*?)\bend\b)" : R"(\bmodule\s+%1\b(.*?)\bendmodule\b)")
            .arg(kind.name),
        QRegularExpression::DotMatchesEverythingOption);
    const QSet<QString> words = wordsOf(unit.match(top.text).captured(1));
    QStringList missing;
    for (const QString& port : kind.ports) {
        if (!words.contains(port))
            missing.append(port);
    }
    return missing;
}

/// Takes the file, and those that declare what a taken one names.
void CoreSource::follow(const sFile_t& top)
{
    QMap<QString, const sFile_t*> declared;
    for (const sFile_t& file : m_read) {
        for (const QString& unit : file.units) {
            if (file.isVhdl == top.isVhdl && (!declared.contains(unit) || &file == &top))
                declared.insert(unit, &file);
        }
    }
    QList<const sFile_t*> taken = {&top};
    m_words.clear();
    m_declared.clear();
    m_instances.clear();
    m_libraries.clear();
    for (int i = 0; i < taken.size(); ++i) {
        const QSet<QString> words = wordsOf(taken[i]->text);
        for (const QString& word : words) {
            const sFile_t* file = declared.value(word);
            if (file != nullptr && !taken.contains(file))
                taken.append(file);
        }
        m_words.unite(words);
        m_instances.unite(instancesOf(taken[i]->text, top.isVhdl));
        m_libraries += librariesOf(taken[i]->text, top.isVhdl);
    }
    m_libraries.removeDuplicates();
    for (const sFile_t* file : taken)
        m_declared.unite(QSet<QString>(file->units.cbegin(), file->units.cend()));
    m_files.clear();
    for (const sFile_t* file : taken)
        m_files.append(file->path);
}

void CoreSource::findFlags(const QString& text)
{
    const QSet<QString> words = wordsOf(text);
    for (const char* end : {"", "_flag"}) {
        const QString carry = QString("carry") + end;
        const QString zero = QString("zero") + end;
        if (words.contains(carry) && words.contains(zero)) {
            m_carryName = carry;
            m_zeroName = zero;
            return;
        }
    }
}

} // namespace nsNalvoProve
