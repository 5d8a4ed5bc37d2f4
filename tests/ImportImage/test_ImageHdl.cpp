#include "ImageText.h"
#include "QtPrinters.h"

#include <gtest/gtest.h>

#include <functional>

using namespace nsImport;

namespace {

using Words = QVector<quint32>;

/// 256 bits as digits: each of the fields has so many bits, the first one the lowest.
QByteArray block(int bits, const std::function<quint32(int)>& field)
{
    QByteArray digits;
    quint32 digit = 0;
    for (int bit = 0; bit < 256; ++bit) {
        digit |= (field(bit / bits) >> (bit % bits) & 1) << (bit % 4);
        if (bit % 4 == 3) {
            digits.prepend(QByteArray::number(digit, 16).toUpper());
            digit = 0;
        }
    }
    return digits;
}

QByteArray name(const char* kind, int index)
{
    return kind + QByteArray::number(index, 16).toUpper().rightJustified(2, '0');
}

/// The generics of a memory that holds 16 + 2 bits of words.
QByteArray whole(const Words& words, const QByteArray& form)
{
    QByteArray text;
    for (int i = 0; i * 16 < words.size(); ++i)
        text +=
            QByteArray(form).replace("NAME", name("INIT_", i)).replace("VALUE", block(16, [&](int field) {
                                                                           return words.value(i * 16 + field) & 0xffff;
                                                                       }));
    for (int i = 0; i * 128 < words.size(); ++i)
        text +=
            QByteArray(form).replace("NAME", name("INITP_", i)).replace("VALUE", block(2, [&](int field) {
                                                                            return words.value(i * 128 + field) >> 16;
                                                                        }));
    return text;
}

/// The generics of a memory that holds 8 + 1 bits of words.
QByteArray half(const Words& words, int shift, const QByteArray& form)
{
    QByteArray text;
    for (int i = 0; i * 32 < words.size(); ++i)
        text +=
            QByteArray(form).replace("NAME", name("INIT_", i)).replace("VALUE", block(8, [&](int field) {
                                                                           return words.value(i * 32 + field) >> shift &
                                                                                  0xff;
                                                                       }));
    for (int i = 0; i * 256 < words.size(); ++i)
        text += QByteArray(form).replace("NAME", name("INITP_", i)).replace("VALUE", block(1, [&](int field) {
                                                                                return words.value(i * 256 + field) >>
                                                                                           (shift + 8) &
                                                                                       1;
                                                                            }));
    return text;
}

const QByteArray vhdlForm = "      NAME => X\"VALUE\",\n";
const QByteArray verilogForm = "      .NAME (256'hVALUE),\n";

QByteArray vhdlInstance(const QByteArray& label, const QByteArray& component, const QByteArray& generics,
                        const QByteArray& ports = "data")
{
    return "  " + label + " : " + component + "\n    generic map (\n" + generics +
           "      SRVAL => X\"0\")\n    port map (dout => " + ports + ");\n";
}

QByteArray vhdl(const QByteArray& instances)
{
    return "library ieee;\nentity rom is\nend entity;\narchitecture rtl of rom is\nbegin\n" + instances +
           "end architecture;\n";
}

/// Words that differ in every bit.
Words words(int count, quint32 seed = 1)
{
    Words list;
    for (int i = 0; i < count; ++i) {
        seed = seed * 1103515245u + 12345u;
        list.append(seed >> 10 & 0x3ffff);
    }
    return list;
}

QString textOf(const Words& words)
{
    return imageText(imageOf(words));
}

} // namespace

TEST(ImageHdl, oneMemoryOfWholeWords)
{
    const Words program = words(1024);
    const QByteArray text = vhdl(vhdlInstance("ram", "RAM_S18", whole(program, vhdlForm)));
    EXPECT_EQ(readText(text), textOf(program));
    EXPECT_EQ(ImageReader::format(text), imageHdl);
    EXPECT_EQ(ImageReader().read(text, "f").image.place(16).line, 9);
    // By hand: the lowest word stands last, and two bits of each of 128 words make a parity string.
    const QByteArray zeros(60, '0');
    EXPECT_EQ(readText("module m;\nram #(\n.INIT_00(256'h" + zeros + "4001),\n.INITP_00(256'h" + QByteArray(63, '0') +
                       "3)) r (.d(q));\nendmodule\n")
                  .left(16),
              "000: 34001 00000");
}

