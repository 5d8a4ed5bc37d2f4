#include "Project.h"

#include "CfgStore.h"
#include "FakeMsgHook.h"
#include "QtPrinters.h"
#include "SourcesConfig.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

using nsModPrj::PrjConfig;
using nsModPrj::Project;

/// A folder with a project file of two sources, one of which does not exist.
class ProjectTest : public ::testing::Test
{
protected:
    ProjectTest()
    {
        CfgStore stored;
        PrjConfig config;
        config.cfgTitle = "Mixer";
        config.wrPrjConfig(&stored);
        stored.setValue("sources/srcFiles", QStringList{"sub/../main.psm", "gone.psm"});
        EXPECT_TRUE(Project::writeFile(&stored, path("mixer.nalvo"), nullptr));
        QFile source(path("main.psm"));
        EXPECT_TRUE(source.open(QIODevice::WriteOnly));
    }

    QString path(const QString& name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
    CfgStore m_tree;
    PrjConfig m_config;
    FakeMsgHook m_msg;
};

TEST_F(ProjectTest, OpensAFileAndForgetsIt)
{
    Project project(&m_tree, &m_config);
    EXPECT_FALSE(project.isOpen());
    EXPECT_EQ(project.convToAbsPath("a.psm"), "a.psm");
    m_tree.setValue("earlier", 1);
    ASSERT_TRUE(project.open(path("mixer.nalvo"), &m_msg));
    EXPECT_EQ(m_msg.texts(), QStringList("Open project: " + path("mixer.nalvo")));
    EXPECT_EQ(m_tree.value("earlier", 0), 0);
    EXPECT_EQ(project.fileName(), "mixer.nalvo");
    EXPECT_EQ(project.convToAbsPath("a.psm"), path("a.psm"));
    EXPECT_EQ(project.convToRelPath(path("a.psm")), "a.psm");
    EXPECT_EQ(m_config.cfgTitle, "Mixer");
    EXPECT_EQ(project.value("PrjInfo/version", QString()), "0.1");
    project.close();
    EXPECT_FALSE(project.isOpen());
    EXPECT_FALSE(m_tree.hasNode("PrjInfo"));
    EXPECT_EQ(project.convToRelPath(path("a.psm")), path("a.psm"));
}

TEST_F(ProjectTest, IsNotOpenAfterAFileThatIsNone)
{
    QFile file(path("bad.nalvo"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("<project><a><b>1</b>");
    file.close();
    Project project(&m_tree, &m_config);
    EXPECT_FALSE(project.open(path("bad.nalvo"), &m_msg));
    EXPECT_FALSE(project.isOpen());
    EXPECT_EQ(m_msg.errors().size(), 1);
    EXPECT_TRUE(m_msg.infos().isEmpty());
    EXPECT_EQ(m_config.cfgTitle, PrjConfig().cfgTitle);
}

TEST_F(ProjectTest, WritesWhatWasSet)
{
    Project project(&m_tree, &m_config);
    ASSERT_TRUE(project.open(path("mixer.nalvo"), &m_msg));
    project.setValue("ModGui/width", 17);
    ASSERT_TRUE(project.write(&m_msg));
    CfgStore read;
    ASSERT_TRUE(Project::readFile(&read, path("mixer.nalvo"), &m_msg));
    EXPECT_EQ(read.value("ModGui/width", 0), 17);
}

TEST_F(ProjectTest, SourcesWithoutAFileAreReportedAndLeftOut)
{
    Project project(&m_tree, &m_config);
    ASSERT_TRUE(project.open(path("mixer.nalvo"), nullptr));
    nsModSources::SourcesConfig sources;
    sources.rdSourcesConfig(&project, &m_msg);
    EXPECT_EQ(sources.srcFiles, QStringList(path("main.psm")));
    EXPECT_EQ(m_msg.errors(), QStringList("File does not exist: " + path("gone.psm")));
    sources.wrSourcesConfig(&project, &m_msg);
    EXPECT_EQ(project.value("sources/srcFiles", QStringList()), QStringList("main.psm"));
    EXPECT_EQ(m_msg.warnings().size(), 1);
    sources.wrSourcesConfig(&project, &m_msg);
    EXPECT_EQ(m_msg.warnings().size(), 1) << "reported once";
}

} // namespace
