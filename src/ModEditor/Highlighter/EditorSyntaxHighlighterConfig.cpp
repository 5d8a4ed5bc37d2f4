#include "EditorSyntaxHighlighterConfig.h"

#include "HighlightMatcher.h"

#include <QTimer>

namespace nsModEditor {

EditorSyntaxHighlighterConfig::EditorSyntaxHighlighterConfig(QObject* parent)
    : QObject(parent)
    , m_matcher(new HighlightMatcher)
{
}

EditorSyntaxHighlighterConfig::~EditorSyntaxHighlighterConfig() = default;

void EditorSyntaxHighlighterConfig::clear()
{
    m_rules.clear();
    m_matcher->clear();
    announceChange();
}

void EditorSyntaxHighlighterConfig::addRule(const QRegExp& regExp, const QTextCharFormat& format)
{
    if (regExp.pattern().isEmpty())
        return;
    m_rules.append(qMakePair(regExp, format));
    m_matcher->addRule(regExp, format);
    announceChange();
}

void EditorSyntaxHighlighterConfig::addRule(const QString& pattern, const QTextCharFormat& format)
{
    addRule(QRegExp(pattern), format);
}

void EditorSyntaxHighlighterConfig::addRules(const QStringList& patterns, const QTextCharFormat& format)
{
    for (const QString& pattern : patterns)
        addRule(pattern, format);
}

void EditorSyntaxHighlighterConfig::addKeyword(const QString& word, const QTextCharFormat& format)
{
    if (!word.isEmpty())
        addRule("\\b" + word + "\\b", format);
}

void EditorSyntaxHighlighterConfig::addKeywords(const QStringList& words, const QTextCharFormat& format)
{
    for (const QString& word : words)
        addKeyword(word, format);
}

/// The list is built rule by rule; the documents are formatted once it is complete.
void EditorSyntaxHighlighterConfig::announceChange()
{
    if (m_changeAnnounced)
        return;
    m_changeAnnounced = true;
    QTimer::singleShot(0, this, [this] {
        m_changeAnnounced = false;
        emit rulesChanged();
    });
}

} // namespace nsModEditor
