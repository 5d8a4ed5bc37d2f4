#include "NaviWidget.h"

#include "Colors.h"
#include "NaviTreeWidget.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

namespace nsModSrcNavi {

namespace {

const int grid = 8; ///< pixels
/// Entries of groups deeper than this are shown on the level of the group.
const int deepestGroup = 500;

/// The format of a type of tag; fontContextCount if it has none.
SrcNaviConfig::eFontContext_t contextOf(int type)
{
    switch (type) {
    case NaviTag::typeLabel:
        return SrcNaviConfig::fontLabel;
    case NaviTag::typeHardware:
        return SrcNaviConfig::fontHw;
    case NaviTag::typeConstant:
        return SrcNaviConfig::fontConst;
    case NaviTag::typeSeparator:
        return SrcNaviConfig::fontSep;
    case NaviTag::typeGroupBegin:
        return SrcNaviConfig::fontGrpBegin;
    default:
        return SrcNaviConfig::fontContextCount;
    }
}

/// Weight and slant only: family and size stay those of the tree.
QFont fontOf(const QTextCharFormat& format)
{
    QFont font;
    font.setWeight(format.fontWeight() == 0 ? int(QFont::Normal) : format.fontWeight());
    font.setItalic(format.fontItalic());
    return font;
}

} // namespace

NaviWidget::NaviWidget(QWidget* parent)
    : QWidget(parent)
    , m_content(this, [this] { makeContent(); })
{
    qRegisterMetaType<NaviTag*>("nsModSrcNavi::NaviTag *");
    setObjectName(QStringLiteral("naviWidget"));
    SrcNaviConfig defaults;
    setConfig(&defaults);
}

void NaviWidget::makeContent()
{
    auto* controls = new QVBoxLayout;
    controls->setContentsMargins(grid, grid, grid, grid);
    controls->setSpacing(grid);
    controls->addLayout(makeSortRow());
    controls->addLayout(makeBookmarkRow());
    // After what stands above it, for the Tab key.
    makeTree();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(controls);
    layout->addWidget(m_tree);
    showSortMode(m_startOrder);
}

QBoxLayout* NaviWidget::makeSortRow()
{
    m_sortBox = new QComboBox(this);
    m_sortBox->setObjectName(QStringLiteral("naviSortOrder"));
    m_sortBox->setToolTip(tr("Order of the entries"));
    m_sortBox->addItem(tr("Document structure"), SrcNaviConfig::sortDocument);
    m_sortBox->addItem(tr("Plain Ascent"), SrcNaviConfig::sortPlainAscent);
    m_sortBox->addItem(tr("Plain Descent"), SrcNaviConfig::sortPlainDescent);
    // In a narrow panel the end of the text is cut off.
    m_sortBox->setMinimumWidth(fontMetrics().averageCharWidth() * 16);
    connect(m_sortBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &NaviWidget::setSortModeChanged);

    auto* label = new QLabel(tr("Sort order:"), this);
    label->setBuddy(m_sortBox);
    auto* row = new QHBoxLayout;
    row->setSpacing(grid);
    row->addWidget(label);
    row->addWidget(m_sortBox);
    row->addStretch();
    return row;
}

QBoxLayout* NaviWidget::makeBookmarkRow()
{
    QPushButton* set = makeButton(tr("Set"), tr("Set bookmark"), "naviBookmarkSet");
    QPushButton* clear = makeButton(tr("Clear"), tr("Clear bookmark"), "naviBookmarkClear");
    QPushButton* clearAll = makeButton(tr("Clear all"), tr("Clear all bookmarks"), "naviBookmarkClearAll");
    connect(set, &QPushButton::clicked, this, [this] { setBookmark(); });
    connect(clear, &QPushButton::clicked, this, &NaviWidget::clearBookmark);
    connect(clearAll, &QPushButton::clicked, this, &NaviWidget::clearBookmarks);

    auto* row = new QHBoxLayout;
    // The dock can not get narrower than this row.
    row->setSpacing(grid / 2);
    row->addWidget(new QLabel(tr("Bookmarks:"), this));
    row->addSpacing(grid / 2);
    row->addWidget(set);
    row->addWidget(clear);
    row->addWidget(clearAll);
    row->addStretch();

    setTabOrder(m_sortBox, set);
    setTabOrder(set, clear);
    setTabOrder(clear, clearAll);
    return row;
}

QPushButton* NaviWidget::makeButton(const QString& text, const QString& toolTip, const char* objectName)
{
    auto* button = new QPushButton(text, this);
    button->setObjectName(QString::fromLatin1(objectName));
    button->setToolTip(toolTip);
    return button;
}

void NaviWidget::makeTree()
{
    m_tree = new NaviTreeWidget(this);
    m_tree->setToolTip(tr("Labels, and entries that comments of the sources make"));
    connect(m_tree, &QTreeWidget::itemClicked, this, &NaviWidget::setCursor);
    connect(m_tree, &QTreeWidget::itemDoubleClicked, this, &NaviWidget::setSelected);
    connect(m_tree, &NaviTreeWidget::returnPressed, this, &NaviWidget::handleReturn);
    connect(m_tree, &NaviTreeWidget::clickedRight, this,
            [this](QTreeWidgetItem* item, int column) { setBookmark(item, column); });
}

QSize NaviWidget::sizeHint() const
{
    // Wide enough for titles of a usual length.
    return QSize(qMax(QWidget::sizeHint().width(), fontMetrics().averageCharWidth() * 34),
                 qMax(minimumSizeHint().height(), fontMetrics().height() * 16));
}

// --- settings ---

void NaviWidget::setSortMode(SrcNaviConfig::eTagListSortMode_t mode)
{
    m_content.need();
    const int index = m_sortBox->findData(int(mode));
    if (index > 0)
        m_sortBox->setCurrentIndex(index);
}

void NaviWidget::showSortMode(SrcNaviConfig::eTagListSortMode_t mode)
{
    m_startOrder = mode;
    if (!m_content.isThere())
        return;
    const QSignalBlocker blocker(m_sortBox);
    m_sortBox->setCurrentIndex(qMax(m_sortBox->findData(int(mode)), 0));
}

SrcNaviConfig::eTagListSortMode_t NaviWidget::sortMode() const
{
    return m_content.isThere() ? static_cast<SrcNaviConfig::eTagListSortMode_t>(m_sortBox->currentData().toInt())
                               : m_startOrder;
}

void NaviWidget::setSortModeChanged(int)
{
    if (!m_quiet)
        emit sortModeChanged();
}

void NaviWidget::setConfig(SrcNaviConfig* config)
{
    if (config == nullptr)
        return;
    const auto order = static_cast<SrcNaviConfig::eTagListSortMode_t>(config->tagListSortMode);
    if (m_content.isThere()) {
        const QScopedValueRollback<bool> quiet(m_quiet, true);
        setSortMode(order);
    } else if (order != SrcNaviConfig::sortDocument) {
        m_startOrder = order;
    }
    m_bookmarkColor = Colors::shown(Colors::eMarkBookmark, config->bookmarkSymbolColor);
    for (int i = 0; i < SrcNaviConfig::fontContextCount; ++i)
        m_formats[i] = Colors::shown(SrcNaviConfig::colorOf(SrcNaviConfig::eFontContext_t(i)), config->fontFormats[i]);
}

// --- tree ---

NaviTag* NaviWidget::tagOf(const QTreeWidgetItem* item)
{
    return item != nullptr ? item->data(0, Qt::UserRole).value<NaviTag*>() : nullptr;
}

void NaviWidget::clearTagList()
{
    if (!m_content.isThere() || m_tree->topLevelItemCount() == 0)
        return;
    m_scrollPos = m_tree->verticalScrollBar()->value();
    m_tree->clear();
}

void NaviWidget::showTagList(QList<NaviTag*>* list, bool flat)
{
    m_content.need();
    clearTagList();
    if (m_shownOrder != m_sortBox->currentIndex())
        m_scrollPos = 0;
    m_shownOrder = m_sortBox->currentIndex();
    m_tree->setColumnCount(1);
    if (list != nullptr) {
        QList<QTreeWidgetItem*> open;
        QTreeWidgetItem* current = nullptr;
        m_tree->setUpdatesEnabled(false);
        m_tree->addTopLevelItems(makeItems(*list, flat, &open, &current));
        // The tree has not laid out its new rows yet, so expanding a group is cheap.
        for (QTreeWidgetItem* item : qAsConst(open))
            item->setExpanded(true);
        if (current != nullptr) {
            m_tree->setCurrentItem(current);
        } else {
            m_tree->doItemsLayout();
            m_tree->verticalScrollBar()->setValue(m_scrollPos);
        }
        m_tree->setUpdatesEnabled(true);
    }
    reportContent(list, flat);
}

/// Changed line numbers do not count as new content, as the panel does not show them.
void NaviWidget::reportContent(const QList<NaviTag*>* list, bool flat)
{
    QStringList content;
    if (list != nullptr) {
        for (const NaviTag* tag : *list) {
            if (tag != nullptr)
                content << QString::number(tag->type) << QString::number(int(tag->disabled)) << tag->filePath
                        << tag->title;
        }
    }
    if (content == m_shownContent && flat == m_shownFlat)
        return;
    m_shownContent = content;
    m_shownFlat = flat;
    emit contentChanged(this);
}

QTreeWidgetItem* NaviWidget::makeItem(NaviTag* tag) const
{
    auto* item = new QTreeWidgetItem;
    item->setText(0, tag->title);
    item->setToolTip(0, tag->filePath);
    item->setData(0, Qt::UserRole, QVariant::fromValue(tag));
    setItemFormat(item, tag);
    return item;
}

QList<QTreeWidgetItem*> NaviWidget::makeItems(const QList<NaviTag*>& tags, bool flat, QList<QTreeWidgetItem*>* open,
                                              QTreeWidgetItem** current) const
{
    QList<QTreeWidgetItem*> roots;
    roots.reserve(tags.size());
    QTreeWidgetItem* parent = nullptr; // null: the root
    int depth = 0;
    for (NaviTag* tag : tags) {
        if (tag == nullptr)
            continue;
        const bool isEnd = tag->type == NaviTag::typeGroupEnd;
        if (isEnd && flat)
            continue;
        if (isEnd && depth > 0) {
            if (depth <= deepestGroup)
                parent = parent->parent();
            --depth;
            continue;
        }
        QTreeWidgetItem* item = makeItem(tag);
        if (isEnd) {
            item->setText(0, tr("Unexpected end tag"));
            item->setForeground(0, Colors::of(Colors::eNaviError));
        }
        if (parent != nullptr)
            parent->addChild(item);
        else
            roots.append(item);
        if (tag->type == NaviTag::typeGroupBegin && !flat) {
            if (!tag->disabled)
                open->append(item);
            if (++depth <= deepestGroup)
                parent = item;
        }
        if (!tag->lineRef.isEmpty() && tag->lineRef == m_lastLineRef)
            *current = item;
    }
    return roots;
}

void NaviWidget::setItemFormat(QTreeWidgetItem* item, const NaviTag* tag) const
{
    if (m_bookmarks.contains(tag->lineRef)) {
        QPixmap mark(5, 12);
        mark.fill(m_bookmarkColor);
        item->setIcon(0, QIcon(mark));
    } else if (item->data(0, Qt::DecorationRole).isValid()) {
        item->setIcon(0, QIcon());
    }
    const SrcNaviConfig::eFontContext_t context = contextOf(tag->type);
    if (context != SrcNaviConfig::fontContextCount) {
        item->setForeground(0, m_formats[context].foreground());
        item->setFont(0, fontOf(m_formats[context]));
    }
    if (tag->disabled) {
        item->setForeground(0, Colors::of(Colors::eNaviDisabled));
        item->setExpanded(false);
    }
}

void NaviWidget::repaintColors()
{
    if (!m_content.isThere())
        return;
    {
        // Painting the tree once is faster than a dataChanged() signal for every property of every item.
        const QSignalBlocker quiet(m_tree->model());
        for (QTreeWidgetItemIterator it(m_tree); *it != nullptr; ++it) {
            if (const NaviTag* tag = tagOf(*it))
                setItemFormat(*it, tag);
        }
    }
    m_tree->viewport()->update();
}

void NaviWidget::repaintBookmark(const QString& lineRef)
{
    {
        const QSignalBlocker quiet(m_tree->model());
        for (QTreeWidgetItemIterator it(m_tree); *it != nullptr; ++it) {
            const NaviTag* tag = tagOf(*it);
            if (tag != nullptr && tag->lineRef == lineRef)
                setItemFormat(*it, tag);
        }
    }
    m_tree->viewport()->update();
}

// --- use ---

void NaviWidget::setSelected(QTreeWidgetItem* item, int)
{
    if (NaviTag* tag = tagOf(item))
        emit selected(tag);
}

void NaviWidget::setCursor(QTreeWidgetItem* item, int)
{
    if (const NaviTag* tag = tagOf(item)) {
        m_lastLineRef = tag->lineRef;
        setItemFormat(item, tag);
    }
}

void NaviWidget::handleReturn(QTreeWidgetItem* item, int column)
{
    setCursor(item, column);
    setSelected(item, column);
}

void NaviWidget::setBookmark(QTreeWidgetItem* item, int)
{
    const NaviTag* tag = tagOf(item);
    if (tag == nullptr)
        return;
    const QString lineRef = tag->lineRef;
    if (!m_bookmarks.removeOne(lineRef))
        m_bookmarks.append(lineRef);
    repaintBookmark(lineRef);
}

void NaviWidget::setBookmark()
{
    m_content.need();
    const NaviTag* tag = tagOf(m_tree->currentItem());
    if (tag == nullptr || m_bookmarks.contains(tag->lineRef))
        return;
    m_bookmarks.append(tag->lineRef);
    repaintBookmark(tag->lineRef);
}

void NaviWidget::clearBookmark()
{
    m_content.need();
    const NaviTag* tag = tagOf(m_tree->currentItem());
    if (tag != nullptr && m_bookmarks.removeOne(tag->lineRef))
        repaintBookmark(tag->lineRef);
}

void NaviWidget::clearBookmarks()
{
    m_bookmarks.clear();
    repaintColors();
}

} // namespace nsModSrcNavi
