#include "MyFolderSelect.h"

#include <QFileDialog>
#include <QFileInfo>

MyFolderSelect::MyFolderSelect(QWidget* parent)
    : MyFileSelect(parent)
{
}

bool MyFolderSelect::isValid() const
{
    QString problem;
    return isUsable(file(), &problem);
}

bool MyFolderSelect::isUsable(const QString& path, QString* problem) const
{
    if (path.isEmpty())
        return false;
    const QFileInfo info(path);
    if (info.exists() && !info.isDir())
        *problem = tr("This is a file, not a folder.");
    return problem->isEmpty();
}

void MyFolderSelect::setupDialog(QFileDialog* dialog) const
{
    dialog->setAcceptMode(QFileDialog::AcceptOpen);
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
}
