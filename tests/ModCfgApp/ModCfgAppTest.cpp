#include "ModCfgApp.h"
#include "DiesAt.h"
#include "FakeHooks.h"
#include "FullDisk.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryDir>

#include <csignal>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using nsModCfgApp::ModCfgApp;

namespace {

QString str(const char* text)
{
    return QString::fromUtf8(text);
}

class Client : public ModCfgAppPluginIf
{
public:
    explicit Client(QStringList* log, const char* name)
        : m_log(log)
        , m_name(str(name))
    {
    }

    void rdAppCfg() override
    {
        m_log->append(m_name + str(".rd"));
        readBack = modCfgAppHook->value(m_name + str("/key"), str("default"));
    }
    void wrAppCfg() override
    {
        m_log->append(m_name + str(".wr"));
        modCfgAppHook->setValue(m_name + str("/key"), toSave);
    }

    QString readBack;
    QString toSave = str("saved");

private:
    QStringList* m_log;
    QString m_name;
};

class ModCfgAppTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_dir.path());
        msg.registerPlugin(static_cast<ModMsgPluginIfInterMod*>(&cfg));
    }

    QString fileName()
    {
        return m_dir.path() + QLatin1Char('/') + QCoreApplication::organizationName() + QLatin1Char('/') +
               QCoreApplication::applicationName() + str(".ini");
    }
    QByteArray content()
    {
        QFile file(fileName());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
    /// What another run of the program reads.
    void restart(ModCfgApp* next) { next->modInitIntermod(); }

    QTemporaryDir m_dir;
    QStringList log;
    FakeMsgHook msg;
    ModCfgApp cfg;
};

TEST_F(ModCfgAppTest, FirstStartHasDefaultsAndTheExitWritesTheFile)
{
    Client a(&log, "A");
    Client b(&log, "B");
    cfg.registerPlugin(&a);
    cfg.registerPlugin(&b);
    EXPECT_FALSE(QFileInfo::exists(fileName()));
    cfg.modInit();
    cfg.modInitIntermod();
    cfg.modRun();
    EXPECT_EQ(log, QStringList({str("A.rd"), str("B.rd")}));
    EXPECT_EQ(a.readBack, str("default"));
    EXPECT_EQ(cfg.getNode(QStringList())->name(), str("app"));
    EXPECT_FALSE(cfg.getNode(QStringList())->hasChild());
    log.clear();
    EXPECT_TRUE(cfg.modExitRequest());
    cfg.modExitIntermod();
    cfg.modExit();
    EXPECT_EQ(log, QStringList({str("A.wr"), str("B.wr")}));
    EXPECT_EQ(msg.texts(), QStringList(str("Saving application configuation")));
    EXPECT_EQ(msg.infos().size(), 1);
    EXPECT_EQ(content(), QByteArray("[A]\nkey=saved\n\n[B]\nkey=saved\n"));
}

