#pragma once

#include "ModMsgHookIf.h"

#include <QElapsedTimer>
#include <QHash>
#include <QIcon>
#include <QTimer>
#include <QTreeWidget>

namespace nsModMsg {

/// The view of all messages: a tree with one line a message and one branch a group.
///
/// Items are in the tree, with grade and fold, as soon as a call returns. Operations that lay out the whole tree
/// (fitting the columns, scrolling to the newest item) are done once when control returns to the event loop, so that a
/// run with tens of thousands of messages stays fast.
class MsgViewer : public QTreeWidget
{
    Q_OBJECT

public:
    enum eColumn_t { eColumnMessage = 0, eColumnHelpLink = 1, eColumnSourceLink = 2, eColumnCount = 3 };

    /// Role under which a link column keeps its QUrl.
    static constexpr int urlRole = Qt::UserRole;

    explicit MsgViewer(QWidget* parent = nullptr);
    ~MsgViewer() override;

    /// Opens a group inside the current one; it starts folded.
    void openMessageGroup(const QString& text, const QUrl& hlpDoc);
    /// Ends the current group, and folds it and all clean groups around it. Without an open group nothing changes.
    void closeMessageGroup();
    void showInfoMessage(const QString& text, const QUrl& hlpDoc, const MsgUrl& srcFile);
    void showWarningMessage(const QString& text, const QUrl& hlpDoc, const MsgUrl& srcFile);
    void showErrorMessage(const QString& text, const QUrl& hlpDoc, const MsgUrl& srcFile);
    /// Empties the view; does nothing while a group is open.
    void clearMessages();
    /// Number of groups that are open.
    int groupDepth() const;
    /// The next message gets this number; -1: none.
    void setNextNumber(int number) { m_number = number; }
    /// Makes the message of this number the current one and scrolls to it.
    void selectMessage(int number);
    /// The same for the first message of the worst grade.
    void showFirstWorst();
    /// The selected rows, or all of them, as text: a line each, indented by depth, links behind a tabulator.
    QString selectedText() const;
    QString allText() const;

signals:
    void hlpUrlClicked(QUrl url);
    void srcUrlClicked(QUrl url);
    void msgClicked(QUrl url);
    /// A message has been shown. @param widget this view
    void contentChanged(QWidget* widget);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private slots:
    void handleClick(QTreeWidgetItem* item, int column);

private:
    using eMsgType_t = ModMsgHookIf::eMsgType_t;

    void setupColumns();
    void resetGroups();
    void dropNewest(const QModelIndex& parent, int first, int last);
    QTreeWidgetItem* makeItem(eMsgType_t grade, const QString& text, const QUrl& hlpDoc) const;
    void showMessage(eMsgType_t grade, const QString& text, const QUrl& hlpDoc, const MsgUrl& srcFile);
    void raiseGroups(eMsgType_t grade);
    bool isCleanGroup(QTreeWidgetItem* item) const;
    void scheduleUpdate();
    void updateView();
    QTreeWidgetItem* scrollTarget() const;
    QString textOf(bool isSelectedOnly) const;
    QTreeWidgetItem* firstOf(eMsgType_t grade) const;
    void showItem(QTreeWidgetItem* item);

    QIcon m_icons[3];                             ///< by grade
    QTreeWidgetItem* m_currentParent = nullptr;   ///< where new items go: the open group, or the invisible root item
    QHash<QTreeWidgetItem*, eMsgType_t> m_groups; ///< every group not yet closed, with its worst state so far
    QTreeWidgetItem* m_newest = nullptr;          ///< item to scroll to, null when that has been done
    QTreeWidgetItem* m_firstWorst = nullptr;      ///< of the messages since a first group was opened
    eMsgType_t m_worst = ModMsgHookIf::eMsgInfo;  ///< its grade
    int m_number = -1;                            ///< of the next message; -1 for none
    QTimer m_updateTimer;
    qint64 m_updateCost = 0; ///< milliseconds that the last update took
};

} // namespace nsModMsg
