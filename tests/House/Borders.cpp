#include "Borders.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

namespace nsHouse {

namespace {

const QStringList codePatterns{"*.h", "*.cpp"};

QStringList sorted(const QSet<QString>& names)
{
    QStringList list = names.values();
    list.sort();
    return list;
}

QSet<QString> setOf(const QStringList& names)
{
    return QSet<QString>(names.begin(), names.end());
}

QString nameOf(const QString& path)
{
    return path.section('/', -1);
}

/// Tells which of two sets holds what the other one lacks.
void compare(const QString& where, const QString& saidBy, const QSet<QString>& said, const QSet<QString>& found,
             const QString& foundBy, QStringList& findings)
{
    for (const QString& name : sorted(found - said))
        findings.append(QString("%1: %2 does not name %3, %4").arg(where, saidBy, name, foundBy));
    for (const QString& name : sorted(said - found))
        findings.append(QString("%1: %2 names %3 without need").arg(where, saidBy, name));
}

} // namespace

QStringList cmakeArguments(const QString& text, const QString& function, const QString& keyword)
{
    const QRegularExpression call("^" + QRegularExpression::escape(function) + "\\(([^)]*)\\)",
                                  QRegularExpression::MultilineOption);
    static const QRegularExpression blank("\\s+");
    static const QRegularExpression isKeyword("^[A-Z]+$");
    QStringList result;
    bool taking = false;
    for (const QString& word : call.match(text).captured(1).split(blank, Qt::SkipEmptyParts)) {
        if (isKeyword.match(word).hasMatch())
            taking = word == keyword;
        else if (taking)
            result.append(word);
    }
    return result;
}

QStringList includesIn(const QString& text)
{
    static const QRegularExpression include("^[ \\t]*#[ \\t]*include[ \\t]*[\"<]([^\">]+)[\">]",
                                            QRegularExpression::MultilineOption);
    QStringList result;
    auto matches = include.globalMatch(text);
    while (matches.hasNext())
        result.append(matches.next().captured(1));
    return result;
}

Borders::Borders(const SourceTree& tree, const QString& qtCoreHeaders)
    : m_tree(tree)
    , m_qtCoreHeaders(qtCoreHeaders)
{
    readCores();
    readHeaders();
}

void Borders::readCores()
{
    for (const QString& folder : m_tree.folders("src")) {
        const QString list = m_tree.text("src/" + folder + "/CMakeLists.txt");
        for (const QString& name : cmakeArguments(list, "nalvo_core", "NAME"))
            m_cores.insert(name, "src/" + folder + "/");
    }
}

void Borders::readHeaders()
{
    for (const QString& path : m_tree.files("src", {"*.h"}))
        m_headers[nameOf(path)].append(path);
    for (const QString& folder : m_tree.folders("src")) {
        if (m_tree.exists("src/" + folder + "/If"))
            m_faces.append(folder);
    }
    std::sort(m_faces.begin(), m_faces.end(),
              [](const QString& a, const QString& b) { return a.length() > b.length(); });
}

QStringList Borders::doubleNames() const
{
    QStringList findings;
    for (auto it = m_headers.begin(); it != m_headers.end(); ++it) {
        if (it->size() > 1)
            findings.append(it.key() + ": " + it->join(", "));
    }
    findings.sort();
    return findings;
}

/// The library of the ground floor that a path is in.
QString Borders::coreOf(const QString& path) const
{
    for (auto core = m_cores.begin(); core != m_cores.end(); ++core) {
        if (path.startsWith(core.value()))
            return core.key();
    }
    return {};
}

/// The module to whose face a header belongs. The contracts of modules that the ground floor calls stand there.
QString Borders::faceOf(const QString& header) const
{
    const QString folder = header.section('/', 1, 1);
    if (header.section('/', 2, 2) == "If")
        return folder;
    if (coreOf(header).isEmpty() || !(header.endsWith("HookIf.h") || header.endsWith("PluginIf.h")))
        return {};
    for (const QString& face : m_faces) {
        if (nameOf(header).startsWith(face))
            return face;
    }
    return {};
}

Borders::sIncludes_t Borders::includesOf(const QStringList& files, const QString& self) const
{
    sIncludes_t result;
    for (const QString& file : files) {
        for (const QString& include : includesIn(m_tree.text(file))) {
            for (const QString& header : m_headers.value(nameOf(include))) {
                const QString face = faceOf(header);
                if (!face.isEmpty() && face != self)
                    result.faces.insert(face);
                const QString core = coreOf(header);
                if (!core.isEmpty())
                    result.cores.insert(core);
            }
        }
    }
    return result;
}

void Borders::compareDeclaration(const QString& folder, const QString& function, const QStringList& files,
                                 QStringList& findings) const
{
    const QString list = m_tree.text("src/" + folder + "/CMakeLists.txt");
    sIncludes_t found = includesOf(files, folder.section('/', 0, 0));
    // Every file of the upper floor sees the lowest library.
    found.cores.remove("NalvoBase");
    compare(folder, "USES", setOf(cmakeArguments(list, function, "USES")), found.faces, "whose face it includes",
            findings);
    compare(folder, "CORES", setOf(cmakeArguments(list, function, "CORES")), found.cores, "whose headers it includes",
            findings);
}

QStringList Borders::declaredUses() const
{
    QStringList findings;
    for (const QString& folder : m_tree.folders("src")) {
        if (!folder.startsWith("Mod"))
            continue;
        QStringList inside;
        QStringList face;
        for (const QString& file : m_tree.files("src/" + folder, codePatterns))
            (file.startsWith("src/" + folder + "/If/") ? face : inside).append(file);
        if (m_tree.exists("src/" + folder + "/CMakeLists.txt"))
            compareDeclaration(folder, "nalvo_module", inside, findings);
        if (!face.isEmpty())
            compareDeclaration(folder + "/If", "nalvo_interface", face, findings);
    }
    return findings;
}

QStringList Borders::documentedUses() const
{
    static const QRegularExpression row("^\\| (Mod\\w+) \\|[^|\n]*\\|[^|\n]*\\|([^|\n]*)\\|",
                                        QRegularExpression::MultilineOption);
    static const QRegularExpression comma("[,\\s]+");
    QMap<QString, QSet<QString>> table;
    auto rows = row.globalMatch(m_tree.text("ARCHITECTURE.md"));
    while (rows.hasNext()) {
        const QRegularExpressionMatch match = rows.next();
        QSet<QString>& uses = table[match.captured(1)];
        for (const QString& name : match.captured(2).split(comma, Qt::SkipEmptyParts))
            uses.insert("Mod" + name);
    }
    QStringList findings;
    for (const QString& folder : m_tree.folders("src")) {
        const QString list = m_tree.text("src/" + folder + "/CMakeLists.txt");
        if (!folder.startsWith("Mod") || list.isEmpty())
            continue;
        if (!table.contains(folder)) {
            findings.append(folder + ": not in the table of ARCHITECTURE.md");
            continue;
        }
        compare(folder, "ARCHITECTURE.md", table.take(folder), setOf(cmakeArguments(list, "nalvo_module", "USES")),
                "which USES names", findings);
    }
    for (const QString& name : table.keys())
        findings.append(name + ": in the table of ARCHITECTURE.md, but there is no such module");
    return findings;
}

void Borders::checkCoreFile(const QString& path, QStringList& findings) const
{
    for (const QString& include : includesIn(m_tree.text(path))) {
        const QString name = nameOf(include);
        const QStringList headers = m_headers.value(name);
        for (const QString& header : headers) {
            if (coreOf(header).isEmpty())
                findings.append(QString("%1 includes %2 of the upper floor").arg(path, header));
        }
        if (headers.isEmpty() && name.startsWith('Q') && !QFile::exists(m_qtCoreHeaders + "/" + name))
            findings.append(QString("%1 includes %2, which is not of Qt Core").arg(path, name));
    }
}

QStringList Borders::groundFloor() const
{
    QStringList findings;
    for (auto core = m_cores.begin(); core != m_cores.end(); ++core) {
        const QStringList files = m_tree.files(core.value().chopped(1), codePatterns);
        for (const QString& file : files)
            checkCoreFile(file, findings);
        QSet<QString> found = includesOf(files, QString()).cores;
        found.remove(core.key());
        const QString list = m_tree.text(core.value() + "CMakeLists.txt");
        compare(core.key(), "USES", setOf(cmakeArguments(list, "nalvo_core", "USES")), found,
                "whose headers it includes", findings);
    }
    return findings;
}

QStringList Borders::moduleList() const
{
    static const QRegularExpression list("set\\(NALVO_MODULES ([^)]*)\\)");
    static const QRegularExpression blank("\\s+");
    static const QRegularExpression created("new nsMod\\w+::(Mod\\w+)");
    const QString build = list.match(m_tree.text("cmake/NalvoModule.cmake")).captured(1);
    const QSet<QString> named = setOf(build.split(blank, Qt::SkipEmptyParts));
    QSet<QString> made;
    auto matches = created.globalMatch(m_tree.text("src/Nalvo.cpp"));
    while (matches.hasNext())
        made.insert(matches.next().captured(1));
    QSet<QString> folders;
    for (const QString& folder : m_tree.folders("src")) {
        if (folder.startsWith("Mod") && m_tree.exists("src/" + folder + "/CMakeLists.txt"))
            folders.insert(folder);
    }
    QStringList findings;
    compare("src/Nalvo.cpp", "NALVO_MODULES", named, made, "which the window creates", findings);
    compare("src", "NALVO_MODULES", named, folders, "which has a folder", findings);
    return findings;
}

} // namespace nsHouse
