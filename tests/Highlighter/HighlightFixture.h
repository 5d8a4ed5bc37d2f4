#pragma once

#include "AsmRules.h"
#include "EditorSyntaxHighlighter.h"
#include "NaiveHighlighter.h"

#include <QDirIterator>
#include <QFile>
#include <QPlainTextDocumentLayout>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

#include <gtest/gtest.h>

/// Two documents with the same text, one painted by the highlighter and one by the plain loop.
class HighlightTest : public ::testing::Test
{
protected:
    HighlightTest()
    {
        document.setDocumentLayout(new QPlainTextDocumentLayout(&document));
        highlighter = new nsModEditor::EditorSyntaxHighlighter(&document);
        highlighter->setSyntaxHighlighterConfig(&config);
    }

    void setText(const QString& text)
    {
        document.setPlainText(text);
        reference.setPlainText(text);
        naive.rehighlight();
    }
    void select(const QString& text)
    {
        highlighter->setSelection(text);
        highlighter->rehighlight();
        naive.setSelection(text);
        naive.rehighlight();
    }
    /// Compares all lines.
    void expectEqual(const QString& where = QString())
    {
        ASSERT_EQ(document.blockCount(), reference.blockCount());
        QTextBlock other = reference.begin();
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next(), other = other.next()) {
            ASSERT_EQ(block.layout()->formats(), other.layout()->formats())
                << qPrintable(where) << " line " << block.blockNumber() << ": " << qPrintable(block.text()) << "\n got "
                << describe(block) << "\nwant " << describe(other);
            ASSERT_EQ(block.userState(), other.userState());
        }
    }
    /// Compares as painted when the text came and as repainted line by line and as a whole.
    void expectEqualText(const QString& text, const QString& where = QString())
    {
        setText(text);
        expectEqual(where);
        highlighter->rehighlight();
        expectEqual(where + " again");
        static_cast<QSyntaxHighlighter*>(highlighter)->rehighlight();
        expectEqual(where + " by the base class");
    }

    static std::string describe(const QTextBlock& block)
    {
        QString result;
        for (const QTextLayout::FormatRange& range : block.layout()->formats()) {
            result += QString("[%1+%2 w%3 %4 %5]")
                          .arg(range.start)
                          .arg(range.length)
                          .arg(range.format.fontWeight())
                          .arg(range.format.foreground().color().name(), range.format.background().color().name());
        }
        return result.toStdString();
    }
    /// The format of a character, as it will be painted.
    QTextCharFormat formatAt(int line, int column) const
    {
        for (const QTextLayout::FormatRange& range : document.findBlockByNumber(line).layout()->formats()) {
            if (column >= range.start && column < range.start + range.length)
                return range.format;
        }
        return QTextCharFormat();
    }
    static QTextCharFormat color(const QColor& foreground)
    {
        QTextCharFormat format;
        format.setForeground(foreground);
        return format;
    }
    /// All sources below a folder of the project, in order.
    static QStringList sources(const QString& folder)
    {
        QStringList files;
        QDirIterator it(QString(NALVO_SOURCE_DIR) + "/" + folder, {"*.psm", "*.asm"}, QDir::Files,
                        QDirIterator::Subdirectories);
        while (it.hasNext())
            files.append(it.next());
        files.sort();
        return files;
    }
    static QString readFile(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

    nsModEditor::EditorSyntaxHighlighterConfig config;
    QTextDocument document;
    QTextDocument reference;
    nsModEditor::EditorSyntaxHighlighter* highlighter; ///< owned by the document
    NaiveHighlighter naive{&reference, &config};
};
