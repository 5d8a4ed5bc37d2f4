#pragma once

#include "ForeignAssembler.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

/// A program as a text, assembled in a folder of its own.
class ForeignCase
{
public:
    /// Writes a file that the program includes.
    void write(const QString& name, const QByteArray& text)
    {
        QDir().mkpath(QFileInfo(m_folder.filePath(name)).absolutePath());
        QFile file(m_folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    foreign::Image assemble(foreign::Dialect dialect, const QByteArray& text)
    {
        m_errors.clear();
        write("main.psm", text);
        return foreign::assemble(dialect, m_folder.filePath("main.psm"), m_options, &m_errors);
    }

    /// The words as "address:word" in hexadecimal digits, or the errors.
    std::string words(foreign::Dialect dialect, const QByteArray& text)
    {
        const foreign::Image image = assemble(dialect, text);
        QStringList parts;
        for (auto it = image.words.begin(); it != image.words.end(); ++it)
            parts.append(QString("%1:%2").arg(it.key(), 3, 16, QChar('0')).arg(it.value(), 5, 16, QChar('0')));
        return m_errors.isEmpty() ? parts.join(" ").toUpper().toStdString() : m_errors.join("\n").toStdString();
    }

    const QStringList& errors() const { return m_errors; }
    foreign::Options& options() { return m_options; }

private:
    QTemporaryDir m_folder;
    QStringList m_errors;
    foreign::Options m_options;
};

/// A single line and the words that the core's documents give for it, without addresses.
struct LineCase
{
    const char* line;
    const char* words;
};

/// Assembles each line behind its preamble and compares.
inline void expectLines(foreign::Dialect dialect, const QByteArray& before, const std::vector<LineCase>& cases,
                        const QByteArray& after = QByteArray())
{
    for (const LineCase& expected : cases) {
        ForeignCase program;
        const foreign::Image image = program.assemble(dialect, before + expected.line + "\n" + after);
        EXPECT_TRUE(program.errors().isEmpty()) << expected.line << ": " << program.errors().join("\n").toStdString();
        const QByteArray line = QByteArray(expected.line).split('\n').last();
        QStringList words;
        for (const foreign::Row& row : image.rows) {
            if (row.line.text.toLatin1() != line)
                continue;
            for (const quint32 word : row.words)
                words.append(QString("%1").arg(word, 5, 16, QChar('0')).toUpper());
        }
        EXPECT_EQ(words.join(" ").toStdString(), expected.words) << expected.line;
    }
}

/// Each of these programs has an error, whatever else.
inline void expectRefused(foreign::Dialect dialect, const std::vector<const char*>& programs)
{
    for (const char* text : programs) {
        ForeignCase program;
        program.assemble(dialect, text);
        EXPECT_FALSE(program.errors().isEmpty()) << text;
    }
}
