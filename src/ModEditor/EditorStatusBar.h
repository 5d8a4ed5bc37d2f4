#pragma once

#include "DocumentFormat.h"

#include <QPointer>
#include <QVector>
#include <QWidget>

class QAction;
class QActionGroup;
class QLabel;
class QToolButton;

namespace nsModEditor {

/// The editor's part of the status bar: font size, insert mode and file format of the current document.
class EditorStatusBar : public QWidget
{
    Q_OBJECT

public:
    explicit EditorStatusBar(QWidget* parent = nullptr);

    /// @param size points
    void setFontSize(int size);
    void setOverwrite(bool overwrite);
    /// Place of the cursor. @param line, @param column counted from 0
    void setPosition(int line, int column);
    /// @param changeable whether line ends and mark can be chosen
    void setFormat(const DocumentFormat& format, bool changeable);
    /// There is no document.
    void clearFormat();

signals:
    /// @param lineEnd a DocumentFormat::eLineEnd_t, not mixed
    void lineEndSelected(int lineEnd);
    void markSelected(bool mark);

protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private slots:
    void selectLineEnd(QAction* action);

private:
    void addFormat();
    /// In a small window the titles give way to the values of all parts of the status bar, in a smaller one the place
    /// of the cursor does, too. The tips of the values say what they are.
    void fitToWindow();
    QLabel* addPair(const QString& title, const QString& toolTip, const QString& name);

    QVector<QWidget*> m_titles;
    QLabel* m_fontSize;
    QLabel* m_mode;
    QLabel* m_position;
    QPointer<QWidget> m_window; ///< whose width is followed
    QToolButton* m_format = nullptr;
    QActionGroup* m_lineEnds = nullptr;
    QAction* m_mark = nullptr;
};

} // namespace nsModEditor
