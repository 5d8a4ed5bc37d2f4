#include "ForeignExpression.h"

#include "ForeignNumbers.h"
#include "ForeignScanner.h"

namespace nsImport {

namespace {

const int maxExpressionDepth = 100;

// The operators of a level bind stronger than those of the levels before.
const int levelCount = 6;
const QStringList& operatorsOf(int level, bool gnuOrder)
{
    static const QStringList ofC[levelCount] = {{"|"}, {"^"}, {"&"}, {"<<", ">>"}, {"+", "-"}, {"*", "/", "%"}};
    static const QStringList ofGnu[levelCount] = {{}, {}, {}, {"+", "-"}, {"|", "^", "&"}, {"*", "/", "%", "<<", ">>"}};
    return gnuOrder ? ofGnu[level] : ofC[level];
}

} // namespace

ForeignValue ForeignValue::failed(eState_t state, const QString& error)
{
    ForeignValue value;
    value.state = state;
    value.error = error;
    return value;
}

ForeignValue ForeignValue::number(int value, const QString& text)
{
    ForeignValue result;
    result.value = value;
    result.text = text;
    return result;
}

bool ForeignExpression::isWordCharacter(QChar c)
{
    return c.isLetterOrNumber() || c == '_' || c == '.' || c == '$' || c == '?' || c == '@';
}

ForeignValue ForeignExpression::evaluate(const QString& text)
{
    if (!m_dialect.expressions)
        return plain(text);
    ForeignValue value = calculate(text);
    if (!m_dialect.anyOrder || !value.ok() || value.isAtom)
        return value;
    m_gnuOrder = true;
    const ForeignValue other = calculate(text);
    m_gnuOrder = false;
    return other.ok() && other.value == value.value ? value : ForeignValue::failed(ForeignValue::eAmbiguousOrder, text);
}

ForeignValue ForeignExpression::calculate(const QString& text)
{
    m_text = text;
    m_pos = 0;
    m_depth = 0;
    skipBlanks();
    if (m_dialect.hashImmediates && m_pos < m_text.size() && m_text.at(m_pos) == '#')
        ++m_pos;
    const ForeignValue value = binary(0);
    skipBlanks();
    return !value.ok() || m_pos == m_text.size() ? value : ForeignValue::failed(ForeignValue::eSyntax, text);
}

/// A value without operators but the complement.
ForeignValue ForeignExpression::plain(const QString& text)
{
    if (!text.startsWith('~')) {
        const ForeignValue part = labelPart(text);
        return part.state == ForeignValue::eNotANumber ? atom(text) : part;
    }
    const QString inner = text.mid(1).trimmed();
    const ForeignValue of = inner.startsWith('~') ? ForeignValue::failed(ForeignValue::eSyntax, text) : plain(inner);
    if (!of.ok())
        return of;
    if (of.value < 0 || of.value > 0xFF || of.isAddress)
        return ForeignValue::failed(ForeignValue::eNotANumber, inner);
    const QString shown = of.isCharacter || of.isLabelPart || of.text.isEmpty() ? hexNumber(of.value) : of.text;
    ForeignValue value = ForeignValue::number(~of.value & 0xFF, '~' + shown + QStringLiteral(" & 0xFF"));
    value.isAtom = false;
    return value;
}

/// `label'upper` and `label'lower`; eNotANumber if the text is neither.
ForeignValue ForeignExpression::labelPart(const QString& text)
{
    const bool upper = text.endsWith(QLatin1String("'upper"), Qt::CaseInsensitive);
    if (!upper && !text.endsWith(QLatin1String("'lower"), Qt::CaseInsensitive))
        return ForeignValue::failed(ForeignValue::eNotANumber, text);
    const ForeignValue label = m_scope.labelValue(text.left(text.size() - 6));
    if (!label.ok())
        return label;
    ForeignValue value = ForeignValue::number(upper ? label.value >> 8 : label.value & 0xFF,
                                              label.text + QLatin1String(upper ? "[11:8]" : "[7:0]"));
    value.isLabelPart = true;
    value.isAtom = false;
    return value;
}

/// A name or a number.
ForeignValue ForeignExpression::atom(const QString& text)
{
    if (text.isEmpty())
        return ForeignValue::failed(ForeignValue::eSyntax, text);
    const ForeignNumber number = foreignNumber(text, m_dialect.numbers, m_scope.isUtf8());
    const ForeignValue name = m_scope.nameValue(text);
    if (name.state != ForeignValue::eUnknownName) {
        if (number.ok)
            m_scope.nameIsNumber(text);
        return name;
    }
    if (!number.ok)
        return name;
    ForeignValue value = ForeignValue::number(number.value, number.text);
    value.isCharacter = number.isCharacter;
    return value;
}

void ForeignExpression::skipBlanks()
{
    while (m_pos < m_text.size() && m_text.at(m_pos).isSpace())
        ++m_pos;
}

QString ForeignExpression::operatorOf(int level)
{
    skipBlanks();
    for (const QString& op : operatorsOf(level, m_gnuOrder)) {
        if (m_text.midRef(m_pos, op.size()) == op) {
            m_pos += op.size();
            return op;
        }
    }
    return QString();
}

ForeignValue ForeignExpression::binary(int level)
{
    if (level >= levelCount)
        return unary();
    ForeignValue left = binary(level + 1);
    while (left.ok()) {
        const QString op = operatorOf(level);
        if (op.isEmpty())
            break;
        left = combine(left, op, binary(level + 1));
    }
    return left;
}

ForeignValue ForeignExpression::combine(const ForeignValue& a, const QString& op, const ForeignValue& b)
{
    if (!b.ok())
        return b;
    qint64 value = 0;
    const qint64 x = a.value;
    const qint64 y = b.value;
    const bool isShift = op == QLatin1String("<<") || op == QLatin1String(">>");
    const bool isQuotient = op == QLatin1String("/") || op == QLatin1String("%");
    if ((isQuotient && y == 0) || (isShift && (y < 0 || y > 31)))
        return ForeignValue::failed(ForeignValue::eSyntax, op);
    switch (op.at(0).unicode()) {
    case '+':
        value = x + y;
        break;
    case '-':
        value = x - y;
        break;
    case '*':
        value = x * y;
        break;
    case '/':
        value = x / y;
        break;
    case '%':
        value = x % y;
        break;
    case '<':
        value = x << y;
        break;
    case '>':
        value = x >> y;
        break;
    case '&':
        value = x & y;
        break;
    case '|':
        value = x | y;
        break;
    default:
        value = x ^ y;
        break;
    }
    if (value > 0x7FFFFFFF || value < -0x7FFFFFFFLL - 1)
        return ForeignValue::failed(ForeignValue::eSyntax, op);
    // The result calculates in another order, so only what can not be misread is shown as a calculation.
    const auto canStand = [](const ForeignValue& v) { return v.isAtom && !v.isCharacter && !v.text.isEmpty(); };
    const bool isShown = canStand(a) && canStand(b) && !a.isAddress && !b.isAddress;
    ForeignValue result = ForeignValue::number(int(value), isShown ? a.text + ' ' + op + ' ' + b.text : QString());
    result.isAtom = false;
    result.isAddress = a.isAddress || b.isAddress;
    return result;
}

ForeignValue ForeignExpression::unary()
{
    skipBlanks();
    if (m_pos >= m_text.size() || ++m_depth > maxExpressionDepth)
        return ForeignValue::failed(ForeignValue::eSyntax, m_text);
    const QChar c = m_text.at(m_pos);
    if (c != '-' && c != '~' && c != '+') {
        const ForeignValue value = primary();
        --m_depth;
        return value;
    }
    ++m_pos;
    ForeignValue value = unary();
    --m_depth;
    if (!value.ok() || c == '+')
        return value;
    const bool canStand = value.isAtom && !value.isCharacter && !value.isAddress && !value.text.isEmpty();
    const bool isDecimal = canStand && value.text.at(0).isDigit();
    value.value = c == '-' ? int(-qint64(value.value)) : ~value.value;
    if (c == '-')
        value.text = isDecimal ? '-' + value.text : canStand ? QStringLiteral("0 - ") + value.text : QString();
    else
        value.text = canStand ? '~' + value.text : QString();
    value.isAtom = c == '-' && isDecimal;
    value.isCharacter = false;
    return value;
}

/// The word that begins here, with its mark of a number.
QString ForeignExpression::run()
{
    const int start = m_pos;
    const int quoted = ForeignScanner::afterQuoted(m_text, m_pos, true);
    if (quoted > m_pos) {
        m_pos = quoted;
        return m_text.mid(start, m_pos - start);
    }
    // `%` stands for a binary number where a value is expected.
    if (m_text.at(m_pos) == '%' && m_dialect.numbers != numC)
        ++m_pos;
    while (m_pos < m_text.size() && isWordCharacter(m_text.at(m_pos)))
        ++m_pos;
    return m_text.mid(start, m_pos - start);
}

ForeignValue ForeignExpression::primary()
{
    if (m_text.at(m_pos) == '(') {
        ++m_pos;
        const ForeignValue value = binary(0);
        skipBlanks();
        if (value.ok() && (m_pos >= m_text.size() || m_text.at(m_pos) != ')'))
            return ForeignValue::failed(ForeignValue::eSyntax, m_text);
        ++m_pos;
        return value;
    }
    const QString word = run();
    if (word.isEmpty())
        return ForeignValue::failed(ForeignValue::eSyntax, m_text);
    const int end = m_pos;
    skipBlanks();
    if (m_pos < m_text.size() && m_text.at(m_pos) == '(')
        return function(word);
    m_pos = end;
    if (word == QLatin1String("$") || word == QLatin1String(".")) {
        ForeignValue value = ForeignValue::number(m_scope.here(), QString());
        value.isAddress = true;
        return value;
    }
    const ForeignValue value = atom(word);
    if (value.state != ForeignValue::eUnknownName)
        return value;
    const ForeignValue label = m_scope.labelValue(word);
    return label.state == ForeignValue::eUnknownName ? value : label;
}

/// `_lo(x)` and `_hi(x)`.
ForeignValue ForeignExpression::function(const QString& name)
{
    const QString lower = name.toLower();
    const bool high = lower == QLatin1String("_hi");
    if (!high && lower != QLatin1String("_lo"))
        return ForeignValue::failed(ForeignValue::eSyntax, name);
    const ForeignValue of = primary();
    if (!of.ok())
        return of;
    const int byte = (of.value >> (high ? 8 : 0)) & 0xFF;
    ForeignValue value = ForeignValue::number(byte, QString());
    value.isAtom = false;
    if (of.label >= 0) {
        value.text = of.text + QLatin1String(high ? "[15:8]" : "[7:0]");
        value.isLabelPart = true;
    } else if (of.isAtom && !of.isCharacter && !of.isAddress && !of.text.isEmpty()) {
        value.text = of.text + QLatin1String(high ? " >> 8 & 0xFF" : " & 0xFF");
    }
    return value;
}

} // namespace nsImport
