// What a program writes, on its way to the view.

#include "QtPrinters.h"
#include "SyscallOutput.h"

#include <gtest/gtest.h>

using namespace nsModSyscall;

namespace {

QString takeAll(SyscallOutput* output)
{
    QString text;
    while (!output->isEmpty())
        text += output->take(7);
    return text;
}

/// What comes out of bytes that come one by one.
QString shown(const QByteArray& bytes)
{
    SyscallOutput output;
    for (char byte : bytes)
        output.add(SyscallOutput::streamOut, QByteArray(1, byte));
    output.end();
    return takeAll(&output);
}

} // namespace

TEST(SyscallOutput, charactersMayBeSplitOverReads)
{
    const QString text = QString::fromUtf8("a\xc3\xa4\xe2\x82\xac\xf0\x9f\x98\x80z\n");
    EXPECT_EQ(shown(text.toUtf8()), text);
}

TEST(SyscallOutput, theStreamsDoNotMixTheirCharacters)
{
    SyscallOutput output;
    output.add(SyscallOutput::streamOut, "\xc3");
    output.add(SyscallOutput::streamErr, "\xe2\x82");
    output.add(SyscallOutput::streamOut, "\xa4");
    output.add(SyscallOutput::streamErr, "\xac");
    EXPECT_EQ(takeAll(&output), QString::fromUtf8("\xc3\xa4\xe2\x82\xac"));
}

TEST(SyscallOutput, whatIsNoTextIsShown)
{
    EXPECT_EQ(shown(QByteArray("a\0b\x1b\x07\x7f\t", 7)), QString::fromUtf8("a\u2400b\u241b\u2407\u2421\t"));
    EXPECT_EQ(shown("\xff\xfe|\xc3(|"), QString::fromUtf8("\ufffd\ufffd|\ufffd(|"));
    EXPECT_EQ(shown("end \xe2\x82"), QString::fromUtf8("end \ufffd")) << "the program ends within a character";
    EXPECT_EQ(shown(QString::fromUtf8("\u2028\u2029\u0085").toUtf8()), QString::fromUtf8("\ufffd\ufffd\ufffd"));
    EXPECT_EQ(shown(QString(QChar(0xfdd0)).toUtf8() + QString(QChar(0xfffc)).toUtf8()).size(), 2);
}

TEST(SyscallOutput, carriageReturnsEndLines)
{
    EXPECT_EQ(shown("a\r\nb\rc\r\r\nd"), "a\nb\nc\n\nd");
    SyscallOutput output;
    output.add(SyscallOutput::streamOut, "a\r");
    output.add(SyscallOutput::streamErr, "\nb");
    EXPECT_EQ(takeAll(&output), "a\n\nb") << "the line end of the other stream is its own";
}

TEST(SyscallOutput, aLongLineIsBroken)
{
    SyscallOutput output;
    output.add(SyscallOutput::streamOut, QByteArray(2 * SyscallOutput::maxLineLength + 5, 'x') + '\n');
    const QStringList lines = takeAll(&output).split('\n');
    ASSERT_EQ(lines.size(), 4);
    EXPECT_EQ(lines.at(0).size(), SyscallOutput::maxLineLength);
    EXPECT_EQ(lines.at(2), "xxxxx");
}

TEST(SyscallOutput, theLastLinesAreKept)
{
    SyscallOutput output;
    int number = 0;
    for (int block = 0; block < 50; ++block) {
        QByteArray text;
        for (int i = 0; i < 1000; ++i)
            text += QByteArray::number(number++) + '\n';
        output.add(block % 2 == 0 ? SyscallOutput::streamOut : SyscallOutput::streamErr, text);
        // A view that gets far less than is written.
        output.take(100);
    }
    EXPECT_TRUE(output.takeOverrun());
    EXPECT_FALSE(output.takeOverrun());
    const QStringList lines = takeAll(&output).split('\n');
    EXPECT_GE(lines.size(), SyscallOutput::maxLines - 100);
    EXPECT_LE(lines.size(), SyscallOutput::maxLines + 2001);
    EXPECT_EQ(lines.at(lines.size() - 2), "49999");
    for (int i = 1; i < lines.size() - 1; ++i)
        ASSERT_EQ(lines.at(i).toInt(), 49999 - (lines.size() - 2) + i);
}

TEST(SyscallOutput, theMemoryIsBoundedForAReaderThatNeverReads)
{
    SyscallOutput output;
    const QByteArray block(1 << 16, 'x');
    for (int i = 0; i < 1600; ++i) {
        output.add(SyscallOutput::streamOut, block);
        ASSERT_LE(output.size(), (SyscallOutput::maxLines + 2100) * (SyscallOutput::maxLineLength + 1) + (1 << 17));
    }
    EXPECT_TRUE(output.takeOverrun());
}

TEST(SyscallOutput, aSliceDoesNotSplitACharacter)
{
    SyscallOutput output;
    output.add(SyscallOutput::streamOut, "a\xf0\x9f\x98\x80");
    EXPECT_EQ(output.take(2), "a");
    EXPECT_EQ(output.take(2), QString::fromUtf8("\xf0\x9f\x98\x80"));
    EXPECT_TRUE(output.isEmpty());
}
