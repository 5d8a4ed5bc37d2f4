#include "MyFieldTitle.h"

MyFieldTitle::MyFieldTitle(QWidget* parent)
    : MyFieldTitle(QString(), parent)
{
}

MyFieldTitle::MyFieldTitle(const QString& text, QWidget* parent)
    : QLabel(text, parent)
{
}
