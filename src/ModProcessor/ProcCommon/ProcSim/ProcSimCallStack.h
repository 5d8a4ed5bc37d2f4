#pragma once

#include "ProcSimCallStackData.h"

#include <QTreeView>

#include <memory>

class QStandardItemModel;

namespace nsProc {

/// The call stack as a table, the outermost call first.
class ProcSimCallStack : public QTreeView
{
    Q_OBJECT

public:
    using sCallStackItem_t = nsProc::sCallStackItem_t;

    explicit ProcSimCallStack(std::shared_ptr<ProcSimCallStackData> data, QWidget* parent = nullptr);
    /// With a stack of its own.
    /// @param capacity levels
    explicit ProcSimCallStack(int capacity, QWidget* parent = nullptr);

    /// @return false, with nothing changed, when the stack is full
    bool add(const sCallStackItem_t& item);
    /// @return false, with nothing changed, when the stack is empty
    bool takeLast(sCallStackItem_t* item);
    int count() const { return m_data->count(); }
    void clear();
    /// @param base 8, 10 or 16
    void setBase(int base);
    /// Shows what has changed in the data, and emits contentChanged() if something has.
    void refresh();

signals:
    /// The stack has changed. @param widget this
    void contentChanged(QWidget* widget);

private:
    void setup();
    void showRow(int row, const sCallStackItem_t& item);
    bool isShown(int row) const;

    std::shared_ptr<ProcSimCallStackData> m_data;
    QStandardItemModel* m_model;
    std::vector<sCallStackItem_t> m_shown;
    unsigned m_changes = 0;
    int m_base = 16;
};

} // namespace nsProc
