#pragma once

#include "AsmToolFixture.h"
#include "CoreRun.h"

#include <QStandardPaths>

/// Proves projects in a temporary folder, with the models of the tests as the cores.
class ProveToolTest : public AsmToolTest
{
protected:
    static QString processorOf(Core core)
    {
        static const char* const names[] = {"Xilinx PicoBlaze 3", "Xilinx PicoBlaze 6", "Lattice Mico8 v3.x"};
        return names[int(core)];
    }

    /// Writes p.nalvo and a.psm.
    /// @param settings of the processor
    void writeProgram(Core core, const QByteArray& source, const QMap<QString, QString>& settings = {}) const
    {
        static const char* const sections[] = {"XPBlze3", "XPBlze6", "LMico8v3x"};
        AsmProject project;
        project.processor = processorOf(core);
        for (auto it = settings.cbegin(); it != settings.cend(); ++it)
            project.settings[QString(sections[int(core)]) + '/' + it.key()] = it.value();
        writeProject(project);
        write("a.psm", source);
    }

    AsmToolResult prove(Core core, Language language, const QStringList& options) const
    {
        return run(QStringList{"--core", HdlCore::sourceOf(core, language)} + options + QStringList("p.nalvo"));
    }

    /// The source of a model, with a text in it that is changed.
    static QByteArray changed(Core core, Language language, const QByteArray& from, const QByteArray& to)
    {
        QFile file(HdlCore::sourceOf(core, language));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        QByteArray source = file.readAll();
        EXPECT_TRUE(from.isEmpty() || source.count(from) == 1) << from.constData();
        return from.isEmpty() ? source : source.replace(from, to);
    }

    /// The setup of a run that finds only some tools.
    /// @param tools that are there
    AsmToolSetup withTools(const QStringList& tools) const
    {
        AsmToolSetup only = setup();
        mkdir("bin");
        for (const QString& tool : tools)
            QFile::link(QStandardPaths::findExecutable(tool), path("bin/" + tool));
        only.env.insert("PATH", path("bin"));
        return only;
    }
};

inline std::string nameOfLanguage(const testing::TestParamInfo<Language>& param)
{
    return nameOf(param.param);
}

#define SKIP_WITHOUT(language)                                                                                         \
    do {                                                                                                               \
        if (!HdlCore::isToolThere(language))                                                                           \
            GTEST_SKIP() << qPrintable(HdlCore::toolOf(language)) << " is not installed";                              \
    } while (false)
