#pragma once

#include "LateContent.h"
#include "NaviTag.h"
#include "SrcNaviConfig.h"

#include <QList>
#include <QMetaType>
#include <QStringList>
#include <QWidget>

class QBoxLayout;
class QComboBox;
class QPushButton;
class QTreeWidgetItem;

namespace nsModSrcNavi {

class NaviTreeWidget;

/// The panel of the navigator: the tags as a tree, their order, and bookmarks on them.
///
/// Items point to tags that are owned elsewhere: clearTagList() must be called before tags are deleted. A bookmark is
/// the text by which its line is found; bookmarks are kept as long as the panel exists. All labels share the empty
/// text, so they are marked together.
class NaviWidget : public QWidget
{
    Q_OBJECT

public:
    explicit NaviWidget(QWidget* parent = nullptr);

    /// Shows the order in the combo box and emits sortModeChanged(). Ignores the order of the document, with which the
    /// box starts, and values that do not exist.
    void setSortMode(SrcNaviConfig::eTagListSortMode_t mode);
    /// Shows any order in the combo box, without a signal.
    void showSortMode(SrcNaviConfig::eTagListSortMode_t mode);
    SrcNaviConfig::eTagListSortMode_t sortMode() const;
    /// Takes colours, formats and the order (as setSortMode() does, but without a signal).
    void setConfig(SrcNaviConfig* config);
    /// Empties the tree. Bookmarks and the entry last clicked are kept.
    void clearTagList();
    /// Shows the tags instead of the present ones.
    /// @param list not kept; the tags have to live until the next call, or that of clearTagList()
    /// @param flat all entries on one level, for an order without groups
    void showTagList(QList<NaviTag*>* list, bool flat);
    /// Sets the colours and formats of all items again.
    void repaintColors();

    QSize sizeHint() const override;

public slots:
    /// @param index index in the combo box
    void setSortModeChanged(int index);
    /// Asks for the line of an item.
    void setSelected(QTreeWidgetItem* item, int column);
    /// Remembers the item as the one last clicked.
    void setCursor(QTreeWidgetItem* item, int column);
    /// Sets or clears the bookmark of an item.
    void setBookmark(QTreeWidgetItem* item, int column);
    /// Sets the bookmark of the current item.
    void setBookmark();
    /// Clears the bookmark of the current item.
    void clearBookmark();
    /// Clears the bookmarks of all items.
    void clearBookmarks();

signals:
    /// The user has chosen another order.
    void sortModeChanged();
    /// The tree was filled.
    void contentChanged(QWidget* widget);
    /// The user wants to see the line of the tag.
    void selected(nsModSrcNavi::NaviTag* tag);

private:
    void makeContent();
    QBoxLayout* makeSortRow();
    QBoxLayout* makeBookmarkRow();
    QPushButton* makeButton(const QString& text, const QString& toolTip, const char* objectName);
    void makeTree();
    void handleReturn(QTreeWidgetItem* item, int column);

    static NaviTag* tagOf(const QTreeWidgetItem* item);
    QTreeWidgetItem* makeItem(NaviTag* tag) const;
    /// Creates the items of all tags without a tree, so that they can be added to it in one step.
    QList<QTreeWidgetItem*> makeItems(const QList<NaviTag*>& tags, bool flat, QList<QTreeWidgetItem*>* open,
                                      QTreeWidgetItem** current) const;
    void setItemFormat(QTreeWidgetItem* item, const NaviTag* tag) const;
    /// Sets the colours and formats of the items of a bookmark again.
    void repaintBookmark(const QString& lineRef);
    void reportContent(const QList<NaviTag*>* list, bool flat);

    QComboBox* m_sortBox = nullptr;
    NaviTreeWidget* m_tree = nullptr;
    QString m_lastLineRef; ///< of the tag last clicked
    QColor m_bookmarkColor;
    QTextCharFormat m_formats[SrcNaviConfig::fontContextCount];
    QStringList m_bookmarks;    ///< line references
    int m_scrollPos = 0;        ///< scroll position of the tree when it was emptied
    QStringList m_shownContent; ///< content that was reported last
    bool m_shownFlat = false;
    int m_shownOrder = 0; ///< index in the combo box when the tree was filled
    SrcNaviConfig::eTagListSortMode_t m_startOrder = SrcNaviConfig::sortDocument; ///< until there is a combo box
    bool m_quiet = false; ///< the order is not changed by the user
    LateContent m_content;
};

} // namespace nsModSrcNavi

Q_DECLARE_METATYPE(nsModSrcNavi::NaviTag*)
