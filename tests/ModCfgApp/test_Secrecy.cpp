// The settings hold the password of the proxy: at no time can anyone but their owner read them.

#include "ModCfgApp.h"
#include "QtPrinters.h"
#include "SafeFile.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryDir>

#include <sys/stat.h>
#include <unistd.h>

using nsModCfgApp::ModCfgApp;

namespace {

const char* const secret = "s3cret-word";

class Secrecy : public ::testing::Test
{
protected:
    Secrecy()
        : m_oldMask(::umask(022))
    {
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_dir.path());
        QDir().mkpath(QFileInfo(fileName()).path());
    }
    ~Secrecy() override
    {
        SafeFile::setWatch({});
        ::umask(m_oldMask);
    }
    QString fileName() const
    {
        return m_dir.path() + '/' + QCoreApplication::organizationName() + '/' + QCoreApplication::applicationName() +
               ".ini";
    }
    static int modeOf(const QString& path)
    {
        struct stat status = {};
        return ::stat(QFile::encodeName(path).constData(), &status) == 0 ? int(status.st_mode & 07777) : -1;
    }
    static QByteArray content(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void writeFile(const QString& path, const QByteArray& text, mode_t mode)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        file.close();
        ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), mode), 0);
    }
    /// Saves the password, and looks at each step at all files that hold it, and at those that are about to.
    void saveWatched()
    {
        int steps = 0;
        SafeFile::setWatch([this, &steps](SafeFile::eStep_t step) {
            ++steps;
            expectSecret(step);
            return 0;
        });
        ModCfgApp cfg;
        cfg.setValue(QStringLiteral("ModNetwork/proxyUserPassword"), QString(secret));
        cfg.saveAppConfig();
        SafeFile::setWatch({});
        expectSecret(-1);
        EXPECT_GT(steps, 3);
        EXPECT_TRUE(content(fileName()).contains(secret));
        EXPECT_EQ(modeOf(fileName()), 0600);
    }

    QTemporaryDir m_dir;

private:
    void expectSecret(int step) const
    {
        for (const QString& top : {m_dir.path(), QString::fromLocal8Bit(qgetenv("XDG_DATA_HOME"))}) {
            QDirIterator it(top, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
            while (it.hasNext()) {
                const QString path = it.next();
                if (content(path).contains(secret) || QFileInfo(path).fileName().startsWith(".nalvo-")) {
                    EXPECT_EQ(modeOf(path) & 077, 0) << qPrintable(path) << " before step " << step;
                }
            }
        }
    }

    mode_t m_oldMask;
};

TEST_F(Secrecy, aNewFile)
{
    saveWatched();
}

TEST_F(Secrecy, aFileThatOthersCouldRead)
{
    for (const mode_t mode : {0644, 0666, 0600, 0640, 0755}) {
        writeFile(fileName(), "[A]\nkey=1\n", mode);
        saveWatched();
    }
}

TEST_F(Secrecy, aLinkStaysALinkToAFileOfTheOwner)
{
    const QString real = m_dir.filePath("real.ini");
    writeFile(real, "[A]\nkey=1\n", 0644);
    ASSERT_TRUE(QFile::link(real, fileName()));
    saveWatched();
    EXPECT_TRUE(QFileInfo(fileName()).isSymLink());
    EXPECT_EQ(modeOf(real), 0600);
    // One that leads nowhere yet.
    ASSERT_TRUE(QFile::remove(real));
    saveWatched();
    EXPECT_TRUE(QFileInfo(fileName()).isSymLink());
    EXPECT_EQ(modeOf(real), 0600);
}

TEST_F(Secrecy, aFileWithTwoNames)
{
    const QString other = m_dir.filePath("other.ini");
    writeFile(other, QByteArray("[ModNetwork]\nproxyUserPassword=old ") + "\n", 0644);
    ASSERT_EQ(::link(QFile::encodeName(other).constData(), QFile::encodeName(fileName()).constData()), 0);
    saveWatched();
    EXPECT_EQ(content(other), content(fileName())) << "it has lost its second name";
    // The copy of the old text that is made first holds the password now.
    saveWatched();
}

TEST_F(Secrecy, otherFilesKeepTheirRights)
{
    const QString path = m_dir.filePath("source.psm");
    ASSERT_TRUE(SafeFile::replace(path, "a", nullptr));
    EXPECT_EQ(modeOf(path), 0644);
    writeFile(path, "b", 0664);
    ASSERT_TRUE(SafeFile::replace(path, "c", nullptr));
    EXPECT_EQ(modeOf(path), 0664);
}

} // namespace
