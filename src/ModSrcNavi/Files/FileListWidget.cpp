#include "FileListWidget.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QScrollBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace nsModSrcNavi {

namespace {

const int gap = 4;
const QSize wantedSize(220, 200);
const int roleFile = Qt::UserRole;
const int roleIsSource = Qt::UserRole + 1;

bool isSourceItem(const QTreeWidgetItem* item)
{
    return item != nullptr && item->data(0, roleIsSource).toBool();
}

} // namespace

// --- tree ---

FileTree::FileTree(QWidget* parent)
    : QTreeWidget(parent)
{
    setObjectName(QStringLiteral("fileListTree"));
    setColumnCount(2);
    setHeaderLabels({tr("File"), tr("State")});
    header()->setStretchLastSection(true);
    header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    setDragDropMode(QAbstractItemView::InternalMove);
    setDefaultDropAction(Qt::MoveAction);
    setRootIsDecorated(true);
    setUniformRowHeights(true);
    setContextMenuPolicy(Qt::CustomContextMenu);
    connect(this, &QTreeWidget::itemDoubleClicked, this, &FileTree::openRequested);
}

int FileTree::targetOf(const QDropEvent* event) const
{
    QTreeWidgetItem* dragged = currentItem();
    QTreeWidgetItem* over = itemAt(event->pos());
    if (!isSourceItem(dragged) || !isSourceItem(over))
        return -1;
    const QTreeWidgetItem* group = dragged->parent();
    int target = group->indexOfChild(over);
    // The lower half of a line means the place below it.
    if (event->pos().y() > visualItemRect(over).center().y())
        ++target;
    return target > group->indexOfChild(dragged) ? target - 1 : target;
}

void FileTree::dragMoveEvent(QDragMoveEvent* event)
{
    QTreeWidget::dragMoveEvent(event);
    if (event->source() == this && targetOf(event) >= 0)
        event->acceptProposedAction();
    else
        event->ignore();
}

void FileTree::dropEvent(QDropEvent* event)
{
    const int target = targetOf(event);
    // The owner of the list moves the line: the view must not remove it by itself.
    event->setDropAction(Qt::CopyAction);
    event->accept();
    if (target >= 0)
        emit moved(currentItem()->parent()->indexOfChild(currentItem()), target);
}

void FileTree::keyPressEvent(QKeyEvent* event)
{
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && currentItem() != nullptr) {
        emit openRequested(currentItem());
        return;
    }
    if (event->key() == Qt::Key_Delete) {
        emit removeRequested();
        return;
    }
    if (event->modifiers() == Qt::ControlModifier && (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down)) {
        emit stepRequested(event->key() == Qt::Key_Up ? -1 : 1);
        return;
    }
    QTreeWidget::keyPressEvent(event);
}

// --- panel ---

FileListWidget::FileListWidget(QWidget* parent)
    : QWidget(parent)
    , m_content(this, [this] { makeContent(); })
{
    setObjectName(QStringLiteral("fileList"));
}

