#pragma once

#include "AsmToolFixture.h"

#include <QDateTime>
#include <QFile>
#include <QStandardPaths>

/// A build system that calls the assembler. How often it did so is written down, so that no test looks at times: files
/// are made older or newer than the build instead.
class AsmBuildTest : public AsmToolTest
{
protected:
    /// Calls a tool of the system in a folder, in which a program "nalvo-asm" that counts its runs is found.
    AsmToolResult call(const QString& tool, const QStringList& arguments = {}, const QString& folder = QString()) const
    {
        if (!exists("bin/nalvo-asm")) {
            write("bin/nalvo-asm", "#!/bin/sh\necho run >>\"$RUNS\"\nexec \"$A\" \"$@\"\n");
            QFile::setPermissions(path("bin/nalvo-asm"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
            setAge("bin/nalvo-asm", -1000);
        }
        AsmToolSetup with = setup();
        with.program = QStandardPaths::findExecutable(tool);
        EXPECT_FALSE(with.program.isEmpty()) << tool.toStdString() << " is not installed";
        with.folder = path(folder);
        with.env.insert("A", NALVO_ASM);
        with.env.insert("RUNS", path("runs"));
        with.env.insert("PATH", path("bin") + ':' + qEnvironmentVariable("PATH"));
        // Who runs the tests by make hands down its options.
        with.env.remove("MAKEFLAGS");
        return run(arguments, with);
    }

    /// How often the assembler was called.
    int runs() const { return exists("runs") ? read("runs").count('\n') : 0; }

    /// Gives a file a time, in seconds from now.
    void setAge(const QString& name, int seconds) const
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
        ASSERT_TRUE(file.setFileTime(QDateTime::currentDateTime().addSecs(seconds), QFileDevice::FileModificationTime))
            << file.errorString().toStdString();
    }

    /// Builds, then touches each input in turn: exactly that makes the tool call the assembler again.
    template <class Build>
    void expectRebuilt(Build build, const QStringList& inputs) const
    {
        for (const QString& input : inputs)
            setAge(input, -1000);
        const AsmToolResult first = build();
        ASSERT_EQ(first.status, 0) << first.out.constData() << first.err.constData();
        ASSERT_EQ(runs(), 1);
        ASSERT_EQ(build().status, 0);
        ASSERT_EQ(runs(), 1) << "nothing was touched";
        int expected = 1;
        for (const QString& input : inputs) {
            setAge(input, 1000);
            const AsmToolResult again = build();
            ASSERT_EQ(again.status, 0) << input.toStdString() << again.out.constData() << again.err.constData();
            // A file of the future is newer than what was just made of it: two targets that need it make it twice.
            ASSERT_GT(runs(), expected) << input.toStdString();
            expected = runs();
            setAge(input, -1000);
        }
        ASSERT_EQ(build().status, 0);
        ASSERT_EQ(runs(), expected) << "all inputs are old again";
    }
};
