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
    return {qMin(whole.width(), leastCharacters * fontMetrics().averageCharWidth()), whole.height()};
}

void MyLinkButton::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    const int missing = sizeHint().width() - width();
    if (missing > 0) {
        const int room = fontMetrics().size(Qt::TextShowMnemonic, text()).width() - missing;
        option.text = fontMetrics().elidedText(text(), Qt::ElideMiddle, room, Qt::TextShowMnemonic);
    }
    painter.drawControl(QStyle::CE_PushButton, option);
}

void MyLinkButton::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QPushButton::keyPressEvent(event);
}
