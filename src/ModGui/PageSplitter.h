#pragma once

#include <QPointer>
#include <QSplitter>

namespace nsModGui {

/// What stands in a tab of the centre instead of a page that has a second widget beside it.
class PageSplitter : public QSplitter
{
    Q_OBJECT

public:
    PageSplitter(Qt::Orientation orientation, QWidget* parent);
    ~PageSplitter() override;

    /// Takes both over, in this order. @param page may be in another parent's layout, which it leaves
    void setWidgets(QWidget* page, QWidget* second);
    /// Null once it was deleted.
    QWidget* page() const { return m_page; }
    QWidget* second() const { return m_second; }

    /// The page of a tab: the widget itself, or that of the splitter which it is. Null for null.
    static QWidget* pageOf(QWidget* tab);

signals:
    /// The page is being deleted by its owner; the splitter holds nothing any more.
    void pageDeleted();

private:
    QPointer<QWidget> m_page;
    QPointer<QWidget> m_second;
};

} // namespace nsModGui
