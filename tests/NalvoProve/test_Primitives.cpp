// The models of the primitives: by a bench of their own, and in a core that is made of some of them.

#include "ProveToolFixture.h"

namespace {

const QString models = QStringLiteral(NALVO_SOURCE_DIR "/tools/nalvo-prove/hdl/");
const QString benches = QStringLiteral(NALVO_SOURCE_DIR "/tests/NalvoProve/hdl/");

class ProvePrimitives : public ProveToolTest, public testing::WithParamInterface<Language>
{
protected:
    void SetUp() override { SKIP_WITHOUT(GetParam()); }

    /// @return what a tool prints
    AsmToolResult call(const QString& tool, const QStringList& arguments) const
    {
        AsmToolSetup own = setup();
        own.program = QStandardPaths::findExecutable(tool);
        return run(arguments, own);
    }
};

} // namespace

TEST_P(ProvePrimitives, DoWhatTheirDocumentsSay)
{
    if (GetParam() == Language::Verilog) {
        const AsmToolResult compiled =
            call("iverilog", {"-g2005", "-Wall", "-Wno-timescale", "-s", "primitives_tb", "-o", "t.vvp",
                              benches + "primitives_tb.v", models + "primitives.v"});
        EXPECT_EQ(compiled.status, 0) << compiled.err.constData();
        EXPECT_EQ(call("vvp", {"-n", "t.vvp"}).out, "PASSED\n");
        return;
    }
    ASSERT_EQ(call("ghdl", {"-a", "--std=93", "--work=unisim", models + "unisim.vhd"}).status, 0);
    const AsmToolResult compiled =
        call("ghdl", {"-a", "--std=93", "-P.", "--syn-binding", benches + "primitives_tb.vhd"});
    ASSERT_EQ(compiled.status, 0) << compiled.err.constData();
    EXPECT_EQ(call("ghdl", {"-r", "--std=93", "-P.", "--syn-binding", "primitives_tb"}).out, "PASSED\n");
}

TEST_P(ProvePrimitives, ACoreMayBeMadeOfThem)
{
    writeProgram(Core::PicoBlaze3, "loop:\n        ADD     s0, 7\n        WRPRT   s0, 2\n        JUMP    loop\n");
    // The address goes through truth tables; an inverter in one of their places must show.
    const bool isVerilog = GetParam() == Language::Verilog;
    const QByteArray direct = isVerilog ? "assign address       = pc;" : "address       <= std_logic_vector(pc);";
    const QByteArray table = isVerilog ? "genvar n; generate for (n = 0; n < 10; n = n + 1) begin : through LUT1 "
                                         "#(.INIT (2'b10)) l (.O (address[n]), "
                                         ".I0 (pc[n])); end endgenerate"
                                       : "through : for n in 0 to 9 generate l : LUT1 generic map (INIT => \"10\") "
                                         "port map (O => address(n), I0 => "
                                         "pc(n)); end generate;";
    QByteArray core = changed(Core::PicoBlaze3, GetParam(), direct, table);
    if (!isVerilog)
        core.replace("entity kcpsm3 is", "library unisim;\nuse unisim.vcomponents.all;\n\nentity kcpsm3 is");
    const QString name = isVerilog ? "kcpsm3.v" : "kcpsm3.vhd";
    write(name, core);
    const AsmToolResult result = run({"--core", name, "-n", "50", "p.nalvo"});
    EXPECT_EQ(result.status, 0) << result.out.constData() << result.err.constData();
    write(name, core.replace(isVerilog ? "2'b10" : "\"10\"", isVerilog ? "2'b01" : "\"01\""));
    EXPECT_NE(run({"--core", name, "-n", "50", "p.nalvo"}).status, 0);
    // One that there is no model of is a hole in the core.
    write(name, QByteArray(core).replace("LUT1", "LUT9"));
    const AsmToolResult hole = run({"--core", name, "-n", "50", "p.nalvo"});
    EXPECT_EQ(hole.status, 2) << hole.out.constData();
    EXPECT_TRUE(hole.err.toUpper().contains("LUT9")) << hole.err.constData();
}

INSTANTIATE_TEST_SUITE_P(Languages, ProvePrimitives, testing::ValuesIn(allLanguages), nameOfLanguage);
