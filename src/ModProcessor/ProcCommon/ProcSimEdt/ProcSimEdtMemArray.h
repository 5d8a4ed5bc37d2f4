#pragma once

#include <QTableView>

namespace nsProc {

class ProcSimIOMem;
class ProcSimMemModel;

/// The words of a memory, to be seen and edited. What is typed in a cell counts at each key press.
class ProcSimEdtMemArray : public QTableView
{
    Q_OBJECT

public:
    /// @param device not owned, must outlive its use by refresh() and by the user
    explicit ProcSimEdtMemArray(ProcSimIOMem* device, QWidget* parent = nullptr);

    /// Takes over what has changed, and scrolls to the row that was touched.
    void refresh();

private:
    void updateHeight();

    ProcSimIOMem* m_device;
    ProcSimMemModel* m_model;
    int m_shownRow = -1;
};

} // namespace nsProc
