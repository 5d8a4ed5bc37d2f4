// The assembler's settings of a project: keys, defaults, paths; and what the moment of a run is.

#include "AsmFixture.h"

#include "AsmFeFileHndlr.h"

#include <gtest/gtest.h>

#include <QDateTime>

using namespace nsModAsmFe;

namespace {

/// Every key with its default.
const QHash<QString, QVariant> defaults = {
    {"AsmFe/defaultCharset", "UTF-8"},
    {"AsmFe/behavior/charset", 1},
    {"AsmFe/behavior/equ", 1},
    {"AsmFe/behavior/set", 1},
    {"AsmFe/target/vhdl/en", 0},
    {"AsmFe/target/vhdl/writeFileEventBut1", 1},
    {"AsmFe/target/vhdl/writeFileEventBut2", 1},
    {"AsmFe/target/vhdl/writeFileEventSave", 0},
    {"AsmFe/target/vhdl/entityName", ""},
    {"AsmFe/target/vhdl/templateFile", ""},
    {"AsmFe/target/vhdl/outputFile", ""},
    {"AsmFe/target/verilog/en", 0},
    {"AsmFe/target/verilog/writeFileEventBut1", 1},
    {"AsmFe/target/verilog/writeFileEventBut2", 1},
    {"AsmFe/target/verilog/writeFileEventSave", 0},
    {"AsmFe/target/verilog/entityName", ""},
    {"AsmFe/target/verilog/templateFile", ""},
    {"AsmFe/target/verilog/outputFile", ""},
    {"AsmFe/target/hex/en", 0},
    {"AsmFe/target/hex/writeFileEventBut1", 1},
    {"AsmFe/target/hex/writeFileEventBut2", 1},
    {"AsmFe/target/hex/writeFileEventSave", 0},
    {"AsmFe/target/hex/outputFile", ""},
    {"AsmFe/target/mem/en", 0},
    {"AsmFe/target/mem/writeFileEventBut1", 1},
    {"AsmFe/target/mem/writeFileEventBut2", 1},
    {"AsmFe/target/mem/writeFileEventSave", 0},
    {"AsmFe/target/mem/outputFile", ""},
    {"AsmFe/target/mem/gapStuffingEn", 1},
};

/// "key = value", sorted.
QStringList asTexts(const QHash<QString, QVariant>& values)
{
    QStringList texts;
    for (auto it = values.cbegin(); it != values.cend(); ++it)
        texts.append(it.key() + " = " + it.value().toString());
    texts.sort();
    return texts;
}

TEST(ProjectKeys, anEmptyProjectGetsTheDefaults)
{
    AsmFixture f;
    f.open();
    f.prj.savePrjCfg();
    EXPECT_EQ(asTexts(f.prj.tree.values), asTexts(defaults));
    EXPECT_EQ(f.asmFe.asmBehaviorChkIntVector(), 1);
    EXPECT_TRUE(f.asmFe.setOverwriteBehaviorWarning());
    EXPECT_FALSE(f.asmFe.setOverwriteBehaviorError());
}

TEST(ProjectKeys, everyKeySurvivesOpeningAndSaving)
{
    AsmFixture f;
    QHash<QString, QVariant> values;
    for (auto it = defaults.cbegin(); it != defaults.cend(); ++it) {
        if (it.key().endsWith("File"))
            values.insert(it.key(), "sub/" + it.key().section('/', 2, 2) + it.key().section('/', 3) + ".x");
        else if (it.key().endsWith("Name"))
            values.insert(it.key(), "name_" + it.key().section('/', 2, 2));
        else if (it.key().endsWith("Charset"))
            values.insert(it.key(), "ISO-8859-1");
        else
            values.insert(it.key(), it.key().contains("behavior") ? 2 : 1 - it.value().toInt());
    }
    f.prj.tree.values = values;
    f.open();
    // In memory the paths are absolute.
    EXPECT_EQ(f.asmFe.targets[kindVhdl].templateFile, f.path("sub/vhdltemplateFile.x"));
    EXPECT_EQ(f.asmFe.targets[kindMem].outputFile, f.path("sub/memoutputFile.x"));
    EXPECT_EQ(f.asmFe.targets[kindVerilog].entityName, QString("name_verilog"));
    EXPECT_TRUE(f.asmFe.targets[kindHex].en);
    EXPECT_FALSE(f.asmFe.targets[kindMem].gapStuffingEn);
    EXPECT_EQ(f.asmFe.behaviorEqu, 2);
    f.prj.tree.values.clear();
    f.prj.savePrjCfg();
    EXPECT_EQ(asTexts(f.prj.tree.values), asTexts(values));
}

TEST(ProjectKeys, anImageHasKeysOnlyWhereItIsUsed)
{
    AsmFixture f;
    f.open();
    f.prj.savePrjCfg();
    EXPECT_EQ(asTexts(f.prj.tree.values), asTexts(defaults));
    f.asmFe.targets[kindMif].outputFile = f.path("sub/out.mif");
    f.asmFe.targets[kindIntelHex].layout = layoutWords;
    f.asmFe.targets[kindRamMem].wordWidth = 9;
    f.asmFe.targets[kindBinary].en = true;
    // No output of the project, but of a device of a source, which is not to be written then.
    f.asmFe.targets[kindCoe].writeFileEventBut1 = false;
    f.prj.savePrjCfg();
    QHash<QString, QVariant> expected = defaults;
    for (const char* kind : {"mif", "coe", "binary", "ihex", "ram"}) {
        const QString key = QString("Outputs/%1/").arg(kind);
        expected.insert(key + "en", int(qstrcmp(kind, "binary") == 0));
        expected.insert(key + "writeFileEventBut1", int(qstrcmp(kind, "coe") != 0));
        expected.insert(key + "writeFileEventBut2", 1);
        expected.insert(key + "writeFileEventSave", 0);
        expected.insert(key + "outputFile", qstrcmp(kind, "mif") == 0 ? "sub/out.mif" : "");
        expected.insert(key + "wordWidth", qstrcmp(kind, "ram") == 0 ? 9 : 18);
    }
    expected.insert("Outputs/binary/layout", 0);
    expected.insert("Outputs/ihex/layout", 2);
    expected.insert("Outputs/ram/layout", 0);
    EXPECT_EQ(asTexts(f.prj.tree.values), asTexts(expected));
    // What was stored once stays, and follows what the user does.
    f.prj.close();
    f.prj.tree = f.prj.saved;
    f.open();
    EXPECT_EQ(f.asmFe.targets[kindMif].outputFile, f.path("sub/out.mif"));
    EXPECT_EQ(f.asmFe.targets[kindIntelHex].layout, int(layoutWords));
    EXPECT_EQ(f.asmFe.targets[kindRamMem].wordWidth, 9);
    EXPECT_FALSE(f.asmFe.targets[kindCoe].writeFileEventBut1);
    f.asmFe.targets[kindBinary].en = false;
    f.prj.savePrjCfg();
    expected["Outputs/binary/en"] = 0;
    EXPECT_EQ(asTexts(f.prj.tree.values), asTexts(expected));
}

TEST(ProjectKeys, pathsOutsideOfTheProject)
{
    AsmFixture f;
    f.prj.tree.set("AsmFe/target/hex/outputFile", QString("/somewhere/else.hex"));
    f.prj.tree.set("AsmFe/target/mem/outputFile", QString("../up.mem"));
    f.open();
    EXPECT_EQ(f.asmFe.targets[kindHex].outputFile, QString("/somewhere/else.hex"));
    f.prj.savePrjCfg();
    EXPECT_EQ(QDir::cleanPath(f.path(f.prj.tree.get("AsmFe/target/hex/outputFile", QString()))),
              QString("/somewhere/else.hex"));
    EXPECT_EQ(f.prj.tree.get("AsmFe/target/mem/outputFile", QString()), QString("../up.mem"));
}

TEST(ProjectKeys, aProjectDoesNotInheritFromTheOneBefore)
{
    AsmFixture f;
    f.prj.tree.set("AsmFe/behavior/set", 0);
    f.prj.tree.set("AsmFe/target/hex/en", 1);
    f.prj.tree.set("AsmFe/target/hex/outputFile", QString("a.hex"));
    f.open();
    EXPECT_TRUE(f.asmFe.setOverwriteBehaviorError());
    f.asmFe.behaviorChkIntVector = AsmFeConfig::intVectorSilent;
    f.prj.close();
    f.open();
    EXPECT_FALSE(f.asmFe.setOverwriteBehaviorError());
    EXPECT_FALSE(f.asmFe.targets[kindHex].en);
    EXPECT_TRUE(f.asmFe.targets[kindHex].outputFile.isEmpty());
    // This one belongs to the program and not to the project.
    EXPECT_EQ(f.asmFe.asmBehaviorChkIntVector(), 2);
    for (const QString& key : f.prj.saved.values.keys())
        EXPECT_FALSE(key.contains("vector", Qt::CaseInsensitive)) << key.toStdString();
}

TEST(ProjectKeys, defaultCharset)
{
    AsmFixture f;
    f.prj.tree.set("AsmFe/defaultCharset", QString("ISO-8859-1"));
    f.open();
    EXPECT_EQ(f.msg.keys(ModMsgHookIf::eMsgInfo), QStringList("infoStrSetDefaultCharset"));
    EXPECT_EQ(f.msg.infos(), QStringList("Setting default charset to: ISO-8859-1"));
    f.prj.close();
    f.msg.reset();
    f.prj.tree.set("AsmFe/defaultCharset", QString("no such charset"));
    f.open();
    EXPECT_EQ(f.msg.errors(), QStringList("Can not get default text codec from charset: no such charset"));
    EXPECT_FALSE(f.run(" LOAD s0, 1\n"));
    EXPECT_EQ(f.errors(), QStringList("errStrNoDefaultCodec"));
    EXPECT_EQ(f.callsStartingWith("close"), QStringList({"close failed", "close failed"}));
    EXPECT_TRUE(f.msg.messages(ModMsgHookIf::eMsgError).first().srcFile.isEmpty());
}

TEST(ProjectKeys, closingForgetsTheProgram)
{
    AsmFixture f;
    EXPECT_TRUE(f.run("#EQU x, 1\nhere: LOAD s0, x\n"));
    EXPECT_EQ(f.asmFe.fileHndlr()->fileCount(), 1);
    f.prj.close();
    EXPECT_FALSE(f.asmFe.isAssembled());
    EXPECT_FALSE(f.asmFe.runSucceeded());
    EXPECT_EQ(f.asmFe.opcodeList()->first(), nullptr);
    EXPECT_EQ(f.asmFe.equList()->first(), nullptr);
    EXPECT_EQ(f.asmFe.labelList()->first(), nullptr);
    EXPECT_EQ(f.asmFe.ioDevList()->first(), nullptr);
    EXPECT_EQ(f.asmFe.fileHndlr()->fileCount(), 0);
    EXPECT_TRUE(f.asmFe.defines().isEmpty());
    EXPECT_TRUE(f.navi.tags.isEmpty());
}

TEST(ProjectKeys, linksAreRelativeToTheProject)
{
    AsmFixture f;
    f.run(" NONSENSE\n");
    ASSERT_EQ(f.msg.messages(ModMsgHookIf::eMsgError).size(), 1);
    EXPECT_EQ(f.msg.messages(ModMsgHookIf::eMsgError).first().srcFile.displayName(), QString("src0.psm#1"));
}

/// The texts that a template gets about the project.
class MetaTagsTest : public ::testing::Test
{
protected:
    ~MetaTagsTest() override { qunsetenv("SOURCE_DATE_EPOCH"); }

