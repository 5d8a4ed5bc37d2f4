#pragma once

#include "Colors.h"
#include "Readable.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTabBar>
#include <QTest>

/// Settings pages as they stand in the dialog: scrolled, in the program's look, reached by label and used by keys.
///
/// CMakeLists.txt of such a test names NalvoAppResources under LIBS.
class PageFixture : public ::testing::Test
{
protected:
    PageFixture()
    {
        QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
        EXPECT_FALSE(Colors::styleSheet().isEmpty());
        pages.setObjectName(QStringLiteral("configPages"));
        pages.setStyleSheet(Colors::styleSheet());
        pages.addWidget(&area);
        pages.resize(720, 560);
        area.setFrameStyle(QFrame::NoFrame);
        area.setWidgetResizable(true);
    }
    ~PageFixture() override { area.setParent(nullptr); }

    /// Shows the page; the caller keeps the ownership.
    void show(QWidget* page)
    {
        area.setWidget(page);
        pages.show();
        pages.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&pages, 60000));
    }
    /// The field of the label with this text, null if there is none.
    template <class Field>
    static Field* field(const QWidget* page, const QString& label)
    {
        for (const QLabel* candidate : page->findChildren<QLabel*>()) {
            if (candidate->text() == label)
                return qobject_cast<Field*>(candidate->buddy());
        }
        return nullptr;
    }
    /// All texts of labels, in the order of their making.
    static QStringList labels(const QWidget* page)
    {
        QStringList result;
        for (const QLabel* label : page->findChildren<QLabel*>())
            result.append(label->text());
        return result;
    }
    /// Types into a field, in place of what it shows, and leaves it.
    static void type(QWidget* target, const QString& text)
    {
        ASSERT_NE(target, nullptr);
        target->setFocus();
        QTest::keyClick(target, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(target, text);
        QTest::keyClick(target, Qt::Key_Return);
    }
    /// Chooses an entry by keys alone.
    static void choose(QComboBox* box, const QString& text)
    {
        ASSERT_NE(box, nullptr);
        box->setFocus();
        QTest::keyClick(box, Qt::Key_Home);
        for (int i = 0; i < box->count() && box->currentText() != text; ++i)
            QTest::keyClick(box, Qt::Key_Down);
        ASSERT_EQ(box->currentText(), text);
    }
    /// Checks that every control that takes the focus has a tool tip.
    static void expectToolTips(const QWidget* page)
    {
        for (const QWidget* control : page->findChildren<QWidget*>()) {
            const bool isInner = qobject_cast<const QAbstractSpinBox*>(control->parentWidget()) != nullptr ||
                                 qobject_cast<const QComboBox*>(control->parentWidget()) != nullptr ||
                                 qobject_cast<const QTabBar*>(control->parentWidget()) != nullptr;
            const bool isField = qobject_cast<const QAbstractSpinBox*>(control) != nullptr ||
                                 qobject_cast<const QComboBox*>(control) != nullptr ||
                                 qobject_cast<const QAbstractButton*>(control) != nullptr ||
                                 qobject_cast<const QLineEdit*>(control) != nullptr;
            if (isField && !isInner && control->focusPolicy() != Qt::NoFocus) {
                EXPECT_FALSE(control->toolTip().isEmpty()) << qPrintable(control->objectName());
                EXPECT_FALSE(control->objectName().isEmpty()) << qPrintable(control->toolTip());
            }
        }
    }
    /// Checks that all texts of what is shown can be read, and writes its picture into the folder of screenshots of the
    /// build.
    void screenshot(const QString& name)
    {
        const QString dir = QStringLiteral(NALVO_BINARY_DIR "/screenshots");
        QDir().mkpath(dir);
        // Nested layouts settle one after the other.
        for (int i = 0; i < 10; ++i)
            QCoreApplication::processEvents();
        EXPECT_TRUE(expectReadable(&pages).save(dir + QLatin1Char('/') + name + QStringLiteral(".png")));
    }

    QStackedWidget pages;
    QScrollArea area;
};
