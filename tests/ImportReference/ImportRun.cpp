#include "ImportRun.h"

#include <QDir>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRegularExpression>

ToolRun runTool(const QString& program, const QStringList& arguments, const QString& folder)
{
    QProcess process;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("HOME", folder);
    env.insert("XDG_CONFIG_HOME", folder);
    process.setProcessEnvironment(env);
    process.setWorkingDirectory(folder);
    process.start(program, arguments);
    const bool ended = process.waitForFinished(300000) && process.exitStatus() == QProcess::NormalExit;
    ToolRun run;
    run.status = ended ? process.exitCode() : -1;
    run.out = QString::fromUtf8(process.readAllStandardOutput());
    run.err = QString::fromUtf8(process.readAllStandardError());
    return run;
}

QString dialectOption(foreign::Dialect dialect)
{
    switch (dialect) {
    case foreign::Dialect::Kcpsm3:
        return "kcpsm3";
    case foreign::Dialect::Kcpsm6:
        return "kcpsm6";
    case foreign::Dialect::PBlazIde:
        return "pblazide";
    case foreign::Dialect::Mico8Vendor:
    case foreign::Dialect::Mico8Gnu:
        return "mico8";
    }
    return {};
}

QMap<int, quint32> assembledProject(const QString& folder, QString* problem)
{
    const QStringList projects = QDir(folder).entryList({"*.nalvo"}, QDir::Files);
    if (projects.size() != 1) {
        *problem = "no project, or more than one";
        return {};
    }
    const ToolRun run = runTool(NALVO_ASM, {"-q", "-e", "none", "-l", "-", QDir(folder).filePath(projects[0])}, folder);
    if (run.status != 0) {
        *problem = "the assembler refuses the project:\n" + run.err.section('\n', 0, 7);
        return {};
    }
    QMap<int, quint32> words;
    static const QRegularExpression entry("^([0-9A-F]{4}) \\S+ +[0-9A-F]+ ([0-9A-F]{5})\\b");
    for (const QString& line : run.out.split('\n', Qt::SkipEmptyParts)) {
        const QRegularExpressionMatch match = entry.match(line);
        if (!match.hasMatch()) {
            *problem = "a line of the listing is not understood: " + line;
            return {};
        }
        words.insert(match.captured(1).toInt(nullptr, 16), match.captured(2).toUInt(nullptr, 16));
    }
    return words;
}

QString differences(const QMap<int, quint32>& expected, const QMap<int, quint32>& actual)
{
    QStringList found;
    const int end = qMax(expected.isEmpty() ? 0 : expected.lastKey(), actual.isEmpty() ? 0 : actual.lastKey());
    for (int address = 0; address <= end; ++address) {
        const quint32 want = expected.value(address, 0);
        const quint32 have = actual.value(address, 0);
        if (want != have)
            found.append(QString("%1: %2, not %3").arg(address, 3, 16).arg(have, 5, 16).arg(want, 5, 16));
    }
    if (found.size() > 5)
        found = QStringList(found.mid(0, 5)) + QStringList(QString("and %1 more").arg(found.size() - 5));
    return found.join("\n");
}
