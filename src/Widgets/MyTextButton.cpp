#include "MyTextButton.h"

#include <QStyleOptionButton>
#include <QStylePainter>

MyTextButton::MyTextButton(const QString& text, QWidget* parent)
    : QPushButton(text, parent)
{
}

QSize MyTextButton::minimumSizeHint() const
{
    const QSize whole = sizeHint();
    const int around = whole.width() - widthOf(text());
    const int least = m_shortText.isEmpty() ? leastWidth() : around + widthOf(m_shortText);
    return {qMin(whole.width(), least), whole.height()};
}

int MyTextButton::leastWidth() const
{
    return sizeHint().width();
}

void MyTextButton::setShortText(const QString& text)
{
    m_shortText = text;
    if (!text.isEmpty() && sizePolicy().horizontalPolicy() == QSizePolicy::Minimum)
        setSizePolicy(QSizePolicy::Preferred, sizePolicy().verticalPolicy());
    updateGeometry();
    update();
}

QString MyTextButton::shownText() const
{
    const int missing = sizeHint().width() - width();
    if (missing <= 0)
        return text();
    const int room = widthOf(text()) - missing;
    const bool isShort = !m_shortText.isEmpty() && widthOf(m_shortText) <= room;
    return isShort ? m_shortText : fontMetrics().elidedText(text(), Qt::ElideMiddle, room, Qt::TextShowMnemonic);
}

int MyTextButton::widthOf(const QString& text) const
{
    return fontMetrics().size(Qt::TextShowMnemonic, text).width();
}

void MyTextButton::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text = shownText();
    painter.drawControl(QStyle::CE_PushButton, option);
}
