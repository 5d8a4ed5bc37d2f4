#include "ImportProgramDialog.h"

#include "ImportProgramForm.h"
#include "ImportProgramReport.h"

#include "MyButton.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QDropEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace nsModImport {

using nsImport::eImportStep_t;

namespace {

const int gap = 8;
const QSize startSize(860, 680);

QString stepText(int step)
{
    switch (eImportStep_t(step)) {
    case nsImport::stepReference:
        return ImportProgramDialog::tr("Reading the reference image...");
    case nsImport::stepRead:
        return ImportProgramDialog::tr("Reading...");
    case nsImport::stepConvert:
        return ImportProgramDialog::tr("Converting...");
    case nsImport::stepCheck:
        return ImportProgramDialog::tr("Assembling the result...");
    case nsImport::stepCompare:
        return ImportProgramDialog::tr("Comparing with the reference image...");
    case nsImport::eImportStepCount:
        break;
    }
    return QString();
}

/// The local file of a drag; empty if it has none.
QString fileOf(const QMimeData* data)
{
    for (const QUrl& url : data->urls()) {
        if (url.isLocalFile() && QFileInfo(url.toLocalFile()).isFile())
            return url.toLocalFile();
    }
    return QString();
}

} // namespace

ImportProgramDialog::ImportProgramDialog(QThreadPool* pool, QWidget* parent)
    : QDialog(parent)
    , m_form(new ImportProgramForm(this))
    , m_report(new ImportProgramReport(this))
    , m_worker(new ImportWorker(pool, this))
    , m_step(new QLabel(this))
    , m_progress(new QProgressBar(this))
{
    setObjectName(QStringLiteral("importProgramDialog"));
    setWindowTitle(tr("Import program"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setAttribute(Qt::WA_DeleteOnClose);
    setAcceptDrops(true);
    m_step->setObjectName(QStringLiteral("importStep"));
    m_progress->setObjectName(QStringLiteral("importProgramProgress"));
    m_progress->setAccessibleName(tr("Steps of the import"));
    m_progress->setRange(0, nsImport::eImportStepCount);
    m_progress->setTextVisible(false);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(2 * gap, 2 * gap, 2 * gap, 2 * gap);
    layout->setSpacing(gap);
    layout->addWidget(m_form);
    layout->addWidget(m_report, 1);
    layout->addWidget(makeButtons());
    resize(startSize);

    connect(m_form, &ImportProgramForm::changed, this, &ImportProgramDialog::updateState);
    connect(m_report, &ImportProgramReport::placeRequested, this, &ImportProgramDialog::placeRequested);
    connect(m_worker, &ImportWorker::stepBegun, this, &ImportProgramDialog::showStep);
    connect(m_worker, &ImportWorker::converted, this, &ImportProgramDialog::handleConverted);
    connect(m_worker, &ImportWorker::written, this, &ImportProgramDialog::handleWritten);
    updateState();
    m_form->setFocus();
}

QPushButton* ImportProgramDialog::addButton(const QString& name, const QString& text, const QString& toolTip)
{
    auto* button = new MyButton(text, this);
    button->setObjectName(name);
    button->setToolTip(toolTip);
    button->setAutoDefault(false);
    return button;
}

QWidget* ImportProgramDialog::makeButtons()
{
    m_convert = addButton(QStringLiteral("importProgramConvert"), tr("&Convert"),
                          tr("Convert the program, compare it with the reference, and write the project"));
    m_convert->setDefault(true);
    m_stop =
        addButton(QStringLiteral("importProgramStop"), tr("S&top"), tr("End the conversion; nothing is written (Esc)"));
    m_open = addButton(QStringLiteral("importProgramOpen"), tr("&Open project"),
                       tr("Open the result in place of the present project"));
    m_close = addButton(QStringLiteral("importProgramClose"), tr("C&lose"), tr("Close the dialog"));
    auto* row = new QWidget(this);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(gap);
    layout->addWidget(m_convert);
    layout->addWidget(m_stop);
    layout->addWidget(m_progress, 1);
    layout->addWidget(m_step, 2);
    layout->addWidget(m_open);
    layout->addWidget(m_close);
    connect(m_convert, &QPushButton::clicked, this, &ImportProgramDialog::convert);
    connect(m_stop, &QPushButton::clicked, this, &ImportProgramDialog::stop);
    connect(m_close, &QPushButton::clicked, this, &ImportProgramDialog::close);
    connect(m_open, &QPushButton::clicked, this, [this] {
        if (m_job != nullptr && m_job->isWritten())
            emit openProjectRequested(m_job->projectFile());
    });
    return row;
}

void ImportProgramDialog::setConfig(const ImportProgramConfig& config)
{
    m_form->setConfig(config);
    updateState();
}

ImportProgramConfig ImportProgramDialog::config() const
{
    return m_form->config();
}

void ImportProgramDialog::setCanOpenProject(bool can)
{
    m_canOpen = can;
    updateState();
}

// --- states ---

void ImportProgramDialog::setState(eState_t state)
{
    if (m_state == stateIdle)
        m_hadFocus = m_convert->hasFocus() || m_open->hasFocus();
    m_state = state;
    updateState();
    // A button that is disabled loses the focus, and the user would have to look for it.
    if (m_hadFocus && m_stop->isEnabled())
        m_stop->setFocus();
    else if (m_hadFocus && state == stateIdle)
        (m_open->isEnabled() ? m_open : m_convert)->setFocus();
}

void ImportProgramDialog::updateState()
{
    const QString problem = m_form->problem();
    const bool isIdle = m_state == stateIdle;
    m_form->setEnabled(isIdle);
    m_convert->setEnabled(isIdle && problem.isEmpty());
    m_stop->setEnabled(m_state == stateConverting);
    m_open->setEnabled(isIdle && m_canOpen && m_job != nullptr && m_job->isWritten());
    m_progress->setVisible(!isIdle);
    if (isIdle)
        m_step->setText(problem);
    m_convert->setDefault(!m_open->isEnabled());
    m_open->setDefault(m_open->isEnabled());
}

void ImportProgramDialog::showStep(int step)
{
    m_progress->setValue(step + 1);
    m_step->setText(stepText(step));
}

// --- a conversion ---

void ImportProgramDialog::convert()
{
    if (isBusy())
        return;
    // What stands on the disk may have changed since the fields were filled.
    const ImportWorker::Job job = m_form->job();
    m_job = job;
    m_report->clear();
    if (job == nullptr) {
        updateState();
        return;
    }
    m_progress->setValue(0);
    m_step->clear();
    setState(stateConverting);
    m_worker->convert(job);
}

void ImportProgramDialog::stop()
{
    if (m_state != stateConverting)
        return;
    m_worker->cancel();
    m_job.reset();
    m_report->setState(ModMsgHookIf::eMsgWarning, tr("Stopped: nothing was written."), QString());
    setState(stateIdle);
}

void ImportProgramDialog::handleConverted()
{
    if (!m_job->hasResult())
        handleWritten();
    else if (m_job->needsForce())
        askToOverwrite();
    else
        write(false);
}

/// Shows the question without waiting for its answer: until then, anything may happen to the dialog.
void ImportProgramDialog::askToOverwrite()
{
    setState(stateAsking);
    m_step->clear();
    auto* box = new QMessageBox(
        QMessageBox::Question, tr("Overwrite files?"),
        tr("The folder \"%1\" has files already. May those with the names of the result be overwritten?")
            .arg(QDir::toNativeSeparators(QDir::cleanPath(m_job->folder()))),
        QMessageBox::Yes | QMessageBox::No, this);
    box->setObjectName(QStringLiteral("importOverwrite"));
    box->setTextFormat(Qt::PlainText);
    box->setInformativeText(tr("Other files of the folder, and the files of the original program, stay as they are."));
    box->setDefaultButton(QMessageBox::No);
    box->setEscapeButton(QMessageBox::No);
    box->setAttribute(Qt::WA_DeleteOnClose);
    connect(box, &QDialog::finished, this, [this](int answer) {
        if (answer == QMessageBox::Yes)
            write(true);
        else
            handleWritten();
    });
    box->open();
}

void ImportProgramDialog::write(bool force)
{
    setState(stateWriting);
    m_step->setText(tr("Writing the project..."));
    m_worker->write(m_job, force);
}

void ImportProgramDialog::handleWritten()
{
    m_report->setResult(*m_job);
    setState(stateIdle);
}

// --- window ---

void ImportProgramDialog::reject()
{
    if (m_state == stateConverting)
        stop();
    else
        QDialog::reject();
}

void ImportProgramDialog::closeEvent(QCloseEvent* event)
{
    stop();
    QDialog::closeEvent(event);
}

void ImportProgramDialog::dragEnterEvent(QDragEnterEvent* event)
{
    if (!isBusy() && !fileOf(event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void ImportProgramDialog::dropEvent(QDropEvent* event)
{
    const QString file = fileOf(event->mimeData());
    if (file.isEmpty() || isBusy())
        return;
    m_form->takeFile(file);
    event->acceptProposedAction();
}

} // namespace nsModImport
