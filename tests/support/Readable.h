#pragma once

#include "MyTextButton.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QImage>
#include <QLabel>
#include <QPixmap>
#include <QSet>
#include <QTextDocument>
#include <QToolButton>

/// What a person who looks at a picture would see first: texts that are cut off, and places that stay empty.

/// The text that a label or button shows on one line; empty if it shows none, or breaks its lines.
inline QString shownText(const QWidget* widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(widget))
        return label->wordWrap() || label->pixmap(Qt::ReturnByValue).isNull() == false ? QString() : label->text();
    if (const auto* tool = qobject_cast<const QToolButton*>(widget)) {
        if (tool->toolButtonStyle() == Qt::ToolButtonIconOnly && !tool->icon().isNull())
            return QString();
    }
    if (const auto* link = qobject_cast<const MyTextButton*>(widget)) {
        // A short text was written for the place; one with an ellipsis is cut off.
        const QString shown = link->shownText();
        return shown.contains(QChar(0x2026)) ? link->text() : shown;
    }
    const auto* button = qobject_cast<const QAbstractButton*>(widget);
    return button != nullptr ? button->text() : QString();
}

/// Checks every text of the shown widget and its children: it has the room that it asks for, nothing outside of a
/// scrolled area hides a part of it, and something is painted at its place.
/// @return the picture that was checked
inline QPixmap expectReadable(QWidget* root)
{
    const QPixmap picture = root->grab();
    const QImage image = picture.toImage();
    const qreal scale = picture.devicePixelRatio();
    QSet<QRgb> all;
    for (int x = 0; x < image.width(); x += 2)
        for (int y = 0; y < image.height(); y += 2)
            all.insert(image.pixel(x, y));
    EXPECT_GT(all.size(), 1) << "a picture of one colour: " << qPrintable(root->objectName());
    for (QWidget* widget : root->findChildren<QWidget*>()) {
        const QString text = shownText(widget);
        const QRect seen = widget->visibleRegion().boundingRect();
        if (text.trimmed().isEmpty() || !widget->isVisibleTo(root) || seen.isEmpty())
            continue;
        bool scrolls = false;
        for (QWidget* parent = widget; parent != root && !scrolls; parent = parent->parentWidget())
            scrolls = qobject_cast<QAbstractScrollArea*>(parent->parentWidget()) != nullptr;
        if (scrolls && seen.size() != widget->size())
            continue;
        EXPECT_TRUE(QRegion(widget->rect()).subtracted(widget->visibleRegion()).isEmpty())
            << "hidden in part: " << qPrintable(text);
        const int needed = Qt::mightBeRichText(text) ? widget->minimumSizeHint().width()
                                                     : widget->fontMetrics().size(Qt::TextShowMnemonic, text).width();
        // A line that takes any width shortens its text by itself, with an ellipsis.
        if (widget->sizePolicy().horizontalPolicy() != QSizePolicy::Ignored) {
            EXPECT_GE(widget->width(), needed) << "cut off: " << qPrintable(text);
        }
        const QPoint place = widget->mapTo(root, QPoint(0, 0));
        int darkest = 255;
        int lightest = 0;
        for (int x = 0; x < widget->width(); ++x) {
            for (int y = 0; y < widget->height(); ++y) {
                const int gray = qGray(image.pixel(qMin(int((place.x() + x) * scale), image.width() - 1),
                                                   qMin(int((place.y() + y) * scale), image.height() - 1)));
                darkest = qMin(darkest, gray);
                lightest = qMax(lightest, gray);
            }
        }
        EXPECT_GT(lightest - darkest, 40) << "not painted: " << qPrintable(text);
    }
    return picture;
}
