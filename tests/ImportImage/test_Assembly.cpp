#include "Assembly.h"
#include "ImageProof.h"
#include "ImageText.h"
#include "ProcTables.h"
#include "QtPrinters.h"

#include <gtest/gtest.h>

using namespace nsImport;

namespace {

const nsProc::ProcTable& pb3 = nsProc::xpBlze3Table();

AssemblyResult assemble(const QByteArray& text)
{
    return Assembly(pb3).run({{"main.psm", text}});
}

} // namespace

TEST(Assembly, makesAnImageWithPlaces)
{
    const AssemblyResult result = Assembly(pb3).run({
        {"src/a.psm", "; first\nstart:  LOAD s0, LIMIT ; one\r\n        CALL wait\n"},
        {"b.psm", "#EQU LIMIT, 5\nwait: JUMP start\n#ORG ADDR, 0x3FF\n\tRETI ENABLE"},
    });
    ASSERT_TRUE(result.ok) << qPrintable(result.firstError());
    EXPECT_EQ(imageText(result.image), "000: 00005 30002 34000 | 3FF: 38001");
    EXPECT_EQ(result.image.place(0).file, "src/a.psm");
    EXPECT_EQ(result.image.place(0).line, 2);
    EXPECT_EQ(result.image.place(0).text, "start:  LOAD s0, LIMIT ; one");
    EXPECT_EQ(result.image.place(2).file, "b.psm");
    EXPECT_EQ(result.image.place(2).line, 2);
    EXPECT_EQ(result.image.place(0x3ff).text, "RETI ENABLE");
    EXPECT_EQ(result.image.depth, 1024);
    EXPECT_TRUE(result.messages.isEmpty());
}

TEST(Assembly, errorsHaveAPlace)
{
    const AssemblyResult result = assemble("LOAD s0, 1\nLOAD s0, nothing\n");
    EXPECT_FALSE(result.ok);
    EXPECT_TRUE(result.image.isEmpty());
    ASSERT_EQ(result.messages.size(), 1);
    EXPECT_EQ(result.messages.first().key, "errUnsupportedArgument");
    EXPECT_EQ(result.messages.first().file, "main.psm");
    EXPECT_EQ(result.messages.first().line, 2);
    EXPECT_EQ(result.messages.first().type, ModMsgHookIf::eMsgError);
    EXPECT_TRUE(result.firstError().startsWith("main.psm:2: ")) << qPrintable(result.firstError());
    EXPECT_FALSE(assemble("").ok);
    EXPECT_FALSE(assemble("").firstError().isEmpty());
    EXPECT_FALSE(Assembly(pb3).run({}).ok);
}

TEST(Assembly, warningsDoNotFail)
{
    const AssemblyResult result = assemble("#EQU UNUSED, 1\nLOAD s0, 1\n");
    EXPECT_TRUE(result.ok);
    EXPECT_EQ(result.firstError(), "");
    QStringList keys;
    for (const AssemblyMessage& message : result.messages)
        keys.append(message.key);
    EXPECT_EQ(keys, QStringList({"warnMissingInstrAtIntVectorAddr", "warnEquUnused"}));
}

TEST(Assembly, settingsOfTheProcessorAndTheAssembler)
{
    Assembly assembly(nsProc::xpBlze6Table());
    const QVector<AssemblySource> source = {{"a.psm", "LOAD s0, s1\nRDMEM s0, 0xFF\n#ORG ADDR, 0x7FF\nRET\n"}};
    EXPECT_FALSE(assembly.run(source).ok);
    assembly.settings.scrpdSize = 256;
    assembly.settings.pageSize = 2048;
    assembly.settings.intVectorAddr = 0x7ff;
    const AssemblyResult result = assembly.run(source);
    EXPECT_EQ(imageText(result.image), "000: 00010 0B0FF | 7FF: 25000") << qPrintable(result.firstError());
    EXPECT_TRUE(result.messages.isEmpty());
    EXPECT_EQ(result.image.depth, 2048);
    assembly.config.behaviorEqu = nsModAsmFe::AsmFeConfig::equError;
    EXPECT_FALSE(assembly.run({{"a.psm", "#EQU a, 1\n#EQU a, 2\nLOAD s0, a\n"}}).ok);
}

TEST(Assembly, eachPageHasTheSharedWords)
{
    const AssemblyResult result =
        assemble("#SET INSTMEM::PAGECOUNT, 2\n#ORG MEMRANGE, SHARED\n#ORG ADDR, 0x3FF\nRETI ENABLE\n"
                 "#ORG MEMRANGE, PAGE0\nLOAD s0, 1\n#ORG MEMRANGE, PAGE1\nLOAD s1, 1\n");
    EXPECT_EQ(imageText(result.image), "000: 00001 | 3FF: 38001 00101 | 7FF: 38001") << qPrintable(result.firstError());
    EXPECT_EQ(result.image.depth, 2048);
}

