#pragma once

#include <QString>

/// Texts of strangers, made fit to be shown: no control characters, none that are not seen or turn the direction of
/// what follows, and a bounded length.
namespace nsModSwUpdate {
namespace PlainText {

/// The beginning of a longer text, with an ellipsis. @param most characters, at least three
QString bounded(QString text, int most);
/// One line: white space of any kind is one blank. @param most characters
QString line(const QString& text, int most);
/// Several lines, separated by a line feed each, without empty ones at the ends. @param most characters
QString lines(const QString& text, int most);

} // namespace PlainText
} // namespace nsModSwUpdate
