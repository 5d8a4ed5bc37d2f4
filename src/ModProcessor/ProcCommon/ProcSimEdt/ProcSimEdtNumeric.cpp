#include "ProcSimEdtNumeric.h"

#include "ProcSimFont.h"
#include "ProcSimHighlight.h"

#include <QEvent>
#include <QHelpEvent>
#include <QRegExp>
#include <QRegExpValidator>

#include <algorithm>

namespace nsProc {

namespace {

const int space = 16;       ///< pixels beside the digits
const int compactSpace = 8; ///< where many fields stand in a row

/// Lets the digits of a base pass.
class DigitValidator : public QRegExpValidator
{
public:
    DigitValidator(int base, QObject* parent)
        : QRegExpValidator(QRegExp(digitsOfBase(base)), parent)
    {
    }

    /// An empty field is not acceptable; without fixup() it would not emit editingFinished().
    void fixup(QString& input) const override
    {
        if (input.isEmpty())
            input = QStringLiteral("0");
    }

private:
    static const char* digitsOfBase(int base)
    {
        return base == 8 ? "[0-7]{1,8}" : base == 10 ? "[0-9]{1,8}" : "[0-9A-Fa-f]{1,8}";
    }
};

} // namespace

ProcSimEdtNumeric::ProcSimEdtNumeric(QWidget* parent)
    : QLineEdit(parent)
{
    setObjectName(QStringLiteral("procSimEdtNumeric"));
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setFont(monospaceFont());
    setBase(16);
    connect(this, &QLineEdit::textChanged, this, &ProcSimEdtNumeric::takeText);
    connect(this, &QLineEdit::editingFinished, this, &ProcSimEdtNumeric::finishEdit);
}

void ProcSimEdtNumeric::setRange(int min, int max)
{
    m_min = std::max(min, 0);
    m_max = std::max(max, m_min);
    m_value = std::clamp(m_value, m_min, m_max);
    updateWidth();
    showValue();
}

void ProcSimEdtNumeric::setBase(int base)
{
    const int known = base == 8 || base == 10 ? base : 16;
    if (known == m_base && !text().isEmpty())
        return;
    m_base = known;
    // The old text may be invalid in the new base, so it is cleared before the validator changes.
    m_isShowing = true;
    clear();
    m_isShowing = false;
    const QValidator* former = validator();
    setValidator(new DigitValidator(m_base, this));
    delete former;
    updateWidth();
    showValue();
}

bool ProcSimEdtNumeric::setValue(int value)
{
    if (value < m_min || value > m_max)
        return false;
    // The text that the user is typing is not changed as long as it has the same value.
    if (value == m_value)
        return true;
    m_value = value;
    showValue();
    return true;
}

void ProcSimEdtNumeric::setCompact()
{
    m_isCompact = true;
    setProperty("compact", true); // for the style sheet
    updateWidth();
}

bool ProcSimEdtNumeric::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && m_highlighted &&
        showHighlightToolTip(this, static_cast<QHelpEvent*>(event)))
        return true;
    return QLineEdit::event(event);
}

void ProcSimEdtNumeric::setHighlightEn(bool enabled)
{
    if (enabled == m_highlighted)
        return;
    m_highlighted = enabled;
    showHighlight(this, enabled);
}

void ProcSimEdtNumeric::takeText(const QString& text)
{
    if (m_isShowing)
        return;
    bool isNumber = false;
    const qlonglong number = text.toLongLong(&isNumber, m_base);
    m_value = int(std::clamp(isNumber ? number : 0, qlonglong(m_min), qlonglong(m_max)));
    m_isEdited = true;
    emit edited(m_value);
}

bool ProcSimEdtNumeric::takeEdit()
{
    if (!m_isEdited)
        return false;
    showValue();
    return true;
}

void ProcSimEdtNumeric::finishEdit()
{
    if (takeEdit())
        emit valueChanged(m_value);
}

void ProcSimEdtNumeric::changeEvent(QEvent* event)
{
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        updateWidth();
}

void ProcSimEdtNumeric::showValue()
{
    const int width = QString::number(m_max, m_base).size();
    m_isEdited = false;
    m_isShowing = true;
    setText(QString::number(m_value, m_base).toUpper().rightJustified(width, '0'));
    m_isShowing = false;
}

void ProcSimEdtNumeric::updateWidth()
{
    // Wide enough for any base, so that nothing moves when the base changes. Octal has the most digits.
    const int digits = QString::number(m_max, 8).size();
    setFixedWidth(fontMetrics().horizontalAdvance(QString(digits, '8')) + (m_isCompact ? compactSpace : space));
}

} // namespace nsProc
