#include "SyscallMonWidget.h"

#include "MyButton.h"
#include "MyFieldTitle.h"

#include <QEventLoop>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace nsModSyscall {

namespace {

const int gap = 8;
const int showInterval = 10; ///< milliseconds between two slices of output
const int outputStretch = 3; ///< share of the width, against that of the fields
const int fieldsStretch = 2;
const int outputColumns = 16; ///< characters that the output shows at the least
const int fieldColumns = 8;

/// How a wait ended; numbers that nobody else ends a loop with.
enum eWait_t { waitFinished = 0x53590001, waitTimeout = 0x53590002 };

QString errorText(QProcess::ProcessError error)
{
    switch (error) {
    case QProcess::FailedToStart:
        return SyscallMonWidget::tr("FailedToStart");
    case QProcess::Crashed:
        return SyscallMonWidget::tr("Crashed");
    case QProcess::Timedout:
        return SyscallMonWidget::tr("Timedout");
    case QProcess::ReadError:
        return SyscallMonWidget::tr("ReadError");
    case QProcess::WriteError:
        return SyscallMonWidget::tr("WriteError");
    case QProcess::UnknownError:
        break;
    }
    return SyscallMonWidget::tr("UnknownError");
}

QLineEdit* makeLine(QWidget* parent, const QString& name, bool readOnly)
{
    auto* line = new QLineEdit(parent);
    line->setObjectName(name);
    line->setReadOnly(readOnly);
    line->setMinimumWidth(line->fontMetrics().averageCharWidth() * fieldColumns);
    return line;
}

} // namespace

SyscallMonWidget::SyscallMonWidget(QWidget* parent)
    : QWidget(parent)
    , m_process(new SyscallProcess(this))
{
    setObjectName(QStringLiteral("syscallMonitor"));
    m_showTimer.setInterval(showInterval);
    connect(&m_showTimer, &QTimer::timeout, this, &SyscallMonWidget::showOutput);
    setupFields();
    setupLayout();
    setupProcess();
    setConfig(QString(), QString(), QString());
    handleProcessStateChanged(QProcess::NotRunning);
}

SyscallMonWidget::~SyscallMonWidget()
{
    // The end of the program must not reach what is already gone.
    m_process->disconnect(this);
}

void SyscallMonWidget::setupProcess()
{
    connect(m_process, &QProcess::stateChanged, this, &SyscallMonWidget::handleProcessStateChanged);
    connect(m_process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this,
            &SyscallMonWidget::handleProcessFinished);
    connect(m_process, &QProcess::errorOccurred, this, &SyscallMonWidget::handleProcessError);
    connect(m_process, &QProcess::readyReadStandardOutput, this, &SyscallMonWidget::readStandardOutput);
    connect(m_process, &QProcess::readyReadStandardError, this, &SyscallMonWidget::readStandardError);
}

QPushButton* SyscallMonWidget::makeButton(const QString& text, const QString& name, const QString& toolTip)
{
    auto* button = new MyButton(text, this);
    button->setObjectName(name);
    button->setToolTip(toolTip);
    return button;
}

