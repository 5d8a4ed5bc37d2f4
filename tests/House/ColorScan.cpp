#include "ColorScan.h"

#include <QRegularExpression>

namespace nsHouse {

namespace {

const char* const tablePath = "src/Widgets/ColorTable.h";

/// Without comments, in which a colour may be named; strings stay.
QString withoutComments(const QString& path, QString text)
{
    static const QRegularExpression block(QStringLiteral("/\\*.*?\\*/"),
                                          QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression line(QStringLiteral("(^|[^:])//[^\n]*"));
    for (auto match = block.match(text); match.hasMatch(); match = block.match(text))
        text.replace(match.capturedStart(), match.capturedLength(), QString(match.captured().count('\n'), '\n'));
    return path.endsWith(QLatin1String(".css")) ? text : text.replace(line, QStringLiteral("\\1"));
}

const QRegularExpression& colorPattern()
{
    static const QRegularExpression pattern(QStringLiteral(
        // a style sheet's or an XML file's
        "#(?:[0-9a-fA-F]{6}|[0-9a-fA-F]{3}(?=[\\s;\"']))\\b"
        // a colour that is made of numbers or of a name
        "|\\bQColor\\s*\\w*\\s*[({]\\s*(?:0x[0-9a-fA-F]|\"|QStringLiteral|Qt::|QRgb\\(0x)"
        "|\\bQColor\\s*\\w*\\s*[({]\\s*\\d+\\s*,\\s*\\d+\\s*,\\s*\\d+\\s*[)}]"
        "|\\bqRgba?\\s*\\("
        // a global one
        "|\\bQt::(?:black|white|gray|lightGray|darkGray|red|green|blue|cyan|magenta|yellow|darkRed|darkGreen|darkBlue"
        "|darkCyan|darkMagenta|darkYellow)\\b"
        // a style sheet's by name
        "|color:\\s*(?:black|white|gr[ae]y|red|green|blue|yellow|orange)\\b"));
    return pattern;
}

} // namespace

ColorScan::ColorScan(const SourceTree& tree)
{
    const QStringList files =
        tree.files(QStringLiteral("src"), {QStringLiteral("*.cpp"), QStringLiteral("*.h"), QStringLiteral("*.css"),
                                           QStringLiteral("*.qss"), QStringLiteral("*.html")});
    for (const QString& path : files) {
        if (path == QLatin1String(tablePath))
            continue;
        const QStringList lines = withoutComments(path, tree.text(path)).split('\n');
        for (int line = 0; line < lines.size(); ++line) {
            if (lines.at(line).contains(colorPattern()))
                m_findings.append(QStringLiteral("%1:%2: %3").arg(path).arg(line + 1).arg(lines.at(line).trimmed()));
        }
    }
}

} // namespace nsHouse
