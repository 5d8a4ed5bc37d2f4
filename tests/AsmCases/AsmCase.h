#pragma once

#include <QHash>
#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>

/// A message that a case expects.
struct ExpectedMsg
{
    QString severity; ///< "error", "warning" or "info"
    QString key;      ///< "-" for a message without a key
    QString text;     ///< empty: any text
    QString file;     ///< name of the source; empty for a message without a position
    int line = -1;    ///< counted from 0; -1 without a position

    QString describe() const;
};

/// What a case says about an instruction or a constant on a line of a source.
struct ExpectedFact
{
    QString file;
    int line = 0;
    QString name; ///< "word", "addr", "value" and so on
    QString value;
};

/// One assembler case: its sources with their expectations, and how to run it.
class AsmCase
{
public:
    /// Reads the case; `problem` then says what is wrong with its form, if anything.
    explicit AsmCase(const QString& path);

    /// All cases below a folder, in sorted order: a source file, or a folder that holds sources.
    static QStringList scan(const QString& folder);

    QString path;
    bool isFolder = false;
    QStringList sources;    ///< names, in project order
    QStringList otherFiles; ///< names of what is copied along
    QStringList goldenFiles;
    QString problem;

    QString processor = QStringLiteral("Xilinx PicoBlaze 3");
    QList<QPair<QString, QString>> settings;
    QStringList removedFiles; ///< names of files that vanish between opening and assembling
    int intVector = 2;
    int event = 0;
    QString result; ///< "assembled", "failed", or empty

    QList<ExpectedMsg> messages;
    QList<ExpectedMsg> infos;
    QList<ExpectedFact> facts;                 ///< of lines
    QList<QPair<QString, QString>> wholeFacts; ///< of the whole run: name and value
    bool hasExpectation = false;

private:
    void readSource(const QString& name);
    void readComment(const QString& file, int line, int lineCount, const QString& comment);
    void readRunComment(const QString& file, int line, int lineCount, const QString& word, const QString& rest);
    void addMessage(const QString& severity, const QString& rest, const QString& file, int line);
};
