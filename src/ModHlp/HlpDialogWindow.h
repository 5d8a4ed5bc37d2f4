#pragma once

#include <QDialog>

namespace nsModHlp {

class HlpSourceIf;
class HlpWidget;

/// A help page in a window in front of a modal dialog, which lets no other window have the keyboard and the mouse.
///
/// Belongs to the dialog and goes with it. Closed by Esc; deletes itself then.
class HlpDialogWindow : public QDialog
{
    Q_OBJECT

public:
    /// @param source loads the pages; not owned, must outlive the window
    HlpDialogWindow(HlpSourceIf* source, QWidget* dialog);

    HlpWidget* page() const { return m_page; }

private:
    HlpWidget* m_page;
};

} // namespace nsModHlp
