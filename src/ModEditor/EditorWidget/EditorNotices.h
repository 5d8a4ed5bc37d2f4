#pragma once

#include <QWidget>

class MyNoticeBar;

namespace nsModEditor {

/// The bars at the upper edge of a document, one below the other, the latest at the bottom.
class EditorNotices : public QWidget
{
    Q_OBJECT

public:
    explicit EditorNotices(QWidget* parent);

    /// Takes the bar over and shows it.
    void add(MyNoticeBar* bar);
    /// Height in pixels that the bars need; 0 without any.
    int heightFor(int width) const;
    /// Gives the focus to the first bar. @return false without any
    bool focusFirst();

signals:
    /// A bar was added, removed or changed.
    void changed();

protected:
    bool event(QEvent* event) override;

private:
    MyNoticeBar* firstBar() const;
};

} // namespace nsModEditor
