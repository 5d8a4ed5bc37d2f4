#include "CompileCommands.h"

#include "FixtureTree.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRegularExpression>

namespace nsHouse {

CompileCommands::CompileCommands()
{
    QFile file(NALVO_BINARY_DIR "/compile_commands.json");
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << "The build left no compile_commands.json";
    for (const QJsonValue& entry : QJsonDocument::fromJson(file.readAll()).array()) {
        m_allSources.append(entry["file"].toString());
        // Tests compile some sources once more, with their own options.
        if (entry["command"].toString().contains(" -o tests/"))
            continue;
        m_sources.append(entry["file"].toString());
        m_commands.append(entry["command"].toString());
    }
}

QString CompileCommands::command(const QString& source) const
{
    return m_commands.value(m_sources.indexOf(source));
}

QStringList CompileCommands::options(const QString& source) const
{
    static const QRegularExpression wanted("^(-I|-std|-D|-f(PIC|PIE)$)");
    const QStringList words = QProcess::splitCommand(command(source));
    if (words.isEmpty())
        return {};
    QStringList result{NALVO_CXX};
    for (int i = 0; i < words.size(); ++i) {
        if (words.at(i) == "-isystem")
            result << words.at(i) << words.value(i + 1);
        else if (wanted.match(words.at(i)).hasMatch())
            result << words.at(i);
    }
    return result;
}

QString compilerOutput(QStringList options, const QString& text)
{
    if (options.isEmpty())
        return "The build does not compile such a source";
    FixtureTree tree;
    tree.write("probe.cpp", text);
    QProcess compiler;
    // In English, whatever the language of the machine.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LC_ALL", "C");
    environment.remove("LANGUAGE");
    compiler.setProcessEnvironment(environment);
    compiler.setProcessChannelMode(QProcess::MergedChannels);
    const QString program = options.takeFirst();
    compiler.start(program, options << "-fsyntax-only" << tree.root() + "/probe.cpp");
    EXPECT_TRUE(compiler.waitForFinished(-1));
    const QString output = QString::fromLocal8Bit(compiler.readAll());
    EXPECT_EQ(compiler.exitCode() == 0, output.isEmpty()) << qPrintable(output);
    return output;
}

} // namespace nsHouse
