#include "ProcSimEdtNumeric.h"

#include "ProcSimHighlight.h"

#include <QEvent>
#include <QFontDatabase>
#include <QRegExp>
#include <QRegExpValidator>

#include <algorithm>

namespace nsProc {

namespace {

const char* digitsOfBase(int base)
{
    return base == 8 ? "[0-7]{1,8}" : base == 10 ? "[0-9]{1,8}" : "[0-9A-Fa-f]{1,8}";
}

} // namespace

ProcSimEdtNumeric::ProcSimEdtNumeric(QWidget* parent)
    : QLineEdit(parent)
{
    setObjectName(QStringLiteral("procSimEdtNumeric"));
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setBase(m_base);
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
    m_base = base == 8 || base == 10 ? base : 16;
    // The old text may be nothing in the new base: it goes before the check changes.
    m_isShowing = true;
    clear();
    setValidator(nullptr);
    m_isShowing = false;
    setValidator(new QRegExpValidator(QRegExp(digitsOfBase(m_base)), this));
    updateWidth();
    showValue();
}

bool ProcSimEdtNumeric::setValue(int value)
{
    if (value < m_min || value > m_max)
        return false;
    // What the user is typing stays as he typed it, as long as it says the same.
    if (value == m_value && m_isEdited)
        return true;
    const bool isShown = value == m_value && !text().isEmpty();
    m_value = value;
    if (!isShown)
        showValue();
    return true;
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

void ProcSimEdtNumeric::finishEdit()
{
    if (!m_isEdited)
        return;
    showValue();
    emit valueChanged(m_value);
}

void ProcSimEdtNumeric::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    // An empty field is no acceptable input, so its edit does not end by itself.
    finishEdit();
}

void ProcSimEdtNumeric::changeEvent(QEvent* event)
{
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
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
    // Room for any base, so that nothing moves when the base changes. Octal has the most digits.
    const int digits = QString::number(m_max, 8).size();
    setFixedWidth(fontMetrics().horizontalAdvance(QString(digits, '8')) + 16);
}

} // namespace nsProc
