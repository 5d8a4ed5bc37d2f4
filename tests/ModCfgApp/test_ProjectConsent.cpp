#include "FakeCfgAppHook.h"
#include "ProjectConsent.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace {

class ProjectConsentTest : public ::testing::Test
{
protected:
    ProjectConsentTest()
    {
        touch("a.nalvo");
        touch("b.nalvo");
    }
    void touch(const QString& name) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    }
    QString path(const QString& name) const { return QDir(m_dir.path()).canonicalPath() + '/' + name; }
    ProjectConsent consent(const QString& name = "a.nalvo") { return ProjectConsent(&m_settings, path(name)); }

    QTemporaryDir m_dir;
    FakeCfgAppHook m_settings;
};

const ProjectConsent::eKind_t program = ProjectConsent::kindProgram;

TEST_F(ProjectConsentTest, nothingIsAnsweredAtFirst)
{
    EXPECT_EQ(consent().answer(program, {"make"}), ProjectConsent::answerNone);
}

TEST_F(ProjectConsentTest, bothAnswersAreKept)
{
    consent().setAnswer(program, {"make", "all"}, true);
    consent().setAnswer(program, {"rm"}, false);
    EXPECT_EQ(consent().answer(program, {"make", "all"}), ProjectConsent::answerYes);
    EXPECT_EQ(consent().answer(program, {"rm"}), ProjectConsent::answerNo);
    consent().setAnswer(program, {"rm"}, true);
    EXPECT_EQ(consent().answer(program, {"rm"}), ProjectConsent::answerYes);
}

TEST_F(ProjectConsentTest, anyChangeOfTheActAsksAgain)
{
    consent().setAnswer(program, {"make", "all"}, true);
    for (const QStringList& act : {QStringList{"make"}, QStringList{"make", "al", "l"}, QStringList{"make", "all", ""},
                                   QStringList{"makeall"}, QStringList{"makeal", "l"}, QStringList{"Make", "all"},
                                   QStringList{"make all"}, QStringList{"all", "make"}, QStringList{}})
        EXPECT_EQ(consent().answer(program, act), ProjectConsent::answerNone) << act.join('|').toStdString();
}

TEST_F(ProjectConsentTest, theAnswerBelongsToOneKind)
{
    consent().setAnswer(program, {"/x"}, true);
    EXPECT_EQ(consent().answer(ProjectConsent::kindOutput, {"/x"}), ProjectConsent::answerNone);
}

TEST_F(ProjectConsentTest, theAnswerBelongsToOneProjectFile)
{
    consent().setAnswer(program, {"make"}, true);
    EXPECT_EQ(consent("b.nalvo").answer(program, {"make"}), ProjectConsent::answerNone);
    ASSERT_TRUE(QFile::rename(path("a.nalvo"), path("c.nalvo")));
    EXPECT_EQ(consent("c.nalvo").answer(program, {"make"}), ProjectConsent::answerNone);
}

TEST_F(ProjectConsentTest, aLinkIsTheSameProject)
{
    consent().setAnswer(program, {"make"}, true);
    QFile::link(path("a.nalvo"), path("link.nalvo"));
    EXPECT_EQ(consent("link.nalvo").answer(program, {"make"}), ProjectConsent::answerYes);
}

TEST_F(ProjectConsentTest, withoutSettingsNothingIsKept)
{
    ProjectConsent nothing(nullptr, path("a.nalvo"));
    nothing.setAnswer(program, {"make"}, true);
    EXPECT_EQ(nothing.answer(program, {"make"}), ProjectConsent::answerNone);
}

TEST_F(ProjectConsentTest, anUnknownWordInTheSettingsIsNoAnswer)
{
    consent().setAnswer(program, {"make"}, true);
    for (const QString& key : m_settings.tree.values.keys())
        m_settings.tree.set(key, QString("perhaps"));
    EXPECT_EQ(consent().answer(program, {"make"}), ProjectConsent::answerNone);
}

} // namespace
