// What the window does with the command line.

#include "MainWindowFixture.h"

#include <QProcess>

namespace {

class CommandLineTest : public MainWindowFixture
{
protected:
    /// Starts the window with these arguments. @return its report, one line an entry
    QStringList run(const QStringList& arguments)
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("XDG_CONFIG_HOME", settingsDir());
        environment.insert("QT_QPA_PLATFORM", "offscreen");
        // Leaks of a process that ends in the middle of its work say nothing.
        environment.insert("ASAN_OPTIONS", "detect_leaks=0");
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(projectDir());
        process.start(QStringLiteral(NALVO_BINARY_DIR "/nalvo-args-probe"), arguments);
        EXPECT_TRUE(process.waitForFinished(60000));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().constData();
        return QString::fromUtf8(process.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
    }
    void writeProject(const QString& name)
    {
        writeFile(name, "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n"
                        "<project version=\"3\">\n</project>\n");
    }
};

bool mentions(const QStringList& report, const QString& text)
{
    return !report.filter(text).isEmpty();
}

} // namespace

TEST_F(CommandLineTest, NothingOpensNothing)
{
    const QStringList report = run({});
    EXPECT_TRUE(report.contains("visible: 1"));
    EXPECT_TRUE(report.contains("project: "));
    EXPECT_FALSE(mentions(report, "message: Open project"));
}

TEST_F(CommandLineTest, AProjectIsOpened)
{
    writeProject("a.nalvo");
    const QStringList report = run({"a.nalvo"});
    EXPECT_TRUE(report.contains("project: a.nalvo")) << qPrintable(report.join('\n'));
    EXPECT_TRUE(report.contains("message: Open project: Done"));
}

TEST_F(CommandLineTest, TwoProjectsAreAnErrorAndTheWindowOpensEmpty)
{
    writeProject("a.nalvo");
    writeProject("b.nalvo");
    const QStringList report = run({"a.nalvo", "b.nalvo"});
    EXPECT_TRUE(report.contains("visible: 1"));
    EXPECT_TRUE(report.contains("project: "));
    EXPECT_TRUE(report.contains("message: Multiple project files defined: a.nalvo"));
    EXPECT_TRUE(report.contains("message: Multiple project files defined: b.nalvo"));
    EXPECT_FALSE(mentions(report, "message: Open project"));
}

TEST_F(CommandLineTest, AnUnknownArgumentKeepsAllElseFromRunning)
{
    writeProject("a.nalvo");
    const QStringList report = run({"a.nalvo", "-x"});
    EXPECT_TRUE(report.contains("project: "));
    EXPECT_TRUE(report.contains("message: Found unknown argument: -x"));
}

TEST_F(CommandLineTest, aScriptThatDoesNotExistIsReported)
{
    writeProject("a.nalvo");
    const QStringList report = run({"a.nalvo", "-s", "b.js"});
    EXPECT_TRUE(report.contains("project: a.nalvo"));
    EXPECT_TRUE(report.contains("message: Can not open script file: b.js")) << qPrintable(report.join('\n'));
}

TEST_F(CommandLineTest, AScriptBesideABrokenProjectIsNotEvenTried)
{
    const QStringList report = run({"missing.nalvo", "-s", "b.js"});
    EXPECT_TRUE(mentions(report, "message: Project file does not exist: "));
    EXPECT_FALSE(mentions(report, "b.js"));
}

TEST_F(CommandLineTest, AScriptOptionWithoutAFileDoesNothing)
{
    const QStringList report = run({"-s"});
    EXPECT_TRUE(report.contains("visible: 1"));
    EXPECT_FALSE(mentions(report, "script"));
}

TEST_F(CommandLineTest, whatTheStartReportsOutlivesTheOpeningOfItsProject)
{
    writeProject("a.nalvo");
    const QString gone = projectDir() + "/gone.nalvo";
    writeSetting("PrjMngr/collection", gone);
    const QStringList report = run({"a.nalvo"});
    EXPECT_TRUE(report.contains("message: Assembling..."));
    EXPECT_TRUE(report.contains(
        QString("message: Can not find project file %1. Removing it from project collection").arg(gone)))
        << qPrintable(report.join('\n'));
}
