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

signals:
    void hlpUrlClicked(QUrl url);
    void srcUrlClicked(QUrl url);
    void msgClicked(QUrl url);
    /// A message has been shown. @param widget this view
    void contentChanged(QWidget* widget);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

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

    QIcon m_icons[3];                             ///< by grade
    QTreeWidgetItem* m_currentParent = nullptr;   ///< where new items go: the open group, or the invisible root item
    QHash<QTreeWidgetItem*, eMsgType_t> m_groups; ///< every group not yet closed, with its worst state so far
    QTreeWidgetItem* m_newest = nullptr;          ///< item to scroll to, null when that has been done
    QTimer m_updateTimer;
    qint64 m_updateCost = 0; ///< milliseconds that the last update took
};

} // namespace nsModMsg
