#pragma once

#include <QWidget>

class QBoxLayout;
class QListWidget;
class QListWidgetItem;
class QPushButton;
class QScrollArea;
class QStackedWidget;

namespace nsModConfig {

/// The frame around the settings pages: the list of pages, the page, and the buttons. Does not depend on the contents
/// of the pages.
class ConfigDialog : public QWidget
{
    Q_OBJECT

public:
    explicit ConfigDialog(QWidget* parent = nullptr);
    ~ConfigDialog() override;

    QListWidget* list() const { return m_list; }
    QStackedWidget* stack() const { return m_stack; }

    /// Appends a page to list and stack. The page's widget becomes a child of its scroll area until takePage().
    /// @return the page's entry, owned by the list, not enabled yet
    QListWidgetItem* addPage(const QIcon& icon, const QString& title, QWidget* page);
    /// Takes a page out again. Its widget, if it still exists, is left without a parent.
    void takePage(QListWidgetItem* item);
    /// Takes a page out whose widget is being deleted at this moment.
    void dropPage(QListWidgetItem* item);
    /// Enables a page's entry, or disables it and says why.
    static void setPageEnabled(QListWidgetItem* item, bool enabled);
    /// Brings a page to the front; null leaves what is shown. The buttons that concern one page follow its entry.
    void showPage(QListWidgetItem* item);

signals:
    /// The dialog is being deleted; the pages in it are deleted next.
    void vanishing();
    void setDefaultRequested();
    void restoreRequested();
    void closeRequested();
    void cancelRequested();
    /// The Esc key, which no field has taken.
    void escapeRequested();
    void helpRequested();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void setupList();
    QWidget* makeButtons();
    QScrollArea* areaOf(QListWidgetItem* item) const;
    void putButtonsAfter(QWidget* page);

    QListWidget* m_list = nullptr;
    QStackedWidget* m_stack = nullptr;
    QBoxLayout* m_buttons = nullptr;
    QPushButton* m_setDefault = nullptr;
    QPushButton* m_restore = nullptr;
    QPushButton* m_apply = nullptr;
    QPushButton* m_cancel = nullptr;
    QPushButton* m_help = nullptr;
};

} // namespace nsModConfig
