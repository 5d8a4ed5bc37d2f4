#pragma once

#include <QString>
#include <QStringList>
#include <QtGlobal>

// A class with settings lists its fields with their keys once, in a template over the direction. So no key can be
// forgotten on one side:
//
//     template <class Items, class Config>
//     void allItems(Items items, Config& config)
//     {
//         items.item("Mixer/title", config.title);
//         items.item("Mixer/channels", config.channels, 1, maxChannels);
//     }
//
//     allItems(CfgReader<PrjSettings>(prj), *this);
//     allItems(CfgWriter<PrjSettings>(prj), *this);

/// Takes fields out of settings. A key that does not exist leaves its field as it is.
template <class Settings>
class CfgReader
{
public:
    /// @param settings not owned
    explicit CfgReader(Settings* settings)
        : m_settings(settings)
    {
    }

    void item(const QString& key, QString& field) { field = m_settings->value(key, field); }
    void item(const QString& key, QStringList& field) { field = m_settings->value(key, field); }
    void item(const QString& key, bool& field) { field = m_settings->value(key, int(field)) != 0; }
    /// A number outside of the range becomes the nearest one inside.
    void item(const QString& key, int& field, int first, int last)
    {
        field = qBound(first, m_settings->value(key, field), last);
    }
    /// One of the values from 0 to last: any other value leaves the field unchanged.
    void choice(const QString& key, int& field, int last)
    {
        const int value = m_settings->value(key, field);
        if (value >= 0 && value <= last)
            field = value;
    }
    /// A path that is stored relative to the project and held as an absolute one. Without the key it becomes empty.
    void path(const QString& key, QString& field)
    {
        const QString stored = m_settings->value(key, QString());
        // An empty path stays empty: made absolute, it would name the project's folder.
        field = stored.isEmpty() ? stored : m_settings->convToAbsPath(stored);
    }

protected:
    Settings* m_settings;
};

/// Puts fields into settings; the counterpart of CfgReader.
template <class Settings>
class CfgWriter
{
public:
    /// @param settings not owned
    explicit CfgWriter(Settings* settings)
        : m_settings(settings)
    {
    }

    void item(const QString& key, const QString& field) { m_settings->setValue(key, field); }
    void item(const QString& key, const QStringList& field) { m_settings->setValue(key, field); }
    void item(const QString& key, bool field) { m_settings->setValue(key, int(field)); }
    void item(const QString& key, int field, int, int) { m_settings->setValue(key, field); }
    void choice(const QString& key, int field, int) { m_settings->setValue(key, field); }
    void path(const QString& key, const QString& field)
    {
        m_settings->setValue(key, field.isEmpty() ? field : m_settings->convToRelPath(field));
    }

protected:
    Settings* m_settings;
};
