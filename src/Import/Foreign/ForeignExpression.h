#pragma once

#include "ForeignDialect.h"

#include <QString>

namespace nsImport {

/// What a value of a foreign program comes to.
struct ForeignValue
{
    enum eState_t {
        eOk,
        eSyntax,         ///< `error` is not understood
        eUnknownName,    ///< `error` is the name
        eNotANumber,     ///< `error` is a register, text or such
        eAmbiguousName,  ///< `error` has several values, all of them further down
        eAmbiguousOrder, ///< assemblers calculate `error` in different orders
        eCircle,         ///< `error` depends on itself
        eReported,       ///< what is wrong was reported at another line
    };

    eState_t state = eOk;
    int value = 0;
    QString text;             ///< in the result; empty: it can only be shown as the number
    bool isAtom = true;       ///< the text can be an operand of a calculation
    bool isCharacter = false; ///< the text is a string of one character, which can not be calculated with
    bool isAddress = false;   ///< of a label or of this line
    bool isLabelPart = false; ///< the text is bits of a label: only a last operand can have that
    int label = -1;           ///< symbol, if the value is a label alone
    QString error;

    bool ok() const { return state == eOk; }
    static ForeignValue failed(eState_t state, const QString& error);
    static ForeignValue number(int value, const QString& text);
};

/// What an expression must know of the names around it.
class ForeignScope
{
public:
    virtual ~ForeignScope() = default;

    /// The value of a name; eUnknownName if there is none.
    virtual ForeignValue nameValue(const QString& name) = 0;
    /// The address of the label of this name; eUnknownName if there is none.
    virtual ForeignValue labelValue(const QString& name) = 0;
    /// Address of the line.
    virtual int here() const = 0;
    /// How the characters of the line become bytes.
    virtual bool isUtf8() const = 0;
    /// A name was preferred that could be a number as well.
    virtual void nameIsNumber(const QString& name) = 0;
};

/// Calculates a value of a foreign program, and says how the result writes it.
class ForeignExpression
{
public:
    ForeignExpression(const ForeignDialect& dialect, ForeignScope& scope)
        : m_dialect(dialect)
        , m_scope(scope)
    {
    }

    ForeignValue evaluate(const QString& text);
    /// Can a name of a dialect with calculations have the character?
    static bool isWordCharacter(QChar c);

private:
    ForeignValue calculate(const QString& text);
    ForeignValue plain(const QString& text);
    ForeignValue labelPart(const QString& text);
    ForeignValue atom(const QString& text);

    // With operators; each begins at m_pos and leaves it after what it has taken.
    ForeignValue binary(int level);
    ForeignValue unary();
    ForeignValue primary();
    ForeignValue function(const QString& name);
    static ForeignValue combine(const ForeignValue& a, const QString& op, const ForeignValue& b);
    QString operatorOf(int level);
    QString run();
    void skipBlanks();

    const ForeignDialect& m_dialect;
    ForeignScope& m_scope;
    QString m_text;
    int m_pos = 0;
    int m_depth = 0;
    bool m_gnuOrder = false; ///< the operators bind as those of the GNU assembler, else as those of C
};

} // namespace nsImport
