#pragma once

#include <QHash>
#include <QIcon>
#include <QProxyStyle>

/// How the program draws its controls, below the style sheet: Fusion, with pictures of its own scheme where Fusion has
/// some that are dark in every scheme and are read from several files for each bar. Texts are set without kerning.
class AppStyle : public QProxyStyle
{
    Q_OBJECT

public:
    /// Gives the application this style, which owns it, unless it has it already. Cheapest before the first widget.
    static void install();
    /// Takes over the font of the system, which may have changed, unless somebody else has set one.
    static void followSystemFont();

    AppStyle();

    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option = nullptr,
                       const QWidget* widget = nullptr) const override;

private:
    mutable QHash<int, QIcon> m_titleMarks; ///< by StandardPixmap
};
