#include "MyButton.h"

MyButton::MyButton(QWidget* parent)
    : MyButton(QString(), parent)
{
}

MyButton::MyButton(const QString& text, QWidget* parent)
    : MyTextButton(text, parent)
{
    setObjectName(QStringLiteral("button"));
}