TEST(Assembly, anythingAsText)
{
    EXPECT_FALSE(assemble(QByteArray(100000, 'x')).ok);
    EXPECT_FALSE(assemble(QByteArray("LOAD s0, 1\n\xff\0", 13)).ok);
    EXPECT_TRUE(assemble("\xef\xbb\xbf"
                         "LOAD s0, 1 ; \xe4\r\n")
                    .ok);
    // Nothing of it is a file.
    EXPECT_TRUE(Assembly(pb3).run({{"etc/passwd", "LOAD s0, 1\n"}}).ok);
    EXPECT_TRUE(Assembly(pb3).run({{"a b#c%20.psm", "LOAD s0, 1\n"}}).ok);
    EXPECT_EQ(Assembly(pb3).run({{"a b#c%20.psm", "LOAD s0\n"}}).messages.value(0).file, "a b#c%20.psm");
}

TEST(ImageProof, allEqual)
{
    const ImageProof proof(pb3);
    const ProgramImage ours = assemble("LOAD s0, 5\nx: JUMP x\n").image;
    const ImageProofResult result = proof.compare(ours, imageOf({0x00005, 0x34001}));
    EXPECT_TRUE(result.equal);
    EXPECT_EQ(result.report(), QStringList("2 words, all equal"));
    EXPECT_EQ(proof.compare(imageOf({1}), imageOf({1})).report(), QStringList("1 word, all equal"));
}

TEST(ImageProof, aReferenceMayBeFilledWithZeros)
{
    const ImageProofResult result = ImageProof(pb3).compare(imageOf({5, 0x34001}), imageOf({5, 0x34001, 0, 0, 0}));
    EXPECT_TRUE(result.equal);
    EXPECT_EQ(result.filledCount, 3);
    EXPECT_EQ(
        result.report(),
        QStringList({"2 words, all equal",
                     "The reference has zeros in 3 words where the program has nothing, which is the same memory"}));
}

TEST(ImageProof, differencesShowBothSides)
{
    const ProgramImage ours = assemble("LOAD s0, 5\nwait: JUMP wait ; for ever\nRET\n").image;
    ProgramImage reference = imageOf({0x00005, 0x34002, 0x3fffe});
    reference.setText(1, "JUMP  next");
    const ImageProofResult result = ImageProof(pb3).compare(ours, reference);
    EXPECT_FALSE(result.equal);
    EXPECT_EQ(result.equalCount, 1);
    EXPECT_EQ(result.differenceCount, 2);
    ASSERT_EQ(result.first.size(), 2);
    EXPECT_EQ(result.first.at(0).address, 1);
    EXPECT_EQ(result.report(), QStringList({"2 words differ, 1 word equal",
                                            "001: program   34001 JUMP 0x001 (main.psm:2: wait: JUMP wait ; for ever)",
                                            "001: reference 34002 JUMP 0x002 (reference:2: JUMP next)",
                                            "002: program   2A000 RET (main.psm:3: RET)",
                                            "002: reference 3FFFE no instruction (reference:3)"}));
}

TEST(ImageProof, wordsThatOneSideLacksAreDifferences)
{
    const ImageProof proof(pb3);
    const ImageProofResult ours = proof.compare(imageOf({5, 0, 7}), imageOf({5}));
    EXPECT_FALSE(ours.equal);
    EXPECT_EQ(ours.onlyOursCount, 2);
    EXPECT_EQ(ours.report().value(1), "The reference lacks 2 words of the program");
    EXPECT_EQ(ours.report().value(2), "001: program   00000 LOAD s0, 0 (reference:2)");
    EXPECT_EQ(ours.report().value(3), "001: reference nothing");
    const ImageProofResult reference = proof.compare(imageOf({5}), imageOf({5, 0, 7}));
    EXPECT_FALSE(reference.equal);
    EXPECT_EQ(reference.onlyReferenceCount, 1);
    EXPECT_EQ(reference.filledCount, 1);
    EXPECT_EQ(reference.report().value(1), "The program lacks 1 word of the reference");
}

TEST(ImageProof, onlyTheFirstDifferencesAreShown)
{
    const ImageProofResult result = ImageProof(pb3, 2).compare(imageOf({1, 1, 1, 1, 1}), imageOf({2, 2, 1, 2, 2}));
    EXPECT_EQ(result.differenceCount, 4);
    EXPECT_EQ(result.first.size(), 2);
    EXPECT_EQ(result.report().size(), 6);
    EXPECT_EQ(result.report().last(), "... and 2 more");
}

TEST(ImageProof, nothingProvesNothing)
{
    const ImageProof proof(pb3);
    EXPECT_FALSE(proof.compare({}, {}).equal);
    EXPECT_FALSE(proof.compare({}, imageOf({0, 0})).equal);
    EXPECT_EQ(proof.compare({}, imageOf({0, 0})).report().first(),
              "Nothing was compared: the program and the reference have no word in common");
    EXPECT_FALSE(proof.compare(imageOf({1}, 0), imageOf({1}, 1)).equal);
}
