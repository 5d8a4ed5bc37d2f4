#include "ProcAddressBox.h"

namespace nsProc {

namespace {

const QLatin1String hexPrefix("0x");

bool isHex(const QString& text)
{
    return text.trimmed().startsWith(hexPrefix, Qt::CaseInsensitive);
}

} // namespace

QString ProcAddressBox::hexText() const
{
    return hexPrefix + QStringLiteral("%1").arg(value(), 3, 16, QLatin1Char('0')).toUpper();
}

QValidator::State ProcAddressBox::validate(QString& text, int& pos) const
{
    if (!isHex(text))
        return QSpinBox::validate(text, pos);
    const QString digits = text.trimmed().mid(hexPrefix.size());
    if (digits.isEmpty())
        return QValidator::Intermediate;
    bool ok = false;
    const int number = digits.toInt(&ok, 16);
    if (!ok || number > maximum())
        return QValidator::Invalid;
    return number < minimum() ? QValidator::Intermediate : QValidator::Acceptable;
}

int ProcAddressBox::valueFromText(const QString& text) const
{
    return isHex(text) ? text.trimmed().mid(hexPrefix.size()).toInt(nullptr, 16) : QSpinBox::valueFromText(text);
}

} // namespace nsProc
