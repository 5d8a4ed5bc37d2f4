#include "Primitives.h"

#include <QFile>
#include <QRegularExpression>

#include <algorithm>

namespace nsNalvoProve {

namespace {

/// The models for a processor, which come with the program.
QByteArray modelsFor(const CoreKind& kind, bool isVhdl)
{
    const QString base = kind.core == CoreKind::coreMico8 ? "lattice" : isVhdl ? "unisim" : "primitives";
    QFile file(":/prove/" + base + (isVhdl ? ".vhd" : ".v"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Texts of the modules of a file in Verilog, by their names.
QMap<QString, QString> modulesOf(const QByteArray& models)
{
    static const QRegularExpression module(R"(^module\s+(\w+).*?^endmodule\n)",
                                           QRegularExpression::MultilineOption |
                                               QRegularExpression::DotMatchesEverythingOption);
    QMap<QString, QString> modules;
    for (auto matches = module.globalMatch(QString::fromLatin1(models)); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        modules.insert(match.captured(1), match.captured(0));
    }
    return modules;
}

QStringList componentsOf(const QByteArray& models)
{
    static const QRegularExpression component(R"(^ +component\s+(\w+)\s+is)", QRegularExpression::MultilineOption);
    QStringList names;
    for (auto matches = component.globalMatch(QString::fromLatin1(models)); matches.hasNext();)
        names.append(matches.next().captured(1).toLower());
    return names;
}

} // namespace

Primitives::Primitives(const CoreKind& kind, const CoreSource& source)
{
    const QByteArray models = modelsFor(kind, source.isVhdl());
    QSet<QString> needed = source.words();
    needed.subtract(source.declared());
    if (!source.isVhdl()) {
        takeModules(models, needed);
        return;
    }
    m_names = componentsOf(models);
    m_names.sort();
    const QString usual = kind.core == CoreKind::coreMico8 ? "lattice" : "unisim";
    m_libraries = source.libraries();
    // The vendor of the other cores has one library for all of its devices.
    if (kind.core != CoreKind::coreMico8)
        m_libraries = m_libraries.contains(usual) ? QStringList(usual) : QStringList();
    const bool isUsed =
        std::any_of(m_names.cbegin(), m_names.cend(), [&needed](const QString& name) { return needed.contains(name); });
    // A core that declares them itself finds them in any library.
    if (isUsed && m_libraries.isEmpty())
        m_libraries.append(usual);
    if (!m_libraries.isEmpty())
        m_text = models;
}

/// Takes the modules of these names, and those that they use.
void Primitives::takeModules(const QByteArray& models, QSet<QString> words)
{
    static const QRegularExpression word(R"(\bprove_\w+)");
    const QMap<QString, QString> modules = modulesOf(models);
    for (auto it = modules.cbegin(); it != modules.cend(); ++it) {
        if (!it.key().startsWith("prove_"))
            m_names.append(it.key());
        if (!words.contains(it.key()))
            continue;
        for (auto matches = word.globalMatch(it.value()); matches.hasNext();)
            words.insert(matches.next().captured());
    }
    for (auto it = modules.cbegin(); it != modules.cend(); ++it) {
        if (words.contains(it.key()))
            m_text += it.value().toLatin1() + '\n';
    }
}

} // namespace nsNalvoProve
