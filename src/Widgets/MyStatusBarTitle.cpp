#include "MyStatusBarTitle.h"

MyStatusBarTitle::MyStatusBarTitle(QWidget* parent)
    : MyStatusBarTitle(QString(), parent)
{
}

MyStatusBarTitle::MyStatusBarTitle(const QString& text, QWidget* parent)
    : QLabel(text, parent)
{
    setObjectName(QStringLiteral("statusBarTitle"));
}
