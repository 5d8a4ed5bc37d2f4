#include "MyButtonOk.h"

MyButtonOk::MyButtonOk(QWidget* parent)
    : QPushButton(tr("&Ok"), parent)
{
    setObjectName(QStringLiteral("buttonOk"));
}
