#pragma once

/// What a page of the centre says about itself to whoever shows pages: dynamic properties of its widget, which tell of
/// a change by QEvent::DynamicPropertyChange.
namespace PageProperties {

/// QString: absolute path of the file that the page shows; empty or not set: none.
constexpr const char* file = "pageFile";
/// bool: the page holds changes that are not in its file.
constexpr const char* modified = "pageModified";

} // namespace PageProperties
