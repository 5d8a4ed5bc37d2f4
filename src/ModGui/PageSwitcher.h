#pragma once

#include <QFrame>
#include <QList>
#include <QPointer>

class QListWidget;

namespace nsModGui {

class WidgetAreaTabbed;

/// Goes through the pages in the order in which they were used last, while Ctrl is held: the pages are listed, each is
/// shown as it is reached, and their order changes only when Ctrl is let go.
class PageSwitcher : public QFrame
{
    Q_OBJECT

public:
    /// @param tabs parent of this object
    explicit PageSwitcher(WidgetAreaTabbed* tabs);

    /// To the page used before the present one, and on from there.
    /// @param step 1, or -1 for the other way round
    /// @param isHeld the user holds Ctrl and can go on; else the page stays
    void step(int step, bool isHeld = true);
    /// Pages, the one used last first.
    QList<QWidget*> order() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void pageChanged();
    void makeList();
    void begin();
    void end();
    void show(int row);

    WidgetAreaTabbed* m_tabs;
    QListWidget* m_list = nullptr;    ///< null before the first use
    QList<QPointer<QWidget>> m_used;  ///< the one used last first
    QList<QPointer<QWidget>> m_shown; ///< rows of the list
    QPointer<QWidget> m_first;        ///< the page in front when it began
    bool m_isOn = false;
};

} // namespace nsModGui
