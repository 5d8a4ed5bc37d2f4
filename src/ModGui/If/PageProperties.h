#pragma once

/// What a page of the centre says about itself to whoever shows pages: dynamic properties of its widget, which tell of
/// a change by QEvent::DynamicPropertyChange.
namespace PageProperties {

/// QString: absolute path of the file that the page shows; empty or not set: none.
constexpr const char* file = "pageFile";
/// bool: the page holds changes that are not in its file.
constexpr const char* modified = "pageModified";
/// bool, of a widget for the status bar, set before it is added: it is seen beside the widget that its area shows, and
/// not instead of it.
constexpr const char* isCompanion = "isCompanion";

} // namespace PageProperties
