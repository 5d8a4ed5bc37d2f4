// The bytes of a file as text and back again.

#include "DocumentFormat.h"

#include <gtest/gtest.h>

#include <random>

using nsModEditor::DocumentFormat;

namespace {

TEST(DocumentFormat, randomBytesBecomeTheSameBytesAgain)
{
    const QList<QByteArray> pieces = {"a",   "\r", "\n", "\r\n", "\xC3\xA9", "\xE9", "\xEF\xBB\xBF", "\xF0\x9F\x98\x80",
                                      "\x01"};
    std::mt19937 random(20161);
    for (int round = 0; round < 5000; ++round) {
        QByteArray bytes;
        const int count = int(random() % 12);
        for (int i = 0; i < count; ++i)
            bytes += pieces.at(int(random() % unsigned(pieces.size())));
        QString text;
        const DocumentFormat format = DocumentFormat::decode(bytes, &text);
        ASSERT_EQ(format.obstacle(), DocumentFormat::eObstacleNone);
        ASSERT_FALSE(text.contains('\r'));
        ASSERT_EQ(format.encode(text).toHex(' ').toStdString(), bytes.toHex(' ').toStdString());
    }
}

TEST(DocumentFormat, untouchedLinesOfMixedFilesKeepTheirEnds)
{
    std::mt19937 random(20162);
    const QList<QByteArray> ends = {"\n", "\r\n", "\r"};
    for (int round = 0; round < 500; ++round) {
        // Lines that are there once, so that it is certain which of them was touched.
        QList<QByteArray> lines;
        for (int i = 0; i < 20; ++i)
            lines.append(QByteArray::number(i) + ends.at(int(random() % 3)));
        QString text;
        DocumentFormat format = DocumentFormat::decode(lines.join(), &text);
        QStringList shown = text.split('\n');
        // One line goes, and another one, which is no neighbour of it, changes.
        const int gone = int(random() % 20);
        shown.removeAt(gone);
        lines.removeAt(gone);
        const int changed = (gone + 5) % 19;
        shown[changed].prepend("x");
        lines[changed].prepend("x");
        text = shown.join('\n');
        ASSERT_EQ(format.encode(text), lines.join());
        format.settle(text);
        ASSERT_EQ(format.encode(text), lines.join());
    }
}

TEST(DocumentFormat, aNewLineOfAMixedFileGetsTheEndThatIsThereMostOften)
{
    QString text;
    DocumentFormat format = DocumentFormat::decode("a\r\nb\r\nc\nd\r", &text);
    EXPECT_EQ(format.lineEnd(), DocumentFormat::eLineEndMixed);
    EXPECT_EQ(format.encode("a\nnew\nb\nc\nd\n"), "a\r\nnew\r\nb\r\nc\nd\r");
    format.setLineEnd(DocumentFormat::eLineEndCr);
    EXPECT_EQ(format.encode(text), "a\rb\rc\rd\r");
}

TEST(DocumentFormat, whatCanNotBeWrittenSaysWhy)
{
    QString text;
    EXPECT_EQ(DocumentFormat::decode(QByteArray("a\0b", 3), &text).obstacle(), DocumentFormat::eObstacleNul);
    EXPECT_EQ(text, "a");
    EXPECT_EQ(DocumentFormat::decode(QByteArray("\xFF\xFE"
                                                "a\0\n\0",
                                                6),
                                     &text)
                  .obstacle(),
              DocumentFormat::eObstacleUtf16);
    EXPECT_EQ(text, "a\n");
    // Without a NUL the two bytes are characters as others are.
    EXPECT_EQ(DocumentFormat::decode("\xFF\xFE"
                                     "ab",
                                     &text)
                  .obstacle(),
              DocumentFormat::eObstacleNone);
}

} // namespace
