// --explain: the entry of a message, found from the place of the program file.

#include "AsmToolFixture.h"

namespace {

class AsmToolExplain : public AsmToolTest
{
protected:
    AsmToolExplain()
    {
        // A program file of its own, as the text is found from its folder.
        mkdir("opt/build/bin");
        EXPECT_TRUE(QFile::copy(NALVO_TOOL, path("opt/build/bin/nalvo-asm")));
    }

    static QByteArray entries()
    {
        return "errSyntax\tasmFeMessages\tMessages of the assembler\terrSyntax\n"
               "  Error: Syntax error.\n"
               "\n"
               "  The text does not have the form that is expected.\n"
               "\n"
               "      LOAD s0, 1 +\n"
               "errStack\tsim3\tMessages of simulator 3\terrStack\n"
               "  Error: Stack.\n"
               "errNoBank\tsim3\tMessages of simulator 3\terrNoBank\n"
               "  Only on 3.\n"
               "errStack\tsim6\tMessages of simulator 6\terrStack\n"
               "  Error: Stack.\n"
               "errNoBank\tsim6\tMessages of simulator 6\terrNoBank\n"
               "  Only on 6.\n"
               "noFile\tprj\tMessages of projects\tProject file does not exist:\n"
               "  There is no file of this name. \xC3\xBC\n";
    }

    void install(const QString& folder, const QByteArray& text = entries()) const
    {
        write(folder + "/messages.txt", text);
    }

    AsmToolResult explain(const QString& key) const
    {
        AsmToolSetup changed = setup();
        changed.program = path("opt/build/bin/nalvo-asm");
        return run({"--explain", key}, changed);
    }
};

const QByteArray syntaxEntry = "errSyntax  (Messages of the assembler)\n"
                               "\n"
                               "Error: Syntax error.\n"
                               "\n"
                               "The text does not have the form that is expected.\n"
                               "\n"
                               "    LOAD s0, 1 +\n";

TEST_F(AsmToolExplain, PrintsTheEntryOfAKeyInAnyCase)
{
    install("opt/build/hlp");
    for (const char* key : {"errSyntax", "ERRSYNTAX", "errsyntax", " [errSyntax] "}) {
        const AsmToolResult result = explain(key);
        EXPECT_EQ(result.status, 0) << key;
        EXPECT_EQ(result.out, syntaxEntry) << key;
        EXPECT_EQ(result.err, QByteArray()) << key;
    }
}

TEST_F(AsmToolExplain, TheTextIsFoundFromTheProgramFileTheNearestFirst)
{
    for (const char* folder : {"opt/Common/hlp", "opt/hlp", "opt/build/hlp"}) {
        install(folder, QByteArray("errSyntax\tp\tPage\terrSyntax\n  In ") + folder + ".\n");
        EXPECT_EQ(explain("errSyntax").out, QByteArray("errSyntax  (Page)\n\nIn ") + folder + ".\n");
    }
    // A link elsewhere leads to the same.
    ASSERT_TRUE(QFile::link(path("opt/build/bin/nalvo-asm"), path("asm")));
    AsmToolSetup changed = setup();
    changed.program = path("asm");
    EXPECT_EQ(run({"--explain", "errSyntax"}, changed).out, "errSyntax  (Page)\n\nIn opt/build/hlp.\n");
}

TEST_F(AsmToolExplain, WhatSeveralProcessorsSayAlikeComesOnce)
{
    install("opt/hlp");
    EXPECT_EQ(explain("errStack").out,
              "errStack  (Messages of simulator 3, Messages of simulator 6)\n\nError: Stack.\n");
    EXPECT_EQ(explain("errNoBank").out, "errNoBank  (Messages of simulator 3)\n\nOnly on 3.\n\n\n"
                                        "errNoBank  (Messages of simulator 6)\n\nOnly on 6.\n");
}

TEST_F(AsmToolExplain, AMessageWithoutAKeyIsFoundByItsText)
{
    install("opt/hlp");
    const QByteArray entry = "Project file does not exist:  (Messages of projects)\n\n"
                             "There is no file of this name. \xC3\xBC\n";
    EXPECT_EQ(explain("project file does not exist").out, entry);
    EXPECT_EQ(explain("nofile").out, entry);
}

TEST_F(AsmToolExplain, AnUnknownKeyIsAnErrorWithThoseThatComeNear)
{
    install("opt/hlp");
    const auto expectError = [this](const QString& key, const QString& text) {
        const AsmToolResult result = explain(key);
        EXPECT_EQ(result.status, 2);
        EXPECT_EQ(result.out, QByteArray());
        EXPECT_EQ(result.errLines(), QStringList({"nalvo-asm: " + text, "nalvo-asm: try nalvo-asm --help"}));
    };
    expectError("errSyntx", "No message has the key errSyntx. Similar: errSyntax");
    expectError("stack", "No message has the key stack. Similar: errStack");
    expectError("bank", "No message has the key bank. Similar: errNoBank");
    expectError("quartz", "No message has the key quartz.");
    expectError(QString(200, 'x'), "No message has the key " + QString(200, 'x') + ".");
}

TEST_F(AsmToolExplain, WithoutTheTextTheErrorSaysWhereItShouldBe)
{
    const AsmToolResult result = explain("errSyntax");
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.out, QByteArray());
    EXPECT_EQ(result.errLines(),
              QStringList(QString("nalvo-asm: The help of the messages is not installed. Looked for: %1, %2, %3")
                              .arg(path("opt/build/hlp/messages.txt"), path("opt/hlp/messages.txt"),
                                   path("opt/Common/hlp/messages.txt"))));
}

TEST_F(AsmToolExplain, ATextThatIsNoneIsAnError)
{
    install("opt/hlp", "");
    EXPECT_EQ(explain("errSyntax").status, 2);
    EXPECT_EQ(explain("errSyntax").errLines(),
              QStringList("nalvo-asm: No entries of messages in " + path("opt/hlp/messages.txt")));
    install("opt/hlp", QByteArray(1000, '\0') + "\n\xFF\xFE\t\t\n");
    const AsmToolResult foreign = explain("errSyntax");
    EXPECT_EQ(foreign.status, 2);
    EXPECT_TRUE(foreign.err.contains("No message has the key errSyntax.")) << foreign.err.constData();
    mkdir("opt/build/hlp/messages.txt");
    const AsmToolResult folder = explain("errSyntax");
    EXPECT_EQ(folder.status, 2);
    EXPECT_TRUE(folder.err.contains("Can not read " + path("opt/build/hlp/messages.txt").toUtf8()))
        << folder.err.constData();
}

} // namespace
