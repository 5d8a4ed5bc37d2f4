#pragma once

#include "LateContent.h"

#include <QPointer>
#include <QVector>
#include <QWidget>

#include <functional>

class QVBoxLayout;

/// Links in sections, one below the other: what can be done from here. All of it can be done by keyboard; the arrow
/// keys go from link to link.
class MyLinkList : public QWidget
{
    Q_OBJECT

public:
    struct sLink_t
    {
        QString text;
        QString detail;  ///< after the text, or below it if it is long; may be empty
        QString toolTip; ///< plain text; empty: none
        bool isStrong = false;
        std::function<void()> act;    ///< null: the line is no link
        std::function<void()> remove; ///< not null: a button takes the line off its list
    };
    struct sSection_t
    {
        QString title; ///< empty: none
        QVector<sLink_t> links;
    };

    explicit MyLinkList(QWidget* parent = nullptr);

    /// Replaces all lines. The focus stays at its place in the list. May be called by a link.
    void setSections(const QVector<sSection_t>& sections);
    /// What the tab key reaches just before the first link, also after setSections(). @param field takes the focus
    /// itself
    void setTabBefore(QWidget* field);
    /// Texts of all lines, with their sections, from top to bottom.
    QStringList texts() const;

private:
    void orderTabs();
    void showSections();
    QWidget* makeLine(int section, int index, QWidget* parent);
    std::function<void()> run(int section, int line, std::function<void()> sLink_t::*what);

    QVBoxLayout* m_layout;
    QWidget* m_content = nullptr;
    QPointer<QWidget> m_before;
    QVector<sSection_t> m_sections;
    LateContent m_late; ///< the lines
};
