// What must not be lost: documents that close without being saved, and what a program that was killed left behind.

#include "ModEditor.h"

#include "DocumentFormat.h"
#include "EditorRecovery.h"
#include "EditorWidget.h"
#include "RecoverDialog.h"

#include "ModGuiHookIf.h"
#include "ModMsgHookIf.h"
#include "ModPrjHookIf.h"
#include "MyNoticeBar.h"
#include "TextCompareDialog.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QPushButton>

#include <algorithm>

namespace nsModEditor {

namespace {

const int resultRestore = 2;

/// The text of a file: its bytes have line ends and a mark of their own.
QString textOfFile(const QByteArray& bytes)
{
    QString text;
    DocumentFormat::decode(bytes, &text);
    return text;
}

/// What was kept of a document is its text in UTF-8; of a file that was being written in place, its bytes were kept.
QString textOf(const RecoveryStore::Entry& entry, const QByteArray& bytes)
{
    return entry.kind == RecoveryStore::eKindReplaced ? textOfFile(bytes) : QString::fromUtf8(bytes);
}

} // namespace

void ModEditor::initRecovery()
{
    m_recovery = new EditorRecovery(this);
    m_recoverAction = new QAction(QIcon(":/ModEditor/img/file/document-revert.png"), tr("Recover text..."), this);
    m_recoverAction->setToolTip(tr("Texts that were closed without being saved"));
    m_recoverAction->setStatusTip(m_recoverAction->toolTip());
    m_recoverSeparator = new QAction(this);
    m_recoverSeparator->setSeparator(true);
    connect(m_recoverAction, &QAction::triggered, this, &ModEditor::showRecoverDialog);
    connect(m_recovery, &EditorRecovery::looking, this, &ModEditor::keepSession);
    connect(m_recovery, &EditorRecovery::failed, this, [this](const QString& reason) {
        showWarning(tr("Changed texts can not be kept beside their files: ") + reason);
    });
}

void ModEditor::exitRecovery()
{
    delete m_recovery;
    m_recovery = nullptr;
    delete m_recoverAction;
    m_recoverAction = nullptr;
    delete m_recoverSeparator;
    m_recoverSeparator = nullptr;
}

void ModEditor::modRun()
{
    offerRecovery();
}

bool ModEditor::modExitRequest()
{
    settleFiles(true);
    return true;
}

void ModEditor::prjAboutToClose()
{
    settleFiles(false);
}

/// @param isNew the user can not read the messages any more: the next start is to report what was kept
void ModEditor::settleFiles(bool isNew)
{
    const QList<EditorWidget*> widgets = m_editorWidgets;
    for (EditorWidget* widget : widgets) {
        if (m_editorWidgets.contains(widget))
            settleFile(widget, isNew);
    }
}

/// Asks whether a changed document is to be saved. Afterwards its text is in its file or in the recovery store, unless
/// there is room in neither and the user gives it up. The document may be gone.
void ModEditor::settleFile(EditorWidget* widget, bool isNew)
{
    const sDisk_t disk = m_disk.value(widget);
    if ((m_recovery != nullptr && m_recovery->isKept(widget)) || (disk.isGivenUp && disk.givenUp == widget->text()))
        return;
    if (!widget->isModified()) {
        // The text of a file that was removed by others exists only here.
        if (disk.onDisk.isKnown() && !widget->isReadOnly() && !QFileInfo::exists(widget->filePath()))
            keepText(widget, isNew);
        return;
    }
    const bool isSaved = askForSave(widget->filePath()) && m_editorWidgets.contains(widget) && saveFile(widget);
    while (!isSaved && m_editorWidgets.contains(widget) && !keepText(widget, isNew)) {
        if (ask(tr("Text can not be kept"), tr("Neither the file nor a copy of the text can be written:"),
                widget->filePath(), {tr("Do you want to give the text up?")})) {
            // Whoever closes the project or ends the program passes here more than once.
            if (m_editorWidgets.contains(widget)) {
                m_disk[widget].isGivenUp = true;
                m_disk[widget].givenUp = widget->text();
            }
            return;
        }
        if (m_editorWidgets.contains(widget) && saveFileAs(widget))
            return;
    }
}

bool ModEditor::keepText(EditorWidget* widget, bool isNew)
{
    const QString name = widget->filePath().isEmpty() ? tr("Untitled") : convToRelPath(widget->filePath());
    QString reason;
    if (m_recovery != nullptr && m_recovery->keep(widget, isNew, &reason)) {
        if (modMsgHook != nullptr)
            modMsgHook->showInfoMessage(tr("The unsaved text of %1 is kept: File > Recover text...").arg(name));
        return true;
    }
    showError(tr("The unsaved text of %1 can not be kept: %2").arg(name, reason));
    return false;
}

// --- what was open ---

QString ModEditor::prjFilePath() const
{
    return modPrjHook != nullptr && modPrjHook->isValid()
               ? modPrjHook->prjDir().absoluteFilePath(modPrjHook->prjFileName())
               : QString();
}

RecoveryStore::Session ModEditor::takeSession()
{
    if (m_recovery == nullptr)
        return {};
    m_recovery->setProject(prjFilePath());
    return m_recovery->store()->takeSession(prjFilePath());
}

void ModEditor::keepSession()
{
    RecoveryStore::Session session;
    session.project = prjFilePath();
    if (!session.project.isEmpty() && modGuiHook != nullptr) {
        for (QWidget* page : modGuiHook->centerWidgetList()) {
            auto* widget = qobject_cast<EditorWidget*>(page);
            if (m_editorWidgets.contains(widget) && !widget->filePath().isEmpty())
                session.files.append(widget->filePath());
        }
        if (EditorWidget* current = currentEditorWidget()) {
            session.lastFile = current->filePath();
            session.lastCursorPos = current->cursorPos();
        }
    }
    m_recovery->putSession(session);
}

// --- what was left behind ---

void ModEditor::offerRecovery()
{
    if (m_recovery == nullptr || modGuiHook == nullptr)
        return;
    const QList<RecoveryStore::Entry> entries = m_recovery->store()->entries();
    const auto count =
        std::count_if(entries.cbegin(), entries.cend(), [](const RecoveryStore::Entry& entry) { return entry.isNew; });
    if (count == 0)
        return;
    const QString text = count == 1
                             ? tr("A text was not saved when the program ended. It has been kept.")
                             : tr("%1 texts were not saved when the program ended. They have been kept.").arg(count);
    m_recoveryNotice = new MyNoticeBar(MyNoticeBar::eGradeWarning, text);
    QPushButton* button = m_recoveryNotice->addButton(
        tr("Compare and restore..."), tr("Shows the texts that were kept, to compare and restore them"));
    connect(button, &QPushButton::clicked, this, [this] {
        showRecoverDialog();
        // Without a project nothing could be restored yet: the offer stands.
        if ((modPrjHook != nullptr && modPrjHook->isValid()) || m_recovery->store()->entries().isEmpty())
            closeRecoveryNotice();
        focusCurrentWidget();
    });
    connect(m_recoveryNotice, &MyNoticeBar::closed, this, [this, entries] {
        for (const RecoveryStore::Entry& entry : entries)
            m_recovery->store()->setSeen(entry.id);
        closeRecoveryNotice();
    });
    modGuiHook->addWidget(this, ModGuiHookIf::eLocationCenterBelow, m_recoveryNotice, QString());
    modGuiHook->setWidgetVisible(ModGuiHookIf::eLocationCenterBelow, true);
}

void ModEditor::closeRecoveryNotice()
{
    if (m_recoveryNotice == nullptr)
        return;
    // What stood in the area before does not come up in its place.
    if (modGuiHook != nullptr) {
        if (modGuiHook->currentWidget(ModGuiHookIf::eLocationCenterBelow) == m_recoveryNotice)
            modGuiHook->setWidgetVisible(ModGuiHookIf::eLocationCenterBelow, false);
        modGuiHook->removeWidget(m_recoveryNotice);
    }
    // The click that led here may be one of its buttons'.
    m_recoveryNotice->hide();
    m_recoveryNotice->deleteLater();
    m_recoveryNotice = nullptr;
}

void ModEditor::showRecoverDialog()
{
    if (m_recovery == nullptr)
        return;
    m_recovery->waitForDone();
    RecoverDialog dialog(m_recovery->store(), QApplication::activeWindow());
    dialog.setRestoreEnabled(modPrjHook != nullptr && modPrjHook->isValid());
    connect(&dialog, &RecoverDialog::restoreRequested, this, [this, &dialog](const QString& id) {
        restoreText(id);
        dialog.fill();
    });
    connect(&dialog, &RecoverDialog::compareRequested, this, [this, &dialog](const QString& id) {
        if (compareText(id, dialog.isRestoreEnabled()))
            restoreText(id);
        dialog.fill();
    });
    dialog.exec();
    // A user who has seen the list, and could restore from it, need not be told of it again.
    if (dialog.isRestoreEnabled()) {
        for (const RecoveryStore::Entry& entry : m_recovery->store()->entries())
            m_recovery->store()->setSeen(entry.id);
    }
    focusCurrentWidget();
}

EditorWidget* ModEditor::documentOf(const QString& path) const
{
    for (EditorWidget* widget : m_editorWidgets) {
        if (widget->filePath() == path && !path.isEmpty())
            return widget;
    }
    return nullptr;
}

/// The text comes into the document of its file, as a change that can be undone; the file is as it was until it is
/// saved.
bool ModEditor::restoreText(const QString& id)
{
    RecoveryStore::Entry entry;
    QByteArray bytes;
    if (!m_recovery->store()->read(id, &entry, &bytes)) {
        showError(tr("The kept text can not be read: ") + m_recovery->store()->fileOf(id));
        return false;
    }
    QPointer<EditorWidget> widget = documentOf(entry.path);
    const bool exists = QFileInfo::exists(entry.path);
    if (widget == nullptr)
        widget = exists ? openFileWidget(entry.path) : newEditorWidget(entry.path);
    // Beside a file that can not be opened, or not be edited, the text has no name.
    if (widget == nullptr || widget->isReadOnly())
        widget = newEditorWidget(QString());
    else if (modGuiHook != nullptr)
        modGuiHook->setCurrentWidget(widget);
    widget->selectAll();
    widget->insertText(textOf(entry, bytes));
    widget->setCursorPos(0);
    widget->document()->setModified(true);
    m_recovery->take(id, widget);
    return true;
}

/// @return whether the user wants the text back
bool ModEditor::compareText(const QString& id, bool canRestore)
{
    RecoveryStore::Entry entry;
    QByteArray bytes;
    if (!m_recovery->store()->read(id, &entry, &bytes)) {
        showError(tr("The kept text can not be read: ") + m_recovery->store()->fileOf(id));
        return false;
    }
    EditorWidget* widget = documentOf(entry.path);
    QFile file(entry.path);
    QString present;
    if (widget != nullptr)
        present = widget->text();
    else if (QFileInfo(entry.path).isFile() && file.size() <= maxFileSize && file.open(QIODevice::ReadOnly))
        present = textOfFile(file.readAll());
    TextCompareDialog dialog(QApplication::activeWindow());
    dialog.setTexts(tr("Kept on %1").arg(RecoverDialog::timeText(entry)), textOf(entry, bytes),
                    widget != nullptr ? tr("In the editor") : tr("In the file"), present);
    if (canRestore)
        dialog.addButton(tr("Restore"),
                         tr("Opens the document with the kept text; its file is left alone until it is saved"),
                         resultRestore);
    return dialog.exec() == resultRestore;
}

} // namespace nsModEditor