    QByteArray filled(const QByteArray& line)
    {
        f.open();
        f.be.pageSize = 16;
        f.asmFe.targets[kindVhdl].en = true;
        f.asmFe.targets[kindVhdl].entityName = "rom";
        f.asmFe.targets[kindVhdl].templateFile = f.write("t.vhd", "{begin template}\n{INIT_00}\n" + line + "\n");
        f.asmFe.targets[kindVhdl].outputFile = f.path("out.vhd");
        EXPECT_TRUE(f.run(" LOAD s0, 1\n", ModAsmFe::eEventButton1)) << f.msg.dump().toStdString();
        return f.read("out.vhd").split('\n').value(1);
    }

    AsmFixture f;
};

TEST_F(MetaTagsTest, reproducibleMoment)
{
    qputenv("SOURCE_DATE_EPOCH", "86461");
    EXPECT_EQ(filled("[{TIMESTAMP}]"), QByteArray("[1970-01-02 00:01:01 ]"));
    qputenv("SOURCE_DATE_EPOCH", "1700000000");
    EXPECT_EQ(filled("[{timestamp}]"), QByteArray("[2023-11-14 22:13:20 ]"));
}

TEST_F(MetaTagsTest, momentDoesNotDependOnTheTimeZone)
{
    const QByteArray zone = qgetenv("TZ");
    qputenv("TZ", "Asia/Tokyo");
    tzset();
    qputenv("SOURCE_DATE_EPOCH", "0");
    EXPECT_EQ(filled("[{TIMESTAMP}]"), QByteArray("[1970-01-01 00:00:00 ]"));
    zone.isNull() ? qunsetenv("TZ") : qputenv("TZ", zone);
    tzset();
}

TEST_F(MetaTagsTest, presentMoment)
{
    for (const char* epoch : {"", "yesterday"}) {
        qputenv("SOURCE_DATE_EPOCH", epoch);
        const QByteArray line = filled("[{TIMESTAMP}]");
        const QDateTime stamp = QDateTime::fromString(QString::fromLatin1(line), "'['yyyy-MM-dd hh:mm:ss ']'");
        ASSERT_TRUE(stamp.isValid()) << line.constData();
        EXPECT_LT(qAbs(stamp.secsTo(QDateTime::currentDateTime())), 120);
    }
}

TEST_F(MetaTagsTest, project)
{
    f.prj.title = "A title";
    f.prj.version = "1.2";
    f.prj.comment = "{TIMESTAMP} is not looked at again";
    EXPECT_EQ(filled("{PROJECTTITLE}"), QByteArray("A title"));
    EXPECT_EQ(filled("{PROJECTVERSION}"), QByteArray("1.2"));
    EXPECT_EQ(filled("{PROJECTCOMMENT}"), QByteArray("{TIMESTAMP} is not looked at again"));
    EXPECT_EQ(filled("{PROJECTPATH}"), QFileInfo(f.path("x")).absolutePath().toLatin1());
    EXPECT_EQ(filled("{PROJECTFILENAME}"), QByteArray("test.nalvo"));
    EXPECT_EQ(filled("{PSMNAME} {NAME}"), QByteArray("{PSMNAME} rom"));
}

} // namespace