TEST(ImageHdl, verilogWithParametersOrDefparam)
{
    const Words program = words(128);
    EXPECT_EQ(
        readText("module rom;\n ram #(\n" + whole(program, verilogForm) + " .SRVAL(18'h0)) r (.q(data));\nendmodule\n"),
        textOf(program));
    // The same twice, as values for the simulation and as attributes for the synthesis.
    const QByteArray both = "module rom;\nRAM_S18 r (.DO(data[15:0]));\n" +
                            whole(program, "defparam r.NAME = 256'hVALUE;\n") +
                            whole(program, "// synthesis attribute NAME of r is \"VALUE\"\n") + "endmodule\n";
    EXPECT_EQ(readText(both), textOf(program));
    QByteArray other = both;
    const int digit = other.lastIndexOf('"') - 1;
    other[digit] = other.at(digit) == '0' ? '1' : '0';
    EXPECT_TRUE(readText(other).contains("INITP_00 of r has another value in line ")) << qPrintable(readText(other));
}

TEST(ImageHdl, attributesOfVhdl)
{
    const Words program = words(1024);
    const QByteArray declared = "attribute INIT_00 : string;\n";
    const QByteArray text = vhdl(declared + whole(program, "attribute NAME of ram_1024_x_18 : label is \"VALUE\";\n") +
                                 vhdlInstance("ram_1024_x_18", "RAMB", whole(program, vhdlForm)));
    EXPECT_EQ(readText(text), textOf(program));
}

TEST(ImageHdl, commentsAreNoContents)
{
    const Words program = words(16);
    QByteArray text = vhdl(vhdlInstance("ram", "RAM_S18", whole(program, vhdlForm)));
    text.insert(text.indexOf("      INIT_00"), "-- INIT_00 => X\"" + QByteArray(64, 'F') + "\",\n");
    EXPECT_EQ(readText(text), textOf(program));
    QByteArray verilog =
        "module rom;\n ram #(\n" + whole(program, verilogForm) + " .SRVAL(1)) r (.q(data));\nendmodule\n";
    verilog.insert(verilog.indexOf("      .INIT_00"), "/* .INIT_00 (256'h1),\n */ // .INIT_00 (256'h2)\n");
    EXPECT_EQ(readText(verilog), textOf(program));
}

TEST(ImageHdl, halvesAreToldByPortsNamesAndWidths)
{
    const Words program = words(2048);
    const QByteArray low = half(program, 0, vhdlForm);
    const QByteArray high = half(program, 9, vhdlForm);
    EXPECT_EQ(readText(vhdl(vhdlInstance("a", "ram_2kx9", low, "data(8 downto 0)") +
                            vhdlInstance("b", "ram_2kx9", high, "data(17 downto 9)"))),
              textOf(program));
    EXPECT_EQ(readText(vhdl(vhdlInstance("a", "ram", high, "data(17 downto 9)") +
                            vhdlInstance("b", "ram", low, "data(8 downto 0)"))),
              textOf(program));
    EXPECT_EQ(readText(vhdl(vhdlInstance("rom_h", "RAM", "READ_WIDTH_A => 9,\n" + high) +
                            vhdlInstance("rom_l", "RAM", "READ_WIDTH_A => 9,\n" + low))),
              textOf(program));
    EXPECT_EQ(readText("module m;\nram #(\n" + half(program, 0, verilogForm) + ".X(0)) r0 (.q(data[8:0]));\nram #(\n" +
                       half(program, 9, verilogForm) + ".X(0)) r1 (.q(data[17:9]));\nendmodule\n"),
              textOf(program));
}

TEST(ImageHdl, quartersOfALargerMemory)
{
    const Words program = words(4096);
    QByteArray text;
    for (const char* name : {"rom_ll", "rom_lh", "rom_hl", "rom_hh"}) {
        const Words part = program.mid(name[4] == 'h' ? 2048 : 0, 2048);
        text += vhdlInstance(name, "RAM", "DATA_WIDTH_A => 9,\n" + half(part, name[5] == 'h' ? 9 : 0, vhdlForm));
    }
    EXPECT_EQ(readText(vhdl(text)), textOf(program));
}

