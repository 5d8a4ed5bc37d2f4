#include "MyFileSelect.h"

#include "MyButtonOpenFile.h"
#include "MyPathEdit.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QPointer>
#include <QRegularExpression>

MyFileSelect::MyFileSelect(QWidget* parent)
    : QWidget(parent)
    , m_edit(new MyPathEdit(this))
    , m_button(new MyButtonOpenFile(this))
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(m_edit, 1);
    layout->addWidget(m_button);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setFocusProxy(m_edit);

    connect(m_edit, &QLineEdit::textChanged, this, &MyFileSelect::checkFile);
    connect(m_edit, &MyPathEdit::fileDropped, this, &MyFileSelect::takeSelection);
    connect(m_button, &QPushButton::clicked, this, &MyFileSelect::selectFile);
}

void MyFileSelect::setDefaultSuffix(QString suffix)
{
    m_suffix = suffix;
}

void MyFileSelect::setWindowTitle(QString title)
{
    m_title = title;
    m_button->setToolTip(title);
    m_button->setAccessibleName(title);
    if (m_edit->accessibleName().isEmpty())
        m_edit->setAccessibleName(title);
}

void MyFileSelect::setNameFilters(QStringList filters)
{
    m_filters = filters;
}

void MyFileSelect::setDescription(const QString& description)
{
    m_edit->setDescription(description);
}

void MyFileSelect::setFile(QString file, QString relDir)
{
    m_base = relDir;
    const QString shown = toRelPath(file);
    if (shown == m_edit->text())
        checkFile(shown); // the same text can mean another file now
    else
        m_edit->setText(shown);
}

QString MyFileSelect::file() const
{
    return toAbsPath(m_edit->text());
}

QString MyFileSelect::text() const
{
    return m_edit->text();
}

QString MyFileSelect::toRelPath(QString path) const
{
    return m_base.isEmpty() || path.isEmpty() ? path : QDir(m_base).relativeFilePath(path);
}

QString MyFileSelect::toAbsPath(QString path) const
{
    if (m_base.isEmpty() || path.isEmpty())
        return path;
    const bool isFolder = path.endsWith(QLatin1Char('/'));
    path = QDir::cleanPath(QDir(m_base).absoluteFilePath(path));
    return isFolder && !path.endsWith(QLatin1Char('/')) ? path + QLatin1Char('/') : path;
}

void MyFileSelect::checkFile(QString text)
{
    static const QRegularExpression scheme(QStringLiteral("^\\S*://"));
    const QRegularExpressionMatch match = scheme.match(text);
    if (match.hasMatch()) {
        m_edit->setText(text.mid(match.capturedEnd()));
        return;
    }
    const QString path = toAbsPath(text);
    QString problem;
    const bool usable = isUsable(path, &problem);
    m_edit->setFullPath(path);
    m_edit->setProblem(usable ? QString() : problem);
    emit fileValid(usable);
    fileChecked();
}

void MyFileSelect::takeSelection(const QString& path)
{
    m_edit->setText(toRelPath(path));
}

void MyFileSelect::selectFile()
{
    // The page of this field can be deleted while the dialog is open, and the dialog with it.
    const QPointer<QFileDialog> dialog(new QFileDialog(this, m_title));
    dialog->setNameFilters(m_filters);
    dialog->setDefaultSuffix(m_suffix);
    setupDialog(dialog);
    setupPlace(dialog);
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (!dialog)
        return;
    const QStringList selected = dialog->selectedFiles();
    delete dialog;
    if (accepted && !selected.isEmpty())
        takeSelection(selected.constFirst());
}

void MyFileSelect::setupPlace(QFileDialog* dialog) const
{
    const QString path = file();
    const QFileInfo info(path);
    if (!path.isEmpty() && info.dir().exists()) {
        dialog->setDirectory(info.dir());
        dialog->selectFile(info.fileName());
    } else if (path.isEmpty() && !m_startFolder.isEmpty()) {
        dialog->setDirectory(m_startFolder);
    } else if (!m_base.isEmpty()) {
        dialog->setDirectory(m_base);
    }
}
