#include "ImportNames.h"

#include "AsmFeParseArg.h"
#include "AsmWords.h"
#include "ProcTable.h"

#include <QCoreApplication>

namespace nsImport {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("nsImport::ImportNames", text);
}

const nsModAsmFe::AsmWords& words()
{
    static const nsModAsmFe::AsmWords instance;
    return instance;
}

} // namespace

ImportNames::ImportNames(const nsProc::ProcTable& table)
{
    for (int i = 0; i < table.regs.count; ++i)
        m_registers.append(table.regName(i).toLower());
    for (const char* bank = table.banks; *bank != '\0'; ++bank)
        m_banks.append(QString(QLatin1Char(*bank)));
}

/// Why the language has no such name; empty if it can have it.
QString ImportNames::refusal(const QString& name) const
{
    const QString upper = name.toUpper();
    if (words().isInstruction(upper) || words().isArgument(upper))
        return tr("a word of the language");
    if (m_registers.contains(name.toLower()))
        return tr("a register");
    if (m_banks.contains(upper))
        return tr("a register bank");
    if (nsModAsmFe::AsmFeParseArg::isNumeric(name))
        return tr("a number");
    return QString();
}

QString ImportNames::withAllowedCharacters(const QString& name)
{
    QString allowed;
    for (const QChar c : name) {
        const bool isAllowed = (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_';
        allowed += isAllowed ? c : QChar('_');
    }
    return allowed.isEmpty() ? QStringLiteral("_") : allowed;
}

QString ImportNames::make(const QString& wanted, eUse_t use, QString* reason)
{
    static const char* const uses[] = {"_label", "_const", "_reg"};
    const QString name = withAllowedCharacters(wanted);
    if (name != wanted)
        *reason = tr("characters that a name can not have");
    QString suffix = QLatin1String(uses[use]);
    QString refused = refusal(name);
    if (refused.isEmpty()) {
        const auto other = m_taken.constFind(name.toLower());
        if (other == m_taken.constEnd()) {
            m_taken.insert(name.toLower(), {wanted, use});
            return name;
        }
        const QString& taker = other.value().wanted;
        if (taker == wanted)
            refused = tr("the same name is used for something else");
        else if (taker.compare(wanted, Qt::CaseInsensitive) == 0)
            refused = tr("\"%1\" differs by case alone").arg(taker);
        else
            refused = tr("\"%1\" has this name").arg(taker);
        // What it is for does not tell it from another one of its kind.
        if (other.value().use == use)
            suffix = QStringLiteral("_2");
    }
    if (reason->isEmpty())
        *reason = refused;
    QString made = name + suffix;
    const bool isNumbered = suffix.endsWith('2');
    // Goes on where the last one of these names has ended: there may be a hundred thousand.
    int& number = m_numbers[made.toLower()];
    for (number = qMax(number, isNumbered ? 3 : 2); m_taken.contains(made.toLower()) || !refusal(made).isEmpty();
         ++number)
        made = name + (isNumbered ? QStringLiteral("_") : suffix) + QString::number(number);
    m_taken.insert(made.toLower(), {wanted, use});
    return made;
}

} // namespace nsImport
