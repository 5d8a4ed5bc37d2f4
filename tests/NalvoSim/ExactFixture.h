#pragma once

#include "SimToolFixture.h"

#include <QRegularExpression>

/// What a run of the batch simulator shows, in short.
struct ShownRun
{
    /// The trace on one line: "000@4" an instruction with its address and, where the trace has it, its clock; "R10=A1",
    /// "W20=01", "S05=77", "KA3=5A", "INT" and "RESET" as they stand in the trace.
    QString path;
    /// "warning 3 errScrpdRd": the grade, the line of the source, which is missing where there is none, and the key.
    QStringList messages;
    QJsonObject state; ///< at the end
    int status = -1;

    int reg(const char* name, const char* bank = "A") const
    {
        return state.value("registers").toObject().value(bank).toObject().value(name).toInt(-1);
    }
    int cell(int addr) const { return state.value("scratchpad").toArray().at(addr).toInt(-1); }
    int clocks() const { return state.value("clocks").toInt(-1); }
    int instructions() const { return state.value("instructions").toInt(-1); }
    int address() const { return state.value("pc").toObject().value("address").toInt(-1); }
    int depth() const { return state.value("callStack").toArray().size(); }
    QString bank() const { return state.value("bank").toString(); }
    QString interrupt() const { return state.value("interrupt").toString(); }
    QString end() const { return state.value("end").toObject().value("reason").toString(); }
    QString key() const { return state.value("end").toObject().value("key").toString(); }
    /// "C0 Z1"
    QString flags() const
    {
        const QJsonObject values = state.value("flags").toObject();
        return QString("C%1 Z%2").arg(values.value("carry").toInt(-1)).arg(values.value("zero").toInt(-1));
    }
};

/// Runs programs of a few lines in both modes: as the simulation is stated, with the warnings where the core does
/// otherwise, and exactly as the core, with clocks.
class ExactToolTest : public SimToolTest
{
protected:
    explicit ExactToolTest(const char* processor)
        : m_processor(processor)
    {
    }

    /// Writes the project. The first line of the source has the number 1.
    /// @param settings keys of the processor with their values
    void program(const QStringList& lines, const QHash<QString, QString>& settings = {}) const
    {
        const QHash<QString, QString> sections = {
            {"Xilinx PicoBlaze 3", "XPBlze3"}, {"Xilinx PicoBlaze 6", "XPBlze6"}, {"Lattice Mico8 v3.x", "LMico8v3x"}};
        AsmProject project;
        project.processor = m_processor;
        for (auto it = settings.cbegin(); it != settings.cend(); ++it)
            project.settings[sections.value(m_processor) + '/' + it.key()] = it.value();
        writeProject(project);
        write("a.psm", (lines.join('\n') + '\n').toLatin1());
    }
    /// As the core does.
    ShownRun exact(const QString& arguments = QString()) const { return shown("--exact --trace-clocks " + arguments); }
    /// As the simulation is stated.
    ShownRun stated(const QString& arguments = QString()) const { return shown("-v " + arguments); }
    /// @param arguments with spaces between them
    ShownRun shown(const QString& arguments) const
    {
        ShownRun run;
        const AsmToolResult result =
            this->run(QString("--trace t --dump d %1 p.nalvo").arg(arguments).simplified().split(' '));
        run.status = result.status;
        run.messages = messagesOf(result);
        run.path = pathOf(read("t"));
        run.state = QJsonDocument::fromJson(read("d")).object();
        EXPECT_FALSE(run.state.isEmpty()) << result.err.constData();
        return run;
    }

private:
    static QStringList messagesOf(const AsmToolResult& result)
    {
        static const QRegularExpression form("^(?:a\\.psm:(\\d+): )?(warning|error): .*? ?(?:\\[(\\w+)\\])?$");
        QStringList messages;
        for (const QString& line : result.errLines()) {
            const QRegularExpressionMatch match = form.match(line);
            // What the assembler has to say is no affair of the simulation.
            static const QStringList ofAssembler = {"warnMissingInstrAtIntVectorAddr", "warnSetOverwriteGuiSettings"};
            if (ofAssembler.contains(match.captured(3)))
                continue;
            if (match.hasMatch())
                messages
                    << QStringList({match.captured(2), match.captured(1), match.captured(3)}).join(' ').simplified();
            else
                EXPECT_TRUE(line.startsWith("nalvo-sim: ")) << line.toStdString();
        }
        return messages;
    }
    static QString pathOf(const QByteArray& trace)
    {
        QStringList events;
        for (const QString& line : QString::fromLatin1(trace).split('\n', Qt::SkipEmptyParts)) {
            const QStringList fields = line.split(' ');
            if (fields.size() == 4)
                events << fields.at(1) + '@' + fields.at(3);
            else if (fields.size() == 3)
                events << (fields.at(0) == "I" ? fields.at(1) : fields.at(0) + fields.at(1) + '=' + fields.at(2));
            else
                events << line;
        }
        return events.join(' ');
    }

    const char* m_processor;
};
