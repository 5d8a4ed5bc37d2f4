#pragma once

#include "HighlightRules.h"

#include <QString>
#include <QStringList>
#include <QVector>

namespace nsSyntax {

using nsModAsmFe::eHighlight_t;

/// Where a rule holds.
enum ePlace_t {
    placeCode,
    placeComment, ///< within a comment
};

/// What a rule does to the lines that can be folded.
struct sFold_t
{
    const char* ends = "";   ///< name of the region that ends there; empty for none
    const char* begins = ""; ///< name of the region that begins there
};

/// What a text is where no earlier rule holds. At each position of a line, the first rule that matches there paints its
/// match, and the search goes on at its end.
struct sRule_t
{
    eHighlight_t kind;
    QString name;       ///< in small letters, unique
    QString expression; ///< what every engine of expressions understands; never empty, never over the end of a line
    Qt::CaseSensitivity cs = Qt::CaseInsensitive;
    ePlace_t place = placeCode;
    sFold_t fold;
    QStringList words; ///< what the expression stands for, if these are whole words and nothing else
};

/// The language as all these editors can describe it, made of the tables of the assembler and the processors.
///
/// The rules of our own editor paint over one another, and each works on a whole line. Here a text is read once from
/// left to right, as the assembler does it: a semicolon in a string begins no comment, a character set is one behind a
/// quote alone, and the words of all processors are known, since a source does not say for which one it is.
class Grammar
{
public:
    Grammar();

    /// The first that matches counts. Comments and separators reach to the end of their line and hold others within.
    const QVector<sRule_t>& rules() const { return m_rules; }

private:
    void addRest();
    void addDirectives();
    void addAttributes();
    void addWords(eHighlight_t kind, const QString& name, const QStringList& words, Qt::CaseSensitivity cs);
    void add(eHighlight_t kind, const QString& name, const QString& expression,
             Qt::CaseSensitivity cs = Qt::CaseInsensitive, ePlace_t place = placeCode, sFold_t fold = {});

    QVector<sRule_t> m_rules;
};

/// Does the rule paint all to the end of its line?
bool reachesLineEnd(const sRule_t& rule);

/// A kind of text, as the editors call it.
struct sStyle_t
{
    eHighlight_t kind;
    const char* id;    ///< in small letters
    const char* title; ///< for the user
    const char* kate;  ///< default style of Kate
    const char* gtk;   ///< style of GtkSourceView
    const char* vim;   ///< highlight group of Vim
    const char* scope; ///< of TextMate, without the language
};

/// The kinds that the grammar uses.
const QVector<sStyle_t>& styles();
const sStyle_t& styleOf(eHighlight_t kind);

// What a definition says of the language besides its words.
constexpr const char* languageId = "nalvo";
constexpr const char* languageTitle = "Nalvo Assembler";
constexpr const char* sourcePattern = "*.psm";
constexpr const char* sourceSuffix = ".psm";
constexpr const char* projectSuffix = ".nalvo";

} // namespace nsSyntax
