#pragma once

#include <QTableView>

namespace nsProc {

class ProcSimIOMem;
class ProcSimMemModel;

/// The words of a memory, to be seen and edited. Each key press in a cell takes effect at once.
class ProcSimEdtMemArray : public QTableView
{
    Q_OBJECT

public:
    /// @param device not owned, must outlive its use by refresh() and by the user
    explicit ProcSimEdtMemArray(ProcSimIOMem* device, QWidget* parent = nullptr);

    /// Shows what has changed, and scrolls to the row that was accessed last.
    void refresh();

private:
    void updateHeight();

    ProcSimIOMem* m_device;
    ProcSimMemModel* m_model;
    int m_shownRow = -1;
};

} // namespace nsProc
