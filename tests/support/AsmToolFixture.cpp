#include "AsmToolFixture.h"

#include <QDateTime>
#include <QDirIterator>
#include <QJsonDocument>
#include <QTextCodec>

namespace {

const int timeout = 120000; // ms; only a run that hangs takes so long

} // namespace

QStringList AsmToolResult::errLines() const
{
    QStringList lines = QString::fromUtf8(err).split('\n');
    EXPECT_EQ(lines.last(), QString()) << "the last line has no end: " << err.constData();
    lines.removeLast();
    return lines;
}

QList<QJsonObject> AsmToolResult::objects() const
{
    QList<QJsonObject> objects;
    QList<QByteArray> lines = out.split('\n');
    EXPECT_EQ(lines.last(), QByteArray()) << "the last line has no end";
    lines.removeLast();
    for (const QByteArray& line : qAsConst(lines)) {
        QJsonParseError error;
        const QJsonDocument document = QJsonDocument::fromJson(line, &error);
        EXPECT_EQ(error.error, QJsonParseError::NoError) << line.constData();
        EXPECT_TRUE(document.isObject()) << line.constData();
        objects.append(document.object());
    }
    return objects;
}

void ToolProcess::setup(const QString& program, const QStringList& arguments, const AsmToolSetup& setup)
{
    m_inChild = setup.inChild;
    setProgram(program);
    setArguments(arguments);
    setProcessEnvironment(setup.env);
    setWorkingDirectory(setup.folder);
    setStandardInputFile(setup.stdinFile);
    if (!setup.stdoutFile.isEmpty())
        setStandardOutputFile(setup.stdoutFile);
    if (!setup.stderrFile.isEmpty())
        setStandardErrorFile(setup.stderrFile);
}

AsmToolTest::AsmToolTest()
{
    // The files of the tests have umlauts in their names, whatever the locale of the test program is.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    EXPECT_TRUE(m_dir.isValid());
    mkdir(".");
    QDir(m_dir.path()).mkpath("config");
    QDir(m_dir.path()).mkpath("home");
}

QString AsmToolTest::path(const QString& name) const
{
    const QString folder = QDir(m_dir.path()).canonicalPath() + "/prj";
    return name.isEmpty() ? folder : QDir::cleanPath(folder + '/' + name);
}

void AsmToolTest::write(const QString& name, const QByteArray& text) const
{
    QDir().mkpath(QFileInfo(path(name)).path());
    QFile file(path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path(name).toStdString();
    ASSERT_EQ(file.write(text), text.size());
}

QByteArray AsmToolTest::read(const QString& name) const
{
    QFile file(path(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path(name).toStdString();
    return file.readAll();
}

void AsmToolTest::writeProject(const AsmProject& project, const QString& name) const
{
    write(name, project.text());
}

void AsmToolTest::writeGoodProject(const QByteArray& source) const
{
    writeProject(AsmProject().output("hex", "out.hex"));
    write("a.psm", source);
}

QByteArray AsmToolTest::goodSource()
{
    return "start:\n"
           "        LOAD    s0, 1\n"
           "        JUMP    start\n"
           "#ORG    ADDR, 0x3FF\n"
           "        RETI    ENABLE\n";
}

QByteArray AsmToolTest::hexText()
{
    return QByteArray("00001\n34000\n") + QByteArray("00000\n").repeated(1021) + "38001\n";
}

QByteArray AsmToolTest::vhdlTemplate(const QByteArray& head)
{
    QByteArray text = "{begin template}\n" + head;
    for (int i = 0; i < 64; ++i)
        text += "{INIT_" + QByteArray::number(i, 16) + "}\n";
    return text;
}

AsmToolSetup AsmToolTest::setup() const
{
    AsmToolSetup setup;
    setup.folder = path();
    setup.env = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"LC_ALL", "LC_CTYPE", "LANG", "SOURCE_DATE_EPOCH", "QT_QPA_PLATFORM"})
        setup.env.remove(name);
    setup.env.insert("LC_ALL", "C.UTF-8");
    setup.env.insert("HOME", path("../home"));
    setup.env.insert("XDG_CONFIG_HOME", path("../config"));
    return setup;
}

AsmToolResult AsmToolTest::run(const QStringList& arguments, const AsmToolSetup& setup) const
{
    ToolProcess process;
    process.setup(setup.program, arguments, setup);
    process.start();
    AsmToolResult result;
    if (!process.waitForFinished(timeout)) {
        ADD_FAILURE() << "no end of " << arguments.join(' ').toStdString() << ": "
                      << process.errorString().toStdString();
        process.kill();
        process.waitForFinished();
        return result;
    }
    if (process.exitStatus() == QProcess::NormalExit)
        result.status = process.exitCode();
    result.out = process.readAllStandardOutput();
    result.err = process.readAllStandardError();
    EXPECT_FALSE(result.err.contains("Sanitizer") || result.err.contains("runtime error:")) << result.err.constData();
    return result;
}

QStringList AsmToolTest::snapshot(const QString& folder) const
{
    QStringList entries;
    QDirIterator it(folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    const auto add = [&entries](const QFileInfo& info) {
        QFile file(info.filePath());
        const QByteArray text = info.isFile() && file.open(QIODevice::ReadOnly) ? file.readAll().toHex() : QByteArray();
        entries.append(QString("%1 %2 %3 %4")
                           .arg(info.filePath(), info.lastModified().toString(Qt::ISODateWithMs),
                                QString::number(info.permissions(), 16), QString::fromLatin1(text)));
    };
    add(QFileInfo(folder));
    while (it.hasNext()) {
        it.next();
        add(it.fileInfo());
    }
    entries.sort();
    return entries;
}
