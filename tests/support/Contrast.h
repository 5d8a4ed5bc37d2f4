#pragma once

#include "Colors.h"
#include "Readable.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QHash>
#include <QLineEdit>

#include <gtest/gtest.h>

/// The colour that most pixels of a part of a picture have: behind a text, its ground.
inline QColor groundOf(const QImage& image, const QRect& part)
{
    QHash<QRgb, int> counts;
    const QRect area = part.intersected(image.rect());
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            ++counts[image.pixel(x, y)];
    }
    QRgb most = 0;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it) {
        if (it.value() > counts.value(most))
            most = it.key();
    }
    return QColor(most);
}

/// Whether the table of colours has the pair, which is where its contrast is guarded.
inline bool isInTable(const QColor& text, const QColor& ground)
{
    for (const Colors::sPair_t& pair : Colors::pairs) {
        if (Colors::of(pair.text).rgb() == text.rgb() && Colors::of(pair.ground).rgb() == ground.rgb())
            return true;
    }
    return false;
}

/// Compares the text of each label, button, field and list with what is painted behind it: the table must have this
/// pair of colours, whose contrasts are computed by its own test.
/// @param picture of the widget, at the scale 1
/// @return number of texts that were looked at
inline int expectContrast(QWidget* root, const QImage& picture)
{
    int seen = 0;
    for (QWidget* widget : root->findChildren<QWidget*>()) {
        const auto* view = qobject_cast<const QAbstractItemView*>(widget);
        const bool isField =
            qobject_cast<const QLineEdit*>(widget) != nullptr || qobject_cast<const QComboBox*>(widget) != nullptr;
        const bool hasText = isField ||
                             (view != nullptr && view->model() != nullptr && view->model()->rowCount() > 0) ||
                             !shownText(widget).trimmed().isEmpty();
        const QRect part = widget->visibleRegion().boundingRect();
        if (!hasText || !widget->isVisibleTo(root) || part.isEmpty())
            continue;
        const QPalette::ColorGroup group = widget->isEnabled() ? QPalette::Active : QPalette::Disabled;
        const QPalette::ColorRole role = isField || view != nullptr ? QPalette::Text : widget->foregroundRole();
        const QColor text = widget->palette().color(group, role);
        const QColor ground = groundOf(picture, part.translated(widget->mapTo(root, QPoint())));
        ++seen;
        EXPECT_TRUE(isInTable(text, ground))
            << "not in the table, contrast " << Colors::contrast(text, ground) << ": "
            << widget->metaObject()->className() << ' ' << qPrintable(widget->objectName()) << " \""
            << qPrintable(shownText(widget)) << "\": " << qPrintable(text.name() + " on " + ground.name());
    }
    return seen;
}
