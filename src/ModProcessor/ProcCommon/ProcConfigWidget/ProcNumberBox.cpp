#include "ProcNumberBox.h"

namespace nsProc {

ProcNumberBox::ProcNumberBox(int decimals, QWidget* parent)
    : QDoubleSpinBox(parent)
{
    setDecimals(decimals);
}

QString ProcNumberBox::textFromValue(double value) const
{
    QString text = locale().toString(value, 'f', decimals());
    if (!isGroupSeparatorShown())
        text.remove(locale().groupSeparator());
    const int point = text.indexOf(locale().decimalPoint());
    if (point < 0)
        return text;
    int length = text.size();
    while (length > point + 1 && text.at(length - 1) == locale().zeroDigit())
        --length;
    return text.left(length == point + 1 ? point : length);
}

} // namespace nsProc
