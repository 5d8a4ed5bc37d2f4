// The borders as the compiler sees them: a file is compiled with the include paths that the build gives to a module.

#include "FixtureTree.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>

namespace {

/// Compiler, language and include paths of the source at @p path, as the build calls it; without precompiled headers.
QStringList commandFor(const QString& path)
{
    static const QRegularExpression wanted("^(-I|-isystem|-std|-D|-f(PIC|PIE)$)");
    QFile file(NALVO_BINARY_DIR "/compile_commands.json");
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << "The build left no compile_commands.json";
    for (const QJsonValue& entry : QJsonDocument::fromJson(file.readAll()).array()) {
        const QString command = entry["command"].toString();
        if (entry["file"].toString() != NALVO_SOURCE_DIR "/" + path || command.contains("/tests/"))
            continue;
        const QStringList words = QProcess::splitCommand(command);
        QStringList result{NALVO_CXX};
        for (int i = 0; i < words.size(); ++i) {
            if (words.at(i) == "-isystem")
                result << words.at(i) << words.value(i + 1);
            else if (wanted.match(words.at(i)).hasMatch())
                result << words.at(i);
        }
        return result;
    }
    ADD_FAILURE() << "The build does not compile " << qPrintable(path);
    return {};
}

/// What the compiler says of a file with this text; empty where it compiles.
QString compilerOutput(QStringList command, const QString& text)
{
    FixtureTree tree;
    tree.write("probe.cpp", text);
    if (command.isEmpty())
        return "no compiler";
    QProcess compiler;
    compiler.setProcessChannelMode(QProcess::MergedChannels);
    const QString program = command.takeFirst();
    compiler.start(program, command << "-fsyntax-only" << tree.root() + "/probe.cpp");
    EXPECT_TRUE(compiler.waitForFinished(-1));
    const QString output = QString::fromLocal8Bit(compiler.readAll());
    EXPECT_EQ(compiler.exitCode() == 0, output.isEmpty()) << qPrintable(output);
    return output;
}

struct sBorder_t
{
    const char* file;      ///< one that the build compiles for the module or library
    const char* seen;      ///< a header that it may include
    const char* forbidden; ///< a header that there is, but not for it
};

class CompiledBorders : public ::testing::TestWithParam<sBorder_t>
{
};

} // namespace

TEST_P(CompiledBorders, whatIsNamedCompiles)
{
    const QString text = QString("#include <%1>\n").arg(GetParam().seen);
    EXPECT_EQ(compilerOutput(commandFor(GetParam().file), text).toStdString(), "");
}

TEST_P(CompiledBorders, whatIsNotNamedDoesNotCompile)
{
    const QString text = QString("#include <%1>\n").arg(GetParam().forbidden);
    const QString output = compilerOutput(commandFor(GetParam().file), text);
    EXPECT_TRUE(output.contains(QString("fatal error: %1: No such file or directory").arg(GetParam().forbidden)))
        << qPrintable(output);
}

INSTANTIATE_TEST_SUITE_P(All, CompiledBorders,
                         ::testing::Values(
                             // No window on the ground floor, and nothing of the libraries above.
                             sBorder_t{"src/Base/SafeFile.cpp", "QString", "QWidget"},
                             sBorder_t{"src/Base/SafeFile.cpp", "QString", "QImage"},
                             sBorder_t{"src/Base/SafeFile.cpp", "LineDiff.h", "Opcode.h"},
                             sBorder_t{"src/Asm/Elements/Opcode/Opcode.cpp", "SafeFile.h", "QWidget"},
                             sBorder_t{"src/Asm/Elements/Opcode/Opcode.cpp", "SafeFile.h", "ProcInstr.h"},
                             sBorder_t{"src/Asm/Elements/Opcode/Opcode.cpp", "SafeFile.h", "MsgGroup.h"},
                             sBorder_t{"src/Sim/ProcSimCoreData.cpp", "QString", "QWidget"},
                             // A face and a library of the ground floor that the module does not name.
                             sBorder_t{"src/ModProcessor/ModProcessor.cpp", "ModGuiHookIf.h", "NaviTag.h"},
                             sBorder_t{"src/ModMsg/ModMsg.cpp", "ModGuiHookIf.h", "ModPrjHookIf.h"},
                             sBorder_t{"src/ModMsg/ModMsg.cpp", "SafeFile.h", "Opcode.h"},
                             // The inside of another module.
                             sBorder_t{"src/ModEditor/ModEditor.cpp", "ModPrjHookIf.h", "ModPrj.h"}),
                         [](const ::testing::TestParamInfo<sBorder_t>& one) {
                             return "border" + std::to_string(one.index);
                         });
