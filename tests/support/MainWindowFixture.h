#pragma once

#include "ModPluginIf.h"
#include "Nalvo.h"
#include "Readable.h"
#include "Settle.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeWidget>

#include <memory>

/// The whole main window with folders of its own for settings and data, for tests of modules in their real
/// surroundings.
///
/// The window is made by makeWindow(), so that a test can lay out settings and files before. CMakeLists.txt of such a
/// test:
///   nalvo_test(NAME test_Xxx MODULES NalvoApp ${NALVO_MODULES} LIBS NalvoAppResources)
class MainWindowFixture : public ::testing::Test
{
protected:
    MainWindowFixture()
    {
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settingsDir());
        qputenv("XDG_DATA_HOME", folder.filePath(QStringLiteral("data")).toLocal8Bit());
        // As in the program; for pictures at other scales (QT_SCALE_FACTOR).
        QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    }
    ~MainWindowFixture() override { window.reset(); }

    /// Makes and shows the window; one that exists is deleted without a close.
    void makeWindow()
    {
        static char name[] = "nalvo";
        char* arguments[] = {name, nullptr};
        window.reset();
        window = std::make_unique<Nalvo>(1, arguments);
        if (!keepsFirstHelpPage)
            closeHelpPages();
    }
    /// The first page of the help has tests of its own; in all others the window begins without it.
    void closeHelpPages() const
    {
        for (QObject* child : window->children()) {
            if (child->inherits("nsModHlp::ModHlp"))
                QMetaObject::invokeMethod(child, "closeAllFiles");
        }
    }
    /// Closes the window as its user does: the exit phases run.
    bool closeWindow() { return window->close(); }

    /// The module of the class, or a module that serves the hook; null if there is none.
    template <class Type>
    Type* module() const
    {
        for (ModPluginIf* candidate : window->modules()) {
            if (Type* found = dynamic_cast<Type*>(candidate))
                return found;
        }
        return nullptr;
    }

    QString settingsDir() const { return folder.path() + QStringLiteral("/settings"); }
    QString settingsFile() const { return settingsDir() + QStringLiteral("/Brelmont/Nalvo.ini"); }
    /// Writes one key into the settings that the next window reads.
    void writeSetting(const QString& key, const QString& value) const
    {
        QSettings(settingsFile(), QSettings::IniFormat).setValue(key, value);
    }
    QString readSetting(const QString& key) const
    {
        return QSettings(settingsFile(), QSettings::IniFormat).value(key).toString();
    }

    /// Folder for the project of the test.
    QString projectDir() const
    {
        QDir().mkpath(folder.path() + QStringLiteral("/project"));
        return folder.path() + QStringLiteral("/project");
    }
    /// Writes a file into the folder of the project. @return its path
    QString writeFile(const QString& name, const QByteArray& content) const
    {
        const QString path = projectDir() + QLatin1Char('/') + name;
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            ADD_FAILURE() << "can not write " << qPrintable(path);
        return path;
    }

    QTreeWidget* messageView() const { return window->findChild<QTreeWidget*>(QStringLiteral("msgViewer")); }
    /// Texts of all messages and groups in the message view, from top to bottom.
    QStringList messageTexts() const
    {
        QStringList result;
        for (QTreeWidgetItemIterator it(messageView()); *it != nullptr; ++it)
            result.append((*it)->text(0));
        return result;
    }

    /// Lets the window settle, checks that all its texts can be read, and writes its picture into the folder of
    /// screenshots of the build.
    /// @return path of the picture
    QString screenshot(const QString& name) const
    {
        settleAnimations();
        return screenshot(name, window.get());
    }
    /// The same for another widget, as it is.
    static QString screenshot(const QString& name, QWidget* widget)
    {
        const QString dir = QStringLiteral(NALVO_BINARY_DIR "/screenshots");
        QDir().mkpath(dir);
        const QString path = dir + QLatin1Char('/') + name + QStringLiteral(".png");
        if (!expectReadable(widget).save(path))
            ADD_FAILURE() << "can not write " << qPrintable(path);
        return path;
    }

    QTemporaryDir folder;
    bool keepsFirstHelpPage = false;
    std::unique_ptr<Nalvo> window;
};
