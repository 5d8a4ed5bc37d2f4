#include "MyLinkButton.h"

#include <QKeyEvent>

namespace {

const int leastCharacters = 12;

} // namespace

MyLinkButton::MyLinkButton(const QString& text, QWidget* parent)
    : MyTextButton(QString(text).replace(QLatin1Char('&'), QLatin1String("&&")), parent)
{
    setFlat(true);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    setProperty("link", true); // for the style sheet
}

int MyLinkButton::leastWidth() const
{
    return leastCharacters * fontMetrics().averageCharWidth();
}

void MyLinkButton::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QPushButton::keyPressEvent(event);
}
