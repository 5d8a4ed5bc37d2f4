#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

namespace nsModAsmFe {

class AsmWords;

/// What a text of a source is to whoever paints it. The order is that of the editor's rules.
enum eHighlight_t {
    highlightDirective = 0,
    highlightInstruction,
    highlightHardware,
    highlightHex,
    highlightDecimal,
    highlightOctal,
    highlightBinary,
    highlightLabel,
    highlightComment,
    highlightDoc,
    highlightSeparator,
    highlightNavigator,
    highlightAttribute,
    highlightString,
    highlightKeyWord,
    highlightCount
};

/// All matches of an expression are painted alike.
struct sHighlightRule_t
{
    eHighlight_t kind = highlightDirective;
    QString expression;
    Qt::CaseSensitivity cs = Qt::CaseInsensitive;
};

/// The rules of the editor, in their order: a later one paints over the earlier ones.
/// @param words those of the processor as well, if there is one
/// @param charsets names of the character sets
/// @param devices names of the program's IO devices
QVector<sHighlightRule_t> highlightRules(const AsmWords& words, const QStringList& charsets,
                                         const QStringList& devices);

// What the rules are made of; the definitions for other editors are made of it, too.

/// What is painted with the word of a directive.
enum eDirectiveTail_t {
    tailNone,
    tailName, ///< the word behind it
    tailLine, ///< all to the end of the line
};

struct sDirectiveWord_t
{
    const char* word; ///< without its "#"
    eDirectiveTail_t tail;
};

struct sNavigatorWord_t
{
    const char* word; ///< without its backslash
    bool hasTitle;
};

/// Each word once.
const QVector<sDirectiveWord_t>& directiveWords();
const QVector<sNavigatorWord_t>& navigatorWords();
/// Words of `#ORG`, but for the names of the pages.
const QStringList& organizationWords();
QString pageExpression();
/// Values of `#SET` and attributes of arguments, but for the character sets and the byte orders.
const QStringList& attributeWords();
QString byteOrderExpression();
/// Hexadecimal, decimal, octal and binary.
const QVector<sHighlightRule_t>& numberRules();

} // namespace nsModAsmFe
