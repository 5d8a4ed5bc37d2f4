#pragma once

#include <QWidget>

class QBoxLayout;
class QTabWidget;

namespace nsModPrj {

class PrjMngrListWidget;
class PrjMngrNewWidget;
class PrjMngrOpenWidget;

/// The page of the project manager: a tab for new projects, one for existing ones. It decides nothing itself.
class PrjMngrWidget : public QWidget
{
    Q_OBJECT

public:
    explicit PrjMngrWidget(QWidget* parent = nullptr);

    PrjMngrNewWidget* newWidget() const { return m_new; }
    PrjMngrOpenWidget* openWidget() const { return m_open; }
    PrjMngrListWidget* listWidget() const { return m_list; }

    /// Brings a tab to the front and its first field under the keys.
    void setCurrentTab(int index);
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

    QTabWidget* m_tabs;
    PrjMngrNewWidget* m_new;
    PrjMngrOpenWidget* m_open;
    PrjMngrListWidget* m_list;
    QBoxLayout* m_buttons = nullptr; ///< beside each other, or in a narrow page one below the other
};

} // namespace nsModPrj
