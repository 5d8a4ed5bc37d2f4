#include "MyButtonOpenFile.h"

#include "SchemeIcons.h"

MyButtonOpenFile::MyButtonOpenFile(QWidget* parent)
    : QPushButton(parent)
{
    setObjectName(QStringLiteral("buttonOpenFile"));
    setIcon(SchemeIcons::of(QStringLiteral(":/MyWidgets/img/folderOpen.png")));
    setToolTip(tr("Select a file"));
    setAccessibleName(toolTip());
}
