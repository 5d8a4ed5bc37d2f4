#include "ArgumentChecker.h"
#include "AsmCharsets.h"
#include "AsmFeConfig.h"
#include "AsmFeFileHndlr.h"
#include "AsmFeMsgHndlr.h"
#include "AsmFeParseArg.h"
#include "AsmProgram.h"
#include "AsmRunListener.h"
#include "AsmWords.h"
#include "EquResolver.h"
#include "FormulaResolver.h"
#include "MemoryMapper.h"
#include "Opcode.h"
#include "RunWatch.h"
#include "SourceReader.h"
#include "StringEncoder.h"
#include "TargetKinds.h"
#include "TargetMapper.h"

#include <QFile>
#include <QSet>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace nsModAsmFe;

// Each stage by itself: it needs what its constructor names, and nothing else has run.

namespace {

class Stages : public ::testing::Test
{
protected:
    Opcode* addOpcode(int line)
    {
        auto* opcode = new Opcode;
        opcode->srcRef.lineNo = opcode->srcRef.absLineNo = line;
        program.opcodes.append(opcode);
        return opcode;
    }
    void addEqu(const QString& name, const QString& value)
    {
        auto* equ = new Equ;
        equ->name = name;
        equ->arg->name = equ->arg->dispName = value;
        program.equs.append(equ);
    }
    int valueOf(const QString& name) { return program.equs.find(QString(), name)->arg->iValue; }

    AsmProgram program;
    AsmFeConfig config;
    AsmFeFileHndlr files;
    AsmFeMsgHndlr messages{&files};
    AsmFeParseArg numbers{&messages};
    AsmCharsets charsets{messages};
    AsmWords words;
    AsmRunListener nobody;
};

} // namespace

TEST_F(Stages, theReaderOnlyRecords)
{
    QTemporaryDir dir;
    QFile file(dir.filePath("a.psm"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("#NAMESPACE ns\n#EQU a, b\n#IFDEF none\nNOP\n#ENDIF\nx: load s0, (a)[7:0]\n#ENDNAMESPACE\n");
    file.close();
    charsets.resetDefaultCodec("UTF-8");
    SourceReader reader(program, files, charsets, config, messages, nobody);
    ASSERT_TRUE(reader.parseFiles({file.fileName()}));
    ASSERT_EQ(program.opcodes.count(), 1);
    const Opcode* opcode = program.opcodes.first();
    EXPECT_EQ(opcode->name, "LOAD");
    EXPECT_EQ(opcode->nameSpace, "ns");
    EXPECT_EQ(opcode->arg1->name, "(a)");
    EXPECT_EQ(opcode->arg1Ext->range, "7:0");
    EXPECT_EQ(opcode->arg1->type, Arg::unset);
    EXPECT_NE(program.labels.find("ns", "x"), nullptr);
    EXPECT_NE(program.equs.find("ns", "a"), nullptr);
}

TEST_F(Stages, aSourceCanBeATextInPlaceOfItsFile)
{
    QTemporaryDir dir;
    const QString path = dir.filePath("a.psm");
    charsets.resetDefaultCodec("UTF-8");
    files.setText(path, "\xef\xbb\xbfx: load s0, 1\r\nload s1, 2");
    ASSERT_TRUE(SourceReader(program, files, charsets, config, messages, nobody).parseFiles({path}));
    ASSERT_EQ(program.opcodes.count(), 2);
    EXPECT_EQ(program.opcodes.first()->next->arg1->name, "2");
    // It has no file, and needs none; of others the file is read.
    EXPECT_FALSE(QFile::exists(path));
    EXPECT_FALSE(SourceReader(program, files, charsets, config, messages, nobody).parseFiles({dir.filePath("b.psm")}));
    EXPECT_EQ(files.open(dir.path()), nullptr);
}

TEST_F(Stages, constantsAreResolvedInTheOrderOfTheirDependence)
{
    addEqu("sum", "last + 1");
    addEqu("last", "first");
    addEqu("first", "0x10");
    ArgumentChecker arguments(numbers, messages);
    FormulaResolver formulas(program.equs, numbers, messages);
    StringEncoder strings(charsets, config, numbers, messages);
    RunWatch watch;
    EquResolver resolver(program.equs, words, arguments, formulas, strings, numbers, messages, watch);
    ASSERT_TRUE(resolver.syntacticsCheckEquArguments());
    EXPECT_EQ(valueOf("last"), 16);
    EXPECT_EQ(valueOf("sum"), 17);
}

TEST_F(Stages, theMapperNeedsPositionsOnly)
{
    addOpcode(1);
    Opcode* second = addOpcode(3);
    auto* org = new Org;
    org->srcRef.absLineNo = 2;
    org->name = "5";
    program.orgs.append(org);
    RunWatch watch;
    MemoryMapper mapper(program, config, numbers, messages, watch);
    ASSERT_TRUE(mapper.mapOpcodeToMemCheckOrgDirectives());
    ASSERT_TRUE(mapper.mapOpcodeToMem(8));
    EXPECT_EQ(program.geometry.pageSize, 8);
    EXPECT_EQ(program.opcodes.first()->memAddr, 0);
    EXPECT_EQ(second->memAddr, 5);
    EXPECT_TRUE(org->used);
    EXPECT_FALSE(mapper.mapOpcodeToMem(4)) << "the pinned address lies outside of a smaller memory";
}

TEST(TargetKinds, eachKindHasKeysAndAWriterOfItsOwn)
{
    QSet<QString> keys;
    QSet<QString> names;
    QSet<QString> writers;
    for (const sTargetKind_t& kind : targetKinds()) {
        keys.insert(kind.key);
        names.insert(QString(kind.setName).toUpper());
        writers.insert(kind.newWriter()->metaObject()->className());
        EXPECT_EQ(&targetKind(kind.kind), &kind);
    }
    EXPECT_EQ(keys.size(), int(targetKindCount));
    EXPECT_EQ(names.size(), int(targetKindCount));
    EXPECT_EQ(writers.size(), int(targetKindCount));
}
