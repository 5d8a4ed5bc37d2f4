#include "ExamplesDialog.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QStandardPaths>
#include <QVBoxLayout>

namespace nsModPrj {

namespace {

const QSize startSize(640, 440);
const int gap = 8;

bool isUsable(const QString& folder)
{
    const QFileInfo info(folder);
    return !folder.isEmpty() && info.isAbsolute() && info.isDir() && info.isWritable();
}

} // namespace

ExamplesDialog::ExamplesDialog(const ExampleProjects& examples, const QString& folder, QWidget* parent)
    : QDialog(parent)
    , m_examples(examples)
    , m_list(examples.list())
    , m_view(new QListWidget(this))
    , m_folder(new QLineEdit(folder, this))
    , m_note(new QLabel(this))
{
    setObjectName(QStringLiteral("examplesDialog"));
    setWindowTitle(tr("Open an example"));
    m_view->setObjectName(QStringLiteral("examplesList"));
    m_view->setWordWrap(true);
    m_view->setAccessibleName(tr("Examples"));
    for (const ExampleProject& example : qAsConst(m_list))
        m_view->addItem(example.comment.isEmpty() ? example.title
                                                  : example.title + QLatin1String(" - ") + example.comment);
    m_view->setCurrentRow(m_list.isEmpty() ? -1 : 0);
    m_folder->setObjectName(QStringLiteral("examplesFolder"));
    m_folder->setToolTip(tr("The copy of the example gets a folder of its own in this one"));
    auto* label = new QLabel(tr("Copy &into the folder:"), this);
    label->setBuddy(m_folder);
    auto* choose = new QPushButton(tr("&Choose..."), this);
    choose->setObjectName(QStringLiteral("examplesChoose"));
    choose->setAutoDefault(false);
    choose->setToolTip(tr("Selects the folder that the copy goes into"));
    m_note->setObjectName(QStringLiteral("examplesNote"));
    m_note->setTextFormat(Qt::PlainText);
    m_note->setWordWrap(true);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_open = buttons->addButton(tr("Copy and &open"), QDialogButtonBox::AcceptRole);
    m_open->setDefault(true);

    auto* row = new QHBoxLayout;
    row->setSpacing(gap);
    row->addWidget(label);
    row->addWidget(m_folder, 1);
    row->addWidget(choose);
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(gap);
    layout->addWidget(m_view, 1);
    layout->addLayout(row);
    layout->addWidget(m_note);
    layout->addWidget(buttons);
    resize(startSize);
    setTabOrder(m_view, m_folder);
    setTabOrder(m_folder, choose);
    m_view->setFocus();

    connect(buttons, &QDialogButtonBox::accepted, this, &ExamplesDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ExamplesDialog::reject);
    connect(choose, &QPushButton::clicked, this, &ExamplesDialog::chooseFolder);
    connect(m_folder, &QLineEdit::textChanged, this, &ExamplesDialog::updateState);
    connect(m_view, &QListWidget::currentRowChanged, this, &ExamplesDialog::updateState);
    connect(m_view, &QListWidget::itemDoubleClicked, this, &ExamplesDialog::accept);
    updateState();
}

QString ExamplesDialog::usersFolder()
{
    for (const QStandardPaths::StandardLocation place :
         {QStandardPaths::DocumentsLocation, QStandardPaths::HomeLocation}) {
        const QString folder = QStandardPaths::writableLocation(place);
        if (isUsable(folder) && !QDir(folder).isRoot())
            return folder;
    }
    return QString();
}

QString ExamplesDialog::folder() const
{
    return m_folder->text();
}

void ExamplesDialog::updateState()
{
    const QString folder = m_folder->text();
    QString note;
    if (m_list.isEmpty())
        note = tr("The examples that ship with the program were not found.");
    else if (folder.isEmpty())
        note = tr("Choose the folder that the copy goes into.");
    else if (!QFileInfo(folder).isAbsolute() || !QFileInfo(folder).isDir())
        note = tr("The folder does not exist.");
    else if (!QFileInfo(folder).isWritable())
        note = tr("The folder can not be written.");
    m_open->setEnabled(note.isEmpty() && m_view->currentRow() >= 0);
    if (m_open->isEnabled()) {
        const QString name = ExampleProjects::freeName(folder, m_list.at(m_view->currentRow()));
        note = tr("Will be copied to %1").arg(QDir::toNativeSeparators(QDir(folder).filePath(name)));
    }
    m_note->setText(note);
}

void ExamplesDialog::chooseFolder()
{
    const QPointer<ExamplesDialog> self(this);
    const QString folder =
        QFileDialog::getExistingDirectory(this, tr("Folder for the copy of the example"), m_folder->text(),
                                          QFileDialog::ShowDirsOnly | QFileDialog::DontUseNativeDialog);
    if (self && !folder.isEmpty())
        m_folder->setText(folder);
}

void ExamplesDialog::accept()
{
    if (!m_open->isEnabled())
        return;
    QString error;
    m_projectFile = m_examples.copy(m_list.at(m_view->currentRow()), m_folder->text(), &error);
    if (m_projectFile.isEmpty())
        m_note->setText(error);
    else
        QDialog::accept();
}

} // namespace nsModPrj
