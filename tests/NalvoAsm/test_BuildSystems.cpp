// The examples for build systems, as they come, and the function for CMake.

#include "BuildFixture.h"
#include "ExampleFolder.h"

namespace {

const char* const project = "examples/uart_monitor/uart_monitor.nalvo";
const char* const source = "examples/uart_monitor/src/main.psm";

class BuildSystems : public AsmBuildTest
{
protected:
    BuildSystems()
    {
        copyFolder(NALVO_SOURCE_DIR "/examples/uart_monitor", path("examples/uart_monitor"));
        copyFolder(NALVO_SOURCE_DIR "/examples/build_systems", path("examples/build_systems"));
        m_before = snapshot(path("examples"));
    }

    /// All that a run reads.
    QStringList inputs() const
    {
        QStringList result = {project};
        for (const QString& name : QDir(path("examples/uart_monitor/src")).entryList({"*.psm"}))
            result.append("examples/uart_monitor/src/" + name);
        EXPECT_GE(result.size(), 4);
        return result;
    }

    /// The build writes into its own folder alone. Times do not count: the test has changed them.
    void expectExamplesUnchanged() const
    {
        QStringList now;
        for (const QString& line : snapshot(path("examples")))
            now.append(line);
        EXPECT_EQ(now.size(), m_before.size());
    }

    QByteArray expectedHex() const
    {
        const AsmToolResult result = run({"-q", "-e", "none", "-o", "hex=expected.hex", project});
        EXPECT_EQ(result.status, 0) << result.err.constData();
        return read("expected.hex");
    }