void FileListWidget::makeContent()
{
    m_add = addButton("fileListAdd", tr("Add..."), tr("Adds sources to the project"));
    m_remove =
        addButton("fileListRemove", tr("Remove"), tr("Takes the source out of the project; the file stays (Del)"));
    m_up = addButton("fileListUp", tr("Up"), tr("The assembler reads this source earlier (Ctrl+Up)"));
    m_down = addButton("fileListDown", tr("Down"), tr("The assembler reads this source later (Ctrl+Down)"));
    // After the buttons above it, for the Tab key.
    m_tree = new FileTree(this);
    m_tree->setAccessibleName(tr("Files of the project"));
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(gap);
    for (QToolButton* button : {m_add, m_remove, m_up, m_down})
        buttons->addWidget(button);
    buttons->addStretch(1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(gap, gap, gap, gap);
    layout->setSpacing(gap);
    layout->addLayout(buttons);
    layout->addWidget(m_tree, 1);

    connect(m_tree, &FileTree::openRequested, this, [this](QTreeWidgetItem* item) {
        const QString file = item->data(0, roleFile).toString();
        if (!file.isEmpty())
            emit openRequested(file);
    });
    const auto removeCurrent = [this] { remove(sourceRow(m_tree->currentItem())); };
    connect(m_tree, &FileTree::removeRequested, this, removeCurrent);
    connect(m_tree, &FileTree::stepRequested, this, &FileListWidget::moveCurrent);
    connect(m_tree, &FileTree::moved, this, &FileListWidget::moveSource);
    connect(m_tree, &QTreeWidget::currentItemChanged, this, &FileListWidget::updateButtons);
    connect(m_tree, &QWidget::customContextMenuRequested, this, &FileListWidget::showMenu);
    connect(m_add, &QToolButton::clicked, this, &FileListWidget::addRequested);
    connect(m_remove, &QToolButton::clicked, this, removeCurrent);
    connect(m_up, &QToolButton::clicked, this, [this] { moveCurrent(-1); });
    connect(m_down, &QToolButton::clicked, this, [this] { moveCurrent(1); });
    setFocusProxy(m_tree);
    updateButtons();
}

QToolButton* FileListWidget::addButton(const char* name, const QString& text, const QString& toolTip)
{
    auto* button = new QToolButton(this);
    button->setObjectName(QLatin1String(name));
    button->setText(text);
    button->setToolTip(toolTip);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

QSize FileListWidget::sizeHint() const
{
    return wantedSize;
}

QTreeWidgetItem* FileListWidget::addGroup(const QString& title, const QStringList& files, bool isSource, bool isOutput)
{
    if (files.isEmpty() && !isSource)
        return nullptr;
    auto* group = new QTreeWidgetItem(m_tree, {title});
    group->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    group->setFirstColumnSpanned(true);
    for (const QString& file : files) {
        const ProjectFiles::sState_t state = m_files.stateOf(file);
        auto* item = new QTreeWidgetItem(group, {m_dir.relativeFilePath(file), ProjectFiles::textOf(state, isOutput)});
        item->setData(0, roleFile, file);
        item->setData(0, roleIsSource, isSource);
        Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
        if (isSource)
            flags |= Qt::ItemIsDragEnabled | Qt::ItemIsDropEnabled;
        item->setFlags(flags);
        item->setToolTip(0, QStringLiteral("<p>%1</p>").arg(QDir::toNativeSeparators(file).toHtmlEscaped()));
        QFont font = item->font(0);
        font.setBold(state.isOpen);
        font.setItalic(state.isMissing);
        item->setFont(0, font);
    }
    group->setExpanded(!m_folded.contains(title));
    return group;
}

void FileListWidget::setFiles(const ProjectFiles& files, const QDir& dir, int currentSource)
{
    m_content.need();
    const QString current = currentFile();
    const int rowBefore = sourceRow(m_tree->currentItem());
    if (currentSource < 0 && rowBefore >= 0) {
        currentSource = ProjectFiles::rowOf(files.sources, ProjectFiles::sourceAt(m_files.sources, rowBefore));
        if (currentSource < 0)
            currentSource = qMin(rowBefore, files.sources.size() - 1);
    }
    // The lines are made anew, and the user sees the same part of them.
    const int place = m_tree->verticalScrollBar()->value();
    const bool wasSeen = isCurrentSeen();
    noteFolded();
    m_tree->setAutoScroll(false);
    m_files = files;
    m_dir = dir;
    m_tree->clear();
    const QTreeWidgetItem* sources = addGroup(tr("Sources"), files.sources, true, false);
    addGroup(tr("Templates"), files.templates, false, false);
    addGroup(tr("Outputs"), files.outputs, false, true);
    if (currentSource >= 0 && currentSource < sources->childCount())
        m_tree->setCurrentItem(sources->child(currentSource));
    else if (!current.isEmpty())
        makeCurrent(current);
    m_tree->doItemsLayout();
    m_tree->verticalScrollBar()->setValue(place);
    m_tree->setAutoScroll(true);
    if (wasSeen && !isCurrentSeen())
        m_tree->scrollToItem(m_tree->currentItem());
    updateButtons();
}

bool FileListWidget::isCurrentSeen() const
{
    if (m_tree->currentItem() == nullptr)
        return false;
    const QRect line = m_tree->visualItemRect(m_tree->currentItem());
    return line.isValid() && m_tree->viewport()->rect().contains(line.center());
}

void FileListWidget::noteFolded()
{
    for (int i = 0; i < m_tree->topLevelItemCount(); ++i) {
        const QTreeWidgetItem* group = m_tree->topLevelItem(i);
        m_folded.removeAll(group->text(0));
        if (!group->isExpanded())
            m_folded.append(group->text(0));
    }
}

void FileListWidget::clear()
{
    m_files = ProjectFiles();
    if (!m_content.isThere())
        return;
    m_tree->clear();
    updateButtons();
}

bool FileListWidget::select(const QString& file)
{
    if (!m_content.isThere() || !makeCurrent(file))
        return false;
    m_tree->scrollToItem(m_tree->currentItem());
    return true;
}

bool FileListWidget::makeCurrent(const QString& file)
{
    for (QTreeWidgetItemIterator it(m_tree); *it != nullptr; ++it) {
        if ((*it)->data(0, roleFile).toString() == file) {
            m_tree->setCurrentItem(*it);
            return true;
        }
    }
    return false;
}

QString FileListWidget::currentFile() const
{
    return m_content.isThere() && m_tree->currentItem() != nullptr ? m_tree->currentItem()->data(0, roleFile).toString()
                                                                   : QString();
}

/// @return -1: the line is no source
int FileListWidget::sourceRow(const QTreeWidgetItem* item) const
{
    return isSourceItem(item) ? item->parent()->indexOfChild(const_cast<QTreeWidgetItem*>(item)) : -1;
}

void FileListWidget::moveSource(int row, int target)
{
    if (row >= 0 && row < m_files.sources.size() && target >= 0 && target < m_files.sources.size() && row != target)
        emit moveRequested(ProjectFiles::sourceAt(m_files.sources, row), target);
}

void FileListWidget::moveCurrent(int step)
{
    const int row = sourceRow(m_tree->currentItem());
    if (row >= 0)
        moveSource(row, row + step);
}

void FileListWidget::remove(int row)
{
    if (row >= 0)
        emit removeRequested(ProjectFiles::sourceAt(m_files.sources, row));
}

void FileListWidget::updateButtons()
{
    const int row = sourceRow(m_tree->currentItem());
    m_remove->setEnabled(row >= 0);
    m_up->setEnabled(row > 0);
    m_down->setEnabled(row >= 0 && row < m_files.sources.size() - 1);
}

void FileListWidget::showMenu(const QPoint& place)
{
    // Beside the lines there is nothing that could be opened or removed.
    const QTreeWidgetItem* item = m_tree->itemAt(place);
    const QString file = item != nullptr ? item->data(0, roleFile).toString() : QString();
    auto* menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("fileListMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    // Later, when the menu has gone: what is chosen may ask the user.
    const auto add = [this, menu](const QString& text, bool enabled, auto act) {
        QAction* action = menu->addAction(text);
        action->setEnabled(enabled);
        connect(action, &QAction::triggered, this, act, Qt::QueuedConnection);
    };
    add(tr("&Open"), !file.isEmpty(), [this, file] { emit openRequested(file); });
    add(tr("Copy &path"), !file.isEmpty(),
        [file] { QApplication::clipboard()->setText(QDir::toNativeSeparators(file)); });
    menu->addSeparator();
    add(tr("&Add sources..."), true, [this] { emit addRequested(); });
    const int row = sourceRow(item);
    add(tr("&Remove from the project"), row >= 0,
        [this, source = ProjectFiles::sourceAt(m_files.sources, row)] { emit removeRequested(source); });
    menu->popup(m_tree->viewport()->mapToGlobal(place));
}

} // namespace nsModSrcNavi
