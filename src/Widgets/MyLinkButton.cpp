#include "MyLinkButton.h"

#include <QKeyEvent>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace {

const int leastCharacters = 12;

} // namespace

MyLinkButton::MyLinkButton(const QString& text, QWidget* parent)
    : QPushButton(QString(text).replace(QLatin1Char('&'), QLatin1String("&&")), parent)
{
    setFlat(true);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    setProperty("link", true); // for the style sheet
}

QSize MyLinkButton::minimumSizeHint() const
{
    const QSize whole = sizeHint();
    const int around = whole.width() - widthOf(text());
    const int least =
        m_shortText.isEmpty() ? leastCharacters * fontMetrics().averageCharWidth() : around + widthOf(m_shortText);
    return {qMin(whole.width(), least), whole.height()};
}

void MyLinkButton::setShortText(const QString& text)
{
    m_shortText = text;
    updateGeometry();
    update();
}

QString MyLinkButton::shownText() const
{
    const int missing = sizeHint().width() - width();
    if (missing <= 0)
        return text();
    const int room = widthOf(text()) - missing;
    const bool isShort = !m_shortText.isEmpty() && widthOf(m_shortText) <= room;
    return isShort ? m_shortText : fontMetrics().elidedText(text(), Qt::ElideMiddle, room, Qt::TextShowMnemonic);
}

int MyLinkButton::widthOf(const QString& text) const
{
    return fontMetrics().size(Qt::TextShowMnemonic, text).width();
}

void MyLinkButton::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text = shownText();
    painter.drawControl(QStyle::CE_PushButton, option);
}

void MyLinkButton::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QPushButton::keyPressEvent(event);
}
