#pragma once

#include "EditorSyntaxHighlighterConfig.h"
#include "EditorWidget.h"
#include "EditorWidgetLeftMargin.h"
#include "QtPrinters.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMenu>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTextBlock>
#include <QTimer>
#include <QtTest>

#include <functional>
#include <memory>

/// Looks at the menu that opens next, and closes it.
class MenuHelper : public QObject
{
public:
    /// @param look called once with the open menu
    explicit MenuHelper(std::function<void(QMenu*)> look)
        : m_look(std::move(look))
    {
        connect(&m_timer, &QTimer::timeout, this, [this] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            if (menu == nullptr)
                return;
            ++m_seen;
            if (m_seen == 1)
                m_look(menu);
            if (QWidget* open = QApplication::activePopupWidget())
                open->close();
        });
        m_timer.start(1);
    }

    int seen() const { return m_seen; }

private:
    std::function<void(QMenu*)> m_look;
    QTimer m_timer;
    int m_seen = 0;
};

/// One shown document, whose requests to all documents are served as the module serves them.
class EditorTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        editor = std::make_unique<nsModEditor::EditorWidget>();
        connectAll(editor.get());
        editor->setSyntaxHighlighterConfig(&config);
        editor->setFont(QFont("DejaVu Sans Mono", 9));
        editor->resize(500, 400);
        editor->show();
        editor->activateWindow();
        editor->setFocus();
        ASSERT_TRUE(QTest::qWaitForWindowActive(editor.get(), 60000));
    }

    static void connectAll(nsModEditor::EditorWidget* widget)
    {
        using nsModEditor::EditorWidget;
        QObject::connect(widget, &EditorWidget::clearAllSimStartPointer, widget, &EditorWidget::clearSimStartPointer);
        QObject::connect(widget, &EditorWidget::clearAllBreakpoints, widget, &EditorWidget::clearSimBreakpoints);
        QObject::connect(widget, &EditorWidget::clearAllBookmarks, widget, &EditorWidget::clearBookmarks);
    }

    /// Marks the stretch from start to end; the cursor stands at the end.
    void select(int start, int end)
    {
        QTextCursor cursor = editor->textCursor();
        cursor.setPosition(start);
        cursor.setPosition(end, QTextCursor::KeepAnchor);
        editor->setTextCursor(cursor);
    }
    void moveTo(int line, int column)
    {
        QTextCursor cursor = editor->textCursor();
        cursor.setPosition(editor->document()->findBlockByNumber(line).position() + column);
        editor->setTextCursor(cursor);
    }
    int anchor() const { return editor->textCursor().anchor(); }
    int pos() const { return editor->textCursor().position(); }
    int column() const { return editor->textCursor().positionInBlock(); }
    QString text() const { return editor->toPlainText(); }

    /// Middle of a line that is on the screen, in the margin.
    int marginY(int line) const
    {
        const QTextCursor cursor(editor->document()->findBlockByNumber(line));
        return editor->cursorRect(cursor).center().y();
    }
    void clickMargin(int x, int line, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
                     Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(editor->leftMargin(), button, modifiers, QPoint(x, marginY(line)));
    }
    /// The margin as it is painted now.
    QImage marginImage() const { return editor->leftMargin()->grab().toImage(); }
    QColor marginPixel(int x, int line) const { return marginImage().pixelColor(x, marginY(line)); }
    /// Pixels in the stretch [fromX, toX) of a line that are darker than the ground of the margin.
    int darkPixels(int fromX, int toX, int line) const
    {
        const QImage image = marginImage();
        const QRect row = editor->cursorRect(QTextCursor(editor->document()->findBlockByNumber(line)));
        int count = 0;
        for (int y = row.top(); y <= row.bottom(); ++y) {
            for (int x = fromX; x < toX; ++x)
                count += image.pixelColor(x, y).lightness() < 100 ? 1 : 0;
        }
        return count;
    }
    void wheel(QWidget* widget, QPoint angle, Qt::KeyboardModifiers modifiers)
    {
        const QPointF at(widget->rect().center());
        QWheelEvent event(at, widget->mapToGlobal(at.toPoint()), QPoint(), angle, Qt::NoButton, modifiers,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(widget, &event);
    }
    static QString numberedLines(int count)
    {
        QString lines;
        for (int line = 0; line < count; ++line)
            lines += QString("line %1\n").arg(line);
        lines.chop(1);
        return lines;
    }

    nsModEditor::EditorSyntaxHighlighterConfig config;
    std::unique_ptr<nsModEditor::EditorWidget> editor;
};
