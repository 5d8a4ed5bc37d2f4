#pragma once

#include "CfgItems.h"

#include <QBrush>
#include <QColor>
#include <QFont>
#include <QTextCharFormat>

/// What the formats of text have in common in the settings.
struct CfgTextFormat
{
    static constexpr int maxWeight = 99; ///< of a font

    /// A weight of 0 is stored as the weight of a normal font.
    static int storedWeight(const QTextCharFormat& format)
    {
        return format.fontWeight() == 0 ? int(QFont::Normal) : format.fontWeight();
    }

    static QString weightKey(const QString& key) { return key + QLatin1String("/weight"); }
    static QString italicKey(const QString& key) { return key + QLatin1String("/italic"); }
    static QString colorKey(const QString& key) { return key + QLatin1String("/color"); }
};

/// CfgReader with colours, fonts and formats of text.
template <class Settings>
class CfgLookReader : public CfgReader<Settings>
{
public:
    using CfgReader<Settings>::CfgReader;
    using CfgReader<Settings>::item;

    /// A text that names no colour leaves the field unchanged.
    void item(const QString& key, QColor& field)
    {
        const QColor color = this->m_settings->value(key, field);
        if (color.isValid())
            field = color;
    }
    void item(const QString& key, QFont& field) { field = this->m_settings->font(key, field); }
    void item(const QString& key, QTextCharFormat& field)
    {
        int weight = CfgTextFormat::storedWeight(field);
        this->choice(CfgTextFormat::weightKey(key), weight, CfgTextFormat::maxWeight);
        field.setFontWeight(weight == QFont::Normal ? 0 : weight);
        bool italic = field.fontItalic();
        item(CfgTextFormat::italicKey(key), italic);
        field.setFontItalic(italic);
        const QColor color = this->m_settings->value(CfgTextFormat::colorKey(key), field.foreground().color());
        if (color.isValid())
            field.setForeground(color);
    }
};

/// Puts fields into settings; the counterpart of CfgLookReader.
template <class Settings>
class CfgLookWriter : public CfgWriter<Settings>
{
public:
    using CfgWriter<Settings>::CfgWriter;
    using CfgWriter<Settings>::item;

    void item(const QString& key, const QColor& field) { this->m_settings->setValue(key, field); }
    void item(const QString& key, const QFont& field) { this->m_settings->setFont(key, field); }
    void item(const QString& key, const QTextCharFormat& field)
    {
        item(CfgTextFormat::weightKey(key), CfgTextFormat::storedWeight(field), 0, CfgTextFormat::maxWeight);
        item(CfgTextFormat::italicKey(key), field.fontItalic());
        item(CfgTextFormat::colorKey(key), field.foreground().color());
    }
};
