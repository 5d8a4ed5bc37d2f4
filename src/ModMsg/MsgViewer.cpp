#include "MsgViewer.h"

#include "HelpRef.h"
#include "MsgItemDelegate.h"
#include "SchemeIcons.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPointer>
#include <QTreeWidgetItemIterator>

namespace nsModMsg {

namespace {

const char* const iconPaths[] = {
    ":/ModMsg/img/msgOk.png",
    ":/ModMsg/img/msgWarning.png",
    ":/ModMsg/img/msgError.png",
};

/// Role under which the first column keeps the number of its message.
const int numberRole = Qt::UserRole + 1;

const QString helpPage = QStringLiteral("pageId://messageView");

/// An update that takes longer than this (milliseconds) is not repeated for every message.
const qint64 cheapUpdate = 30;
/// Longest time (milliseconds) that the newest message can stay out of sight.
const qint64 longestDelay = 150;

} // namespace

MsgViewer::MsgViewer(QWidget* parent)
    : QTreeWidget(parent)
{
    setObjectName(QStringLiteral("msgViewer"));
    setAccessibleName(tr("Messages"));
    setAlternatingRowColors(true);
    setAnimated(true);
    setUniformRowHeights(true);
    // Several rows can be copied at once.
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setMouseTracking(true);
    setItemDelegate(new MsgItemDelegate(this));
    for (int grade = ModMsgHookIf::eMsgInfo; grade <= ModMsgHookIf::eMsgError; ++grade)
        m_icons[grade] = SchemeIcons::of(QLatin1String(iconPaths[grade]));
    setupColumns();
    resetGroups();

    // F1 opens the page about the message that is current.
    HelpRef::set(this, helpPage);
    connect(this, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem* item) {
        const QUrl url = item != nullptr ? item->data(eColumnHelpLink, urlRole).toUrl() : QUrl();
        HelpRef::set(this, url.isEmpty() ? helpPage : url.toString());
    });

    m_updateTimer.setSingleShot(true);
    connect(&m_updateTimer, &QTimer::timeout, this, &MsgViewer::updateView);
    connect(this, &QTreeWidget::itemClicked, this, &MsgViewer::handleClick);
    connect(this, &QTreeWidget::itemExpanded, this, &MsgViewer::scheduleUpdate);
    connect(this, &QTreeWidget::itemCollapsed, this, &MsgViewer::scheduleUpdate);
    // Drops pointers to deleted items when the tree is cleared through QTreeWidget::clear().
    connect(model(), &QAbstractItemModel::modelReset, this, &MsgViewer::resetGroups);
    connect(model(), &QAbstractItemModel::rowsAboutToBeRemoved, this, &MsgViewer::dropNewest);
}

MsgViewer::~MsgViewer()
{
    // The destructor of the model resets it again, when the members of this class no longer exist.
    model()->disconnect(this);
}

void MsgViewer::setupColumns()
{
    setColumnCount(eColumnCount);
    setHeaderLabels({tr("Message"), tr("Help link"), tr("Source link")});
    header()->setMinimumSectionSize(fontMetrics().horizontalAdvance(QLatin1Char('x')) * 16);
    header()->setSectionResizeMode(eColumnMessage, QHeaderView::ResizeToContents);
    header()->setSectionResizeMode(eColumnHelpLink, QHeaderView::ResizeToContents);
    header()->setSectionResizeMode(eColumnSourceLink, QHeaderView::Stretch);
    header()->setSectionsMovable(false);
}

void MsgViewer::resetGroups()
{
    m_groups.clear();
    m_currentParent = invisibleRootItem();
    m_newest = nullptr;
    m_firstWorst = nullptr;
    m_worst = ModMsgHookIf::eMsgInfo;
}

void MsgViewer::dropNewest(const QModelIndex&, int, int)
{
    // This class never removes single items; if other code does, it is unknown which of the stored items are removed.
    resetGroups();
}

QTreeWidgetItem* MsgViewer::makeItem(eMsgType_t grade, const QString& text, const QUrl& hlpDoc) const
{
    auto* item = new QTreeWidgetItem;
    item->setText(eColumnMessage, text);
    item->setIcon(eColumnMessage, m_icons[grade]);
    if (!hlpDoc.isEmpty()) {
        item->setText(eColumnHelpLink, tr("Show help page"));
        item->setData(eColumnHelpLink, urlRole, hlpDoc);
    }
    return item;
}

void MsgViewer::openMessageGroup(const QString& text, const QUrl& hlpDoc)
{
    QTreeWidgetItem* item = makeItem(ModMsgHookIf::eMsgInfo, text, hlpDoc);
    if (m_currentParent == invisibleRootItem()) {
        m_firstWorst = nullptr;
        m_worst = ModMsgHookIf::eMsgInfo;
    }
    m_currentParent->addChild(item);
    m_currentParent = item;
    m_groups.insert(item, ModMsgHookIf::eMsgInfo);
    m_newest = item;
    scheduleUpdate();
}

