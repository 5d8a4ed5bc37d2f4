#include "MyButton.h"

MyButton::MyButton(QWidget* parent)
    : MyButton(QString(), parent)
{
}

MyButton::MyButton(const QString& text, QWidget* parent)
    : QPushButton(text, parent)
{
    setObjectName(QStringLiteral("button"));
}
