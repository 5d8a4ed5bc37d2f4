#include "RecoverDialog.h"

#include "HelpRef.h"

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace nsModEditor {

namespace {

enum eColumn_t { eColumnDocument, eColumnTime, eColumnReason, eColumnFolder };

const int idRole = Qt::UserRole;
const QSize startSize(760, 360);

QString reasonText(RecoveryStore::eKind_t kind)
{
    switch (kind) {
    case RecoveryStore::eKindUnsaved:
        return RecoverDialog::tr("The program ended");
    case RecoveryStore::eKindDropped:
        return RecoverDialog::tr("Closed without being saved");
    case RecoveryStore::eKindReplaced:
        return RecoverDialog::tr("Saving was interrupted: the file before");
    }
    return QString();
}

} // namespace

RecoverDialog::RecoverDialog(RecoveryStore* store, QWidget* parent)
    : QDialog(parent)
    , m_store(store)
    , m_list(new QTreeWidget(this))
    , m_hint(new QLabel(this))
{
    setObjectName(QStringLiteral("recoverDialog"));
    setWindowTitle(tr("Recover text"));
    m_list->setObjectName(QStringLiteral("recoverList"));
    m_list->setHeaderLabels({tr("Document"), tr("Kept on"), tr("Reason"), tr("Folder")});
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setAlternatingRowColors(true);
    m_hint->setObjectName(QStringLiteral("recoverHint"));
    m_hint->setWordWrap(true);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    HelpRef::set(this, QStringLiteral("pageId://recovery#list"), buttons);
    m_compare = buttons->addButton(tr("Com&pare..."), QDialogButtonBox::ActionRole);
    m_compare->setObjectName(QStringLiteral("recoverCompare"));
    m_compare->setToolTip(tr("Shows the kept text beside that of its file"));
    m_restore = buttons->addButton(tr("&Restore"), QDialogButtonBox::ActionRole);
    m_restore->setObjectName(QStringLiteral("recoverRestore"));
    m_restore->setToolTip(tr("Opens the document with the kept text; its file is left alone until it is saved"));
    m_delete = buttons->addButton(tr("&Delete"), QDialogButtonBox::ActionRole);
    m_delete->setObjectName(QStringLiteral("recoverDelete"));
    m_delete->setToolTip(tr("Removes the kept text for good"));
    buttons->button(QDialogButtonBox::Close)->setToolTip(tr("Closes the list; the texts stay"));

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_list, 1);
    layout->addWidget(m_hint);
    layout->addWidget(buttons);
    resize(startSize);

    connect(m_list, &QTreeWidget::itemSelectionChanged, this, &RecoverDialog::updateButtons);
    connect(m_list, &QTreeWidget::itemActivated, this, [this] { emit compareRequested(currentId()); });
    connect(m_compare, &QPushButton::clicked, this, [this] { emit compareRequested(currentId()); });
    connect(m_restore, &QPushButton::clicked, this, [this] { emit restoreRequested(currentId()); });
    connect(m_delete, &QPushButton::clicked, this, &RecoverDialog::deleteCurrent);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    fill();
}

QString RecoverDialog::timeText(const RecoveryStore::Entry& entry)
{
    return QLocale().toString(entry.time.toLocalTime(), QLocale::ShortFormat);
}

void RecoverDialog::fill()
{
    const int row = m_list->indexOfTopLevelItem(m_list->currentItem());
    m_list->clear();
    for (const RecoveryStore::Entry& entry : m_store->entries()) {
        const QFileInfo info(entry.path);
        auto* item = new QTreeWidgetItem(m_list);
        item->setText(eColumnDocument, entry.path.isEmpty() ? tr("Untitled") : info.fileName());
        item->setText(eColumnTime, timeText(entry));
        item->setText(eColumnReason, reasonText(entry.kind));
        item->setText(eColumnFolder, entry.path.isEmpty() ? QString() : info.path());
        item->setToolTip(eColumnFolder, entry.path);
        item->setData(0, idRole, entry.id);
    }
    for (int column = 0; column < eColumnFolder; ++column)
        m_list->resizeColumnToContents(column);
    m_list->setCurrentItem(m_list->topLevelItem(qBound(0, row, m_list->topLevelItemCount() - 1)));
    updateButtons();
}

void RecoverDialog::setRestoreEnabled(bool enabled)
{
    m_restoreEnabled = enabled;
    updateButtons();
}

QString RecoverDialog::currentId() const
{
    const QTreeWidgetItem* item = m_list->currentItem();
    return item != nullptr ? item->data(0, idRole).toString() : QString();
}

void RecoverDialog::updateButtons()
{
    const bool isAny = !currentId().isEmpty();
    m_compare->setEnabled(isAny);
    m_restore->setEnabled(isAny && m_restoreEnabled);
    m_delete->setEnabled(isAny);
    QString hint = tr("Texts are kept for %1 days.").arg(RecoveryStore::maxAgeDays);
    if (m_list->topLevelItemCount() == 0)
        hint = tr("There is no text to recover.");
    else if (!m_restoreEnabled)
        hint += QLatin1Char(' ') + tr("To restore one, open its project first.");
    m_hint->setText(hint);
}

void RecoverDialog::deleteCurrent()
{
    const QString id = currentId();
    const QString question = tr("Do you want to remove the kept text for good?");
    if (QMessageBox::question(this, tr("Remove text"), question, QMessageBox::Yes | QMessageBox::No, QMessageBox::No) !=
        QMessageBox::Yes)
        return;
    m_store->remove(id);
    fill();
}

} // namespace nsModEditor
