#pragma once

#include "ForeignDialect.h"
#include "ForeignImport.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <memory>

/// Converts small programs in a folder of their own.
class ForeignTest : public testing::Test
{
protected:
    using Dialect = nsImport::ForeignDialect;

    QString path(const QString& name = QString()) const { return m_dir.path() + '/' + name; }

    void write(const QString& name, const QByteArray& content) const
    {
        QDir().mkpath(QFileInfo(path(name)).absolutePath());
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    /// Converts the file "main.psm".
    bool import(Dialect::eDialect_t dialect)
    {
        m_options.source = path("main.psm");
        m_options.dialect = &Dialect::of(dialect);
        return importAsItIs();
    }
    bool importAsItIs()
    {
        m_import.reset(new nsImport::ForeignImport(m_options));
        return m_import->run();
    }
    bool import(Dialect::eDialect_t dialect, const QByteArray& text)
    {
        write("main.psm", text);
        return import(dialect);
    }

    /// The words that the result assembles to: "00012 2C080 @3FF 38001" are 0, 1 and 0x3FF.
    QString words() const
    {
        const nsImport::ProgramImage& image = m_import->image();
        QStringList shown;
        for (int address = 0; address < image.size(); ++address) {
            if (!image.contains(address))
                continue;
            if (address > 0 && !image.contains(address - 1))
                shown.append('@' + QString::number(address, 16).toUpper());
            shown.append(QString::number(image.word(address), 16).toUpper().rightJustified(5, '0'));
        }
        return shown.join(' ');
    }
    /// All messages, one a line: "key line text".
    QString messages() const
    {
        QString shown;
        for (const nsImport::ImportMessage& message : m_import->messages().all())
            shown += message.key() + ' ' + QString::number(message.line) + ' ' + message.text + '\n';
        return shown;
    }
    /// Is there a message with this key, at this line? @param line 0: at any
    bool has(const QString& key, int line = 0) const
    {
        for (const nsImport::ImportMessage& message : m_import->messages().all()) {
            if (message.key() == key && (line == 0 || message.line == line))
                return true;
        }
        return false;
    }
    QString source(int index = 0) const { return QString::fromUtf8(m_import->sources().value(index).text); }
    QString sourceNames() const
    {
        QStringList names;
        for (const nsImport::ImportSource& own : m_import->sources())
            names.append(own.name);
        return names.join(' ');
    }

    /// The program becomes these words.
    void expectWords(Dialect::eDialect_t dialect, const QByteArray& text, const QString& expected)
    {
        EXPECT_TRUE(import(dialect, text)) << text.constData() << '\n' << messages().toStdString();
        EXPECT_EQ(words().toStdString(), expected.toStdString()) << text.constData() << '\n'
                                                                 << messages().toStdString() << source().toStdString();
    }
    /// The program is refused at this line, for this reason.
    void expectRefused(Dialect::eDialect_t dialect, const QByteArray& text, const QString& key, int line)
    {
        EXPECT_FALSE(import(dialect, text)) << text.constData() << '\n' << source().toStdString();
        EXPECT_TRUE(has(key, line)) << text.constData() << '\n' << messages().toStdString();
    }

    QTemporaryDir m_dir;
    nsImport::ForeignImport::Options m_options;
    std::unique_ptr<nsImport::ForeignImport> m_import;
};
