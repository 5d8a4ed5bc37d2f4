#include "PrjMngrNewWidget.h"

#include "PrjMngrFile.h"
#include "PrjMngrOptions.h"

#include "MyButton.h"
#include "MyFieldTitle.h"
#include "MyFileSelectSave.h"
#include "MyPathEdit.h"

#include <QFileInfo>
#include <QFocusEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace nsModPrj {

namespace {

const int margin = 16;
const int gap = 8;

} // namespace

PrjMngrNewWidget::PrjMngrNewWidget(QWidget* parent)
    : QWidget(parent)
    , m_content(this, [this] { makeContent(); })
{
    setObjectName(QStringLiteral("prjMngrNew"));
}

void PrjMngrNewWidget::makeContent()
{
    m_file = new MyFileSelectSave(this);
    m_title = new QLineEdit(this);
    m_options = new PrjMngrOptions(this);
    m_note = new QLabel(this);
    m_add = new MyButton(tr("Generate and add project to collection"), this);
    m_open = new MyButton(tr("Generate and open project"), this);
    m_file->setObjectName(QStringLiteral("prjMngrNewFile"));
    m_file->setWindowTitle(tr("New project file"));
    m_file->setDescription(tr("File that keeps the project; its sources stand beside it as a rule"));
    PrjMngrFile::setup(m_file);
    m_title->setObjectName(QStringLiteral("prjMngrNewTitle"));
    m_note->setObjectName(QStringLiteral("pageHint"));
    m_note->setWordWrap(true);
    m_note->setTextFormat(Qt::PlainText);
    m_add->setShortText(tr("Generate and add"));
    m_open->setShortText(tr("Generate and open"));
    m_add->setToolTip(tr("Writes the project file and lists the project under Open"));
    m_open->setToolTip(tr("Writes the project file and opens the project"));

    m_title->setToolTip(tr("Name of the project, shown in the title of the window"));
    auto* fileTitle = new MyFieldTitle(tr("Project file:"), this);
    fileTitle->setBuddy(m_file);
    auto* titleTitle = new MyFieldTitle(tr("Project title:"), this);
    titleTitle->setBuddy(m_title);

    // One below the other: side by side the buttons would be wider than the page in a small window.
    auto* buttons = new QVBoxLayout;
    buttons->setSpacing(gap);
    buttons->addWidget(m_open);
    buttons->addWidget(m_add);
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(gap);
    layout->addWidget(fileTitle, 0, 0);
    layout->addWidget(m_file, 0, 1);
    layout->addWidget(titleTitle, 1, 0);
    layout->addWidget(m_title, 1, 1);
    layout->addWidget(m_options, 2, 0, 1, 2);
    layout->addWidget(m_note, 3, 0, 1, 2);
    layout->addLayout(buttons, 4, 0, 1, 2, Qt::AlignLeft);
    layout->setRowStretch(5, 1);
    setFocusProxy(m_file);
    setTabOrder(m_open, m_add);

    connect(m_file, &MyFileSelectSave::fileValidChanged, this, &PrjMngrNewWidget::checkFile);
    connect(m_title, &QLineEdit::textChanged, this, &PrjMngrNewWidget::checkTitle);
    m_title->installEventFilter(this);
    connect(m_options, &PrjMngrOptions::changed, this, &PrjMngrNewWidget::updateButtons);
    connect(m_file->pathEdit(), &QLineEdit::returnPressed, this, &PrjMngrNewWidget::hndlReturn);
    connect(m_title, &QLineEdit::returnPressed, this, &PrjMngrNewWidget::hndlReturn);
    connect(m_add, &QPushButton::clicked, this, &PrjMngrNewWidget::requestAdd);
    connect(m_open, &QPushButton::clicked, this, &PrjMngrNewWidget::requestOpen);
    updateButtons();
}

void PrjMngrNewWidget::clear()
{
    // What is made later is empty.
    if (!m_content.isThere())
        return;
    m_file->setFile(QString(), QString());
    m_title->clear();
    m_options->clear();
}

NewProjectOptions PrjMngrNewWidget::options()
{
    m_content.need();
    return m_options->options();
}

bool PrjMngrNewWidget::isComplete() const
{
    return m_fileValid && m_titleValid;
}

void PrjMngrNewWidget::checkFile()
{
    m_fileValid = m_file->isValid();
    // Chosen in the dialog, and not typed.
    if (!m_file->pathEdit()->hasFocus())
        suggestTitle();
    updateButtons();
}

/// Fills in the name of the file, selected, where there is no title yet.
void PrjMngrNewWidget::suggestTitle()
{
    if (!m_fileValid || !m_title->text().isEmpty())
        return;
    const QFileInfo info(m_file->file());
    m_title->setText(info.suffix() == PrjMngrFile::suffix() ? info.completeBaseName() : info.fileName());
    m_title->selectAll();
}

bool PrjMngrNewWidget::eventFilter(QObject* watched, QEvent* event)
{
    // A click would put the cursor into the suggestion.
    if (watched == m_title && event->type() == QEvent::FocusIn &&
        static_cast<QFocusEvent*>(event)->reason() != Qt::MouseFocusReason)
        suggestTitle();
    return QWidget::eventFilter(watched, event);
}

void PrjMngrNewWidget::checkTitle()
{
    m_titleValid = !m_title->text().isEmpty();
    updateButtons();
}

void PrjMngrNewWidget::updateButtons()
{
    m_add->setEnabled(isComplete());
    m_open->setEnabled(isComplete());
    const bool exists = m_fileValid && QFileInfo::exists(PrjMngrFile::fullPath(m_file->file()));
    QString note = exists ? tr("This file exists already and would be replaced.")
                          : tr("A project has a file of its own and a title.");
    if (m_fileValid) {
        const QString path = PrjMngrFile::fullPath(m_file->file());
        const QStringList files = NewProject(path, m_title->text(), options()).files();
        if (!files.isEmpty())
            note += QLatin1Char('\n') + tr("Beside it: %1").arg(files.join(QLatin1String(", ")));
    }
    m_note->setText(note);
}

void PrjMngrNewWidget::requestAdd()
{
    emit generateAdd(PrjMngrFile::fullPath(m_file->file()), m_title->text());
}

void PrjMngrNewWidget::requestOpen()
{
    emit generateOpen(PrjMngrFile::fullPath(m_file->file()), m_title->text());
}

void PrjMngrNewWidget::hndlReturn()
{
    if (!m_fileValid)
        m_file->setFocus();
    else if (!m_titleValid)
        m_title->setFocus();
    else if (QFileInfo::exists(PrjMngrFile::fullPath(m_file->file())))
        m_open->setFocus(); // so that pressing a key does not replace a file
    else
        requestOpen();
}

} // namespace nsModPrj
