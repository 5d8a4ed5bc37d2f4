#include "AsmDepfile.h"

#include "AsmFeFileHndlr.h"
#include "AsmProgram.h"

#include <QFile>

#include <algorithm>

namespace nsNalvoAsm {

namespace {

/// Some characters mean something to make in any place of a rule or at the end of a name, and nothing takes that away
/// in a way that ninja reads, too.
bool isPossible(const QString& name)
{
    static const QString impossible = QStringLiteral("%;=|\n\r");
    static const QString impossibleAtEnd = QStringLiteral("\\& \t");
    return std::none_of(name.begin(), name.end(), [](QChar letter) { return impossible.contains(letter); }) &&
           !name.contains(QLatin1String("\\:")) && (name.isEmpty() || !impossibleAtEnd.contains(name.back()));
}

QByteArray escaped(const QString& name)
{
    const QByteArray plain = QFile::encodeName(name);
    QByteArray result;
    int backslashes = 0;
    for (char letter : plain) {
        switch (letter) {
        case ' ':
        case '\t':
        case '#':
            // Backslashes before a blank are halved, others are not.
            result.append(QByteArray(backslashes + 1, '\\'));
            break;
        case ':':
            result.append('\\');
            break;
        case '$':
            result.append('$');
            break;
        default:
            break;
        }
        result.append(letter);
        backslashes = letter == '\\' ? backslashes + 1 : 0;
    }
    return result;
}

} // namespace

QStringList inputsOf(const QString& project, const nsModAsmFe::AsmFeFileHndlr& files,
                     const nsModAsmFe::AsmProgram& program)
{
    QStringList inputs = QStringList(project) + files.files();
    for (const nsModAsmFe::IODev* dev : program.ioDevs.devices()) {
        for (const nsModAsmFe::TargetFile& target : dev->targets) {
            if (target.en && !target.templateFile.isEmpty() && program.writtenFiles.contains(target.outputFile))
                inputs.append(target.templateFile);
        }
    }
    return inputs;
}

AsmDepfile::AsmDepfile(const QStringList& targets, const QStringList& inputs)
    : m_targets(targets)
    , m_inputs(inputs)
{
    m_targets.removeDuplicates();
    m_inputs.removeDuplicates();
}

QString AsmDepfile::impossibleName() const
{
    for (const QStringList& names : {m_targets, m_inputs}) {
        for (const QString& name : names) {
            if (!isPossible(name))
                return name;
        }
    }
    return QString();
}

QByteArray AsmDepfile::text() const
{
    QByteArray rule;
    for (const QString& target : m_targets)
        rule += (rule.isEmpty() ? "" : " \\\n ") + escaped(target);
    rule += ':';
    QByteArray empty;
    for (const QString& input : m_inputs) {
        const QByteArray name = escaped(input);
        rule += " \\\n " + name;
        empty += '\n' + name + ":\n";
    }
    return rule + '\n' + empty;
}

} // namespace nsNalvoAsm
