#include "SyscallConfigPage.h"

#include "MyFieldTitle.h"
#include "MyPageLayout.h"
#include "MyPathEdit.h"
#include "SchemeIcons.h"
#include "SyscallProgramSelect.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>

#include <algorithm>
#include <limits>

namespace nsModSyscall {

namespace {

const int gap = 8;
const int eventColumnWidth = 112; ///< pixels
const int numberWidth = 128;      ///< pixels

QString numbered(const char* name, int index)
{
    return QLatin1String(name) + QString::number(index);
}

} // namespace

SyscallConfigPage::SyscallConfigPage(QWidget* parent)
    : QWidget(parent)
    , m_layout(new MyPageLayout(this, tr("External programs")))
{
    setObjectName(QStringLiteral("syscallConfigPage"));
    for (int index = 0; index < programCount; ++index)
        addProgram(index);
    addMatrix();
    setConfig(SyscallConfig(), QString());
    setPrjConfigEnabled(false);
}

void SyscallConfigPage::addProgram(int index)
{
    sFields_t& fields = m_programs[index];
    const auto makeBox = [this, index](const char* name) {
        auto* box = new QCheckBox(this);
        box->setObjectName(numbered(name, index));
        return box;
    };
    const auto makeLine = [this, index](const char* name) {
        auto* line = new QLineEdit(this);
        line->setObjectName(numbered(name, index));
        return line;
    };
    m_layout->addSection(tr("External program %1").arg(index + 1));
    fields.en = makeBox("syscallEn");
    m_layout->addField(tr("Enable:"), fields.en, tr("The program has a monitor and can be run"));
    fields.comment = makeLine("syscallComment");
    m_layout->addField(tr("Comment:"), fields.comment, tr("What the program is for; its monitor shows it"));
    fields.storeRelToPrj = makeBox("syscallStoreRelToPrj");
    m_layout->addField(tr("Store path relative to project:"), fields.storeRelToPrj,
                       tr("The path counts from the folder of the project. Without this, a name alone is looked up in "
                          "the search path."));
    fields.exe = new SyscallProgramSelect(this);
    fields.exe->setObjectName(numbered("syscallExe", index));
    fields.exe->setWindowTitle(tr("Select executable"));
    fields.exe->setNameFilters({tr("Any files(*)")});
    fields.exe->setDescription(tr("The program that is run, in the folder of the project"));
    m_layout->addField(tr("Program path:"), fields.exe);
    fields.arg = makeLine("syscallArg");
    m_layout->addField(tr("Program arguments:"), fields.arg,
                       tr("Set apart by single blanks. There is no quoting: an argument can not hold a blank."));
    fields.blockingModeEn = makeBox("syscallBlockingModeEn");
    m_layout->addField(tr("Blocking mode:"), fields.blockingModeEn,
                       tr("The run waits for the end of the program and looks at its return value"));
    fields.abortIfNoSuccess = makeBox("syscallAbortIfNoSuccess");
    m_layout->addField(tr("Abort at exit without success:"), fields.abortIfNoSuccess,
                       tr("When the program fails, the programs after it do not run, and the run has failed"));
    fields.retValOfSuccess = new QSpinBox(this);
    fields.retValOfSuccess->setObjectName(numbered("syscallRetValOfSuccess", index));
    fields.retValOfSuccess->setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    fields.retValOfSuccess->setFixedWidth(numberWidth);
    m_layout->addField(tr("Success return value:"), fields.retValOfSuccess,
                       tr("The return value by which the program reports its success"));

    connect(fields.en, &QCheckBox::toggled, this, [this, index] { updateEnabled(index); });
    connect(fields.blockingModeEn, &QCheckBox::toggled, this, [this, index] { updateEnabled(index); });
    connect(fields.storeRelToPrj, &QCheckBox::toggled, this, [this, index] { showPath(index); });
}

void SyscallConfigPage::addMatrix()
{
    const QString titles[eventCount] = {tr("<center>Button 1<br/>and<br/>assembling</center>"),
                                        tr("<center>Button 2<br/>and<br/>assembling</center>"),
                                        tr("<center>After saving<br/>and<br/>assembling</center>")};
    const QString names[eventCount] = {tr("Button 1"), tr("Button 2"), tr("After saving")};
    m_layout->addSection(tr("Program execute events"));
    auto* grid = new QGridLayout;
    grid->setSpacing(gap);
    // All labels of the page share one column.
    grid->setColumnMinimumWidth(0, std::max(fontMetrics().horizontalAdvance(tr("Store path relative to project:")),
                                            fontMetrics().horizontalAdvance(tr("Abort at exit without success:"))));
    grid->addWidget(new MyFieldTitle(tr("Events:"), this), 0, 0, Qt::AlignTop);
    for (int event = 0; event < eventCount; ++event) {
        grid->addWidget(new QLabel(titles[event], this), 0, event + 1, Qt::AlignHCenter);
        grid->setColumnMinimumWidth(event + 1, eventColumnWidth);
    }
    for (int index = 0; index < programCount; ++index) {
        const QString title = tr("Execute program %1:").arg(index + 1);
        grid->addWidget(new MyFieldTitle(title, this), index + 1, 0);
        for (int event = 0; event < eventCount; ++event) {
            auto* box = new QCheckBox(this);
            box->setObjectName(QStringLiteral("syscallEvent%1%2").arg(index).arg(event));
            box->setToolTip(title + ' ' + names[event]);
            box->setAccessibleName(box->toolTip());
            grid->addWidget(box, index + 1, event + 1, Qt::AlignCenter);
            m_programs[index].events[event] = box;
        }
    }
    grid->setColumnStretch(eventCount + 1, 1);
    m_layout->addWide(grid);
}

/// What has no effect can not be changed.
void SyscallConfigPage::updateEnabled(int index)
{
    const sFields_t& fields = m_programs[index];
    const bool isOn = fields.en->isChecked();
    const bool isLookedAt = isOn && fields.blockingModeEn->isChecked();
    for (QWidget* field : {static_cast<QWidget*>(fields.comment), static_cast<QWidget*>(fields.storeRelToPrj),
                           static_cast<QWidget*>(fields.exe), static_cast<QWidget*>(fields.arg),
                           static_cast<QWidget*>(fields.blockingModeEn)})
        field->setEnabled(isOn);
    fields.abortIfNoSuccess->setEnabled(isLookedAt);
    fields.retValOfSuccess->setEnabled(isLookedAt);
    for (QCheckBox* box : fields.events)
        box->setEnabled(isOn);
}

// --- values ---

void SyscallConfigPage::setConfig(const SyscallConfig& config, const QString& prjDir)
{
    m_prjDir = prjDir;
    for (int index = 0; index < programCount; ++index) {
        m_programs[index].shown = config.programs[index];
        showProgram(index);
    }
}

void SyscallConfigPage::showProgram(int index)
{
    sFields_t& fields = m_programs[index];
    const SyscallRecord record = fields.shown;
    // The path is set first: a change of the box takes what the field shows.
    fields.exe->setFile(record.exe, record.storeRelToPrj ? m_prjDir : QString());
    fields.shownExeText = fields.exe->pathEdit()->text();
    fields.storeRelToPrj->setChecked(record.storeRelToPrj);
    fields.en->setChecked(record.en);
    fields.comment->setText(record.comment);
    fields.arg->setText(record.arg);
    fields.shownArgText = fields.arg->text();
    fields.blockingModeEn->setChecked(record.blockingModeEn);
    fields.abortIfNoSuccess->setChecked(record.abortIfNoSuccess);
    fields.retValOfSuccess->setValue(record.retValOfSuccess);
    fields.events[eEventButton1]->setChecked(record.execEventBut1);
    fields.events[eEventButton2]->setChecked(record.execEventBut2);
    fields.events[eEventSave]->setChecked(record.execEventSave);
    updateEnabled(index);
}

/// Shows the same path against the other folder.
void SyscallConfigPage::showPath(int index)
{
    sFields_t& fields = m_programs[index];
    fields.shown.exe = exeOf(index);
    fields.exe->setFile(fields.shown.exe, fields.storeRelToPrj->isChecked() ? m_prjDir : QString());
    fields.shownExeText = fields.exe->pathEdit()->text();
}

/// A path that was not touched is not made anew from its text: it could come out in another form, and count as typed.
QString SyscallConfigPage::exeOf(int index) const
{
    const sFields_t& fields = m_programs[index];
    return fields.exe->pathEdit()->text() == fields.shownExeText ? fields.shown.exe : fields.exe->file();
}

SyscallRecord SyscallConfigPage::recordOf(int index) const
{
    const sFields_t& fields = m_programs[index];
    SyscallRecord record;
    record.execEventBut1 = fields.events[eEventButton1]->isChecked();
    record.execEventBut2 = fields.events[eEventButton2]->isChecked();
    record.execEventSave = fields.events[eEventSave]->isChecked();
    record.en = fields.en->isChecked();
    record.blockingModeEn = fields.blockingModeEn->isChecked();
    record.abortIfNoSuccess = fields.abortIfNoSuccess->isChecked();
    record.storeRelToPrj = fields.storeRelToPrj->isChecked();
    record.retValOfSuccess = fields.retValOfSuccess->value();
    record.exe = exeOf(index);
    record.arg = fields.arg->text() == fields.shownArgText ? fields.shown.arg : fields.arg->text();
    record.comment = fields.comment->text();
    return record;
}

void SyscallConfigPage::config(SyscallConfig* config) const
{
    for (int index = 0; index < programCount; ++index)
        config->programs[index] = recordOf(index);
}

void SyscallConfigPage::setDefaultConfig()
{
    setConfig(SyscallConfig(), m_prjDir);
}

// --- page ---

void SyscallConfigPage::setPrjConfigEnabled(bool enabled)
{
    m_enabled = enabled;
    m_layout->setPrjConfigEnabled(enabled);
}

QIcon SyscallConfigPage::pageIcon()
{
    return SchemeIcons::of(QStringLiteral(":/ModSyscall/img/configPage/configPage.png"));
}

QString SyscallConfigPage::title()
{
    return tr("Ext progs");
}

QString SyscallConfigPage::pageHelpRef()
{
    return QStringLiteral("pageId://configPageSyscall");
}

} // namespace nsModSyscall
