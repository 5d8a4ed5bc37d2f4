// The build compiles each header alone; these tests see that it leaves none out.

#include "CompileCommands.h"
#include "SourceTree.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QSet>

using namespace nsHouse;

TEST(Headers, eachIsCompiledAlone)
{
    const CompileCommands commands;
    QSet<QString> compiled;
    for (const QString& source : commands.sources()) {
        if (!source.section('/', -2, -2).endsWith("_Headers"))
            continue;
        EXPECT_FALSE(commands.command(source).contains("cmake_pch")) << qPrintable(source);
        QFile file(source);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(source);
        compiled.insert(QString::fromUtf8(file.readAll()));
    }
    QStringList missing;
    for (const QString& header : SourceTree(NALVO_SOURCE_DIR).files("src", {"*.h"})) {
        if (!compiled.contains("#include \"" NALVO_SOURCE_DIR "/" + header + "\"\n"))
            missing.append(header);
    }
    EXPECT_EQ(missing.join('\n').toStdString(), "");
}

TEST(Headers, oneThatNeedsAnotherDoesNotCompile)
{
    const CompileCommands commands;
    for (const QString& source : commands.sources()) {
        if (!source.endsWith("/NalvoBase_Headers/SafeFile.cpp"))
            continue;
        EXPECT_EQ(compilerOutput(commands.options(source), "#include <QString>\nQString f();\n").toStdString(), "");
        EXPECT_TRUE(compilerOutput(commands.options(source), "QString f();\n").contains("does not name a type"));
        return;
    }
    FAIL() << "The build does not compile the headers of NalvoBase";
}