TEST(ImageHdl, alternativesForOtherDevicesMustAgree)
{
    const Words program = words(1024);
    const QByteArray one = vhdlInstance("rom", "RAM", "DATA_WIDTH_A => 18,\n" + whole(program, vhdlForm));
    const QByteArray two = vhdlInstance("rom_l", "RAM", "READ_WIDTH_A => 9,\n" + half(program, 0, vhdlForm)) +
                           vhdlInstance("rom_h", "RAM", "READ_WIDTH_A => 9,\n" + half(program, 9, vhdlForm));
    EXPECT_EQ(readText(vhdl(one + two)), textOf(program));
    Words other = program;
    other[5] ^= 0x200;
    const QByteArray wrong = vhdlInstance("rom_l", "RAM", "READ_WIDTH_A => 9,\n" + half(other, 0, vhdlForm)) +
                             vhdlInstance("rom_h", "RAM", "READ_WIDTH_A => 9,\n" + half(other, 9, vhdlForm));
    EXPECT_TRUE(readText(vhdl(one + wrong)).contains("The memories hold different words for address 005"))
        << qPrintable(readText(vhdl(one + wrong)));
}

TEST(ImageHdl, aTemplateForManyDevicesAndSizes)
{
    // One program, filled into a memory for each device and size; the design takes the one that its generics choose.
    Words program = words(4096);
    const auto part = [&](int first, int count) { return program.mid(first, count); };
    const auto vhdlOf = [](const QByteArray& label, const QByteArray& kind, const QByteArray& width,
                           const QByteArray& generics) {
        return "    gen_" + label + ": if (size = 1) generate\n  begin\n    " + label + ": " + kind +
               "\n    --synthesis translate_off\n    generic map ( " + width +
               "INIT_A => X\"000000000\",\n INIT_FILE => \"NONE\",\n" + generics +
               "      SRVAL_A => X\"000000000\")\n    --synthesis translate_on\n    port map(ADDRA => address_a(13 "
               "downto 0),\n"
               "      DOA => data_out_a(31 downto 0),\n      DOPA => data_out_a(35 downto 32));\n  end generate;\n";
    };
    const QByteArray width9 = "DATA_WIDTH_A => 9,\n";
    QByteArray text = vhdlOf("rom", "RAMB16", "DATA_WIDTH_A => 18,\n", whole(part(0, 1024), vhdlForm));
    text += vhdlOf("rom", "RAMB18", "READ_WIDTH_A => 18, WRITE_WIDTH_A => 18,\n", whole(part(0, 1024), vhdlForm));
    text += vhdlOf("rom_l", "RAMB16", width9, half(part(0, 2048), 0, vhdlForm));
    text += vhdlOf("rom_h", "RAMB16", width9, half(part(0, 2048), 9, vhdlForm));
    text += vhdlOf("rom", "RAMB36", "READ_WIDTH_A => 18,\n", whole(part(0, 2048), vhdlForm));
    text += vhdlOf("rom_ll", "RAMB16", width9, half(part(0, 2048), 0, vhdlForm));
    text += vhdlOf("rom_lh", "RAMB16", width9, half(part(0, 2048), 9, vhdlForm));
    text += vhdlOf("rom_hl", "RAMB16", width9, half(part(2048, 2048), 0, vhdlForm));
    text += vhdlOf("rom_hh", "RAMB16", width9, half(part(2048, 2048), 9, vhdlForm));
    text += vhdlOf("rom_l", "RAMB36", "READ_WIDTH_A => 9,\n", half(program, 0, vhdlForm));
    text += vhdlOf("rom_h", "RAMB36", "READ_WIDTH_A => 9,\n", half(program, 9, vhdlForm));
    EXPECT_EQ(readText(vhdl(text)), textOf(program));
    // One bit of one of them is another.
    const int digit = text.lastIndexOf("INIT_7F") + 20;
    text[digit] = text.at(digit) == '0' ? '1' : '0';
    EXPECT_TRUE(readText(vhdl(text)).contains("The memories hold different words")) << qPrintable(readText(vhdl(text)));

    const QByteArray start = "module rom (input [11:0] address);\n generate if (size == 1) begin : r1\n";
    const auto verilogOf = [](const QByteArray& label, const QByteArray& kind, const QByteArray& width,
                              const QByteArray& parameters) {
        return kind + " #( .READ_WIDTH_A (" + width + "),\n .INIT_A (36'h000000000),\n.INIT_FILE(\"NONE\"),\n" +
               parameters + ".SRVAL_A(9'h0), .SIM_DEVICE(\"X\"))\n" + label +
               "( .ADDRA (address_a[13:0]),\n .DOA (data_out_a[31:0]));\n";
    };
    EXPECT_EQ(readText(start + verilogOf("rom", "RAMB18", "18", whole(part(0, 1024), verilogForm)) +
                       verilogOf("rom_h", "RAMB18", "9", half(part(0, 2048), 9, verilogForm)) +
                       verilogOf("rom_l", "RAMB18", "9", half(part(0, 2048), 0, verilogForm)) +
                       "end endgenerate\nendmodule\n"),
              textOf(part(0, 2048)));
}

