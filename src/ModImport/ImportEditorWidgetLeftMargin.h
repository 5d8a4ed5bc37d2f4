#pragma once

#include <QWidget>

namespace nsModImport {

class ImportEditorWidget;

/// The line numbers of a text of the import page.
class ImportEditorWidgetLeftMargin : public QWidget
{
    Q_OBJECT

public:
    /// @param editor the text; owns the margin
    explicit ImportEditorWidgetLeftMargin(ImportEditorWidget* editor);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    /// Scrolls and zooms like the text.
    void wheelEvent(QWheelEvent* event) override;

private:
    ImportEditorWidget* m_editor; ///< not owned
};

} // namespace nsModImport
