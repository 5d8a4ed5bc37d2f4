#include "DistSupport.h"

#include "QtPrinters.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QRegularExpression>

namespace DistSupport {

namespace {

const int timeout = 300000; // ms; only what hangs takes so long

} // namespace

QStringList programs()
{
    return {"nalvo", "nalvo-asm", "nalvo-import", "nalvo-prove", "nalvo-sim"};
}

QString programFile(const QString& program)
{
    return QStringLiteral(NALVO_BINARY_DIR "/") + program;
}

QString installed(const QString& name)
{
    return QStringLiteral(NALVO_DIST_DIR "/") + name;
}

QString sourceFile(const QString& name)
{
    return QStringLiteral(NALVO_SOURCE_DIR "/") + name;
}

QString content(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return QString::fromUtf8(file.readAll());
}

QProcessEnvironment environment()
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "LANG", "LANGUAGE", "SOURCE_DATE_EPOCH"})
        env.remove(name);
    env.insert("LC_ALL", "C.UTF-8");
    env.insert("TERM", "vt100");
    return env;
}

sResult_t run(const QString& program, const QStringList& arguments, const QString& folder,
              const QProcessEnvironment& env)
{
    QProcess process;
    process.setProcessEnvironment(env);
    process.setStandardInputFile("/dev/null");
    process.setWorkingDirectory(folder);
    process.start(program, arguments);
    sResult_t result;
    if (!process.waitForFinished(timeout)) {
        ADD_FAILURE() << "no end of " << qPrintable(program) << ": " << qPrintable(process.errorString());
        process.kill();
        process.waitForFinished();
        return result;
    }
    if (process.exitStatus() == QProcess::NormalExit)
        result.status = process.exitCode();
    result.out = QString::fromUtf8(process.readAllStandardOutput());
    result.err = QString::fromUtf8(process.readAllStandardError());
    return result;
}

QString helpText(const QString& program)
{
    const sResult_t result = run(programFile(program), {"--help"});
    EXPECT_EQ(result.status, 0) << qPrintable(program);
    EXPECT_EQ(result.err, QString()) << qPrintable(program);
    return result.out;
}

QMap<QString, bool> helpOptions(const QString& program)
{
    static const QRegularExpression line("^  (-\\S.*?)(?:  |$)", QRegularExpression::MultilineOption);
    const QString text = helpText(program);
    const int start = text.indexOf("\nOptions:\n");
    EXPECT_GT(start, 0) << qPrintable(program);
    QMap<QString, bool> options;
    auto lines = line.globalMatch(text.mid(start).section("\nArguments:", 0, 0));
    while (lines.hasNext()) {
        const QString names = lines.next().captured(1);
        const bool takesValue = names.contains('<');
        for (const QString& name : names.section(" <", 0, 0).split(", "))
            options.insert(name, takesValue);
    }
    EXPECT_GE(options.size(), 3) << qPrintable(program);
    return options;
}

QStringList listed(const QMap<QString, bool>& options)
{
    QStringList texts;
    for (auto it = options.begin(); it != options.end(); ++it)
        texts.append(it.value() ? it.key() + " VALUE" : it.key());
    return texts;
}

QString version()
{
    return run(programFile("nalvo-asm"), {"--version"}).out.trimmed().section(' ', 1);
}

} // namespace DistSupport
