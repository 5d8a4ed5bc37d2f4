#include "AsmFeConfig.h"

#include "PrjSettings.h"
#include "TargetKinds.h"

namespace nsModAsmFe {

namespace {

// Reading and writing use one list of fields, so that no key can be forgotten on one side.

struct Reader
{
    PrjSettings* prj;

    void item(const QString& key, QString& field) { field = prj->value(key, field); }
    /// One of several values: any other value leaves the field unchanged.
    void choice(const QString& key, int& field, int last)
    {
        const int value = prj->value(key, field);
        if (value >= 0 && value <= last)
            field = value;
    }
    void item(const QString& key, bool& field) { field = prj->value(key, int(field)) != 0; }
    void path(const QString& key, QString& field)
    {
        const QString stored = prj->value(key, QString());
        // An empty path stays empty: made absolute, it would name the project's folder.
        field = stored.isEmpty() ? stored : prj->convToAbsPath(stored);
    }
};

struct Writer
{
    PrjSettings* prj;

    void item(const QString& key, const QString& field) { prj->setValue(key, field); }
    void choice(const QString& key, int field, int) { prj->setValue(key, field); }
    void item(const QString& key, bool field) { prj->setValue(key, int(field)); }
    void path(const QString& key, const QString& field)
    {
        prj->setValue(key, field.isEmpty() ? field : prj->convToRelPath(field));
    }
};

template <class Access, class Config>
void targetItems(Access& access, const sTargetKind_t& kind, Config& config)
{
    const QString key = QLatin1String("AsmFe/target/") + QLatin1String(kind.key);
    access.item(key + "/en", config.en);
    access.item(key + "/writeFileEventBut1", config.writeFileEventBut1);
    access.item(key + "/writeFileEventBut2", config.writeFileEventBut2);
    access.item(key + "/writeFileEventSave", config.writeFileEventSave);
    if (kind.hasTemplate) {
        access.item(key + "/entityName", config.entityName);
        access.path(key + "/templateFile", config.templateFile);
    }
    access.path(key + "/outputFile", config.outputFile);
    if (kind.hasGapStuffing)
        access.item(key + "/gapStuffingEn", config.gapStuffingEn);
}

template <class Access, class Config>
void allItems(Access access, Config& config)
{
    access.item("AsmFe/defaultCharset", config.defaultCharset);
    access.choice("AsmFe/behavior/charset", config.behaviorCharset, AsmFeConfig::charsetSilent);
    access.choice("AsmFe/behavior/equ", config.behaviorEqu, AsmFeConfig::equSilent);
    access.choice("AsmFe/behavior/set", config.behaviorSet, AsmFeConfig::setSilent);
    for (const sTargetKind_t& kind : targetKinds())
        targetItems(access, kind, config.targets[kind.kind]);
}

} // namespace

void AsmFeConfig::rdAsmFeConfig(PrjSettings* prj)
{
    allItems(Reader{prj}, *this);
}

void AsmFeConfig::wrAsmFeConfig(PrjSettings* prj) const
{
    allItems(Writer{prj}, *this);
}

} // namespace nsModAsmFe
