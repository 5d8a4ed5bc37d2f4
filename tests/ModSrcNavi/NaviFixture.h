#pragma once

#include "NaviTag.h"
#include "NaviTreeWidget.h"
#include "NaviWidget.h"
#include "QtPrinters.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QContextMenuEvent>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTreeWidgetItemIterator>

#include <memory>
#include <vector>

/// Reaching into the panel as a user does.
class NaviHand
{
public:
    explicit NaviHand(QWidget* panel)
        : tree(panel->findChild<nsModSrcNavi::NaviTreeWidget*>("codeNavi"))
        , sortBox(panel->findChild<QComboBox*>("naviSortOrder"))
        , m_panel(panel)
    {
    }

    QPushButton* button(const QString& text) const
    {
        for (QPushButton* candidate : m_panel->findChildren<QPushButton*>()) {
            if (candidate->text() == text)
                return candidate;
        }
        return nullptr;
    }
    void press(const QString& text) const { QTest::mouseClick(button(text), Qt::LeftButton); }

    /// The first item with this text, or null.
    QTreeWidgetItem* item(const QString& text) const
    {
        for (QTreeWidgetItemIterator it(tree); *it != nullptr; ++it) {
            if ((*it)->text(0) == text)
                return *it;
        }
        return nullptr;
    }
    /// One text an item, in the order on the screen, with a dot a level before it.
    QStringList outline() const
    {
        QStringList result;
        for (QTreeWidgetItemIterator it(tree); *it != nullptr; ++it) {
            QString dots;
            for (const QTreeWidgetItem* up = (*it)->parent(); up != nullptr; up = up->parent())
                dots += '.';
            result.append(dots + (*it)->text(0));
        }
        return result;
    }
    QPoint spot(const QString& text) const
    {
        tree->scrollToItem(item(text));
        return tree->visualItemRect(item(text)).center();
    }
    void click(const QString& text) const { QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, spot(text)); }
    void doubleClick(const QString& text) const
    {
        const QPoint pos = spot(text);
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, pos);
        QTest::mouseDClick(tree->viewport(), Qt::LeftButton, {}, pos);
    }
    /// What the window system sends for the right button.
    void rightClick(const QString& text) const
    {
        const QPoint pos = spot(text);
        QTest::mouseClick(tree->viewport(), Qt::RightButton, {}, pos);
        QContextMenuEvent event(QContextMenuEvent::Mouse, pos, tree->viewport()->mapToGlobal(pos));
        QApplication::sendEvent(tree->viewport(), &event);
    }
    bool isMarked(const QString& text) const { return !item(text)->icon(0).isNull(); }
    void choose(const QString& order) const
    {
        sortBox->setFocus();
        QTest::keyClick(sortBox, Qt::Key_Home);
        for (int i = 0; i < sortBox->count() && sortBox->currentText() != order; ++i)
            QTest::keyClick(sortBox, Qt::Key_Down);
    }

    nsModSrcNavi::NaviTreeWidget* tree;
    QComboBox* sortBox;

private:
    QWidget* m_panel;
};

/// The panel by itself, with tags that the test owns.
class NaviFixture : public ::testing::Test
{
protected:
    using NaviTag = nsModSrcNavi::NaviTag;

    NaviFixture()
        : hand(&widget)
    {
        qRegisterMetaType<QTreeWidgetItem*>("QTreeWidgetItem*"); // for spies
        widget.resize(320, 480);
        widget.show();
        widget.activateWindow();
        if (!QTest::qWaitForWindowActive(&widget, 60000))
            ADD_FAILURE() << "the panel has no focus";
    }

    NaviTag* add(int type, const QString& title, const QString& lineRef = QString(), bool disabled = false)
    {
        auto tag = std::make_unique<NaviTag>();
        tag->type = type;
        tag->title = title;
        tag->lineRef = lineRef;
        tag->filePath = "/project/src/main.psm";
        tag->line = int(tags.size());
        tag->disabled = disabled;
        tags.push_back(std::move(tag));
        return tags.back().get();
    }
    void show(bool flat = false)
    {
        QList<NaviTag*> list;
        for (const auto& tag : tags)
            list.append(tag.get());
        widget.showTagList(&list, flat);
    }
    static QColor colorOf(const QTreeWidgetItem* item) { return item->foreground(0).color(); }

    std::vector<std::unique_ptr<NaviTag>> tags; // outlive the items
    nsModSrcNavi::NaviWidget widget;
    NaviHand hand;
};