TEST_F(ModCfgAppTest, ValuesSurviveARestart)
{
    ModCfgAppHookIf* hook = &cfg;
    const QFont font(str("DejaVu Sans Mono"), 13, QFont::Bold);
    const QStringList list{str("a:b"), str("c&d"), str("e, f"), str("&#58;")};
    const QString odd = str("@x \"quoted\", a;b=c\\d\n\tä\xF0\x9F\x98\x80 ");
    hook->setValue(str("t/s"), odd);
    hook->setValue(str("t/i"), -5);
    hook->setValue(str("t/l"), list);
    hook->setValue(str("t/c"), QColor(1, 2, 3));
    hook->setValue(str("t/d"), QDate(2016, 9, 1));
    hook->setFont(str("t/f"), font);
    hook->setValue(str("top"), str("1"));
    hook->setValue(str("General/x"), str("2"));
    hook->setValue(str("odd key ä/%1=[x]/sub"), str("3"));
    hook->setValue(str("both"), str("inner"));
    hook->setValue(str("both/leaf"), str("outer"));
    hook->saveAppConfig();
    ModCfgApp next;
    restart(&next);
    hook = &next;
    EXPECT_EQ(hook->value(str("t/s"), QString()), odd);
    EXPECT_EQ(hook->value(str("t/i"), 1), -5);
    EXPECT_EQ(hook->value(str("t/l"), QStringList()), list);
    EXPECT_EQ(hook->value(str("t/c"), QColor()), QColor(1, 2, 3));
    EXPECT_EQ(hook->value(str("t/d"), QDate()), QDate(2016, 9, 1));
    EXPECT_EQ(hook->font(str("t/f"), QFont()), font);
    EXPECT_EQ(hook->value(str("top"), QString()), str("1"));
    EXPECT_EQ(hook->value(str("General/x"), QString()), str("2"));
    EXPECT_EQ(hook->value(str("odd key ä/%1=[x]/sub"), QString()), str("3"));
    EXPECT_EQ(hook->value(str("both"), QString()), str("inner"));
    EXPECT_EQ(hook->value(str("both/leaf"), QString()), str("outer"));
}

TEST_F(ModCfgAppTest, EmptyValuesAreGoneAfterARestart)
{
    cfg.setValue(str("A/empty"), QString());
    cfg.setValue(str("A/list"), QStringList());
    cfg.setValue(str("A/full"), str("x"));
    cfg.saveAppConfig();
    EXPECT_EQ(content(), QByteArray("[A]\nfull=x\n"));
    ModCfgApp next;
    restart(&next);
    EXPECT_EQ(next.value(str("A/empty"), str("default")), str("default"));
    EXPECT_EQ(next.value(str("A/list"), QStringList(str("default"))), QStringList(str("default")));
}

TEST_F(ModCfgAppTest, RemovedKeysLeaveTheFile)
{
    cfg.setValue(str("A/gone"), 1);
    cfg.setValue(str("A/kept"), 2);
    cfg.saveAppConfig();
    cfg.removeNode(str("A/gone"));
    cfg.saveAppConfig();
    EXPECT_EQ(content(), QByteArray("[A]\nkept=2\n"));
    cfg.removeNode(str("A"));
    cfg.saveAppConfig();
    EXPECT_FALSE(content().contains("kept"));
}

TEST_F(ModCfgAppTest, KeysThatNoClientKnowsStay)
{
    ASSERT_TRUE(QDir().mkpath(QFileInfo(fileName()).path()));
    QFile file(fileName());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[Foreign]\nx=1\nlist=a, b,c\n");
    file.close();
    cfg.modInitIntermod();
    EXPECT_EQ(cfg.value(str("Foreign/x"), 0), 1);
    EXPECT_EQ(cfg.value(str("Foreign/list"), QString()), str("a, b, c"));
    cfg.modExitIntermod();
    EXPECT_TRUE(content().contains("x=1"));
}

