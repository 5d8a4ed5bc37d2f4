#include "MsgStatusBar.h"

#include "SchemeIcons.h"

#include <QStringList>

namespace nsModMsg {

namespace {

const int space = 12; ///< pixels around icon and text

} // namespace

MsgStatusBar::MsgStatusBar(QWidget* parent)
    : QToolButton(parent)
{
    setObjectName(QStringLiteral("msgCounts"));
    setAutoRaise(true);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setFocusPolicy(Qt::NoFocus);
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setToolTip(tr("Errors and warnings since the last run began; a click shows the first of the worst"));
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &MsgStatusBar::showCounts);
    showCounts();
}

QSize MsgStatusBar::minimumSizeHint() const
{
    return QSize(iconSize().width(), QToolButton::minimumSizeHint().height());
}

QSize MsgStatusBar::sizeHint() const
{
    const int textWidth = m_sum.isEmpty() ? 0 : fontMetrics().horizontalAdvance(m_sum) + space;
    return QSize(iconSize().width() + space + textWidth, QToolButton::sizeHint().height());
}

void MsgStatusBar::resizeEvent(QResizeEvent* event)
{
    QToolButton::resizeEvent(event);
    fitText();
}

/// Text that would be cut is not shown: the icon says enough.
void MsgStatusBar::fitText()
{
    setText(width() >= sizeHint().width() ? m_sum : QString());
}

void MsgStatusBar::setCounts(int errors, int warnings)
{
    m_errors = errors;
    m_warnings = warnings;
    if (!m_timer.isActive())
        m_timer.start(0);
}

void MsgStatusBar::showCounts()
{
    const int errors = m_errors;
    const int warnings = m_warnings;
    QStringList texts;
    if (errors > 0)
        texts.append(errors == 1 ? tr("1 error") : tr("%1 errors").arg(errors));
    if (warnings > 0)
        texts.append(warnings == 1 ? tr("1 warning") : tr("%1 warnings").arg(warnings));
    m_sum = texts.join(QLatin1String(", "));
    setAccessibleName(texts.isEmpty() ? tr("No errors, no warnings") : m_sum);
    setIcon(texts.isEmpty() ? QIcon()
                            : SchemeIcons::of(errors > 0 ? QStringLiteral(":/ModMsg/img/msgError.png")
                                                         : QStringLiteral(":/ModMsg/img/msgWarning.png")));
    // It keeps its place and height, so that nothing moves in the bar.
    setEnabled(!texts.isEmpty());
    updateGeometry();
    fitText();
}

} // namespace nsModMsg