bool MsgViewer::isCleanGroup(QTreeWidgetItem* item) const
{
    return m_groups.value(item, ModMsgHookIf::eMsgError) == ModMsgHookIf::eMsgInfo;
}

void MsgViewer::closeMessageGroup()
{
    for (QTreeWidgetItem* item = m_currentParent; item != nullptr && isCleanGroup(item); item = item->parent())
        item->setExpanded(false);
    m_groups.remove(m_currentParent);
    QTreeWidgetItem* parent = m_currentParent->parent();
    m_currentParent = parent != nullptr ? parent : invisibleRootItem();
    // What a run ends with is its worst message, and not its last line.
    if (m_currentParent == invisibleRootItem() && m_firstWorst != nullptr)
        m_newest = m_firstWorst;
    scheduleUpdate();
}

int MsgViewer::groupDepth() const
{
    int depth = 0;
    for (const QTreeWidgetItem* item = m_currentParent; item != nullptr && item != invisibleRootItem();
         item = item->parent())
        ++depth;
    return depth;
}

void MsgViewer::showInfoMessage(const QString& text, const QUrl& hlpDoc, const MsgUrl& srcFile)
{
    showMessage(ModMsgHookIf::eMsgInfo, text, hlpDoc, srcFile);
}

void MsgViewer::showWarningMessage(const QString& text, const QUrl& hlpDoc, const MsgUrl& srcFile)
{
    raiseGroups(ModMsgHookIf::eMsgWarning);
    showMessage(ModMsgHookIf::eMsgWarning, text, hlpDoc, srcFile);
}

void MsgViewer::showErrorMessage(const QString& text, const QUrl& hlpDoc, const MsgUrl& srcFile)
{
    raiseGroups(ModMsgHookIf::eMsgError);
    showMessage(ModMsgHookIf::eMsgError, text, hlpDoc, srcFile);
}

void MsgViewer::raiseGroups(eMsgType_t grade)
{
    for (auto it = m_groups.begin(); it != m_groups.end(); ++it) {
        if (it.value() >= grade)
            continue;
        it.value() = grade;
        it.key()->setIcon(eColumnMessage, m_icons[grade]);
        it.key()->setExpanded(true);
    }
}

void MsgViewer::showMessage(eMsgType_t grade, const QString& text, const QUrl& hlpDoc, const MsgUrl& srcFile)
{
    QTreeWidgetItem* item = makeItem(grade, text, hlpDoc);
    QString source = srcFile.displayName();
    if (source.isEmpty() && !srcFile.isEmpty()) {
        source = srcFile.path();
        if (srcFile.hasFragment())
            source += QStringLiteral("#%1").arg(srcFile.fragment());
    }
    if (!source.isEmpty()) {
        item->setText(eColumnSourceLink, source);
        item->setData(eColumnSourceLink, urlRole, static_cast<const QUrl&>(srcFile));
    }
    if (m_number >= 0)
        item->setData(eColumnMessage, numberRole, m_number);
    m_currentParent->addChild(item);
    m_newest = item;
    if (grade > m_worst && m_currentParent != invisibleRootItem()) {
        m_worst = grade;
        m_firstWorst = item;
    }
    scheduleUpdate();
    emit contentChanged(this);
}

void MsgViewer::clearMessages()
{
    if (m_currentParent != invisibleRootItem())
        return;
    clear();
    setupColumns();
    resetGroups();
    viewport()->repaint();
}

void MsgViewer::scheduleUpdate()
{
    if (m_updateTimer.isActive())
        return;
    // A small tree is updated at once; for a big one there is a delay between two updates.
    const qint64 delay = m_updateCost <= cheapUpdate ? 0 : qMin(2 * m_updateCost, longestDelay);
    m_updateTimer.start(static_cast<int>(delay));
}

void MsgViewer::updateView()
{
    QElapsedTimer clock;
    clock.start();
    // The order matters: groups that open may need wider columns, and wider columns a scroll bar that takes the lowest
    // row.
    QTreeWidgetItem* target = m_newest != nullptr ? scrollTarget() : nullptr;
    for (QTreeWidgetItem* group = target != nullptr ? target->parent() : nullptr; group != nullptr;
         group = group->parent())
        group->setExpanded(true);
    for (int column = 0; column < eColumnCount; ++column)
        resizeColumnToContents(column);
    if (target != nullptr)
        scrollToItem(target);
    m_newest = nullptr;
    // Expanding the parents of the item has requested another update, which is not needed.
    m_updateTimer.stop();
    m_updateCost = clock.elapsed();
}

