#include "ImageText.h"
#include "QtPrinters.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <random>

#include <sys/stat.h>

using namespace nsImport;

// Whatever a file holds, there is an answer: an image or what is wrong with it. None of these may hang or use up the
// memory.

namespace {

const int large = 4 << 20;

QByteArray repeated(const QByteArray& text, int size)
{
    QByteArray result;
    result.reserve(size + text.size());
    while (result.size() < size)
        result += text;
    return result;
}

} // namespace

TEST(ImageHostile, filesThatAreNone)
{
    QTemporaryDir dir;
    EXPECT_EQ(ImageReader().readFile(dir.filePath("none")).error, "There is no such file.");
    EXPECT_EQ(ImageReader().readFile(dir.path()).error, "This is no regular file.");
    ASSERT_EQ(mkfifo(QFile::encodeName(dir.filePath("pipe")).constData(), 0600), 0);
    EXPECT_EQ(ImageReader().readFile(dir.filePath("pipe")).error, "This is no regular file.");
    QFile huge(dir.filePath("huge.hex"));
    ASSERT_TRUE(huge.open(QIODevice::WriteOnly) && huge.resize(100 << 20));
    EXPECT_EQ(ImageReader().readFile(huge.fileName()).error, "The file has 100 MB; an image has 32 MB at the most.");
    QFile good(dir.filePath("good.hex"));
    ASSERT_TRUE(good.open(QIODevice::WriteOnly) && good.write("00001\n") == 6);
    good.close();
    EXPECT_EQ(imageText(ImageReader().readFile(good.fileName()).image), "000: 00001");
    EXPECT_EQ(ImageReader().readFile(good.fileName()).image.place(0).file, "good.hex");
}

TEST(ImageHostile, binaries)
{
    EXPECT_EQ(readText(QByteArray("00001\n\0", 7)), "line 0: This is a binary file, and not the text of an image.");
    std::mt19937 random(1);
    for (int round = 0; round < 200; ++round) {
        QByteArray bytes(4096, Qt::Uninitialized);
        for (char& byte : bytes)
            byte = char(round % 2 == 0 ? random() % 255 + 1 : random());
        EXPECT_FALSE(ImageReader().read(bytes, "f").ok) << round;
    }
}

TEST(ImageHostile, largeFilesOfEveryKind)
{
    const QByteArray digits(64, '0');
    const QByteArray pieces[] = {
        "00001\n",
        "@0 ",
        "@0\n0\n",
        ":\n",
        ":00000001FF\n",
        ":03000000000001FC\n",
        "\n",
        " ",
        "a",
        "/* ",
        "// \n",
        ";\n",
        "%",
        "000 0000",
        "000 00001 LOAD\n",
        "12:00:00 \n",
        "INIT_00 (",
        "INIT_00\n",
        "INIT_00 of a is \"" + digits + "\"\n",
        "x.INIT_00 = \n",
        "generic map (INIT_00 => X\"" + digits + "\"\n",
        "#(.INIT_00(256'h" + digits + ")\n",
        "memory_initialization_vector=\n",
        "CONTENT BEGIN WIDTH=18;\n",
        "#Format=Hex\n",
        "\x80\xff\n",
        "\r",
        ") ",
        "\"",
        "=>\n",
    };
    const QByteArray heads[] = {
        "",
        "memory_initialization_radix=16;\nmemory_initialization_vector=\n",
        "WIDTH=18;DEPTH=1024;CONTENT BEGIN\n[0..3FF]:0;",
        "entity e is\nINIT_00 => X\"" + digits + "\"\n",
        "#Format=AddrHex\n",
        ":00000001FF\n",
    };
    // All of them small, and each kind of piece large.
    for (const QByteArray& head : heads) {
        for (const QByteArray& piece : pieces)
            ImageReader().read(head + repeated(piece, 10000), "f");
    }
    for (const QByteArray& piece : pieces) {
        const ImageResult result = ImageReader().read(repeated(piece, large), "f");
        EXPECT_TRUE(result.ok || !result.error.isEmpty()) << piece.constData();
        EXPECT_FALSE(result.ok && result.image.count() > 1 && piece != "00001\n") << piece.constData();
    }
    EXPECT_FALSE(ImageReader().read(QByteArray(33 << 20, '1'), "f").ok);
    EXPECT_EQ(readText(repeated("00001\n", 7 << 20)),
              "line 1048577: Address 100000 is beyond the 1048576 words that an image can have.");
}

TEST(ImageHostile, manyMemoriesAreRefused)
{
    const QByteArray digits(64, '0');
    QByteArray text = "entity e is\n";
    for (int i = 0; i < 100000; ++i)
        text += "attribute INIT_00 of a" + QByteArray::number(i) + " : label is \"" + digits + "\";\n";
    EXPECT_EQ(readText(text), "line 66: There are more than 64 memories.");
}

TEST(ImageHostile, everyChangeOfAByteIsAnImageOrAnError)
{
    const QByteArray digits(64, '1');
    const QByteArray files[] = {
        "@0\r\n00001\n00002\n@256\r\n38001\n",
        "memory_initialization_radix=16;\nmemory_initialization_vector=\n00001,\n34001;\n",
        "WIDTH=18;\nDEPTH=16;\nCONTENT BEGIN\n0 : 1;\n[2..5] : 3 4; % c %\nEND;\n",
        ":03000000000001FC\n:03000100034001B8\n:00000001FF\n",
        "08:05:01 2014-09-30\n000 00001 LOAD s0, 01\n001 34000 JUMP\n",
        "#Format=AddrHex\n#Depth=64\n10: 10000 3B001\n",
        "entity e is\na : RAM_S18 generic map (\nINIT_00 => X\"" + digits + "\",\nINITP_00 => X\"" + digits +
            "\") port map (d);\n",
    };
    const QByteArray bytes("\0\n\r;:@\"'(=x0F9[%-/*#\xff", 22);
    for (const QByteArray& file : files) {
        for (int pos = 0; pos < file.size(); ++pos) {
            for (char byte : bytes) {
                QByteArray changed = file;
                changed[pos] = byte;
                const ImageResult result = ImageReader().read(changed, "f");
                EXPECT_EQ(result.ok, result.error.isEmpty());
                EXPECT_EQ(result.ok, !result.image.isEmpty());
            }
            const ImageResult cut = ImageReader().read(file.left(pos), "f");
            EXPECT_EQ(cut.ok, cut.error.isEmpty());
        }
    }
}
