#include "AppStyle.h"

#include "SchemeIcons.h"

#include <QApplication>
#include <QFontDatabase>
#include <QPair>
#include <QVector>

namespace {

/// The last one that was set here.
QFont& fontSet()
{
    static QFont font;
    return font;
}

/// Kerning and ligatures move letters by a fraction of a pixel, and take a third of the time of a text. Scripts that
/// can not be read without are shaped as ever.
QFont withoutKerning(QFont font)
{
    font.setStyleStrategy(QFont::StyleStrategy(font.styleStrategy() | QFont::PreferNoShaping));
    return font;
}

void setFont(const QFont& font)
{
    // Desktops have fonts of their own for some controls, which the font of the application would replace.
    QVector<QPair<const char*, QFont>> ofControls;
    const QFont general = QApplication::font();
    for (const char* name :
         {"QMenu",          "QMenuBar",          "QMenuItem",        "QMessageBox", "QLabel",    "QTipLabel",
          "QTitleBar",      "QStatusBar",        "QDockWidgetTitle", "QPushButton", "QCheckBox", "QRadioButton",
          "QToolButton",    "QAbstractItemView", "QListView",        "QHeaderView", "QListBox",  "QComboMenuItem",
          "QComboLineEdit", "QSmallFont",        "QMiniFont"}) {
        const QFont own = QApplication::font(name);
        if (own != general)
            ofControls.append({name, own});
    }
    QApplication::setFont(withoutKerning(font));
    for (const auto& control : qAsConst(ofControls))
        QApplication::setFont(withoutKerning(control.second), control.first);
    fontSet() = QApplication::font();
}

} // namespace

void AppStyle::install()
{
    if (qobject_cast<AppStyle*>(QApplication::style()) != nullptr)
        return;
    QApplication::setStyle(new AppStyle);
    setFont(QApplication::font());
}

void AppStyle::followSystemFont()
{
    if (QApplication::font() == fontSet())
        setFont(QFontDatabase::systemFont(QFontDatabase::GeneralFont));
}

AppStyle::AppStyle()
    : QProxyStyle(QStringLiteral("fusion"))
{
    setObjectName(QStringLiteral("fusion"));
}

QIcon AppStyle::standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const
{
    switch (icon) {
    case SP_ToolBarHorizontalExtensionButton:
        return SchemeIcons::of(QStringLiteral(":/styles/img/arrow-right.png"));
    case SP_ToolBarVerticalExtensionButton:
        return SchemeIcons::of(QStringLiteral(":/styles/img/arrow-down.png"));
    case SP_TitleBarNormalButton:
    case SP_TitleBarCloseButton: {
        // Each dock asks for its own several times, seen or not.
        QIcon& mark = m_titleMarks[icon];
        if (mark.isNull())
            mark = QProxyStyle::standardIcon(icon, option, widget);
        return mark;
    }
    default:
        return QProxyStyle::standardIcon(icon, option, widget);
    }
}
