// The names of the wires in the waves that a run leaves.

#include "SimToolFixture.h"

namespace {

class SimToolWaves : public SimToolTest
{
protected:
    /// The wires of the waves of a run.
    QStringList wires(const QByteArray& source)
    {
        writeProgram(source);
        write("reads", "A5\n03\n04\n");
        QStringList names;
        for (const QByteArray& line : run({"-q", "--reads", "reads", "--vcd", "-", "p.nalvo"}).out.split('\n')) {
            if (line.startsWith("$var"))
                names.append(QString::fromLatin1(line).section(' ', 4, 4));
        }
        return names;
    }
};

TEST_F(SimToolWaves, AWireHasTheNameOfTheConstantThatAddressesItsPort)
{
    EXPECT_EQ(wires("#EQU KEYS, 0x10\n"
                    "#EQU LEDS, 0x20\n"
                    "#NAMESPACE uart\n"
                    "#EQU DATA, 0x21\n"
                    "start: RDPRT s0, ::KEYS\n"
                    "       WRPRT s0, ::LEDS\n"
                    "       WRPRT s0, DATA\n"
                    "       RDPRT s0, 0x20\n"
                    "#ENDNAMESPACE\n"
                    "       WRPRT s0, LEDS + 2\n"
                    "       LOAD  s1, KEYS\n"
                    "       WRPRT s0, (s1)\n"
                    "       RDPRT s0, KEYS\n")
                  .join(' ')
                  .toStdString(),
              "port_10_rd_KEYS port_20_wr_LEDS port_21_wr_uart__DATA port_20_rd port_22_wr port_10_wr");
}

} // namespace