QTreeWidgetItem* MsgViewer::scrollTarget() const
{
    // Scrolling expands the parents of the item. That is wanted for open groups only; a group that was closed and
    // folded stays folded, and the view scrolls to its line.
    QTreeWidgetItem* target = m_newest;
    for (QTreeWidgetItem* group = m_newest->parent(); group != nullptr; group = group->parent()) {
        if (!group->isExpanded() && !m_groups.contains(group))
            target = group;
    }
    return target;
}

void MsgViewer::handleClick(QTreeWidgetItem* item, int column)
{
    if (item == nullptr || column < 0 || column >= eColumnCount)
        return;
    const bool help = column == eColumnHelpLink;
    const QUrl url = item->data(help ? eColumnHelpLink : eColumnSourceLink, urlRole).toUrl();
    if (url.isEmpty())
        return;
    if (help)
        emit hlpUrlClicked(url);
    else
        emit srcUrlClicked(url);
}

void MsgViewer::showItem(QTreeWidgetItem* item)
{
    if (item == nullptr)
        return;
    for (QTreeWidgetItem* group = item->parent(); group != nullptr; group = group->parent())
        group->setExpanded(true);
    setCurrentItem(item);
    m_newest = item;
    scheduleUpdate();
}

void MsgViewer::selectMessage(int number)
{
    for (QTreeWidgetItemIterator it(this); *it != nullptr; ++it) {
        const QVariant own = (*it)->data(eColumnMessage, numberRole);
        if (own.isValid() && own.toInt() == number) {
            showItem(*it);
            return;
        }
    }
}

QTreeWidgetItem* MsgViewer::firstOf(eMsgType_t grade) const
{
    for (QTreeWidgetItemIterator it(const_cast<MsgViewer*>(this)); *it != nullptr; ++it) {
        const bool isMessage = (*it)->data(eColumnMessage, numberRole).isValid();
        if (isMessage && (*it)->icon(eColumnMessage).cacheKey() == m_icons[grade].cacheKey())
            return *it;
    }
    return nullptr;
}

void MsgViewer::showFirstWorst()
{
    QTreeWidgetItem* error = firstOf(ModMsgHookIf::eMsgError);
    showItem(error != nullptr ? error : firstOf(ModMsgHookIf::eMsgWarning));
}

QString MsgViewer::textOf(bool isSelectedOnly) const
{
    QString text;
    for (QTreeWidgetItemIterator it(const_cast<MsgViewer*>(this)); *it != nullptr; ++it) {
        const QTreeWidgetItem* item = *it;
        if (isSelectedOnly && !item->isSelected())
            continue;
        QString line = item->text(eColumnMessage);
        if (!isSelectedOnly) {
            for (const QTreeWidgetItem* group = item->parent(); group != nullptr; group = group->parent())
                line.prepend(QLatin1String("    "));
        }
        if (!item->text(eColumnSourceLink).isEmpty())
            line += QLatin1Char('\t') + item->text(eColumnSourceLink);
        text += line + QLatin1Char('\n');
    }
    return text;
}

QString MsgViewer::selectedText() const
{
    return textOf(true);
}

QString MsgViewer::allText() const
{
    return textOf(false);
}

void MsgViewer::contextMenuEvent(QContextMenuEvent* event)
{
    const QPointer<QMenu> menu(new QMenu(this));
    const auto add = [&](const QString& title, const QString& text) {
        QAction* entry = menu->addAction(title);
        entry->setEnabled(!text.isEmpty());
        // The text of now: messages can come while the menu is open.
        connect(entry, &QAction::triggered, entry, [text] { QApplication::clipboard()->setText(text); });
        return entry;
    };
    add(tr("Copy"), selectedText())->setShortcut(QKeySequence::Copy);
    add(tr("Copy all"), allText());
    menu->exec(event->globalPos());
    // The view may have gone meanwhile, and the menu with it.
    delete menu;
}

bool MsgViewer::event(QEvent* event)
{
    // Here the key copies messages, whatever it does in the window.
    if (event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy)) {
        event->accept();
        return true;
    }
    return QTreeWidget::event(event);
}

void MsgViewer::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy)) {
        QApplication::clipboard()->setText(selectedText());
        event->accept();
        return;
    }
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        handleClick(currentItem(), currentColumn());
        event->accept();
        return;
    }
    QTreeWidget::keyPressEvent(event);
}

void MsgViewer::mouseMoveEvent(QMouseEvent* event)
{
    const QModelIndex index = indexAt(event->pos());
    const bool link = index.isValid() && index.column() != eColumnMessage && !index.data(urlRole).toUrl().isEmpty();
    viewport()->setCursor(link ? Qt::PointingHandCursor : Qt::ArrowCursor);
    QTreeWidget::mouseMoveEvent(event);
}

} // namespace nsModMsg