TEST(ImageHdl, numberedMemoriesFollowOneAnother)
{
    const Words program = words(2048);
    const QByteArray text = vhdl(vhdlInstance("ram_0", "RAM_S18", whole(program.mid(0, 1024), vhdlForm)) +
                                 vhdlInstance("ram_1", "RAM_S18", whole(program.mid(1024), vhdlForm)));
    EXPECT_EQ(readText(text), textOf(program));
    EXPECT_EQ(ImageReader().read(text, "f").notes,
              QStringList("\"ram_1\" is taken as the memory from address 400 on."));
}

TEST(ImageHdl, stringsThatAreLeftOutAreZeros)
{
    Words program = words(64);
    for (int i = 0; i < 16; ++i)
        program[16 + i] = 0;
    QByteArray text = vhdl(vhdlInstance("ram", "RAM_S18", whole(program, vhdlForm)));
    const int start = text.indexOf("      INIT_01");
    text.remove(start, text.indexOf('\n', start) + 1 - start);
    Words first = program.mid(0, 16);
    EXPECT_EQ(readText(text), textOf(first) + " | 020:" + textOf(program.mid(32)).mid(4));
    // Parity says that there are words.
    program[17] = 0x30000;
    text = vhdl(vhdlInstance("ram", "RAM_S18", whole(program, vhdlForm)));
    text.remove(start, text.indexOf('\n', start) + 1 - start);
    EXPECT_EQ(readText(text), textOf(first) + " | 011: 30000 | 020:" + textOf(program.mid(32)).mid(4));
}

TEST(ImageHdl, faults)
{
    const Words program = words(16);
    const QByteArray good = vhdl(vhdlInstance("ram", "RAM_S18", whole(program, vhdlForm)));
    const auto without = [&](const char* from, const char* to) { return QByteArray(good).replace(from, to); };
    const QByteArray low = half(program, 0, vhdlForm);
    EXPECT_EQ(readText(without("INITP_00", "OTHER_00")),
              "line 8: \"ram\" has no INITP strings: the highest bits of its words are missing.");
    EXPECT_EQ(readText(without("INIT_00 => X\"", "INIT_00 => X\"0")),
              "line 8: The value of INIT_00 is no string of 64 hexadecimal digits.");
    EXPECT_EQ(readText(without("INIT_00 => X\"", "INIT_00 => X\"\" & X\"")),
              "line 8: The value of INIT_00 is no string of 64 hexadecimal digits.");
    EXPECT_EQ(readText(without("INIT_00 => X", "INIT_00 => CONTENTS, X")),
              "line 8: The value of INIT_00 is no string of 64 hexadecimal digits.");
    EXPECT_EQ(readText(without("RAM_S18", "RAM_S36")),
              "line 8: \"ram\" has words of 36 bits; only 18 and 9 are understood.");
    EXPECT_EQ(readText(vhdl(vhdlInstance("a", "RAM", low) + vhdlInstance("b", "RAM", low))).left(54),
              "line 8: It can not be told which bits of the words \"a\"");
    EXPECT_EQ(readText(vhdl(vhdlInstance("a", "RAM_S9", low) + vhdlInstance("b", "RAM_S9", low))).left(55),
              "line 8: It can not be told which half of the words \"a\" ");
    EXPECT_EQ(readText(vhdl(vhdlInstance("rom_l", "RAM_S9", low))),
              "line 8: Half of the word at address 000 is missing.");
    // A template that nobody has filled in.
    EXPECT_EQ(readText("module m; r #(.INIT_00 (256'h{INIT_00})) r (); endmodule"),
              "line 1: The value of INIT_00 is no string of 64 hexadecimal digits.");
}
