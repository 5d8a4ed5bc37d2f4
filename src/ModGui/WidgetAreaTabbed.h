#pragma once

#include "WidgetArea.h"

#include <QTabWidget>

class QPushButton;
class QSplitter;

namespace nsModGui {

class EmptyPage;
class PageSwitcher;

/// The tabbed centre of the main window. A tab holds a page, or a splitter with the page and a second widget: whoever
/// means pages asks for them here and not by the operations of tabs.
class WidgetAreaTabbed : public QTabWidget, public WidgetArea
{
    Q_OBJECT

public:
    explicit WidgetAreaTabbed(QWidget* parent = nullptr);

    /// The name as it is if no tab has it yet, otherwise with the number of its uses appended, such as "main.psm [2]".
    QString chkAppName(const QString& name) const;
    void setWidgetName(QWidget* widget, const QString& name);
    void setWidgetIcon(QWidget* widget, const QIcon& icon);
    /// What the area names as open while it has no page; empty if nothing is.
    void setOpenText(const QString& text);
    /// What it shows below the name while it has no page; see ModGuiHookIf::setEmptyPage().
    void setEmptyPage(QWidget* page);
    /// See ModGuiHookIf::splitPage().
    QSplitter* splitPage(QWidget* page, QWidget* second, Qt::Orientation orientation);

    /// The page of a tab; null if there is none.
    QWidget* pageAt(int index) const;
    /// The tab of a page, -1 for others.
    int indexOfPage(const QWidget* page) const;
    /// Null while there is none.
    QWidget* currentPage() const { return pageAt(currentIndex()); }

    // WidgetArea
    void addWidget(const QString& name, QWidget* widget) override;
    void removeWidget(QWidget* widget) override;
    bool hasWidget(QWidget* widget) const override;
    QWidget* currentAreaWidget() const override { return currentPage(); }
    void showWidget(QWidget* widget) override;
    void setWidgetEnabled(QWidget* widget, bool enabled) override;
    void setAreaVisible(bool visible) override { setVisible(visible); }
    bool isAreaVisible() const override { return !isHidden(); }

signals:
    /// The user asks to close the page.
    void removeWidgetRequest(QWidget* widget);
    /// The user wants to see the file of a page in the list of files.
    void showFileRequested(const QString& path);
    /// @param area this
    /// @param widget the current page, null when the last one was removed
    void currentWidgetChanged(QWidget* area, QWidget* widget);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void tabInserted(int index) override;
    void tabRemoved(int index) override;

private slots:
    void requestClose();

private:
    void setupPageKeys();
    /// Shows the next enabled page; after the last one the first one. @param step 1, or -1 for the one before
    void stepPage(int step);
    void updateEmptyState();
    /// Puts a widget into the place of a tab, with all that the tab has; the widget of before stays in a tab after it.
    void replaceTab(int index, QWidget* widget);
    void unsplitPage(QWidget* page);

    QPushButton* m_closeButton;
    EmptyPage* m_emptyPage;
    PageSwitcher* m_switcher;
};

} // namespace nsModGui
