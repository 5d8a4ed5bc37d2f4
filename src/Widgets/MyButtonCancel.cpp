#include "MyButtonCancel.h"

MyButtonCancel::MyButtonCancel(QWidget* parent)
    : QPushButton(tr("&Cancel"), parent)
{
    setObjectName(QStringLiteral("buttonCancel"));
}
