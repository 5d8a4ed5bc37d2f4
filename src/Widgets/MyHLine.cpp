#include "MyHLine.h"

MyHLine::MyHLine(QWidget* parent)
    : QFrame(parent)
{
    setObjectName(QStringLiteral("hline"));
    setFrameShape(QFrame::HLine);
    setFrameShadow(QFrame::Sunken);
}
