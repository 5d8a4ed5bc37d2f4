// The settings page of the external programs.

#include "MyPathEdit.h"
#include "PageFixture.h"
#include "QtPrinters.h"
#include "SyscallConfigPage.h"
#include "SyscallProgramSelect.h"

#include <QTemporaryDir>

using namespace nsModSyscall;

namespace {

class SyscallPage : public PageFixture
{
protected:
    SyscallPage() { page.setPrjConfigEnabled(true); }
    ~SyscallPage() override { area.takeWidget(); }

    template <class Field>
    Field* named(const QString& name)
    {
        Field* found = page.findChild<Field*>(name);
        EXPECT_NE(found, nullptr) << qPrintable(name);
        return found;
    }
    SyscallConfig config() const
    {
        SyscallConfig result;
        page.config(&result);
        return result;
    }

    SyscallConfigPage page;
};

} // namespace

TEST_F(SyscallPage, namesItself)
{
    EXPECT_EQ(page.pageTitle(), "Ext progs");
    EXPECT_EQ(page.pageHelpRef(), "pageId://configPageSyscall");
    EXPECT_FALSE(page.pageIcon().isNull());
    EXPECT_FALSE(page.pageIcon().availableSizes().isEmpty());
    const QStringList texts = labels(&page);
    for (const char* text :
         {"External programs", "External program 1", "External program 2", "External program 3",
          "Enable:", "Comment:", "Store path relative to project:", "Program path:", "Program arguments:",
          "Blocking mode:", "Abort at exit without success:", "Success return value:", "Program execute events",
          "Events:", "Execute program 1:", "Execute program 3:", "<center>Button 1<br/>and<br/>assembling</center>",
          "<center>Button 2<br/>and<br/>assembling</center>", "<center>After saving<br/>and<br/>assembling</center>"})
        EXPECT_TRUE(texts.contains(text)) << text;
    EXPECT_EQ(texts.count("Program path:"), 3);
}

TEST_F(SyscallPage, givesBackWhatItWasGiven)
{
    SyscallConfig config;
    for (int i = 0; i < programCount; ++i) {
        SyscallRecord& program = config.programs[i];
        program.en = i != 0;
        program.execEventBut1 = i == 0;
        program.execEventBut2 = i == 1;
        program.execEventSave = i == 2;
        program.blockingModeEn = i == 1;
        program.abortIfNoSuccess = i == 2;
        program.storeRelToPrj = i == 1;
        program.retValOfSuccess = i == 0 ? -2147483647 - 1 : 2147483647 - i;
        program.exe = i == 0 ? "sh" : QString("/a/../b/c%1").arg(i);
        program.arg = "x  \"y\" ";
        program.comment = QString("<b>c%1</b>").arg(i);
    }
    page.setConfig(config, "/a");
    const SyscallConfig back = this->config();
    for (int i = 0; i < programCount; ++i) {
        SCOPED_TRACE(i);
        const SyscallRecord& expected = config.programs[i];
        const SyscallRecord& actual = back.programs[i];
        EXPECT_EQ(actual.en, expected.en);
        EXPECT_EQ(actual.execEventBut1, expected.execEventBut1);
        EXPECT_EQ(actual.execEventBut2, expected.execEventBut2);
        EXPECT_EQ(actual.execEventSave, expected.execEventSave);
        EXPECT_EQ(actual.blockingModeEn, expected.blockingModeEn);
        EXPECT_EQ(actual.abortIfNoSuccess, expected.abortIfNoSuccess);
        EXPECT_EQ(actual.storeRelToPrj, expected.storeRelToPrj);
        EXPECT_EQ(actual.retValOfSuccess, expected.retValOfSuccess);
        EXPECT_EQ(actual.exe, expected.exe);
        EXPECT_EQ(actual.arg, expected.arg);
        EXPECT_EQ(actual.comment, expected.comment);
    }
    page.setDefaultConfig();
    EXPECT_TRUE(this->config().programs[0].en);
    EXPECT_FALSE(this->config().programs[1].en);
    EXPECT_EQ(this->config().programs[1].exe, QString());
    EXPECT_EQ(this->config().programs[0].retValOfSuccess, 0);
}

TEST_F(SyscallPage, aTypedPathIsRelativeToTheProjectOrAName)
{
    page.setConfig(SyscallConfig(), "/prj");
    show(&page);
    auto* select = named<SyscallProgramSelect>("syscallExe0");
    type(select->pathEdit(), "tools/run.sh");
    EXPECT_EQ(config().programs[0].exe, "/prj/tools/run.sh");
    named<QCheckBox>("syscallStoreRelToPrj0")->click();
    EXPECT_EQ(select->pathEdit()->text(), "/prj/tools/run.sh") << "the same path, not relative any more";
    type(select->pathEdit(), "sh");
    EXPECT_EQ(config().programs[0].exe, "sh");
    EXPECT_EQ(select->pathEdit()->problem(), QString()) << "it is found in the search path";
    type(select->pathEdit(), "no-such-program-anywhere");
    EXPECT_NE(select->pathEdit()->problem(), QString());
}

TEST_F(SyscallPage, aFileThatIsNotExecutableIsMarked)
{
    QTemporaryDir dir;
    QFile file(dir.filePath("data"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    page.setConfig(SyscallConfig(), dir.path());
    auto* edit = named<SyscallProgramSelect>("syscallExe0")->pathEdit();
    edit->setText("data");
    EXPECT_EQ(edit->problem(), "The file is not executable.");
    file.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    edit->setText("");
    edit->setText("data");
    EXPECT_EQ(edit->problem(), QString());
}

TEST_F(SyscallPage, whatHasNoEffectIsDisabled)
{
    page.setConfig(SyscallConfig(), "/prj");
    EXPECT_TRUE(named<QLineEdit>("syscallArg0")->isEnabled());
    EXPECT_FALSE(named<QLineEdit>("syscallArg1")->isEnabled());
    EXPECT_FALSE(named<QCheckBox>("syscallEvent10")->isEnabled());
    named<QCheckBox>("syscallEn1")->click();
    EXPECT_TRUE(named<QLineEdit>("syscallArg1")->isEnabled());
    EXPECT_TRUE(named<QCheckBox>("syscallEvent10")->isEnabled());
    named<QCheckBox>("syscallBlockingModeEn1")->click();
    EXPECT_FALSE(named<QCheckBox>("syscallAbortIfNoSuccess1")->isEnabled());
    EXPECT_FALSE(named<QSpinBox>("syscallRetValOfSuccess1")->isEnabled());
    page.setPrjConfigEnabled(false);
    EXPECT_FALSE(named<QLineEdit>("syscallArg0")->isEnabled());
    EXPECT_FALSE(page.pageIsEnabled());
}

TEST_F(SyscallPage, looksRight)
{
    SyscallConfig config;
    config.programs[0].exe = "/prj/check.sh";
    config.programs[0].arg = "output/rom.vhd";
    config.programs[0].comment = "Checks the memory";
    config.programs[0].execEventBut1 = true;
    page.setConfig(config, "/prj");
    pages.resize(720, 1240);
    show(&page);
    expectToolTips(&page);
    screenshot("page-ext-progs");
    page.setPrjConfigEnabled(false);
    screenshot("page-ext-progs-disabled");
}
