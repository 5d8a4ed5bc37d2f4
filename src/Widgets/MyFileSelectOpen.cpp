#include "MyFileSelectOpen.h"

#include "MyPathEdit.h"

#include <QFileDialog>
#include <QFileInfo>

MyFileSelectOpen::MyFileSelectOpen(QWidget* parent)
    : MyFileSelect(parent)
{
    connect(pathEdit(), &QLineEdit::editingFinished, this, &MyFileSelectOpen::checkForOpenFile);
}

MyFileSelectOpen::~MyFileSelectOpen()
{
    // A field with the focus emits editingFinished() while it is deleted, when its text can no longer be read.
    pathEdit()->disconnect(this);
}

bool MyFileSelectOpen::isValid() const
{
    QString problem;
    return isUsable(file(), &problem);
}

bool MyFileSelectOpen::isUsable(const QString& path, QString* problem) const
{
    if (path.isEmpty())
        return false;
    const QFileInfo info(path);
    if (!info.exists())
        *problem = tr("The file does not exist.");
    else if (info.isDir())
        *problem = tr("This is a folder, not a file.");
    return problem->isEmpty();
}

void MyFileSelectOpen::setupDialog(QFileDialog* dialog) const
{
    dialog->setAcceptMode(QFileDialog::AcceptOpen);
    dialog->setFileMode(QFileDialog::ExistingFile);
}

void MyFileSelectOpen::checkForOpenFile()
{
    if (isValid())
        emit openFile();
}