TEST_F(ModCfgAppTest, SettingsOfTheOrganisationAreNotTaken)
{
    QFile file(m_dir.path() + QLatin1Char('/') + QCoreApplication::organizationName() + str(".ini"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[A]\nkey=1\n");
    file.close();
    cfg.loadAppConfig();
    EXPECT_FALSE(cfg.hasNode(str("A/key")));
}

TEST_F(ModCfgAppTest, IniIsTheDefaultFormatAfterASave)
{
    QSettings::setDefaultFormat(QSettings::NativeFormat);
    cfg.saveAppConfig();
    EXPECT_EQ(QSettings::defaultFormat(), QSettings::IniFormat);
}

TEST_F(ModCfgAppTest, DeepKeysAreSaved)
{
    QStringList path;
    for (int i = 0; i < 20000; ++i)
        path.append(str("k"));
    cfg.addNode(path)->setValue(str("v"));
    cfg.setValue(str("z"), 1);
    cfg.saveAppConfig();
    ModCfgApp next;
    restart(&next);
    ASSERT_NE(next.getNode(path), nullptr);
    EXPECT_EQ(next.getNode(path)->value(), str("v"));
    EXPECT_EQ(next.value(str("z"), 0), 1);
}

TEST_F(ModCfgAppTest, BadFilesAreSurvived)
{
    ASSERT_TRUE(QDir().mkpath(QFileInfo(fileName()).path()));
    const QList<QByteArray> contents{QByteArray(), QByteArray("\0\xff\xfe[[[\n=\n]", 11), QByteArray("[A\nx"),
                                     QByteArray(100000, '['), QByteArray("[A]\nkey=@Variant(\\0\\0\\0\\x1)\n")};
    for (const QByteArray& bytes : contents) {
        QFile file(fileName());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(bytes);
        file.close();
        ModCfgApp other;
        other.loadAppConfig();
        other.setValue(str("B/key"), 7);
        other.saveAppConfig();
        ModCfgApp next;
        next.loadAppConfig();
        EXPECT_EQ(next.value(str("B/key"), 0), 7) << bytes.left(40).toStdString();
    }
}

TEST_F(ModCfgAppTest, UnwritableFoldersAreSurvived)
{
    cfg.setValue(str("A/key"), 1);
    // A file where the folder of the settings has to be.
    QFile file(m_dir.path() + QLatin1Char('/') + QCoreApplication::organizationName());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    cfg.saveAppConfig();
    cfg.loadAppConfig();
    EXPECT_FALSE(QFileInfo::exists(fileName()));
    EXPECT_EQ(cfg.value(str("A/key"), 0), 1);
    ASSERT_TRUE(file.remove());

    cfg.saveAppConfig();
    ASSERT_EQ(chmod(m_dir.path().toLocal8Bit().constData(), 0755), 0);
    ASSERT_EQ(chmod(fileName().toLocal8Bit().constData(), 0644), 0);
    ASSERT_EQ(chmod(QFileInfo(fileName()).path().toLocal8Bit().constData(), 0555), 0);
    EXPECT_EXIT(
        {
            // The rights of folders mean nothing to the superuser, so be somebody else.
            if (geteuid() == 0 && (setgid(65534) != 0 || setuid(65534) != 0))
                _exit(99);
            ModCfgApp other;
            other.loadAppConfig();
            const bool read = other.value(str("A/key"), 0) == 1;
            other.setValue(str("A/key"), 2);
            other.saveAppConfig();
            _exit(read ? 0 : 1);
        },
        ::testing::ExitedWithCode(0), "");
    EXPECT_EQ(content(), QByteArray("[A]\nkey=1\n"));
    ASSERT_EQ(chmod(QFileInfo(fileName()).path().toLocal8Bit().constData(), 0755), 0);
}

TEST_F(ModCfgAppTest, AFullDiskLeavesTheOldSettingsAndIsReported)
{
    cfg.setValue(str("A/key"), str("old"));
    cfg.saveAppConfig();
    for (const int size : {1, 1000, 16383, 16384, 17000, 100000}) {
        msg.reset();
        cfg.setValue(str("A/key"), QString(size, QLatin1Char('x')));
        {
            const FullDisk disk(rlim_t(size) / 2);
            cfg.saveAppConfig();
        }
        EXPECT_EQ(content(), QByteArray("[A]\nkey=old\n")) << size;
        EXPECT_EQ(msg.errors(), QStringList(str("Can not write application configuration: ") + fileName())) << size;
    }
}

TEST_F(ModCfgAppTest, ALinkStaysALink)
{
    cfg.setValue(str("A/key"), 1);
    cfg.saveAppConfig();
    const QString real = m_dir.filePath(str("real.ini"));
    ASSERT_TRUE(QFile::rename(fileName(), real));
    ASSERT_TRUE(QFile::link(real, fileName()));
    cfg.setValue(str("A/key"), 2);
    cfg.saveAppConfig();
    EXPECT_TRUE(QFileInfo(fileName()).isSymLink());
    EXPECT_EQ(content(), QByteArray("[A]\nkey=2\n"));
}

TEST_F(ModCfgAppTest, NoMessageServiceIsNeeded)
{
    ModCfgApp alone;
    alone.setValue(str("A/key"), 1);
    alone.modExitIntermod();
    EXPECT_EQ(content(), QByteArray("[A]\nkey=1\n"));
}

TEST_F(ModCfgAppTest, TheLockOfAKilledProgramDoesNotStopTheNextOne)
{
    ASSERT_TRUE(QDir().mkpath(QFileInfo(fileName()).path()));
    QFile lock(fileName() + str(".lock"));
    ASSERT_TRUE(lock.open(QIODevice::WriteOnly));
    lock.close();
    cfg.setValue(str("A/key"), 1);
    cfg.saveAppConfig();
    EXPECT_EQ(content(), QByteArray("[A]\nkey=1\n"));
}

// --- clients ---

TEST_F(ModCfgAppTest, Clients)
{
    Client a(&log, "A");
    cfg.registerPlugin(&a);
    cfg.registerPlugin(&a);
    EXPECT_EQ(a.modCfgAppHook, &cfg);
    EXPECT_TRUE(log.isEmpty());
    cfg.distributeAppConfigToModules();
    EXPECT_EQ(log, QStringList(str("A.rd")));
    cfg.unregisterPlugin(&a);
    EXPECT_EQ(log, QStringList({str("A.rd"), str("A.wr")}));
    EXPECT_EQ(a.modCfgAppHook, nullptr);
    EXPECT_EQ(cfg.value(str("A/key"), QString()), str("saved"));
    cfg.unregisterPlugin(&a);
    cfg.collectAppConfigFromModules();
    EXPECT_EQ(log.size(), 2);
    cfg.registerPlugin(static_cast<ModCfgAppPluginIf*>(nullptr));
    cfg.unregisterPlugin(static_cast<ModCfgAppPluginIf*>(nullptr));
    cfg.registerPlugin(static_cast<ModCfgAppPluginIfInterMod*>(nullptr));
    cfg.unregisterPlugin(static_cast<ModCfgAppPluginIfInterMod*>(nullptr));
    ModCfgAppPluginIfInterMod interMod;
    cfg.registerPlugin(&interMod);
    EXPECT_EQ(interMod.modCfgAppHook, &cfg);
    cfg.unregisterPlugin(&interMod);
    EXPECT_EQ(interMod.modCfgAppHook, nullptr);
    cfg.modRegisterPlugins({nullptr, &cfg});
}

// --- sudden death ---

/// Saves settings of one number each in a process of its own, which dies before the given step of the save, from 0 on.
/// @return false: it came to its end, as the save has fewer steps
bool saveAndDie(int number, int step)
{
    return diesAt(step, [number] {
        ModCfgApp cfg;
        for (int k = 0; k < 200; ++k)
            cfg.setValue(str("g%1/key").arg(k), QString::number(number).rightJustified(200, QLatin1Char('0')));
        cfg.saveAppConfig();
        return true;
    });
}

TEST_F(ModCfgAppTest, KilledWhileSavingTheFileIsWhole)
{
    ASSERT_FALSE(saveAndDie(1, -1));
    const QByteArray old = content();
    int step = 0;
    for (bool killed = true; killed; ++step) {
        ASSERT_LT(step, 1000);
        killed = saveAndDie(2, step);
        ASSERT_EQ(content() == old, killed) << "step " << step;
    }
    // Create, several parts of 40 kB, sync, attributes, rename.
    EXPECT_GT(step, 5);
    ModCfgApp next;
    next.loadAppConfig();
    for (int k = 0; k < 200; ++k)
        ASSERT_EQ(next.value(str("g%1/key").arg(k), 0), 2) << "key " << k;
}

} // namespace
