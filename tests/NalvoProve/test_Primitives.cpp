// The models of the primitives: by a bench of their own, and in a core that is made of some of them.

#include "ProveToolFixture.h"

#include <QRegularExpression>

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
    const struct
    {
        const char* bench;
        const char* verilog;
        const char* vhdl;
        const char* library;
    } cases[] = {{"primitives_tb", "primitives.v", "unisim.vhd", "unisim"},
                 {"chains_tb", "primitives.v", "unisim.vhd", "unisim"},
                 {"lattice_tb", "lattice.v", "lattice.vhd", "machxo2"}};
    for (const auto& each : cases) {
        const QString bench = each.bench;
        if (GetParam() == Language::Verilog) {
            const AsmToolResult compiled = call("iverilog", {"-g2005", "-Wall", "-Wno-timescale", "-s", bench, "-o",
                                                             "t.vvp", benches + bench + ".v", models + each.verilog});
            EXPECT_EQ(compiled.status, 0) << compiled.err.constData();
            EXPECT_EQ(compiled.err, "") << each.bench;
            EXPECT_EQ(call("vvp", {"-n", "t.vvp"}).out, "PASSED\n") << each.bench;
            continue;
        }
        for (const char* standard : {"--std=93", "--std=08"}) {
            const QString work = QString("--work=") + each.library;
            ASSERT_EQ(call("ghdl", {"-a", standard, work, models + each.vhdl}).status, 0) << each.vhdl;
            const AsmToolResult compiled =
                call("ghdl", {"-a", standard, "-P.", "--syn-binding", benches + bench + ".vhd"});
            ASSERT_EQ(compiled.status, 0) << compiled.err.constData();
            EXPECT_EQ(call("ghdl", {"-r", standard, "-P.", "--syn-binding", bench}).out, "PASSED\n") << each.bench;
        }
    }
}

TEST_P(ProvePrimitives, EachIsInABench)
{
    const bool isVerilog = GetParam() == Language::Verilog;
    const auto textOf = [](const QString& name) {
        QFile file(name);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
        return QString::fromLatin1(file.readAll());
    };
    const std::pair<const char*, QStringList> libraries[] = {
        {isVerilog ? "primitives.v" : "unisim.vhd", {"primitives_tb", "chains_tb"}},
        {isVerilog ? "lattice.v" : "lattice.vhd", {"lattice_tb"}}};
    for (const auto& [library, users] : libraries) {
        QString used;
        for (const QString& user : users)
            used += textOf(benches + user + (isVerilog ? ".v" : ".vhd"));
        const QRegularExpression unit(isVerilog ? R"(^module (\w+))" : R"(^entity (\w+) is)",
                                      QRegularExpression::MultilineOption);
        int count = 0;
        for (auto matches = unit.globalMatch(textOf(models + library)); matches.hasNext(); ++count) {
            const QString name = matches.next().captured(1);
            const bool isOurs = name.startsWith("prove_");
            EXPECT_TRUE(isOurs || QRegularExpression("\\b" + name + "\\b").match(used).hasMatch())
                << name.toStdString();
        }
        EXPECT_GE(count, 29);
    }
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
    QByteArray right = core;
    const QString name = isVerilog ? "kcpsm3.v" : "kcpsm3.vhd";
    write(name, core);
    const AsmToolResult result = run({"--core", name, "-n", "50", "p.nalvo"});
    EXPECT_EQ(result.status, 0) << result.out.constData() << result.err.constData();
    write(name, core.replace(isVerilog ? "2'b10" : "\"10\"", isVerilog ? "2'b01" : "\"01\""));
    EXPECT_NE(run({"--core", name, "-n", "50", "p.nalvo"}).status, 0);
    // One that there is no model of is a hole in the core, and is named.
    write(name, QByteArray(core).replace("LUT1", "LUT9"));
    const AsmToolResult hole = run({"--core", name, "-n", "50", "p.nalvo"});
    EXPECT_EQ(hole.status, 2) << hole.out.constData();
    EXPECT_TRUE(
        hole.err.toUpper().contains("NALVO-PROVE: THE CORE USES WHAT IS NEITHER IN ITS FILES NOR AMONG THE MODELS OF "
                                    "NALVO-PROVE: LUT9\n"))
        << hole.err.constData();
    // A user's own model is taken instead, beside those that the user has not.
    const QByteArray own = isVerilog ? "module LUT1 #(parameter [1:0] INIT = 0) (output O, input I0); assign O = I0; "
                                       "endmodule\n"
                                     : "";
    if (isVerilog)
        right.replace("endmodule", "wire spare; LUT2 spare_table (.O (spare), .I0 (1'b0), .I1 (1'b0)); endmodule");
    write(name, right + own);
    const AsmToolResult mixed = run({"--core", name, "-n", "50", "p.nalvo"});
    EXPECT_EQ(mixed.status, 0) << mixed.err.constData();
}

TEST_P(ProvePrimitives, AMico8MayBeMadeOfThem)
{
    writeProgram(Core::Mico8,
                 "        NOP\nloop:\n        ADD     r1, 7\n        WRPRT   r1, 2\n        JUMP    loop\n");
    const bool isVerilog = GetParam() == Language::Verilog;
    // What is written goes through a multiplexer that takes the right one of two.
    const QByteArray model = changed(Core::Mico8, GetParam(), "", "");
    const QByteArray direct = isVerilog ? "assign ext_dout" : "    ext_dout  <=";
    ASSERT_EQ(model.count(direct), 1);
    QByteArray core = model;
    core.replace(direct, isVerilog ? "assign inside" : "    inside <=");
    if (isVerilog) {
        core.replace("endmodule",
                     "wire [7:0] inside; genvar n; generate for (n = 0; n < 8; n = n + 1) begin : through\n"
                     "PFUMX mux (.ALUT (inside[n]), .BLUT (1'b0), .C0 (1'b1), .Z (ext_dout[n]));\n"
                     "end endgenerate\nendmodule");
    } else {
        core.replace("architecture behaviour of lm8 is\n", "library machxo2;\nuse machxo2.components.all;\n\n"
                                                           "architecture behaviour of lm8 is\n"
                                                           "    signal inside : std_logic_vector(7 downto 0);\n");
        core.replace("end architecture behaviour;",
                     "    through : for n in 0 to 7 generate\n"
                     "        mux : PFUMX port map (ALUT => inside(n), BLUT => '0', C0 => '1', Z => ext_dout(n));\n"
                     "    end generate;\nend architecture behaviour;");
    }
    const QString name = isVerilog ? "lm8.v" : "lm8.vhd";
    write(name, core);
    const AsmToolResult result = run({"--core", name, "-n", "50", "p.nalvo"});
    EXPECT_EQ(result.status, 0) << result.out.constData() << result.err.constData();
    write(name,
          QByteArray(core).replace(isVerilog ? ".C0 (1'b1)" : "C0 => '1'", isVerilog ? ".C0 (1'b0)" : "C0 => '0'"));
    EXPECT_EQ(run({"--core", name, "-n", "50", "p.nalvo"}).status, 1);
    write(name, QByteArray(core).replace("PFUMX", "pmi_what"));
    const AsmToolResult hole = run({"--core", name, "-n", "50", "p.nalvo"});
    EXPECT_EQ(hole.status, 2);
    EXPECT_TRUE(hole.err.contains("nor among the models of nalvo-prove: pmi_what\n")) << hole.err.constData();
}

INSTANTIATE_TEST_SUITE_P(Languages, ProvePrimitives, testing::ValuesIn(allLanguages), nameOfLanguage);
