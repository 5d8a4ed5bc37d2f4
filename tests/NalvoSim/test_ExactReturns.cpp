// Returns where nothing was called, or with the other return, exactly as the cores.

#include "ReturnPrograms.h"
#include "SimToolFixture.h"

namespace {

class SimToolExactReturns : public SimToolTest
{
};

} // namespace

TEST_F(SimToolExactReturns, GoWhereTheCoresGo)
{
    for (const ReturnProgram& program : returnPrograms()) {
        static const char* const names[] = {"Xilinx PicoBlaze 3", "Xilinx PicoBlaze 6", "Lattice Mico8 v3.x"};
        writeProgram(program.source, names[program.processor]);
        const AsmToolResult result =
            run({"-q", "--exact", "-n", QString::number(program.instructions), "--trace", "-", "p.nalvo"});
        EXPECT_EQ(result.status, 0) << program.name << result.err.constData();
        QStringList flow;
        for (const QByteArray& line : result.out.split('\n')) {
            if (line.startsWith("I ") || line == "RESET")
                flow.append(line.startsWith("I ") ? line.mid(2, 3) : line);
        }
        EXPECT_EQ(flow.mid(flow.size() - program.end.size()), program.end)
            << program.name << ' ' << flow.join(' ').toStdString();
    }
}

TEST_F(SimToolExactReturns, AReturnFromAnInterruptBehindACallHasTheFlagsAtTheCall)
{
    // The comparison in the subroutine clears C; the one in front of the call has set it.
    for (const ReturnProgram& program : returnPrograms()) {
        if (program.processor != ReturnProgram::mico8 || QByteArray(program.name) != "RETI behind a call")
            continue;
        writeProgram(program.source, "Lattice Mico8 v3.x");
        for (const auto& [count, carry] : {std::pair<const char*, int>{"3", 0}, {"4", 1}}) {
            const QJsonObject state = dump({"-q", "--exact", "-n", count, "p.nalvo"});
            EXPECT_EQ(state.value("flags").toObject().value("carry").toInt(), carry) << count;
        }
        return;
    }
    FAIL() << "no such program";
}
