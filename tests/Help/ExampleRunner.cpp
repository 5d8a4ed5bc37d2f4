#include "ExampleRunner.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

namespace {

const int timeout = 120000; // ms; only a program that hangs takes so long
const char* const sourceFile = "example.psm";
const char* const projectFile = "example.nalvo";
const char* const listingFile = "listing.txt";
const QString noVector = QStringLiteral("MissingInstrAtIntVector"); ///< in the keys of all such messages

const QHash<QString, QString> processors = {
    {"pb3", "Xilinx PicoBlaze 3"}, {"pb6", "Xilinx PicoBlaze 6"}, {"mico8", "Lattice Mico8 v3.x"}};

/// A project that writes no file of its own.
QByteArray projectText(const QString& processor)
{
    QString target;
    for (const QString& kind :
         {QStringLiteral("vhdl"), QStringLiteral("verilog"), QStringLiteral("hex"), QStringLiteral("mem")})
        target += QStringLiteral("<%1><writeFileEventBut1>0</writeFileEventBut1><writeFileEventBut2>0"
                                 "</writeFileEventBut2><writeFileEventSave>0</writeFileEventSave></%1>")
                      .arg(kind);
    return QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n"
                          "<project version=\"3\">\n<PrjInfo><title>Example</title></PrjInfo>"
                          "<sources><srcFiles>%1</srcFiles></sources><AsmFe><target>%2</target></AsmFe>"
                          "<ModProcessor><processor>%3</processor></ModProcessor></project>\n")
        .arg(QLatin1String(sourceFile), target, processor)
        .toUtf8();
}

bool writeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
}

/// A process in the folder of an example; it finds the batch programs by their names.
void setup(QProcess* process, const QString& folder)
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("PATH", QStringLiteral(NALVO_TOOLS_DIR ":") + env.value("PATH"));
    env.insert("LC_ALL", "C.UTF-8");
    env.insert("HOME", folder + "/home");
    env.insert("XDG_CONFIG_HOME", folder + "/home");
    env.remove("SOURCE_DATE_EPOCH");
    process->setProcessEnvironment(env);
    process->setWorkingDirectory(folder);
    process->setStandardInputFile(QProcess::nullDevice());
    process->setProcessChannelMode(QProcess::MergedChannels);
}

/// What is printed; a process that hangs says so.
QString output(QProcess* process, const QString& program, const QStringList& arguments)
{
    process->start(program, arguments);
    if (process->waitForFinished(timeout))
        return QString::fromUtf8(process->readAll());
    process->kill();
    process->waitForFinished();
    return program + QStringLiteral(": ") + process->errorString() + '\n';
}

/// The errors and warnings that were reported, as "key@line".
QStringList reported(const QString& text)
{
    QStringList messages;
    for (const QString& line : text.split('\n', Qt::SkipEmptyParts)) {
        const QJsonObject object = QJsonDocument::fromJson(line.toUtf8()).object();
        if (object.isEmpty())
            messages.append(line); // no message: nothing expects it
        const QString severity = object.value("severity").toString();
        if (severity == "error" || severity == "warning")
            messages.append(object.value("key").toString() + '@' + QString::number(object.value("line").toInt()));
    }
    return messages;
}

QStringList listedWords(const QString& path)
{
    QStringList words;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) // nothing was assembled
        return words;
    for (const QString& line : QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts))
        words.append(line.split(' ', Qt::SkipEmptyParts).value(3).toUpper());
    return words;
}

QString shown(const QStringList& texts)
{
    return texts.isEmpty() ? QStringLiteral("nothing") : texts.join(' ');
}

} // namespace

bool ExampleRunner::isRun(const nsHelpBuild::HelpExample& example)
{
    const QStringList words = example.info.split(' ');
    return words.first() == "session" || (words.first() == "psm" && !words.contains("fragment"));
}

QStringList ExampleRunner::differences(const nsHelpBuild::HelpExample& example)
{
    if (!isRun(example))
        return {};
    return example.info.startsWith("psm") ? assemble(example) : runSession(example);
}

bool ExampleRunner::writeFiles(const QString& folder) const
{
    return writeFile(folder + '/' + sourceFile, m_source.toUtf8()) &&
           writeFile(folder + '/' + projectFile, projectText(m_processor));
}

QStringList ExampleRunner::assemble(const nsHelpBuild::HelpExample& example)
{
    QStringList expected;
    QStringList words;
    m_processor = processors.value("pb3");
    m_source = example.text;
    for (const QString& word : example.info.split(' ', Qt::SkipEmptyParts).mid(1)) {
        if (processors.contains(word))
            m_processor = processors.value(word);
        else if (word.startsWith("words="))
            words = word.mid(6).toUpper().split(',');
        else
            expected.append(word);
    }
    const QTemporaryDir dir;
    if (!dir.isValid() || !writeFiles(dir.path()))
        return {QStringLiteral("the files of the example can not be written")};
    QProcess process;
    setup(&process, dir.path());
    QStringList got = reported(output(&process, NALVO_ASM, {"-f", "json", "-l", listingFile, projectFile}));
    for (const QString& message : QStringList(got)) {
        if (message.contains(noVector) && !expected.contains(message))
            got.removeOne(message);
    }
    got.sort();
    expected.sort();
    QStringList problems;
    if (got != expected)
        problems.append(QStringLiteral("expected %1, got %2").arg(shown(expected), shown(got)));
    const QStringList listed = listedWords(dir.path() + '/' + listingFile).mid(0, words.size());
    if (listed != words)
        problems.append(QStringLiteral("expected the words %1, got %2").arg(shown(words), shown(listed)));
    return problems;
}

QStringList ExampleRunner::runSession(const nsHelpBuild::HelpExample& example) const
{
    const QTemporaryDir dir;
    if (!dir.isValid() || (!m_source.isEmpty() && !writeFiles(dir.path())))
        return {QStringLiteral("the files of the session can not be written")};
    QString text;
    for (const QString& line : example.text.split('\n')) {
        if (!line.startsWith("$ "))
            continue;
        QProcess process;
        setup(&process, dir.path());
        const QString printed = output(&process, "/bin/sh", {"-c", line.mid(2)});
        text += line + '\n' + printed + (printed.isEmpty() || printed.endsWith('\n') ? "" : "\n");
    }
    if (text == example.text)
        return {};
    return {QStringLiteral("the session differs, it is:\n") + text};
}
