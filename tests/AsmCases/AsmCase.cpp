#include "AsmCase.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

namespace {

const QHash<QString, QString> processors = {{"none", ""},
                                            {"XPBlze3", "Xilinx PicoBlaze 3"},
                                            {"XPBlze6", "Xilinx PicoBlaze 6"},
                                            {"LMico8v3x", "Lattice Mico8 v3.x"}};
const QStringList events = {"none", "button1", "button2", "save"};
const QStringList lineFacts = {"word", "addr", "mem", "range", "value", "type", "used"};
const QStringList runFacts = {"count",    "cell",   "device",  "no-device", "group",
                              "no-group", "define", "no-info", "no-define"};

} // namespace

QString ExpectedMsg::describe() const
{
    QString where = line >= 0 ? file + ':' + QString::number(line + 1) + ": " : QString();
    return where + severity + ": " + key + (text.isEmpty() ? QString() : " | " + text);
}

QStringList AsmCase::scan(const QString& folder)
{
    QStringList cases;
    const QFileInfoList entries =
        QDir(folder).entryInfoList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const QFileInfo& entry : entries) {
        if (entry.isFile() && entry.suffix() == "psm")
            cases.append(entry.filePath());
        else if (entry.isDir() && !QDir(entry.filePath()).entryList({"*.psm"}, QDir::Files).isEmpty() &&
                 QFileInfo(entry.filePath()).dir() != QDir(NALVO_SOURCE_DIR "/tests/data/asm"))
            cases.append(entry.filePath());
        else if (entry.isDir())
            cases.append(scan(entry.filePath()));
    }
    return cases;
}

AsmCase::AsmCase(const QString& casePath)
    : path(casePath)
    , isFolder(QFileInfo(casePath).isDir())
{
    if (isFolder) {
        const QDir dir(path);
        for (const QString& name : dir.entryList(QDir::Files, QDir::Name)) {
            if (name.endsWith(".psm"))
                sources.append(name);
            else
                otherFiles.append(name);
        }
        const QDir golden(path + "/expected");
        goldenFiles = golden.entryList(QDir::Files, QDir::Name);
    } else {
        sources.append(QFileInfo(path).fileName());
    }
    hasExpectation = !goldenFiles.isEmpty();
    for (const QString& source : qAsConst(sources))
        readSource(source);
    if (!hasExpectation)
        problem = "the case has no expectation";
}

void AsmCase::readSource(const QString& name)
{
    QFile file(isFolder ? path + '/' + name : path);
    if (!file.open(QIODevice::ReadOnly)) {
        problem = "can not read " + name;
        return;
    }
    QList<QByteArray> lines = file.readAll().split('\n');
    if (lines.last().isEmpty())
        lines.removeLast();
    for (int i = 0; i < lines.size(); ++i) {
        const QString line = QString::fromLatin1(lines.at(i).constData(), lines.at(i).size());
        // An expectation starts with its word, after a semicolon anywhere in the line.
        static const QRegularExpression start(";\\s*(@?[a-z-]+):");
        int pos = 0;
        while (true) {
            const QRegularExpressionMatch match = start.match(line, pos);
            if (!match.hasMatch())
                break;
            const QRegularExpressionMatch next = start.match(line, match.capturedEnd());
            const int end = next.hasMatch() ? next.capturedStart() : line.size();
            readComment(name, i, lines.size(),
                        line.mid(match.capturedStart(1), end - match.capturedStart(1)).section(" ; ", 0, 0).trimmed());
            pos = match.capturedEnd();
        }
    }
}

void AsmCase::addMessage(const QString& severity, const QString& rest, const QString& file, int line)
{
    const int bar = rest.indexOf('|');
    ExpectedMsg msg;
    msg.severity = severity;
    msg.key = (bar < 0 ? rest : rest.left(bar)).trimmed();
    msg.text = bar < 0 ? QString() : rest.mid(bar + 1).trimmed();
    msg.file = line < 0 ? QString() : file;
    msg.line = line;
    (severity == "info" ? infos : messages).append(msg);
    hasExpectation = true;
}

void AsmCase::readComment(const QString& file, int line, int lineCount, const QString& comment)
{
    const int colon = comment.indexOf(':');
    const QString word = comment.left(colon);
    // A remark that is no expectation may follow: it starts with the next free-standing semicolon.
    const QString rest = comment.mid(colon + 1).section(" ; ", 0, 0).trimmed();
    if (word == "error" || word == "warning") {
        addMessage(word, rest, file, line);
    } else if (lineFacts.contains(word)) {
        facts.append({file, line, word, rest});
        hasExpectation = true;
    } else if (word.startsWith('@')) {
        readRunComment(file, line, lineCount, word.mid(1), rest);
    }
}

void AsmCase::readRunComment(const QString& file, int line, int lineCount, const QString& word, const QString& rest)
{
    if (word == "error" || word == "warning" || word == "info") {
        addMessage(word, rest, QString(), -1);
    } else if (word == "eof-error") {
        addMessage("error", rest, file, lineCount);
    } else if (word == "nav") {
        facts.append({file, line, word, rest});
        hasExpectation = true;
    } else if (runFacts.contains(word)) {
        wholeFacts.append({word, rest});
        hasExpectation = true;
    } else if (word == "result") {
        result = rest;
        hasExpectation = true;
    } else if (word == "processor") {
        processor = processors.value(rest, rest);
    } else if (word == "set") {
        const int equals = rest.indexOf('=');
        settings.append({rest.left(equals).trimmed(), rest.mid(equals + 1).trimmed()});
    } else if (word == "remove") {
        removedFiles.append(rest);
    } else if (word == "intvector") {
        intVector = rest.toInt();
    } else if (word == "event") {
        event = events.indexOf(rest);
    } else if (word != "file") {
        problem = "unknown expectation: @" + word;
    }
    if (event < 0)
        problem = "unknown event";
}
