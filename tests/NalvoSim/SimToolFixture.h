#pragma once

#include "AsmToolFixture.h"

#include <QJsonArray>
#include <QJsonDocument>

/// Starts the batch simulator on projects in a temporary folder.
class SimToolTest : public AsmToolTest
{
protected:
    /// Writes p.nalvo and a.psm.
    void writeProgram(const QByteArray& source, const QString& processor = "Xilinx PicoBlaze 3") const
    {
        AsmProject project;
        project.processor = processor;
        writeProject(project);
        write("a.psm", source);
    }

    /// Counts the reads of port 0x10 in s1 and echoes them at port 0x20, with an interrupt that counts in s2.
    static QByteArray echoSource()
    {
        return "start:\n"                   // address, line 1
               "        INT     ENABLE\n"   // 000     2
               "loop:\n"                    //         3
               "        RDPRT   s0, 0x10\n" // 001     4
               "        ADD     s1, 1\n"    // 002     5
               "        WRPRT   s0, 0x20\n" // 003     6
               "        JUMP    loop\n"     // 004     7
               "isr:\n"                     //         8
               "        ADD     s2, 1\n"    // 005     9
               "        RETI    ENABLE\n"   // 006    10
               "#ORG    ADDR, 0x3FF\n"      //        11
               "        JUMP    isr\n";     // 3FF    12
    }

    /// A program that never reads, three instructions long.
    static QByteArray loopSource()
    {
        return "start:\n"
               "        LOAD    s0, 1\n"
               "#NAMESPACE inner\n"
               "turn:\n"
               "        ADD     s0, 1\n"
               "        JUMP    turn\n"
               "#ENDNAMESPACE\n"
               "#ORG    ADDR, 0x3FF\n"
               "        RETI    ENABLE\n";
    }

    /// The final state of a run. The run must end with the status.
    QJsonObject dump(const QStringList& arguments, int status = 0) const
    {
        const AsmToolResult result = run(QStringList{"--dump", "-"} + arguments);
        EXPECT_EQ(result.status, status) << result.err.constData();
        QJsonParseError error;
        const QJsonDocument document = QJsonDocument::fromJson(result.out, &error);
        EXPECT_EQ(error.error, QJsonParseError::NoError) << result.out.constData();
        return document.object();
    }

    static int reg(const QJsonObject& state, const char* name, const char* bank = "A")
    {
        return state.value("registers").toObject().value(bank).toObject().value(name).toInt(-1);
    }
    static QString reason(const QJsonObject& state) { return state.value("end").toObject().value("reason").toString(); }
    static QString key(const QJsonObject& state) { return state.value("end").toObject().value("key").toString(); }
};
