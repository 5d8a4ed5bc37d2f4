// The borders as the compiler sees them: a file is compiled with the include paths that the build gives to a module.

#include "CompileCommands.h"

#include <gtest/gtest.h>

using namespace nsHouse;

namespace {

QStringList optionsFor(const QString& path)
{
    static const CompileCommands commands;
    return commands.options(NALVO_SOURCE_DIR "/" + path);
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
    EXPECT_EQ(compilerOutput(optionsFor(GetParam().file), text).toStdString(), "");
}

TEST_P(CompiledBorders, whatIsNotNamedDoesNotCompile)
{
    const QString text = QString("#include <%1>\n").arg(GetParam().forbidden);
    const QString output = compilerOutput(optionsFor(GetParam().file), text);
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