// The order of making is the tab order.
void SyscallMonWidget::setupFields()
{
    m_comment = makeLine(this, QStringLiteral("syscallComment"), true);
    m_comment->setToolTip(tr("What the project says about the program"));
    m_configure = makeButton(tr("Configure"), QStringLiteral("syscallConfigure"),
                             tr("Opens the settings of the external programs"));
    m_start = makeButton(tr("Start"), QStringLiteral("syscallStart"), tr("Runs the program now"));
    m_terminate = makeButton(tr("Terminate"), QStringLiteral("syscallTerminate"),
                             tr("Asks the program to end, which it may refuse"));
    m_kill = makeButton(tr("Kill"), QStringLiteral("syscallKill"), tr("Ends the program at once"));
    m_program = makeLine(this, QStringLiteral("syscallProgram"), true);
    m_program->setToolTip(tr("The program and its arguments"));
    m_status = new QLabel(this);
    m_status->setObjectName(QStringLiteral("syscallStatus"));
    m_status->setTextFormat(Qt::PlainText);
    m_status->setToolTip(tr("The state of the program"));
    m_output = new QPlainTextEdit(this);
    m_output->setObjectName(QStringLiteral("syscallOutput"));
    m_output->setReadOnly(true);
    m_output->setUndoRedoEnabled(false);
    // The last line end has an empty line behind it.
    m_output->setMaximumBlockCount(SyscallOutput::maxLines + 1);
    m_output->setTabChangesFocus(true);
    QFont font(QStringLiteral("DejaVu Sans Mono"));
    font.setStyleHint(QFont::Monospace);
    m_output->setFont(font);
    m_output->setMinimumWidth(m_output->fontMetrics().averageCharWidth() * outputColumns);
    m_output->setMinimumHeight(m_output->fontMetrics().lineSpacing() * 2);
    m_output->setToolTip(tr("What the program writes to its standard output and standard error: the last %1 lines")
                             .arg(SyscallOutput::maxLines));
    m_input = makeLine(this, QStringLiteral("syscallInput"), false);
    m_input->setToolTip(tr("A text for the standard input of the program"));
    m_send = makeButton(tr("Send"), QStringLiteral("syscallSend"),
                        tr("Gives the text to the program and ends its standard input"));

    connect(m_configure, &QPushButton::clicked, this, [this] { emit configRequest(this); });
    connect(m_start, &QPushButton::clicked, this, [this] { emit startRequest(this); });
    connect(m_terminate, &QPushButton::clicked, this, &SyscallMonWidget::terminate);
    connect(m_kill, &QPushButton::clicked, this, &SyscallMonWidget::kill);
    connect(m_send, &QPushButton::clicked, this, &SyscallMonWidget::send);
    connect(m_input, &QLineEdit::returnPressed, m_send, &QPushButton::click);
}

/// The fields beside the output, as the dock is wide and low.
void SyscallMonWidget::setupLayout()
{
    const auto addRow = [this](QGridLayout* grid, const QString& title, QWidget* field) {
        auto* label = new MyFieldTitle(title, this);
        label->setBuddy(field);
        grid->addWidget(label, grid->rowCount(), 0);
        grid->addWidget(field, grid->rowCount() - 1, 1);
    };
    auto* fields = new QGridLayout;
    fields->setSpacing(gap);
    fields->setColumnStretch(1, 1);
    addRow(fields, tr("Comment:"), m_comment);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(gap);
    for (QPushButton* button : {m_configure, m_start, m_terminate, m_kill})
        buttons->addWidget(button);
    buttons->addStretch(1);
    fields->addLayout(buttons, fields->rowCount(), 1);
    addRow(fields, tr("Program:"), m_program);
    addRow(fields, tr("Status:"), m_status);
    fields->setRowStretch(fields->rowCount(), 1);

    auto* streams = new QGridLayout;
    streams->setSpacing(gap);
    streams->setColumnStretch(1, 1);
    auto* outputTitle = new MyFieldTitle(tr("Output:"), this);
    outputTitle->setBuddy(m_output);
    streams->addWidget(outputTitle, 0, 0, Qt::AlignTop);
    streams->addWidget(m_output, 0, 1, 1, 2);
    streams->setRowStretch(0, 1);
    auto* inputTitle = new MyFieldTitle(tr("Input:"), this);
    inputTitle->setBuddy(m_input);
    streams->addWidget(inputTitle, 1, 0);
    streams->addWidget(m_input, 1, 1);
    streams->addWidget(m_send, 1, 2);

    // In a dock that is lower it scrolls, so that it does not keep the other panels of the dock from being low.
    auto* area = new QScrollArea(this);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidget(new QWidget);
    auto* layout = new QHBoxLayout(area->widget());
    layout->setContentsMargins(gap, gap, gap, gap);
    layout->setSpacing(2 * gap);
    layout->addLayout(fields, fieldsStretch);
    layout->addLayout(streams, outputStretch);
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(area);
}

void SyscallMonWidget::setConfig(QString exe, QString arg, QString comment)
{
    m_program->setText(exe + ' ' + arg);
    m_program->setCursorPosition(0);
    m_command.program = exe;
    m_command.arguments = SyscallCommand::splitArguments(arg);
    m_comment->setText(comment);
    m_comment->setCursorPosition(0);
}

