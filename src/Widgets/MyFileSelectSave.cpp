#include "MyFileSelectSave.h"

#include "MyPathEdit.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

MyFileSelectSave::MyFileSelectSave(QWidget* parent)
    : MyFileSelect(parent)
{
    connect(pathEdit(), &QLineEdit::editingFinished, this, &MyFileSelectSave::checkForSaveFile);
}

MyFileSelectSave::~MyFileSelectSave()
{
    // A field with the focus emits editingFinished() while it is deleted, when its text can no longer be read.
    pathEdit()->disconnect(this);
}

bool MyFileSelectSave::isValid() const
{
    QString problem;
    return isUsable(file(), &problem);
}

bool MyFileSelectSave::isUsable(const QString& path, QString* problem) const
{
    if (path.isEmpty())
        return false;
    const QFileInfo info(path);
    if (!info.dir().exists())
        *problem = tr("The folder does not exist.");
    else if (info.fileName().isEmpty())
        *problem = tr("The name of the file is missing.");
    return problem->isEmpty();
}

void MyFileSelectSave::setupDialog(QFileDialog* dialog) const
{
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
}

void MyFileSelectSave::fileChecked()
{
    emit fileValidChanged();
}

void MyFileSelectSave::checkForSaveFile()
{
    if (isValid())
        emit saveFile();
}
