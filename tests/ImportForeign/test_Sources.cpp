// The sources of the result: one for each file, in an order in which addresses ascend; comments and columns are kept.

#include "ForeignFixture.h"

namespace {

class ImportSources : public ForeignTest
{
};

TEST_F(ImportSources, AnIncludedFileIsASource)
{
    write("sub/consts.psm", "CONSTANT led, 01\n");
    ASSERT_TRUE(import(Dialect::eKcpsm6, "INCLUDE \"sub/consts.psm\"\nOUTPUT s0, led\n")) << messages().toStdString();
    EXPECT_EQ(words().toStdString(), "2D001");
    EXPECT_EQ(sourceNames(), "src/consts.psm src/main.psm");
    EXPECT_EQ(source(1).toStdString(), "; INCLUDE \"sub/consts.psm\"\nWRPRT s0, led\n");
}

TEST_F(ImportSources, DefinitionsInTheMiddleSplitNoFile)
{
    write("consts.psm", "CONSTANT led, 01\n");
    ASSERT_TRUE(import(Dialect::eKcpsm6, "LOAD s0, 1\nINCLUDE \"consts.psm\"\nOUTPUT s0, led\n"));
    EXPECT_EQ(words().toStdString(), "01001 2D001");
    EXPECT_EQ(sourceNames(), "src/consts.psm src/main.psm");
}

TEST_F(ImportSources, CodeInTheMiddleSplitsTheFile)
{
    write("uart.psm", "send: OUTPUT s0, 01\nRETURN\n");
    ASSERT_TRUE(import(Dialect::eKcpsm6, "CONSTANT a, 5\nmain: CALL send\nINCLUDE \"uart.psm\"\nlast: JUMP last\n"));
    EXPECT_EQ(words().toStdString(), "20001 2D001 25000 22003");
    EXPECT_EQ(sourceNames(), "src/main.psm src/uart.psm src/main_2.psm");
}

TEST_F(ImportSources, ALabelInFrontOfAnIncludedFileStandsAtItsFirstInstruction)
{
    write("uart.psm", "OUTPUT s0, 01\n");
    ASSERT_TRUE(import(Dialect::eKcpsm6, "JUMP there\nthere:\nINCLUDE \"uart.psm\"\nLOAD s0, 1\n"))
        << messages().toStdString();
    EXPECT_EQ(words().toStdString(), "22001 2D001 01001");
}

TEST_F(ImportSources, NestedFilesAreLookedForBesideWhoNamesThem)
{
    write("a/one.psm", "LOAD s1, 1\nINCLUDE \"b/two.psm\"\nLOAD s3, 3\n");
    write("a/b/two.psm", "LOAD s2, 2\n");
    ASSERT_TRUE(import(Dialect::eKcpsm6, "INCLUDE \"a\\one.psm\"\n")) << messages().toStdString();
    EXPECT_EQ(words().toStdString(), "01101 01202 01303");
    // Another case of the name is the same file where the old tools run.
    ASSERT_TRUE(import(Dialect::eKcpsm6, "INCLUDE \"a/ONE.PSM\"\n")) << messages().toStdString();
    EXPECT_EQ(words().toStdString(), "01101 01202 01303");
    EXPECT_TRUE(has("infoImpIncludeCase", 1));
}

TEST_F(ImportSources, AFileThatIsIncludedTwiceIsTwoSources)
{
    write("x.psm", "ADD s0, 1\n");
    ASSERT_TRUE(import(Dialect::eKcpsm6, "INCLUDE \"x.psm\"\nLOAD s1, 1\nINCLUDE \"x.psm\"\n"));
    EXPECT_EQ(words().toStdString(), "11001 01101 11001");
    EXPECT_EQ(sourceNames(), "src/x.psm src/main.psm src/x_2.psm");
}

TEST_F(ImportSources, FilesOfOneNameGetNamesOfTheirOwn)
{
    write("a/x.psm", "ADD s0, 1\n");
    write("b/X.psm", "ADD s0, 2\n");
    ASSERT_TRUE(import(Dialect::eKcpsm6, "INCLUDE \"a/x.psm\"\nINCLUDE \"b/X.psm\"\n"));
    EXPECT_EQ(words().toStdString(), "11001 11002");
    EXPECT_EQ(sourceNames(), "src/main.psm src/x.psm src/X_2.psm");
}

TEST_F(ImportSources, CodeOfOneFileAtAddressesOfAnother)
{
    write("isr.psm", "isr: RETURNI ENABLE\nADDRESS 3FF\nJUMP isr\n");
    ASSERT_TRUE(import(Dialect::eKcpsm6, "ADDRESS 300\nINCLUDE \"isr.psm\"\nADDRESS 000\nmain: JUMP main\nCALL isr\n"))
        << messages().toStdString();
    EXPECT_EQ(words().toStdString(), "22000 20300 @300 29001 @3FF 22300");
    EXPECT_EQ(sourceNames(), "src/main.psm src/isr.psm");
}

TEST_F(ImportSources, CommentsAndColumnsAreKept)
{
    ASSERT_TRUE(import(Dialect::eKcpsm3, "; Top\n"
                                         "\n"
                                         "  ; indented; twice\n"
                                         "start:  LOAD    s0, 0A          ; ten\n"
                                         "\tINPUT\ts1, (s2)\t; in\n"
                                         "a_long_label: JUMP start ; back\n"
                                         "        CONSTANT x, 1           ; one\n"
                                         "alone:                          ; label\n"
                                         "        RETURN                  ; out"));
    EXPECT_EQ(source().toStdString(), "; Top\n"
                                      "\n"
                                      "  ; indented; twice\n"
                                      "start:  LOAD    s0, 0x0A        ; ten\n"
                                      "        RDPRT   s1, (s2)        ; in\n"
                                      "a_long_label: JUMP start ; back\n"
                                      "        #EQU x, 0x1             ; one\n"
                                      "alone:                          ; label\n"
                                      "        RET                     ; out\n");
}

TEST_F(ImportSources, LinesOfTheResultKnowTheirOrigin)
{
    write("sub.psm", "\nSTRING s$, \"ab\"\nOUTPUTK s$, 1\n");
    ASSERT_TRUE(import(Dialect::eKcpsm6, "JUMP 000\nINCLUDE \"sub.psm\"\n"));
    const nsImport::ProgramImage::Place place = m_import->image().place(2);
    const nsImport::ForeignStatement* origin = m_import->origin(place.file, place.line);
    ASSERT_NE(origin, nullptr);
    EXPECT_EQ(origin->line, 3);
    EXPECT_EQ(m_import->program().files.at(origin->file).path, path("sub.psm"));
    EXPECT_EQ(m_import->origin("src/main.psm", 1)->line, 1); // the label that was made
    EXPECT_EQ(m_import->origin("src/none.psm", 1), nullptr);
    EXPECT_EQ(m_import->origin("src/main.psm", 99), nullptr);
}

TEST_F(ImportSources, TheProjectNamesAllOfIt)
{
    write("sub.psm", "FETCH s0, 7F\nADDRESS 7FF\nisr: RETURNI ENABLE\n");
    ASSERT_TRUE(import(Dialect::eKcpsm6, "main: JUMP main\nINCLUDE \"sub.psm\"\n")) << messages().toStdString();
    const QString project = QString::fromUtf8(m_import->project());
    EXPECT_TRUE(project.contains("PicoBlaze 6"));
    EXPECT_TRUE(project.contains("src&amp;#47;main.psm")) << project.toStdString();
    EXPECT_TRUE(project.contains("src&amp;#47;sub.psm"));
    EXPECT_TRUE(project.contains("main.hex"));
    EXPECT_TRUE(project.contains("<pageSize>2048</pageSize>")) << project.toStdString();
    EXPECT_TRUE(project.contains("<scrpdSize>128</scrpdSize>")) << project.toStdString();
    EXPECT_TRUE(project.contains("<intVectorAddr>2047</intVectorAddr>")) << project.toStdString();
}

TEST_F(ImportSources, LineEndsAndEncodings)
{
    const QByteArray latin1 = "LOAD s0, 1 ; \xe9\r\nLOAD s1, 2\r\n\x1a";
    ASSERT_TRUE(import(Dialect::eKcpsm3, latin1)) << messages().toStdString();
    EXPECT_EQ(source().toStdString(), "LOAD s0, 0x1 ; \xc3\xa9\nLOAD s1, 0x2\n");
    ASSERT_TRUE(import(Dialect::eKcpsm3, "\xef\xbb\xbfLOAD s0, 1 ; \xc3\xa9\rLOAD s1, 2\r"));
    EXPECT_EQ(source().toStdString(), "LOAD s0, 0x1 ; \xc3\xa9\nLOAD s1, 0x2\n");
}

} // namespace
