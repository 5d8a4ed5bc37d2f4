#include "SplitViews.h"

#include "DocumentViews.h"
#include "EditorWidget.h"
#include "OpenDocuments.h"
#include "SecondView.h"
#include "ViewPlace.h"

#include <QSplitter>

namespace nsModEditor {

namespace {

const int whole = 1000; ///< of which the share of a view is a part

namespace keys {
const QLatin1String isBeside("beside");
const QLatin1String isFirst("pageFirst"); ///< the view in which the user worked stands at the left or above
const QLatin1String share("share");       ///< of the first view
const QLatin1String cursor("cursor");
const QLatin1String anchor("anchor");
const QLatin1String top("top");
const QLatin1String left("left");
} // namespace keys

/// Null for a page that is not split.
QSplitter* splitterOf(const EditorWidget* widget)
{
    return widget->views()->second() != nullptr ? qobject_cast<QSplitter*>(widget->parentWidget()) : nullptr;
}

} // namespace

void SplitViews::split(EditorWidget* widget, Qt::Orientation orientation) const
{
    if (QSplitter* present = splitterOf(widget)) {
        present->setOrientation(orientation);
        present->setSizes({whole, whole});
        widget->ensureCursorVisible();
        return;
    }
    QSplitter* splitter = m_documents->splitPage(widget, widget->views()->makeSecond(), orientation);
    if (splitter == nullptr) {
        widget->views()->dropSecond();
        return;
    }
    splitter->setSizes({whole, whole});
    widget->ensureCursorVisible();
}

void SplitViews::unsplit(EditorWidget* widget) const
{
    if (widget->views()->second() == nullptr)
        return;
    m_documents->splitPage(widget, nullptr, Qt::Horizontal);
    widget->views()->dropSecond();
}

QJsonObject SplitViews::stateOf(const EditorWidget* widget) const
{
    const QSplitter* splitter = splitterOf(widget);
    if (splitter == nullptr)
        return {};
    const QList<int> sizes = splitter->sizes();
    const int all = sizes.value(0) + sizes.value(1);
    const sViewPlace place = sViewPlace::of(widget->views()->second());
    return {{keys::isBeside, splitter->orientation() == Qt::Horizontal},
            {keys::isFirst, splitter->indexOf(const_cast<EditorWidget*>(widget)) == 0},
            {keys::share, all > 0 ? qRound(double(whole) * sizes.value(0) / all) : whole / 2},
            {keys::cursor, place.position},
            {keys::anchor, place.anchor},
            {keys::top, place.top},
            {keys::left, place.left}};
}

void SplitViews::restore(EditorWidget* widget, const QJsonObject& state) const
{
    if (state.isEmpty())
        return;
    split(widget, state.value(keys::isBeside).toBool() ? Qt::Horizontal : Qt::Vertical);
    QSplitter* splitter = splitterOf(widget);
    if (splitter == nullptr)
        return;
    if (!state.value(keys::isFirst).toBool(true))
        splitter->insertWidget(0, splitter->widget(1));
    const int share = qBound(1, state.value(keys::share).toInt(whole / 2), whole - 1);
    splitter->setSizes({share, whole - share});
    const sViewPlace place{state.value(keys::cursor).toInt(), state.value(keys::anchor).toInt(),
                           state.value(keys::top).toInt(), state.value(keys::left).toInt()};
    widget->views()->second()->showPlace(place);
}

} // namespace nsModEditor
