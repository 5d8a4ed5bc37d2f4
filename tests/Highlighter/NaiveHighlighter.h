#pragma once

#include "EditorSyntaxHighlighterConfig.h"

#include <QSyntaxHighlighter>

/// What the highlighter must look like: every rule runs over every line, in the order of the list.
class NaiveHighlighter : public QSyntaxHighlighter
{
public:
    NaiveHighlighter(QTextDocument* document, const nsModEditor::EditorSyntaxHighlighterConfig* config)
        : QSyntaxHighlighter(document)
        , m_config(config)
    {
    }

    void setSelection(const QString& text)
    {
        m_selection = text.isEmpty() ? QRegExp() : QRegExp("\\b" + text + "\\b", Qt::CaseSensitive);
    }

protected:
    void highlightBlock(const QString& text) override
    {
        for (const auto& rule : m_config->rules()) {
            forEachMatch(rule.first, text, [&](int start, int length) { setFormat(start, length, rule.second); });
        }
        if (!m_selection.isEmpty()) {
            forEachMatch(m_selection, text, [&](int start, int length) {
                QTextCharFormat marked = format(start);
                marked.setBackground(Qt::yellow);
                setFormat(start, length, marked);
            });
        }
        setCurrentBlockState(0);
    }

private:
    template <class Visit>
    static void forEachMatch(const QRegExp& regExp, const QString& text, Visit visit)
    {
        int pos = 0;
        while ((pos = regExp.indexIn(text, pos)) >= 0) {
            const int length = regExp.matchedLength();
            if (length > 0)
                visit(pos, length);
            pos += length > 0 ? length : 1;
        }
    }

    const nsModEditor::EditorSyntaxHighlighterConfig* m_config;
    QRegExp m_selection;
};