QString SyscallMonWidget::executableInfo() const
{
    return m_program->text();
}

// --- the program ---

bool SyscallMonWidget::run()
{
    if (m_process->isRunning())
        return false;
    m_text.clear();
    m_output->clear();
    return m_process->start(m_command);
}

int SyscallMonWidget::state() const
{
    if (m_process->isRunning())
        return 0;
    return m_process->exitStatus() == QProcess::NormalExit ? 1 : 2;
}

bool SyscallMonWidget::waitForFinished(int msecs)
{
    if (state() != 0)
        return true;
    const QPointer<SyscallMonWidget> self(this);
    QEventLoop loop;
    QTimer timer;
    timer.setSingleShot(true);
    connect(&timer, &QTimer::timeout, &loop, [&loop] { loop.exit(waitTimeout); });
    connect(m_process, &QProcess::stateChanged, &loop, [&loop](QProcess::ProcessState state) {
        if (state == QProcess::NotRunning)
            loop.exit(waitFinished);
    });
    connect(m_process, &QObject::destroyed, &loop, [&loop] { loop.exit(waitFinished); });
    timer.start(msecs);
    setBusy(true);
    const int result = loop.exec();
    if (!self)
        return true;
    setBusy(false);
    // An end of the application ends all loops, and lets none begin.
    return state() != 0 || result != waitTimeout;
}

void SyscallMonWidget::handleProcessStateChanged(QProcess::ProcessState state)
{
    const bool isRunning = state == QProcess::Running;
    switch (state) {
    case QProcess::NotRunning:
        m_status->setText(tr("Not running"));
        break;
    case QProcess::Starting:
        m_status->setText(tr("Starting"));
        break;
    case QProcess::Running:
        m_status->setText(tr("Running"));
        break;
    }
    if (state == QProcess::Starting)
        return;
    m_start->setEnabled(!isRunning);
    m_terminate->setEnabled(isRunning);
    m_kill->setEnabled(isRunning);
    m_send->setEnabled(isRunning);
}

void SyscallMonWidget::handleProcessFinished(int code, QProcess::ExitStatus)
{
    m_status->setText(m_status->text() + tr(", return value: %1").arg(code));
    m_text.end();
    if (m_text.isEmpty())
        return;
    if (!m_showTimer.isActive())
        m_showTimer.start();
    // What a short program has written is there when its end is.
    showOutput();
}

void SyscallMonWidget::handleProcessError(QProcess::ProcessError error)
{
    m_status->setText(errorText(error));
}

void SyscallMonWidget::terminate()
{
    m_process->terminateGroup();
}

void SyscallMonWidget::kill()
{
    m_process->killGroup();
}

void SyscallMonWidget::send()
{
    if (!m_process->isRunning())
        return;
    m_process->write(m_input->text().toUtf8());
    m_process->closeWriteChannel();
    m_input->clear();
    // The program takes no second text.
    m_send->setEnabled(false);
}

// --- its output ---

void SyscallMonWidget::readStandardOutput()
{
    takeOutput(SyscallOutput::streamOut, m_process->readAllStandardOutput());
}

void SyscallMonWidget::readStandardError()
{
    takeOutput(SyscallOutput::streamErr, m_process->readAllStandardError());
}

void SyscallMonWidget::takeOutput(SyscallOutput::eStream_t stream, const QByteArray& bytes)
{
    m_text.add(stream, bytes);
    if (!m_showTimer.isActive())
        m_showTimer.start();
}

/// Shows the next slice. The view follows the output while its end is to be seen.
void SyscallMonWidget::showOutput()
{
    QScrollBar* bar = m_output->verticalScrollBar();
    const bool follows = bar->value() >= bar->maximum();
    if (m_text.takeOverrun())
        m_output->clear();
    const QString text = m_text.take(sliceSize);
    if (m_text.isEmpty())
        m_showTimer.stop();
    if (text.isEmpty())
        return;
    QTextCursor cursor(m_output->document());
    cursor.movePosition(QTextCursor::End);
    cursor.insertText(text);
    if (follows)
        bar->setValue(bar->maximum());
    emit contentChanged(this);
}

} // namespace nsModSyscall
