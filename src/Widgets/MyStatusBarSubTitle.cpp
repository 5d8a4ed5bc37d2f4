#include "MyStatusBarSubTitle.h"

MyStatusBarSubTitle::MyStatusBarSubTitle(QWidget* parent)
    : MyStatusBarSubTitle(QString(), parent)
{
}

MyStatusBarSubTitle::MyStatusBarSubTitle(const QString& text, QWidget* parent)
    : QLabel(text, parent)
{
    setObjectName(QStringLiteral("statusBarSubTitle"));
}
