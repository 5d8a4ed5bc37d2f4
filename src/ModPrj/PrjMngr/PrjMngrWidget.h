#pragma once

#include <QWidget>

class QBoxLayout;
class MyLinkList;
class QTabWidget;

namespace nsModPrj {

class PrjMngrListWidget;
class PrjMngrNewWidget;
class PrjMngrOpenWidget;

/// The page of the project manager: a tab for new projects, one for existing ones. It only emits signals for what the
/// user wants.
class PrjMngrWidget : public QWidget
{
    Q_OBJECT

public:
    explicit PrjMngrWidget(QWidget* parent = nullptr);

    PrjMngrNewWidget* newWidget() const { return m_new; }
    PrjMngrOpenWidget* openWidget() const { return m_open; }
    PrjMngrListWidget* listWidget() const { return m_list; }

    /// Brings a tab to the front and gives its first field the focus.
    void setCurrentTab(int index);
    /// Puts links above what the tab for existing projects holds. @param links owned by the page from now on
    void setStartLinks(MyLinkList* links);
    /// While the settings dialog is open the tabs are locked.
    void setTabsEnabled(bool enabled);

signals:
    void saveAndCloseRequested();
    void cancelRequested();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* makeOpenTab();
    QWidget* makeButtons();
    /// The buttons at the lower edge come last in the tab order.
    void orderTabs();

    QTabWidget* m_tabs;
    QWidget* m_save = nullptr;
    QWidget* m_cancel = nullptr;
    PrjMngrNewWidget* m_new;
    PrjMngrOpenWidget* m_open;
    PrjMngrListWidget* m_list;
    QBoxLayout* m_openLayout = nullptr; ///< of the tab for existing projects
    QBoxLayout* m_buttons = nullptr;    ///< side by side, or in a narrow page one below the other
};

} // namespace nsModPrj
