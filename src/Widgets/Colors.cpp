#include "Colors.h"

#include <QBrush>
#include <QFile>

#include <cmath>
#include <iterator>

namespace {

const char* const sheetPath = ":/styles/styles/stylesheet.css";

double linear(double channel)
{
    const double least = 0.03928;
    return channel <= least ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

/// @return roleCount for a name that is none
ColorTable::eRole_t roleOf(const QStringRef& name)
{
    for (const ColorTable::sRow_t& row : ColorTable::rows) {
        if (name == QLatin1String(row.name))
            return row.role;
    }
    return ColorTable::roleCount;
}

QTextCharFormat withColor(QTextCharFormat format, const QColor& color)
{
    format.setForeground(color);
    return format;
}

} // namespace

Colors* Colors::instance()
{
    static auto* const colors = new Colors;
    return colors;
}

void Colors::setScheme(eScheme_t scheme)
{
    if (scheme == instance()->m_scheme)
        return;
    instance()->m_scheme = scheme;
    emit instance()->changed();
}

QColor Colors::of(eRole_t role, eScheme_t scheme)
{
    return QColor(QRgb(scheme == eDark ? rows[role].dark : rows[role].light));
}

QColor Colors::shown(eRole_t role, const QColor& stored)
{
    return stored == of(role, eLight) ? of(role) : stored;
}

QTextCharFormat Colors::shown(eRole_t role, const QTextCharFormat& stored)
{
    return withColor(stored, shown(role, stored.foreground().color()));
}

QColor Colors::stored(eRole_t role, const QColor& shown)
{
    return shown == of(role, eDark) ? of(role, eLight) : shown;
}

QTextCharFormat Colors::stored(eRole_t role, const QTextCharFormat& shown)
{
    return withColor(shown, stored(role, shown.foreground().color()));
}

QColor Colors::onPaper(const QColor& shown)
{
    if (scheme() == eLight)
        return shown;
    for (int role = firstFormat; role <= lastFormat; ++role) {
        if (shown == of(eRole_t(role)))
            return of(eRole_t(role), eLight);
    }
    return shown;
}

QString Colors::filled(QString text)
{
    const auto isLetter = [](QChar c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); };
    QString result;
    result.reserve(text.size());
    int done = 0;
    for (int at = text.indexOf('@'); at >= 0; at = text.indexOf('@', at + 1)) {
        int end = at + 1;
        while (end < text.size() && isLetter(text.at(end)))
            ++end;
        const eRole_t role = roleOf(text.midRef(at + 1, end - at - 1));
        if (role == roleCount)
            continue;
        result += text.midRef(done, at - done);
        result += of(role).name();
        done = end;
    }
    result += text.midRef(done);
    if (scheme() == eDark)
        result.replace(QLatin1String("url(:/"), QLatin1String("url(:/dark/"));
    return result;
}

QString Colors::styleSheet()
{
    QFile file(QString::fromLatin1(sheetPath));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    return filled(QString::fromUtf8(file.readAll()));
}

QString Colors::picture(const QString& path)
{
    const QString dark = QStringLiteral(":/dark") + path.mid(1);
    return scheme() == eDark && path.startsWith(QLatin1String(":/")) && QFile::exists(dark) ? dark : path;
}

QPalette Colors::palette()
{
    const struct
    {
        QPalette::ColorRole role;
        eRole_t color;
        eRole_t disabled;
    } entries[] = {
        {QPalette::Window, eGround, eGround},
        {QPalette::WindowText, eText, eTextDisabled},
        {QPalette::Base, ePage, eGround},
        {QPalette::AlternateBase, ePageAlternate, eGroundAlternate},
        {QPalette::Text, eText, eTextDisabled},
        {QPalette::Button, eGround, eGround},
        {QPalette::ButtonText, eText, eTextDisabled},
        {QPalette::BrightText, eErrorText, eErrorText},
        {QPalette::Highlight, eAccentFill, eDisabledFill},
        {QPalette::HighlightedText, eOnAccent, eOnAccent},
        {QPalette::Link, eAccent, eTextDisabled},
        {QPalette::LinkVisited, eLinkVisited, eTextDisabled},
        {QPalette::ToolTipBase, ePage, ePage},
        {QPalette::ToolTipText, eText, eText},
        {QPalette::PlaceholderText, eTextSecond, eTextDisabled},
        {QPalette::Light, ePage, ePage},
        {QPalette::Midlight, eHover, eHover},
        {QPalette::Mid, eQuietBorder, eQuietBorder},
        {QPalette::Dark, eControlBorder, eControlBorder},
        {QPalette::Shadow, eControlBorder, eControlBorder},
    };
    QPalette result;
    for (const auto& entry : entries) {
        result.setColor(QPalette::Active, entry.role, of(entry.color));
        result.setColor(QPalette::Inactive, entry.role, of(entry.color));
        result.setColor(QPalette::Disabled, entry.role, of(entry.disabled));
    }
    return result;
}

double Colors::contrast(const QColor& one, const QColor& other)
{
    const double offset = 0.05;
    const double first = luminance(one) + offset;
    const double second = luminance(other) + offset;
    return first > second ? first / second : second / first;
}
