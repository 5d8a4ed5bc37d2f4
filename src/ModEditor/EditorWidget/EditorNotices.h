#pragma once

#include <QWidget>

class MyNoticeBar;

namespace nsModEditor {

/// The bars at the upper edge of a document, one below the other, the latest at the bottom.
class EditorNotices : public QWidget
{
    Q_OBJECT

public:
    /// @param parent the document
    explicit EditorNotices(QWidget* parent);

    /// Takes the bar over and shows it.
    void add(MyNoticeBar* bar);
    /// Height in pixels that the bars need; 0 without any.
    int heightFor(int width) const;
    /// Moves the focus from the document to the first bar, and back.
    void switchFocus();

signals:
    /// A bar was added, removed or changed.
    void changed();

protected:
    bool event(QEvent* event) override;

private:
    MyNoticeBar* firstBar() const;
};

} // namespace nsModEditor
