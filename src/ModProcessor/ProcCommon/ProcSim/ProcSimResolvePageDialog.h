#pragma once

#include <QDialog>

class QListWidget;

namespace nsProc {

/// Asks which page is meant while the program counter stands in the range that all pages share. It can not be refused:
/// the row that is current at the end is taken.
class ProcSimResolvePageDialog : public QDialog
{
    Q_OBJECT

public:
    explicit ProcSimResolvePageDialog(int pageCount, QWidget* parent = nullptr);

    /// The current row; 0 if there is none.
    int selectedRow() const;

private:
    QListWidget* m_list;
};

} // namespace nsProc
