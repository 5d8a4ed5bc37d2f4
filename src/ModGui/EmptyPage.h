#pragma once

#include "LateContent.h"

#include <QPointer>
#include <QString>
#include <QWidget>

class QScrollArea;

namespace nsModGui {

/// What the centre shows while no page is open: the name of the program, and what to do next: a page of a client, or
/// else a hint.
class EmptyPage : public QWidget
{
    Q_OBJECT

public:
    explicit EmptyPage(QWidget* parent = nullptr);

    /// @param text what is open, such as the project; empty if nothing is
    void setOpenText(const QString& text);
    /// The text under the name, in lines.
    QString hint() const;
    /// What stands there instead of the hint. @param page stays with its owner; null: the hint
    void setPage(QWidget* page);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void makeContent();
    int nameHeight() const;
    QFont nameFont() const;
    void layoutPage();

    QString m_openText;
    QScrollArea* m_area = nullptr;
    QPointer<QWidget> m_page; ///< in the area
    LateContent m_content;    ///< the area
};

} // namespace nsModGui
