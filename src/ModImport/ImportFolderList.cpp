#include "ImportFolderList.h"

#include "MyButton.h"

#include <QDir>
#include <QDropEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QListWidget>
#include <QMimeData>
#include <QPointer>
#include <QShortcut>
#include <QVBoxLayout>

namespace nsModImport {

namespace {

const int gap = 8;
const int shownRows = 3;

QStringList foldersOf(const QMimeData* data)
{
    QStringList folders;
    for (const QUrl& url : data->urls()) {
        if (url.isLocalFile() && QFileInfo(url.toLocalFile()).isDir())
            folders.append(url.toLocalFile());
    }
    return folders;
}

} // namespace

ImportFolderList::ImportFolderList(QWidget* parent)
    : QWidget(parent)
    , m_list(new QListWidget(this))
    , m_add(new MyButton(tr("&Add..."), this))
    , m_remove(new MyButton(tr("Remo&ve"), this))
{
    setAcceptDrops(true);
    setFocusProxy(m_list);
    m_list->setObjectName(QStringLiteral("importFolders"));
    m_list->setAccessibleName(tr("Folders of included files"));
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setTextElideMode(Qt::ElideMiddle);
    m_list->setFixedHeight(shownRows * (m_list->fontMetrics().lineSpacing() + gap / 2) + gap);
    m_add->setObjectName(QStringLiteral("importFolderAdd"));
    m_add->setToolTip(tr("Add a folder in which included files are looked for"));
    m_remove->setObjectName(QStringLiteral("importFolderRemove"));
    m_remove->setToolTip(tr("Remove the selected folders from the list (Del)"));
    for (QPushButton* button : {m_add, m_remove})
        button->setAutoDefault(false);

    auto* buttons = new QVBoxLayout;
    buttons->setSpacing(gap / 2);
    buttons->addWidget(m_add);
    buttons->addWidget(m_remove);
    buttons->addStretch(1);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(gap / 2);
    layout->addWidget(m_list, 1);
    layout->addLayout(buttons);

    connect(m_add, &QPushButton::clicked, this, &ImportFolderList::choose);
    connect(m_remove, &QPushButton::clicked, this, &ImportFolderList::removeSelected);
    connect(m_list, &QListWidget::itemSelectionChanged, this, &ImportFolderList::updateButtons);
    auto* removal = new QShortcut(QKeySequence(Qt::Key_Delete), m_list);
    removal->setContext(Qt::WidgetShortcut);
    connect(removal, &QShortcut::activated, this, &ImportFolderList::removeSelected);
    updateButtons();
}

void ImportFolderList::setFolders(const QStringList& folders)
{
    m_list->clear();
    for (const QString& folder : folders)
        add(folder);
    updateButtons();
}

QStringList ImportFolderList::folders() const
{
    QStringList folders;
    for (int row = 0; row < m_list->count(); ++row)
        folders.append(m_list->item(row)->text());
    return folders;
}

void ImportFolderList::add(const QString& folder)
{
    const QString path = QDir::cleanPath(folder);
    if (folder.isEmpty() || folders().contains(path))
        return;
    auto* item = new QListWidgetItem(path, m_list);
    item->setToolTip(path);
    emit changed();
}

void ImportFolderList::choose()
{
    // The dialog around can be deleted while this one is open, and this one with it.
    const QPointer<QFileDialog> dialog(new QFileDialog(this, tr("Select a folder of included files"), m_startFolder));
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (!dialog)
        return;
    const QStringList selected = dialog->selectedFiles();
    delete dialog;
    if (accepted && !selected.isEmpty())
        add(selected.constFirst());
}

void ImportFolderList::removeSelected()
{
    qDeleteAll(m_list->selectedItems());
    updateButtons();
    emit changed();
}

void ImportFolderList::updateButtons()
{
    m_remove->setEnabled(!m_list->selectedItems().isEmpty());
}

void ImportFolderList::dragEnterEvent(QDragEnterEvent* event)
{
    if (!foldersOf(event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void ImportFolderList::dropEvent(QDropEvent* event)
{
    const QStringList folders = foldersOf(event->mimeData());
    for (const QString& folder : folders)
        add(folder);
    event->acceptProposedAction();
}

} // namespace nsModImport
