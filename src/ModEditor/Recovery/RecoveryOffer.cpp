#include "RecoveryOffer.h"

#include "DialogParent.h"
#include "DocumentCommands.h"
#include "DocumentFormat.h"
#include "DocumentKeeper.h"
#include "DocumentOnDisk.h"
#include "DocumentPages.h"
#include "EditorRecovery.h"
#include "EditorServices.h"
#include "EditorWidget.h"
#include "OpenDocuments.h"
#include "RecoverDialog.h"

#include "ModGuiHookIf.h"
#include "ModGuiPluginIf.h"
#include "MyNoticeBar.h"
#include "SchemeIcons.h"
#include "TextCompareDialog.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QPointer>
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

/// The document of a file; untitled ones are not searched.
EditorWidget* documentOf(const OpenDocuments* documents, const QString& path)
{
    return path.isEmpty() ? nullptr : documents->of(path);
}

} // namespace

RecoveryOffer::RecoveryOffer(ModGuiPluginIf* gui, const sParts_t& parts, QObject* parent)
    : QObject(parent)
    , m_gui(gui)
    , m_parts(parts)
    , m_action(new QAction(SchemeIcons::of(":/ModEditor/img/file/document-revert.png"), tr("Recover text..."), this))
    , m_separator(new QAction(this))
{
    m_action->setToolTip(tr("Texts that were closed without being saved"));
    m_action->setStatusTip(m_action->toolTip());
    m_separator->setSeparator(true);
    connect(m_action, &QAction::triggered, this, &RecoveryOffer::showDialog);
}

RecoveryStore* RecoveryOffer::store() const
{
    return m_parts.keeper->recovery()->store();
}

void RecoveryOffer::offer()
{
    ModGuiHookIf* hook = m_gui->modGuiHook;
    if (m_parts.keeper->recovery() == nullptr || hook == nullptr)
        return;
    const QList<RecoveryStore::Entry> entries = store()->entries();
    const auto count =
        std::count_if(entries.cbegin(), entries.cend(), [](const RecoveryStore::Entry& entry) { return entry.isNew; });
    if (count == 0)
        return;
    const QString text = count == 1
                             ? tr("A text was not saved when the program ended. It has been kept.")
                             : tr("%1 texts were not saved when the program ended. They have been kept.").arg(count);
    m_notice = new MyNoticeBar(MyNoticeBar::eGradeWarning, text);
    QPushButton* button = m_notice->addButton(tr("Compare and restore..."),
                                              tr("Shows the texts that were kept, to compare and restore them"));
    connect(button, &QPushButton::clicked, this, [this] {
        const QPointer<RecoveryOffer> self(this);
        showDialog();
        if (self.isNull() || m_parts.keeper->recovery() == nullptr)
            return;
        // Without a project nothing could be restored yet: the offer stands.
        if (m_parts.services->isProjectOpen() || store()->entries().isEmpty())
            closeNotice();
        m_parts.documents->focusCurrent();
    });
    connect(m_notice, &MyNoticeBar::closed, this, [this, entries] {
        for (const RecoveryStore::Entry& entry : entries)
            store()->setSeen(entry.id);
        closeNotice();
    });
    hook->addWidget(m_gui, ModGuiHookIf::eLocationCenterBelow, m_notice, QString());
    hook->setWidgetVisible(ModGuiHookIf::eLocationCenterBelow, true);
}

void RecoveryOffer::showNotice()
{
    if (m_gui->modGuiHook != nullptr && m_notice != nullptr)
        m_gui->modGuiHook->setCurrentWidget(m_notice);
}

void RecoveryOffer::closeNotice()
{
    if (m_notice == nullptr)
        return;
    // What stood in the area before does not come up in its place.
    if (ModGuiHookIf* hook = m_gui->modGuiHook) {
        if (hook->currentWidget(ModGuiHookIf::eLocationCenterBelow) == m_notice)
            hook->setWidgetVisible(ModGuiHookIf::eLocationCenterBelow, false);
        hook->removeWidget(m_notice);
    }
    // The click that led here may be one of its buttons'.
    m_notice->hide();
    m_notice->deleteLater();
    m_notice = nullptr;
}

void RecoveryOffer::showDialog()
{
    if (m_parts.keeper->recovery() == nullptr)
        return;
    m_parts.keeper->recovery()->waitForDone();
    RecoverDialog dialog(store(), DialogParent::get());
    dialog.setRestoreEnabled(m_parts.services->isProjectOpen());
    connect(&dialog, &RecoverDialog::restoreRequested, this, [this, &dialog](const QString& id) {
        restoreText(id);
        dialog.fill();
    });
    connect(&dialog, &RecoverDialog::compareRequested, this, [this, &dialog](const QString& id) {
        if (compareText(id, dialog.isRestoreEnabled()))
            restoreText(id);
        dialog.fill();
    });
    const QPointer<RecoveryOffer> self(this);
    dialog.exec();
    // The program may have ended meanwhile.
    if (self.isNull() || m_parts.keeper->recovery() == nullptr)
        return;
    // A user who has seen the list, and could restore from it, need not be told of it again.
    if (dialog.isRestoreEnabled()) {
        for (const RecoveryStore::Entry& entry : store()->entries())
            store()->setSeen(entry.id);
    }
    m_parts.documents->focusCurrent();
}

/// The text comes into the document of its file, as a change that can be undone; the file is as it was until it is
/// saved.
void RecoveryOffer::restoreText(const QString& id)
{
    RecoveryStore::Entry entry;
    QByteArray bytes;
    if (!store()->read(id, &entry, &bytes)) {
        m_parts.services->showError(tr("The kept text can not be read: ") + store()->fileOf(id));
        return;
    }
    QPointer<EditorWidget> widget = documentOf(m_parts.documents, entry.path);
    const bool exists = QFileInfo::exists(entry.path);
    if (widget == nullptr)
        widget = exists ? m_parts.commands->openFile(entry.path) : m_parts.pages->newEditorWidget(entry.path);
    // Beside a file that can not be opened, or not be edited, the text has no name.
    if (widget == nullptr || widget->isReadOnly())
        widget = m_parts.pages->newEditorWidget(QString());
    else
        m_parts.documents->show(widget);
    widget->selectAll();
    widget->insertText(textOf(entry, bytes));
    widget->setCursorPos(0);
    widget->document()->setModified(true);
    m_parts.keeper->recovery()->take(id, widget);
}

/// @return whether the user wants the text back
bool RecoveryOffer::compareText(const QString& id, bool canRestore)
{
    RecoveryStore::Entry entry;
    QByteArray bytes;
    if (!store()->read(id, &entry, &bytes)) {
        m_parts.services->showError(tr("The kept text can not be read: ") + store()->fileOf(id));
        return false;
    }
    EditorWidget* widget = documentOf(m_parts.documents, entry.path);
    QFile file(entry.path);
    QString present;
    if (widget != nullptr)
        present = widget->text();
    else if (QFileInfo(entry.path).isFile() && file.size() <= DocumentOnDisk::maxFileSize &&
             file.open(QIODevice::ReadOnly))
        present = textOfFile(file.readAll());
    TextCompareDialog dialog(DialogParent::get());
    dialog.setTexts(tr("Kept on %1").arg(RecoverDialog::timeText(entry)), textOf(entry, bytes),
                    widget != nullptr ? tr("In the editor") : tr("In the file"), present);
    if (canRestore)
        dialog.addButton(tr("Restore"),
                         tr("Opens the document with the kept text; its file is left alone until it is saved"),
                         resultRestore);
    return dialog.exec() == resultRestore;
}

} // namespace nsModEditor