    QStringList m_before;
};

class BuildSystemsCMake : public BuildSystems, public ::testing::WithParamInterface<const char*>
{
protected:
    AsmToolResult configure(const QString& folder = "examples/build_systems") const
    {
        return call("cmake", {"-S", path(folder), "-B", path("build"), "-G", GetParam(),
                              "-DNalvo_DIR=" NALVO_SOURCE_DIR "/dist/cmake"});
    }
    AsmToolResult build(const QStringList& arguments = {}) const
    {
        return call("cmake", QStringList{"--build", path("build")} + arguments);
    }
    /// Configures a project with these lines behind find_package().
    AsmToolResult configureText(const QByteArray& lines) const
    {
        write("own/CMakeLists.txt", "cmake_minimum_required(VERSION 3.20)\nproject(Own LANGUAGES NONE)\n"
                                    "find_package(Nalvo REQUIRED)\n" +
                                        lines);
        return configure("own");
    }
    void expectNotConfigured(const QByteArray& lines, const QByteArray& reason) const
    {
        const AsmToolResult result = configureText(lines);
        EXPECT_NE(result.status, 0) << lines.constData();
        EXPECT_TRUE(result.err.simplified().contains(reason)) << result.err.constData();
    }
};

INSTANTIATE_TEST_SUITE_P(Generators, BuildSystemsCMake, ::testing::Values("Ninja", "Unix Makefiles"),
                         [](const auto& generator) { return QString(generator.param).remove(' ').toStdString(); });

/// What does not depend on the build tool.
class BuildSystemsConfigure : public BuildSystemsCMake
{
};

INSTANTIATE_TEST_SUITE_P(Once, BuildSystemsConfigure, ::testing::Values("Ninja"));

/// One build for all of this: to configure takes longer than to assemble.
TEST_P(BuildSystemsCMake, TheExampleFollowsAllThatItReadsAndEndsAtAnError)
{
    const AsmToolResult configured = configure();
    ASSERT_EQ(configured.status, 0) << configured.err.constData();
    expectRebuilt([this] { return build(); }, inputs());
    EXPECT_EQ(read("build/rom.hex"), expectedHex());
    EXPECT_TRUE(read("build/rom.mif").startsWith("DEPTH = 1024;\nWIDTH = 18;\n"));
    EXPECT_TRUE(read("build/rom.lst").startsWith("0000 PAGE0 000 "));
    EXPECT_TRUE(exists("build/rom.ihex"));
    // The rule behind it sees the file that its target names.
    EXPECT_TRUE(read("build/rom.sha256").contains("rom.hex"));
    expectExamplesUnchanged();

    // An output that is missing.
    const int before = runs();
    ASSERT_TRUE(QFile::remove(path("build/rom.mif")));
    ASSERT_EQ(build().status, 0);
    EXPECT_EQ(runs(), before + 1);
    EXPECT_TRUE(exists("build/rom.mif"));

    // An error ends the build, each time, and is shown.
    const QByteArray good = read(source);
    write(source, good + "\n        JUMP nowhere_at_all\n");
    setAge(source, 1000);
    for (int i = 0; i < 2; ++i) {
        const AsmToolResult failed = build();
        EXPECT_NE(failed.status, 0);
        EXPECT_TRUE((failed.out + failed.err).contains("main.psm:")) << failed.out.constData();
        EXPECT_TRUE((failed.out + failed.err).contains("nowhere_at_all"));
    }
    write(source, good);
    setAge(source, 1000);
    EXPECT_EQ(build().status, 0);
    EXPECT_EQ(read("build/rom.hex"), expectedHex());
}

TEST_P(BuildSystemsCMake, WhatTheProjectWritesAndATemplate)
{
    writeProject(AsmProject().output("hex", "out/r.hex").vhdl("t.vhd", "out/r.vhd"), "own/p.nalvo");
    write("own/a.psm", "#EQU unused, 1\n" + goodSource());
    write("own/t.vhd", vhdlTemplate("one\n"));
    write("own/more.txt", "");
    ASSERT_EQ(configureText("nalvo_add_rom(rom ALL PROJECT p.nalvo WRITES out/r.hex out/r.vhd SYMBOLS deep/r.json "
                            "DEPENDS more.txt)\n")
                  .status,
              0);
    expectRebuilt([this] { return build(); }, {"own/p.nalvo", "own/a.psm", "own/t.vhd", "own/more.txt"});
    EXPECT_EQ(read("own/out/r.hex"), hexText());
    EXPECT_TRUE(exists("build/deep/r.json"));
    // Warnings as errors: the build fails now.
    ASSERT_EQ(configureText("nalvo_add_rom(rom ALL WERROR PROJECT p.nalvo WRITES out/r.hex)\n").status, 0);
    const AsmToolResult failed = build();
    EXPECT_NE(failed.status, 0);
    EXPECT_TRUE((failed.out + failed.err).contains("warnEquUnused")) << failed.out.constData();
}

TEST_P(BuildSystemsCMake, WithoutAllNothingIsBuiltUntilItIsWanted)
{
    writeGoodProject();
    ASSERT_EQ(configureText("nalvo_add_rom(rom PROJECT ../p.nalvo OUTPUT binary:big:32=r.bin)\n").status, 0);
    ASSERT_EQ(build().status, 0);
    EXPECT_EQ(runs(), 0);
    ASSERT_EQ(build({"--target", "rom"}).status, 0);
    EXPECT_EQ(runs(), 1);
    EXPECT_EQ(read("build/r.bin").size(), 4096);
    EXPECT_FALSE(exists("out.hex")) << "without WRITES the project writes nothing";
}

TEST_P(BuildSystemsConfigure, WrongArgumentsSayWhatIsWrong)
{
    writeGoodProject();
    expectNotConfigured("nalvo_add_rom(rom OUTPUT hex=r.hex)\n", "nalvo_add_rom(rom): PROJECT is missing");
    expectNotConfigured("nalvo_add_rom(rom PROJECT none.nalvo OUTPUT hex=r.hex)\n", "there is no project file");
    expectNotConfigured("nalvo_add_rom(rom PROJECT ../p.nalvo)\n", "no file is written");
    expectNotConfigured("nalvo_add_rom(rom PROJECT ../p.nalvo OUTPUT r.hex)\n",
                        "an OUTPUT is KIND[:OPTION...]=FILE: r.hex");
    expectNotConfigured("nalvo_add_rom(rom PROJECT ../p.nalvo OUTPUT hex={DEVICE}.hex)\n", "an OUTPUT is KIND");
    expectNotConfigured("nalvo_add_rom(rom PROJECT ../p.nalvo OUTPUT hex=r.hex LISTING)\n", "no value for LISTING");
    expectNotConfigured("nalvo_add_rom(rom PROJECT ../p.nalvo OUTPUT hex=r.hex mif=./r.hex)\n",
                        "two outputs go to the same file");
    expectNotConfigured("nalvo_add_rom(rom PROJECT ../p.nalvo OUTPUT hex=r.hex EVENT button3)\n",
                        "EVENT is button1, button2, save or none: button3");
    expectNotConfigured("nalvo_add_rom(rom x PROJECT ../p.nalvo OUTPUT hex=r.hex)\n", "unknown arguments: x");
}

TEST_F(BuildSystems, TheMakefileFollowsAllThatItReads)
{
    expectRebuilt([this] { return call("make", {"BUILD=" + path("rom")}, "examples/build_systems"); }, inputs());
    EXPECT_EQ(read("rom/rom.hex"), expectedHex());
    EXPECT_TRUE(exists("rom/rom.mif"));
    expectExamplesUnchanged();
    const AsmToolResult check = call("make", {"check"}, "examples/build_systems");
    EXPECT_EQ(check.status, 0) << check.err.constData();
}

TEST_F(BuildSystems, TheMakefileMakesAMissingOutputAnew)
{
    const auto build = [this] { return call("make", {"BUILD=" + path("rom")}, "examples/build_systems").status; };
    ASSERT_EQ(build(), 0);
    ASSERT_EQ(runs(), 1);
    for (const char* file : {"rom/rom.mif", "rom/rom.hex"}) {
        ASSERT_TRUE(QFile::remove(path(file)));
        ASSERT_EQ(build(), 0);
        EXPECT_TRUE(exists(file));
    }
    EXPECT_EQ(runs(), 3);
}

TEST_F(BuildSystems, TheMakefileLeavesNothingAfterAnError)
{
    write(source, read(source) + "\n        JUMP nowhere_at_all\n");
    for (int i = 0; i < 2; ++i) {
        const AsmToolResult failed = call("make", {"BUILD=" + path("rom")}, "examples/build_systems");
        EXPECT_EQ(failed.status, 2);
        EXPECT_TRUE(failed.err.contains("nowhere_at_all")) << failed.err.constData();
    }
    EXPECT_FALSE(exists("rom/rom.hex"));
}

TEST_F(BuildSystems, NinjaFollowsAllThatItReads)
{
    mkdir("examples/build_systems/build");
    expectRebuilt([this] { return call("ninja", {"-f", "../build.ninja"}, "examples/build_systems/build"); }, inputs());
    EXPECT_EQ(read("examples/build_systems/build/rom.hex"), expectedHex());
    EXPECT_TRUE(exists("examples/build_systems/build/rom.mif"));
}

TEST_F(BuildSystems, TheInstalledPackageFindsTheProgramBesideIt)
{
    write("dist/CMakeLists.txt", "cmake_minimum_required(VERSION 3.20)\nproject(Dist VERSION 1.2 LANGUAGES NONE)\n"
                                 "add_subdirectory(" NALVO_SOURCE_DIR "/dist/cmake cmake)\n");
    // In folders that are not the usual ones; then the whole is moved.
    ASSERT_EQ(call("cmake", {"-S", path("dist"), "-B", path("dist-build"), "-DCMAKE_INSTALL_BINDIR=games",
                             "-DCMAKE_INSTALL_DATADIR=data/of all"})
                  .status,
              0);
    const AsmToolResult installed = call("cmake", {"--install", path("dist-build"), "--prefix", path("first")});
    ASSERT_EQ(installed.status, 0) << installed.err.constData();
    mkdir("first/games");
    ASSERT_TRUE(QFile::link(NALVO_ASM, path("first/games/nalvo-asm")));
    ASSERT_TRUE(QDir().rename(path("first"), path("the other")));
    write("own/CMakeLists.txt", "cmake_minimum_required(VERSION 3.20)\nproject(Own LANGUAGES NONE)\n"
                                "find_package(Nalvo 1.1 REQUIRED)\n"
                                "nalvo_add_rom(rom ALL PROJECT ../" +
                                    QByteArray(project) + " OUTPUT hex=rom.hex)\n");
    const QString package = "-DNalvo_DIR=" + path("the other/data/of all/cmake/Nalvo");
    const AsmToolResult configured = call("cmake", {"-S", path("own"), "-B", path("build"), package});
    ASSERT_EQ(configured.status, 0) << configured.err.constData();
    EXPECT_TRUE(read("build/CMakeCache.txt").contains(path("the other/games/nalvo-asm").toUtf8()));
    ASSERT_EQ(call("cmake", {"--build", path("build")}).status, 0);
    EXPECT_EQ(read("build/rom.hex"), expectedHex());
    // A newer release than the installed one is another package.
    write("own/CMakeLists.txt", "cmake_minimum_required(VERSION 3.20)\nproject(Own LANGUAGES NONE)\n"
                                "find_package(Nalvo 1.3 REQUIRED)\n");
    EXPECT_NE(call("cmake", {"-S", path("own"), "-B", path("newer"), package}).status, 0);
}

/// As FuseSoC calls it: with a YAML file, in a folder of its own.
TEST_F(BuildSystems, TheGeneratorWritesTheFilesAndTheirCore)
{
    const auto generate = [this](const QByteArray& parameters) {
        write("work/job.yml", "files_root: " + path("examples/build_systems").toUtf8() +
                                  "\ngapi: '1.0'\nvlnv: ::nalvo_example-rom:0\nparameters:\n" + parameters);
        return call("python3", {path("examples/build_systems/nalvo_generator.py"), "job.yml"}, "work");
    };
    const AsmToolResult result = generate("  project: ../uart_monitor/uart_monitor.nalvo\n"
                                          "  outputs: ['hex=rom.hex', 'ihex:big=rom.ihex']\n");
    ASSERT_EQ(result.status, 0) << result.err.constData();
    EXPECT_EQ(read("work/rom.hex"), expectedHex());
    EXPECT_TRUE(exists("work/rom.ihex"));
    EXPECT_EQ(read("work/nalvo_rom.core"), "CAPI=2:\nname: ::nalvo_example-rom:0\nfilesets:\n  rom:\n    files:\n"
                                           "    - rom.hex:\n        file_type: user\n"
                                           "    - rom.ihex:\n        file_type: user\n"
                                           "targets:\n  default:\n    filesets:\n    - rom\n");
    expectExamplesUnchanged();
    ASSERT_TRUE(QFile::remove(path("work/nalvo_rom.core")));
    const AsmToolResult failed = generate("  project: none.nalvo\n  outputs: ['hex=rom.hex']\n");
    EXPECT_EQ(failed.status, 2);
    EXPECT_TRUE(failed.err.contains("Project file does not exist")) << failed.err.constData();
    const AsmToolResult folder = generate("  project: none.nalvo\n  outputs: ['hex=../rom.hex']\n");
    EXPECT_NE(folder.status, 0);
    EXPECT_FALSE(exists("work/nalvo_rom.core"));
}

} // namespace
