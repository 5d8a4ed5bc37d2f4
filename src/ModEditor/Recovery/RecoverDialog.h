#pragma once

#include "RecoveryStore.h"

#include <QDialog>

class QLabel;
class QPushButton;
class QTreeWidget;

namespace nsModEditor {

/// The texts that were kept, the newest first. What is done with one of them is left to whoever shows the dialog; only
/// deleting is done here, after a question.
class RecoverDialog : public QDialog
{
    Q_OBJECT

public:
    /// @param store not owned
    explicit RecoverDialog(RecoveryStore* store, QWidget* parent = nullptr);

    /// Reads the list anew. The selection stays where it was, as far as that is still there.
    void fill();
    /// Texts can only be restored while a project is open.
    void setRestoreEnabled(bool enabled);
    bool isRestoreEnabled() const { return m_restoreEnabled; }

    /// When the text was kept, as the user writes it.
    static QString timeText(const RecoveryStore::Entry& entry);

signals:
    void restoreRequested(const QString& id);
    void compareRequested(const QString& id);

private:
    QString currentId() const;
    void updateButtons();
    void deleteCurrent();

    RecoveryStore* m_store;
    QTreeWidget* m_list;
    QLabel* m_hint;
    QPushButton* m_compare = nullptr;
    QPushButton* m_restore = nullptr;
    QPushButton* m_delete = nullptr;
    bool m_restoreEnabled = true;
};

} // namespace nsModEditor
