#pragma once

#include <QObject>
#include <QPair>
#include <QRegExp>
#include <QStringList>
#include <QTextCharFormat>
#include <QVector>

#include <memory>

namespace nsModEditor {

class HighlightMatcher;

/// The rules by which all documents are formatted: an ordered list of expressions, each with its format.
///
/// A later rule wins over an earlier one on the characters that both match.
class EditorSyntaxHighlighterConfig : public QObject
{
    Q_OBJECT

public:
    using Rules = QVector<QPair<QRegExp, QTextCharFormat>>;

    explicit EditorSyntaxHighlighterConfig(QObject* parent = nullptr);
    ~EditorSyntaxHighlighterConfig() override;

    const Rules& rules() const { return m_rules; }
    /// Removes all rules.
    void clear();
    /// Appends a rule with a copy of the format. An empty pattern adds nothing; an invalid one never matches.
    void addRule(const QRegExp& regExp, const QTextCharFormat& format);
    /// Appends a rule with a case-sensitive expression.
    void addRule(const QString& pattern, const QTextCharFormat& format);
    void addRules(const QStringList& patterns, const QTextCharFormat& format);
    /// Appends a rule for a whole word. The word is part of an expression and is not escaped.
    void addKeyword(const QString& word, const QTextCharFormat& format);
    void addKeywords(const QStringList& words, const QTextCharFormat& format);

    /// Kept for the users of the list; nothing is painted with it.
    void setSelectionFormat(const QTextCharFormat& format) { m_selectionFormat = format; }
    const QTextCharFormat& selectionFormat() const { return m_selectionFormat; }

    /// Applies the rules to lines of text; caches its results until the list changes. Never null.
    HighlightMatcher* matcher() const { return m_matcher.get(); }

signals:
    /// The list has changed. Comes from the event loop, once for any number of changes.
    void rulesChanged();

private:
    void announceChange();

    Rules m_rules;
    QTextCharFormat m_selectionFormat;
    std::unique_ptr<HighlightMatcher> m_matcher;
    bool m_changeAnnounced = false;
};

} // namespace nsModEditor
