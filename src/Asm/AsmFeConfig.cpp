#include "AsmFeConfig.h"

#include "PrjSettings.h"

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
void targetItems(Access& access, const QString& key, Config& config)
{
    access.item(key + "/en", config.en);
    access.item(key + "/writeFileEventBut1", config.writeFileEventBut1);
    access.item(key + "/writeFileEventBut2", config.writeFileEventBut2);
    access.item(key + "/writeFileEventSave", config.writeFileEventSave);
}

template <class Access, class Config>
void hdlItems(Access& access, const QString& key, Config& config)
{
    targetItems(access, key, config);
    access.item(key + "/entityName", config.entityName);
    access.path(key + "/templateFile", config.templateFile);
    access.path(key + "/outputFile", config.outputFile);
}

template <class Access, class Config>
void allItems(Access access, Config& config)
{
    access.item("AsmFe/defaultCharset", config.defaultCharset);
    access.choice("AsmFe/behavior/charset", config.behaviorCharset, AsmFeConfig::charsetSilent);
    access.choice("AsmFe/behavior/equ", config.behaviorEqu, AsmFeConfig::equSilent);
    access.choice("AsmFe/behavior/set", config.behaviorSet, AsmFeConfig::setSilent);
    hdlItems(access, "AsmFe/target/vhdl", config.targetVhdl);
    hdlItems(access, "AsmFe/target/verilog", config.targetVerilog);
    targetItems(access, "AsmFe/target/hex", config.targetHex);
    access.path("AsmFe/target/hex/outputFile", config.targetHex.outputFile);
    targetItems(access, "AsmFe/target/mem", config.targetMem);
    access.path("AsmFe/target/mem/outputFile", config.targetMem.outputFile);
    access.item("AsmFe/target/mem/gapStuffingEn", config.targetMem.gapStuffingEn);
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
