#include "MyButtonOpenFile.h"

MyButtonOpenFile::MyButtonOpenFile(QWidget* parent)
    : QPushButton(parent)
{
    setObjectName(QStringLiteral("buttonOpenFile"));
    setIcon(QIcon(QStringLiteral(":/MyWidgets/img/folderOpen.png")));
    setToolTip(tr("Select a file"));
    setAccessibleName(toolTip());
}
