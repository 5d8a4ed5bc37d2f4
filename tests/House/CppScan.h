#pragma once

#include <QString>
#include <QVector>

namespace nsHouse {

/// A function with its body.
struct sFunction_t
{
    QString name;
    int line = 0;  ///< of its first word, from 1
    int lines = 0; ///< to the brace at its end, without those of tables in it
};

/// A class, or a structure with operations of its own.
struct sClass_t
{
    QString name;
    int line = 0;
    int operations = 0; ///< functions that it declares, without constructors, signals and what it deletes
    int members = 0;    ///< objects that an object of it holds
};

/// Finds functions and classes by their braces, in sources that a compiler accepts.
///
/// It is no compiler: a text that the preprocessor would change is read as it stands.
class CppScan
{
public:
    explicit CppScan(const QString& text);

    const QVector<sFunction_t>& functions() const { return m_functions; }
    const QVector<sClass_t>& classes() const { return m_classes; }

private:
    enum eScope_t { eScopeNamespace, eScopeClass, eScopeFunction, eScopeOther };

    struct sScope_t
    {
        eScope_t kind;
        int index;      ///< of its class or function; -1 for others
        int line;       ///< of its opening brace
        int tableLines; ///< of the tables in it
        bool isTable;   ///< braces without a statement in them, unless they follow a parenthesis
        bool isSignals; ///< in a class: what follows are signals
    };

    void takeChar(QChar c);
    void readChar(QChar c);
    void openBrace();
    void closeBrace();
    void addOperation(const QString& declaration);
    void endStatement();
    void markStatement();
    eScope_t kindOfHead(const QString& head) const;
    bool isIn(eScope_t kind) const { return !m_scopes.isEmpty() && m_scopes.last().kind == kind; }
    void clearHead();

    QVector<sFunction_t> m_functions;
    QVector<sClass_t> m_classes;
    QVector<sScope_t> m_scopes;
    QString m_head; ///< the text since the last end of a statement
    int m_headLine = 0;
    int m_line = 1;
    int m_parentheses = 0;
    QChar m_last; ///< the last one that is no blank
};

/// The text with blanks in place of comments, texts, characters and lines of the preprocessor; line ends stay.
QString withoutTexts(const QString& text);

/// The text with blanks in place of comments alone.
QString withoutComments(const QString& text);

} // namespace nsHouse
