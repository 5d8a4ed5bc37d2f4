#include "MyLinkButton.h"

#include <QKeyEvent>

MyLinkButton::MyLinkButton(const QString& text, QWidget* parent)
    : QPushButton(QString(text).replace(QLatin1Char('&'), QLatin1String("&&")), parent)
{
    setFlat(true);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    setProperty("link", true); // for the style sheet
}

void MyLinkButton::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QPushButton::keyPressEvent(event);
}
