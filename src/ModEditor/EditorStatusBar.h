#pragma once

#include <QWidget>

class QLabel;

namespace nsModEditor {

/// The editor's part of the status bar: font size and insert mode of the current document.
class EditorStatusBar : public QWidget
{
    Q_OBJECT

public:
    explicit EditorStatusBar(QWidget* parent = nullptr);

    /// @param size points
    void setFontSize(int size);
    void setOverwrite(bool overwrite);

private:
    QLabel* addPair(const QString& title, const QString& toolTip, const QString& name);

    QLabel* m_fontSize;
    QLabel* m_mode;
};

} // namespace nsModEditor
