#include "ForeignSymbols.h"

#include "ForeignNumbers.h"

#include "ProcTable.h"

#include <QFileInfo>
#include <QLocale>

#include <algorithm>

namespace nsImport {

namespace {

/// Constants that depend on each other one by one; more of them are resolved from their end.
const int maxChain = 100;

int bit(ForeignSymbol::eKind_t kind)
{
    return 1 << kind;
}

bool isNumber(const QString& name)
{
    return !name.isEmpty() && std::all_of(name.cbegin(), name.cend(), [](QChar c) { return c >= '0' && c <= '9'; });
}

/// The operand that gives a definition its value.
QString valueTextOf(const ForeignStatement& statement)
{
    return statement.operand(statement.op() == opEquate ? 0 : 1);
}

/// Can the name that it defines be defined again, with another meaning from there on?
bool mayRepeat(const ForeignStatement& statement)
{
    return statement.op() == opSetConstant || statement.meaning->form == frmReg ||
           statement.part(statement.word) == QLatin1String("=");
}

} // namespace

ForeignStamp::ForeignStamp()
{
    bool isSet = false;
    const qint64 epoch = qEnvironmentVariable("SOURCE_DATE_EPOCH").toLongLong(&isSet);
    moment = isSet ? QDateTime::fromSecsSinceEpoch(epoch, Qt::UTC) : QDateTime::currentDateTime();
}

ForeignStamp ForeignStamp::ofImage(const ProgramImage& image)
{
    ForeignStamp stamp;
    stamp.isKnown = image.date.isValid() && image.time.isValid();
    if (stamp.isKnown)
        stamp.moment = QDateTime(image.date, image.time);
    return stamp;
}

ForeignSymbols::ForeignSymbols(ForeignProgram& program, const ForeignStamp& stamp, ImportMessages& messages)
    : m_program(program)
    , m_dialect(*program.dialect)
    , m_stamp(stamp)
    , m_messages(messages)
    , m_names(m_dialect.processor())
    , m_registers(m_dialect)
{
}

void ForeignSymbols::report(eImportMsg_t type, const QStringList& arguments, int statement)
{
    const int index = statement >= 0 ? statement : m_statement;
    if (index < 0) {
        m_messages.add(type, arguments);
        return;
    }
    ForeignStatement& place = m_program.statements[index];
    // A line that is wrong must not go on as if it were not there.
    place.isBroken = place.isBroken || isImportError(type);
    m_messages.add(type, arguments, m_program.files.at(place.file).path, place.line);
}

void ForeignSymbols::collect()
{
    bool inData = false;
    for (int i = 0; i < m_program.statements.size(); ++i) {
        m_statement = i;
        ForeignStatement& statement = m_program.statements[i];
        if (statement.op() == opSection && statement.hasWord())
            inData =
                !statement.operand(0).remove(QLatin1Char('"')).startsWith(QLatin1String(".text"), Qt::CaseInsensitive);
        else if (statement.op() == opCode || statement.op() == opData)
            inData = statement.op() == opData;
        statement.isData = inData;
        if (!inData)
            collectLabels(i);
        collectDefinition(i);
    }
    checkRenames();
    findAliases();
    nameAll();
    m_registers = RegisterNames(m_dialect);
    m_statement = -1;
}

void ForeignSymbols::collectLabels(int index)
{
    ForeignStatement& statement = m_program.statements[index];
    for (const ForeignPiece& piece : qAsConst(statement.labels)) {
        const QString name = statement.part(piece);
        const int symbol = add(ForeignSymbol::eLabel, name, index);
        if (isLocalLabel(m_program.symbols.at(symbol)))
            m_locals[name].append(symbol);
        if (statement.firstLabel < 0)
            statement.firstLabel = symbol;
    }
}

void ForeignSymbols::collectDefinition(int index)
{
    ForeignStatement& statement = m_program.statements[index];
    if (!statement.hasWord())
        return;
    const bool isRegister = statement.meaning != nullptr && statement.meaning->form != frmRegValue &&
                            m_dialect.registerOf(statement.operand(0)) >= 0;
    switch (statement.op()) {
    case opConstant:
    case opSetConstant:
        statement.symbol = add(ForeignSymbol::eValue, statement.operand(0), index);
        break;
    case opEquate:
        statement.symbol =
            add(isRegister ? ForeignSymbol::eRegister : ForeignSymbol::eValue, statement.part(statement.name), index);
        break;
    case opString:
    case opTable:
        statement.symbol = add(statement.op() == opString ? ForeignSymbol::eString : ForeignSymbol::eTable,
                               statement.operand(0), index);
        break;
    case opNameReg:
        collectRegister(index);
        break;
    default:
        break;
    }
}

void ForeignSymbols::collectRegister(int index)
{
    ForeignStatement& statement = m_program.statements[index];
    if (statement.operands.size() != 2)
        return;
    const QString name = statement.operand(1);
    const int number = m_registers.rename(statement.operand(0), name);
    if (number < 0) {
        if (number == -1)
            report(errImpExpectRegister, {statement.operand(0)});
        else
            report(errImpNoCounterpart, {name, tr("another register has this name")});
        statement.isBroken = true;
        return;
    }
    if (m_dialect.registerOf(name) == number)
        return;
    m_renames.append(index);
    const QString key = name + '\n' + QString::number(number);
    if (!m_renamed.contains(key)) {
        ForeignSymbol symbol;
        symbol.kind = ForeignSymbol::eRegister;
        symbol.name = name;
        symbol.statement = index;
        symbol.value = number;
        symbol.state = ForeignSymbol::eDone;
        m_renamed.insert(key, m_program.symbols.size());
        m_program.symbols.append(symbol);
    }
    statement.symbol = m_renamed.value(key);
}

int ForeignSymbols::add(ForeignSymbol::eKind_t kind, const QString& name, int statement)
{
    const int index = m_program.symbols.size();
    ForeignSymbol symbol;
    symbol.kind = kind;
    symbol.name = name;
    symbol.statement = statement;
    if (statement >= 0)
        checkName(name);
    const bool isFound = statement < 0 || isUnique(symbol);
    m_program.symbols.append(symbol);
    if (!isFound)
        return index;
    m_byName[name].append(index);
    if (!m_dialect.namesDifferByCase) {
        QVector<int>& spellings = m_byLowerCase[name.toLower()];
        if (!spellings.isEmpty() && m_program.symbols.at(spellings.first()).name != name)
            m_spelledTwice.insert(name.toLower());
        spellings.append(index);
    }
    return index;
}

/// A name that could be read as a calculation is none.
void ForeignSymbols::checkName(const QString& name)
{
    const auto isAllowed = [&](QChar c) {
        return ForeignExpression::isWordCharacter(c) || (c == '#' && !m_dialect.expressions);
    };
    const bool ok = !name.isEmpty() && std::all_of(name.cbegin(), name.cend(), isAllowed);
    if (!ok || name == QLatin1String("$") || name == QLatin1String("."))
        report(errImpSyntax, {name.isEmpty() ? m_program.statements.at(m_statement).code.trimmed() : name});
}

bool ForeignSymbols::isLocalLabel(const ForeignSymbol& symbol) const
{
    return symbol.kind == ForeignSymbol::eLabel && m_dialect.localLabels && isNumber(symbol.name);
}

/// Reports a name that is defined already, unless its uses tell which definition is meant. @return false: it was
/// reported
bool ForeignSymbols::isUnique(const ForeignSymbol& symbol)
{
    if (isLocalLabel(symbol))
        return true;
    const bool isLabel = symbol.kind == ForeignSymbol::eLabel;
    const ForeignStatement& own = m_program.statementOf(symbol);
    for (const int other : m_byName.value(symbol.name)) {
        const ForeignSymbol& known = m_program.symbols.at(other);
        // Without calculations, a label stands where no value can.
        const bool isApart = !m_dialect.expressions && (known.kind == ForeignSymbol::eLabel) != isLabel;
        if (known.statement < 0 || isApart)
            continue;
        const ForeignStatement& place = m_program.statementOf(known);
        // What follows the first one of those that repeat was compared with it.
        const bool isSet = !isLabel && known.kind != ForeignSymbol::eLabel && mayRepeat(own) && mayRepeat(place);
        if (isSet && (own.meaning->form == frmReg) == (place.meaning->form == frmReg))
            return true;
        report(errImpDuplicateName,
               {symbol.name, QString::number(place.line), QFileInfo(m_program.files.at(place.file).path).fileName()});
        return false;
    }
    return true;
}

/// A register and a constant of one name can not be told apart.
void ForeignSymbols::checkRenames()
{
    for (const int index : qAsConst(m_renames)) {
        const QString name = m_program.statements.at(index).operand(1);
        for (const int other : m_byName.value(name)) {
            const ForeignSymbol& known = m_program.symbols.at(other);
            if (known.kind != ForeignSymbol::eValue || known.statement < 0)
                continue;
            const ForeignStatement& place = m_program.statementOf(known);
            report(errImpDuplicateName,
                   {name, QString::number(place.line), QFileInfo(m_program.files.at(place.file).path).fileName()},
                   index);
            break;
        }
    }
}

/// Names that are other names of registers are registers, too.
void ForeignSymbols::findAliases()
{
    bool changed = true;
    const int count = m_program.symbols.size();
    // Forwards and backwards, as names can be used before their line.
    for (int pass = 0; changed && pass < maxChain; ++pass) {
        changed = false;
        for (int i = 0; i < count; ++i) {
            ForeignSymbol& symbol = m_program.symbols[pass % 2 == 0 ? i : count - 1 - i];
            if (symbol.statement < 0 || symbol.state == ForeignSymbol::eDone)
                continue;
            const ForeignStatement& statement = m_program.statementOf(symbol);
            if (statement.op() != opEquate || statement.meaning->form == frmRegValue)
                continue;
            const QString text = valueTextOf(statement);
            int number = m_dialect.registerOf(text);
            if (number < 0) {
                m_statement = symbol.statement;
                const int other = find(text, bit(ForeignSymbol::eRegister));
                const bool isKnown =
                    other >= 0 && !isAmbiguous(other) && m_program.symbols.at(other).state == ForeignSymbol::eDone;
                number = isKnown ? m_program.symbols.at(other).value : -1;
            }
            if (number < 0)
                continue;
            symbol.kind = ForeignSymbol::eRegister;
            symbol.value = number;
            symbol.state = ForeignSymbol::eDone;
            changed = true;
        }
    }
}

void ForeignSymbols::nameAll()
{
    QString lastLabel = QStringLiteral("local");
    for (ForeignSymbol& symbol : m_program.symbols) {
        if (symbol.kind == ForeignSymbol::eString || symbol.kind == ForeignSymbol::eTable)
            continue;
        QString reason;
        const bool isLocal = symbol.kind == ForeignSymbol::eLabel && m_dialect.localLabels && isNumber(symbol.name);
        if (isLocal) {
            symbol.ours = m_names.make(lastLabel + '_' + symbol.name, ImportNames::eLabel, &reason);
            continue;
        }
        const ImportNames::eUse_t use = symbol.kind == ForeignSymbol::eLabel   ? ImportNames::eLabel
                                        : symbol.kind == ForeignSymbol::eValue ? ImportNames::eConstant
                                                                               : ImportNames::eRegister;
        symbol.ours = m_names.make(symbol.name, use, &reason);
        if (symbol.kind == ForeignSymbol::eLabel)
            lastLabel = symbol.ours;
        if (symbol.ours != symbol.name)
            report(infoImpRenamed, {symbol.name, symbol.ours, reason}, symbol.statement);
    }
}

void ForeignSymbols::setPlaced()
{
    m_placed = true;
    m_registers = RegisterNames(m_dialect);
    // Long chains are taken apart from their ends, wherever these are, so that none needs a deep recursion.
    const int count = m_program.symbols.size();
    for (int i = 0; i < 2 * count; ++i) {
        const int index = i < count ? count - 1 - i : i - count;
        const ForeignSymbol& symbol = m_program.symbols.at(index);
        if (symbol.kind != ForeignSymbol::eValue || symbol.state != ForeignSymbol::eOpen)
            continue;
        const bool wasUsed = symbol.isUsed;
        valueOf(index);
        m_program.symbols[index].isUsed = wasUsed;
    }
}

void ForeignSymbols::enter(int index)
{
    m_statement = index;
    const ForeignStatement& statement = m_program.statements.at(index);
    if (statement.op() == opNameReg && statement.operands.size() == 2)
        m_registers.rename(statement.operand(0), statement.operand(1));
}

/// The place after the last symbol of a list that is defined up to the present line. A value that is being calculated
/// does not yet count itself.
QVector<int>::const_iterator ForeignSymbols::afterHere(const QVector<int>& symbols) const
{
    const bool isDefining =
        m_depth > 0 && !symbols.isEmpty() && m_program.symbols.at(symbols.first()).kind != ForeignSymbol::eLabel;
    const int last = isDefining ? m_statement - 1 : m_statement;
    return std::upper_bound(symbols.cbegin(), symbols.cend(), last, [&](int statement, int symbol) {
        return statement < m_program.symbols.at(symbol).statement;
    });
}

/// The symbol that counts at the present line, where there are several of one name: the last one before it, or the
/// first one behind it.
int ForeignSymbols::version(const QVector<int>& symbols, int kinds) const
{
    const auto here = afterHere(symbols);
    // A name has one kind, or a few of them.
    const int mostKinds = 8;
    for (auto symbol = here; symbol != symbols.cbegin() && here - symbol < mostKinds;) {
        --symbol;
        if ((bit(m_program.symbols.at(*symbol).kind) & kinds) != 0)
            return *symbol;
    }
    for (auto symbol = here; symbol != symbols.cend() && symbol - here < mostKinds; ++symbol) {
        if ((bit(m_program.symbols.at(*symbol).kind) & kinds) != 0)
            return *symbol;
    }
    return -1;
}

int ForeignSymbols::find(const QString& name, int kinds)
{
    const auto exact = m_byName.constFind(name);
    int found = exact != m_byName.constEnd() ? version(exact.value(), kinds) : -1;
    // Another spelling counts where nothing at all has this one.
    if (exact != m_byName.constEnd() || m_dialect.namesDifferByCase || m_spelledTwice.contains(name.toLower()))
        return found;
    const auto similar = m_byLowerCase.constFind(name.toLower());
    found = similar != m_byLowerCase.constEnd() ? version(similar.value(), kinds) : -1;
    if (found >= 0 && !m_told.contains(name)) {
        m_told.insert(name);
        report(infoImpNameCase, {name, m_program.symbols.at(found).name});
    }
    return found;
}

/// Is it the first of several meanings of a name, all of them further down?
bool ForeignSymbols::isAmbiguous(int symbol) const
{
    const ForeignSymbol& first = m_program.symbols.at(symbol);
    const QVector<int> all = m_byName.value(first.name);
    return first.statement > m_statement && all.last() != symbol && m_program.symbols.at(all.last()).kind == first.kind;
}

ForeignValue ForeignSymbols::evaluate(const QString& text)
{
    return ForeignExpression(m_dialect, *this).evaluate(text);
}

int ForeignSymbols::registerOf(const QString& text, QString* ours)
{
    const int renamed = m_registers.registerOf(text);
    if (renamed >= 0) {
        const int symbol = m_renamed.value(text + '\n' + QString::number(renamed), -1);
        *ours = symbol >= 0 ? m_program.symbols.at(symbol).ours : m_dialect.processor().regName(renamed);
        return renamed;
    }
    const int symbol = find(text, bit(ForeignSymbol::eRegister));
    if (symbol < 0 || isAmbiguous(symbol))
        return -1;
    *ours = m_program.symbols.at(symbol).ours;
    return m_program.symbols.at(symbol).value;
}

int ForeignSymbols::textOf(const QString& name)
{
    return find(name, bit(ForeignSymbol::eString) | bit(ForeignSymbol::eTable));
}

ForeignValue ForeignSymbols::nameValue(const QString& name)
{
    int symbol = find(name, bit(ForeignSymbol::eValue));
    if (symbol < 0)
        symbol = known(name);
    const int aRegister = symbol < 0 ? find(name, bit(ForeignSymbol::eRegister)) : -1;
    if (qMax(symbol, aRegister) >= 0 && isAmbiguous(qMax(symbol, aRegister)))
        return ForeignValue::failed(ForeignValue::eAmbiguousName, name);
    if (symbol >= 0)
        return valueOf(symbol);
    QString ours;
    const bool isOther = registerOf(name, &ours) >= 0 || textOf(name) >= 0;
    return ForeignValue::failed(isOther ? ForeignValue::eNotANumber : ForeignValue::eUnknownName, name);
}

/// The symbol of a name that the dialect knows without a definition; -1 if there is none.
int ForeignSymbols::known(const QString& name)
{
    int value = -1;
    for (int i = 0; i < m_dialect.constantCount; ++i) {
        if (name == QLatin1String(m_dialect.constants[i].name))
            value = m_dialect.constants[i].value;
    }
    bool isStamp = false;
    if (m_dialect.stamps && value < 0) {
        const QTime time = m_stamp.moment.time();
        const QDate date = m_stamp.moment.date();
        const QHash<QString, int> stamps{{"timestamp_hours", time.hour()},     {"timestamp_minutes", time.minute()},
                                         {"timestamp_seconds", time.second()}, {"datestamp_year", date.year() % 100},
                                         {"datestamp_month", date.month()},    {"datestamp_day", date.day()}};
        value = stamps.value(name, -1);
        isStamp = value >= 0;
    }
    if (value < 0)
        return -1;
    if (isStamp)
        report(m_stamp.isKnown ? infoImpStamp : warnImpStamp, {name, hexNumber(value)});
    const int place = m_statement;
    m_statement = -1;
    const int index = add(ForeignSymbol::eValue, name, -1);
    m_statement = place;
    QString reason;
    ForeignSymbol& symbol = m_program.symbols[index];
    symbol.ours = m_names.make(name, ImportNames::eConstant, &reason);
    symbol.value = value;
    symbol.text = hexNumber(value);
    symbol.state = ForeignSymbol::eDone;
    symbol.isStamp = isStamp;
    if (symbol.ours != name)
        report(infoImpRenamed, {name, symbol.ours, reason});
    return index;
}

QString ForeignSymbols::stampText(const QString& name)
{
    if (!m_dialect.stamps || (name != QLatin1String("timestamp$") && name != QLatin1String("datestamp$")))
        return QString();
    const QString text = name.startsWith('t')
                             ? m_stamp.moment.time().toString(QStringLiteral("hh:mm:ss"))
                             : QLocale::c().toString(m_stamp.moment.date(), QStringLiteral("dd MMM yyyy"));
    if (!m_told.contains(name)) {
        m_told.insert(name);
        report(m_stamp.isKnown ? infoImpStamp : warnImpStamp, {name, text});
    }
    return text;
}

ForeignValue ForeignSymbols::valueOf(int index)
{
    const ForeignSymbol::eState_t state = m_program.symbols.at(index).state;
    const QString name = m_program.symbols.at(index).name;
    if (state == ForeignSymbol::eBusy || m_depth > maxChain)
        return ForeignValue::failed(ForeignValue::eCircle, name);
    if (state == ForeignSymbol::eFailed)
        return ForeignValue::failed(ForeignValue::eReported, name);
    if (state == ForeignSymbol::eOpen) {
        m_program.symbols[index].state = ForeignSymbol::eBusy;
        const int place = m_statement;
        m_statement = m_program.symbols.at(index).statement;
        ++m_depth;
        const ForeignValue value = evaluate(valueTextOf(m_program.statements.at(m_statement)));
        --m_depth;
        m_statement = place;
        // The addresses of labels come later: until then the value stays open.
        ForeignSymbol& symbol = m_program.symbols[index];
        symbol.state = value.ok() ? ForeignSymbol::eDone : ForeignSymbol::eOpen;
        if (!value.ok())
            return value;
        symbol.value = value.value;
        symbol.isCharacter = value.isCharacter;
        symbol.text = value.text;
        if (value.isLabelPart || value.isAddress || value.text.isEmpty()) {
            symbol.text = value.value < 0 ? QString::number(value.value) : hexNumber(value.value);
            report(infoImpNumberForName, {valueTextOf(m_program.statementOf(symbol)), symbol.text}, symbol.statement);
        }
    }
    ForeignSymbol& symbol = m_program.symbols[index];
    symbol.isUsed = true;
    ForeignValue value = ForeignValue::number(symbol.value, symbol.ours);
    value.isCharacter = symbol.isCharacter;
    return value;
}

int ForeignSymbols::localLabel(const QString& name) const
{
    if (name.size() < 2 || !isNumber(name.left(name.size() - 1)))
        return -1;
    const QChar direction = name.at(name.size() - 1).toLower();
    const QVector<int> labels = m_locals.value(name.left(name.size() - 1));
    const auto next = afterHere(labels);
    if (direction == 'f')
        return next != labels.cend() ? *next : -1;
    return direction == 'b' && next != labels.cbegin() ? *(next - 1) : -1;
}

ForeignValue ForeignSymbols::labelValue(const QString& name)
{
    int label = m_dialect.localLabels ? localLabel(name) : -1;
    if (label < 0 && !(m_dialect.localLabels && isNumber(name)))
        label = find(name, bit(ForeignSymbol::eLabel));
    if (label < 0)
        return ForeignValue::failed(ForeignValue::eUnknownName, name);
    if (!m_placed)
        return ForeignValue::failed(ForeignValue::eNotANumber, name);
    m_program.symbols[label].isUsed = true;
    ForeignValue value = ForeignValue::number(m_program.symbols.at(label).value, m_program.symbols.at(label).ours);
    value.isAddress = true;
    value.label = label;
    return value;
}

void ForeignSymbols::setLabelAddress(int symbol, int address)
{
    m_program.symbols[symbol].value = address;
    if (!m_labelAt.contains(address))
        m_labelAt.insert(address, symbol);
}

QString ForeignSymbols::useLabelAt(int address)
{
    const int symbol = m_labelAt.value(address, -1);
    if (symbol < 0)
        return QString();
    m_program.symbols[symbol].isUsed = true;
    return m_program.symbols.at(symbol).ours;
}

QString ForeignSymbols::makeLabel(const QString& wanted)
{
    QString reason;
    return m_names.make(wanted, ImportNames::eLabel, &reason);
}

int ForeignSymbols::here() const
{
    return m_statement >= 0 ? m_program.statements.at(m_statement).address : 0;
}

bool ForeignSymbols::isUtf8() const
{
    return m_statement < 0 || m_program.files.at(m_program.statements.at(m_statement).file).isUtf8;
}

void ForeignSymbols::nameIsNumber(const QString& name)
{
    // The longest numbers are addresses: three digits.
    const bool isLonger = m_dialect.numbers == numHexPlain && name.size() > 3;
    if (isLonger || m_told.contains(name))
        return;
    m_told.insert(name);
    report(warnImpNameIsNumber, {name});
}

} // namespace nsImport
