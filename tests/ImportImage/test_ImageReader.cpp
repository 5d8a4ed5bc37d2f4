#include "ImageText.h"
#include "QtPrinters.h"

#include <gtest/gtest.h>

using namespace nsImport;

namespace {

ImageResult read(const QByteArray& content)
{
    return ImageReader().read(content, "file");
}

} // namespace

TEST(ProgramImage, keepsWordsPlacesAndGaps)
{
    ProgramImage image;
    const int file = image.addFile("a.psm");
    EXPECT_EQ(image.setWord(5, 0x12345, 3, file), ProgramImage::eSetDone);
    image.setText(5, "CALL x");
    EXPECT_EQ(image.size(), 6);
    EXPECT_EQ(image.count(), 1);
    EXPECT_FALSE(image.contains(4));
    EXPECT_FALSE(image.contains(-1));
    EXPECT_FALSE(image.contains(6));
    EXPECT_EQ(image.place(5).file, "a.psm");
    EXPECT_EQ(image.place(5).line, 3);
    EXPECT_EQ(image.place(5).text, "CALL x");
    EXPECT_EQ(image.place(4).line, 0);
    EXPECT_EQ(image.setWord(5, 0x12345, 9, file), ProgramImage::eSetDone);
    EXPECT_EQ(image.place(5).line, 3);
    EXPECT_EQ(image.setWord(5, 0x12346, 9, file), ProgramImage::eSetConflict);
    EXPECT_EQ(image.word(5), 0x12345u);
    EXPECT_EQ(image.setWord(-1, 0), ProgramImage::eSetOutOfRange);
    EXPECT_EQ(image.setWord(ProgramImage::maxSize, 0), ProgramImage::eSetOutOfRange);
    EXPECT_EQ(image.setWord(ProgramImage::maxSize - 1, 0), ProgramImage::eSetDone);
}

TEST(ImageHex, aWordALine)
{
    EXPECT_EQ(readText("00001\n34001\n3FFFF\n"), "000: 00001 34001 3FFFF");
    EXPECT_EQ(read("00001\n34001\n").format, imageHex);
    EXPECT_EQ(read("00001\n34001\n").image.place(1).line, 2);
    EXPECT_EQ(read("00001\n34001\n").image.place(1).file, "file");
}

TEST(ImageHex, lineEndsMarksCommentsAndCase)
{
    EXPECT_EQ(readText("00001\r\n2c305\r\n"), "000: 00001 2C305");
    EXPECT_EQ(readText("00001\r2c305\r"), "000: 00001 2C305");
    EXPECT_EQ(readText("00001\n2c305\n\x1a"), "000: 00001 2C305");
    EXPECT_EQ(readText("\xef\xbb\xbf"
                       "00001\n2c305"),
              "000: 00001 2C305");
    EXPECT_EQ(readText("// made by hand\n0x00001 ; one\n\n/* two\n lines */ 2c305\n# end\n"), "000: 00001 2C305");
    EXPECT_EQ(readText("1\n2\n3\n"), "000: 00001 00002 00003");
    EXPECT_EQ(readText("0000_0001\n"), "000: 00001");
}

TEST(ImageHex, severalWordsALine)
{
    EXPECT_EQ(readText("00001 00002 00003 00004\n00005 00006\n"), "000: 00001 00002 00003 00004 00005 00006");
}

TEST(ImageHex, aWordThatIsTooWideIsAnError)
{
    EXPECT_EQ(readText("00001\n40000\n"), "line 2: The word 40000 has more than 18 bits.");
    EXPECT_EQ(readText("00001\nFFFFFFFFFFFFFFFFFFFF\n"), "line 2: \"FFFFFFFFFFFFFFFFFFFF\" is no word.");
    ImageOptions options;
    options.wordBits = 16;
    EXPECT_EQ(readText("00001\n10000\n", options), "line 2: The word 10000 has more than 16 bits.");
}

TEST(ImageHex, binaryWordsOfTheWidthOfAWord)
{
    EXPECT_EQ(readText("000000000000000001\n110100000000000001\n"), "000: 00001 34001");
    EXPECT_EQ(readText("000000000000000001\n110100000000000002\n"), "line 2: \"110100000000000002\" is no word.");
}

TEST(ImageMem, blocksWithAddresses)
{
    EXPECT_EQ(readText("@0\n00001 00002\n@3FF\n38001\n"), "000: 00001 00002 | 3FF: 38001");
    EXPECT_EQ(readText("@00000010 00001 00002\n"), "010: 00001 00002");
    EXPECT_EQ(read("@0\n00001\n").format, imageMem);
    EXPECT_EQ(readText("@0\n1 2\n@1\n2\n"), "000: 00001 00002");
    EXPECT_EQ(readText("@0\n1 2\n@1\n3\n"), "line 4: Address 001 has two words: 00002 in line 2, and 00003 here.");
    EXPECT_EQ(readText("@FFFFFFF\n1\n"), "line 1: \"FFFFFFF\" is no address.");
    EXPECT_EQ(readText("@FFFFF\n1 2\n"), "line 2: Address 100000 is beyond the 1048576 words that an image can have.");
}

TEST(ImageMem, theAddressesOfOurOwnFilesAreDecimal)
{
    // The assembler writes blocks so: addresses end with CR LF, words with LF.
    const QByteArray own = "@0\r\n00001\n00002\n@256\r\n38001\n";
    EXPECT_EQ(readText(own), "000: 00001 00002 | 100: 38001");
    EXPECT_EQ(read(own).notes, QStringList("The addresses behind @ are taken as decimal numbers."));
    QByteArray foreign = own;
    foreign.replace("\r\n", "\n");
    EXPECT_EQ(readText(foreign), "000: 00001 00002 | 256: 38001");
    EXPECT_EQ(read(foreign).notes, QStringList("The addresses behind @ are taken as hexadecimal numbers."));
    ImageOptions options;
    options.addresses = ImageOptions::eAddressesDecimal;
    EXPECT_EQ(readText(foreign, options), "000: 00001 00002 | 100: 38001");
    options.addresses = ImageOptions::eAddressesHex;
    EXPECT_EQ(readText(own, options), "000: 00001 00002 | 256: 38001");
}

TEST(ImageCoe, radixesAndSeparators)
{
    const QByteArray key = "memory_initialization_radix=";
    const QByteArray vector = ";\nmemory_initialization_vector=\n";
    EXPECT_EQ(readText(key + "16" + vector + "00001,\n34001, 3ffff;\n"), "000: 00001 34001 3FFFF");
    EXPECT_EQ(readText(key + "10" + vector + "1 212993\n262143;"), "000: 00001 34001 3FFFF");
    EXPECT_EQ(readText(key + "2" + vector + "1,110100000000000001;"), "000: 00001 34001");
    EXPECT_EQ(readText("; a comment, memory_initialization_radix = 10;\nMEMORY_INITIALIZATION_RADIX = 16 ;\n"
                       "Memory_Initialization_Vector =00001;\n"),
              "000: 00001");
    EXPECT_EQ(read(key + "16" + vector + "1,\n2;").format, imageCoe);
    EXPECT_EQ(read(key + "16" + vector + "1,\n2;").image.place(1).line, 4);
    EXPECT_TRUE(read(key + "16" + vector + "1, 2;").notes.isEmpty());
    EXPECT_EQ(read(key + "16" + vector + "1, 2").notes.size(), 1) << "it may have been cut off";
}

TEST(ImageCoe, faults)
{
    const QByteArray vector = ";\nmemory_initialization_vector=\n";
    EXPECT_EQ(readText("memory_initialization_vector=1;"), "line 0: The file says no memory_initialization_radix.");
    EXPECT_EQ(readText("\nmemory_initialization_radix=8" + vector + "1;"),
              "line 2: The radix must be 2, 10 or 16: \"8\".");
    EXPECT_EQ(readText("memory_initialization_radix=10" + vector + "1,\nA;"), "line 4: \"A\" is no word.");
    EXPECT_EQ(readText("memory_initialization_radix=16" + vector + "1,\n40000;"),
              "line 4: The word 40000 has more than 18 bits.");
    EXPECT_EQ(readText("memory_initialization_radix=16" + vector + ";"), "line 0: The file has no word.");
}

TEST(ImageMif, addressesRangesAndRadixes)
{
    const QByteArray head = "-- a comment; WIDTH=8;\nWIDTH=18;\nDEPTH=16;\nADDRESS_RADIX=HEX;\nDATA_RADIX=HEX;\n"
                            "CONTENT BEGIN\n";
    EXPECT_EQ(readText(head + "0 : 00001 34001;\n[4..6] : 2C305; % more : 7; %\nF: 1;\nEND;\n"),
              "000: 00001 34001 | 004: 2C305 2C305 2C305 | 00F: 00001");
    EXPECT_EQ(readText(head + "[0..4] : 1 2;\nEND;"), "000: 00001 00002 00001 00002 00001");
    EXPECT_EQ(read(head + "0 : 1;\nEND;").format, imageMif);
    EXPECT_EQ(read(head + "0 : 1;\nEND;").image.depth, 16);
    EXPECT_EQ(read(head + "0 : 1;\n1 : 2;\nEND;").image.place(1).line, 8);
    EXPECT_EQ(readText("DEPTH = 4; WIDTH = 18; ADDRESS_RADIX = DEC; DATA_RADIX = BIN; CONTENT\nBEGIN 2:11;END;"),
              "002: 00003");
    EXPECT_EQ(readText("DEPTH=16;ADDRESS_RADIX=OCT;DATA_RADIX=UNS;CONTENT BEGIN 11:19;END;"), "009: 00013");
}

TEST(ImageMif, faults)
{
    const QByteArray head = "WIDTH=18;\nDEPTH=16;\nCONTENT BEGIN\n";
    EXPECT_EQ(readText(head + "0 : 1;\n"), "line 5: The content is not ended by END: the file may have been cut off.");
    EXPECT_EQ(readText(head + "10 : 1;\nEND;"), "line 4: \"10\" is no address of the memory.");
    EXPECT_EQ(readText(head + "F : 1 2;\nEND;"), "line 4: The words go beyond the end of the memory.");
    EXPECT_EQ(readText(head + "[0..FFFFFFFFFF] : 1;\nEND;"),
              "line 4: \"[0..FFFFFFFFFF]\" is no address of the memory.");
    EXPECT_EQ(readText(head + "[5..4] : 1;\nEND;"), "line 4: \"[5..4]\" is no address of the memory.");
    EXPECT_EQ(readText(head + "0 : 1;\n[0..3] : 2;\nEND;"),
              "line 5: Address 000 has two words: 00001 in line 4, and 00002 here.");
    EXPECT_EQ(readText(head + "0 : ;\nEND;"), "line 4: There is an address without a word.");
    EXPECT_EQ(readText(head + "0 : XX;\nEND;"), "line 4: \"XX\" is no word.");
    EXPECT_EQ(readText(head + "nothing;\nEND;"), "line 4: \"nothing\" is no address with a word.");
    EXPECT_EQ(readText("WIDTH=18;\nADDRESS_RADIX=TEN;\nCONTENT BEGIN\n0:1;END;"),
              "line 2: This is not understood: \"ADDRESS_RADIX=TEN\".");
}

TEST(ImageLatticeMem, headersAndForms)
{
    const QByteArray head = "#Format=Hex\n#Depth=4\n#Width=18\n#AddrRadix=3\n#DataRadix=3\n#Data\n";
    EXPECT_EQ(readText(head + "10000\n3B001\n"), "000: 10000 3B001");
    EXPECT_EQ(read(head + "10000\n").format, imageLatticeMem);
    EXPECT_EQ(read(head + "10000\n").image.depth, 4);
    EXPECT_EQ(readText("#Format=AddrHex\n#Depth=64\n#Data\n10: 10000 3B001\n20 : 1\n"),
              "010: 10000 3B001 | 020: 00001");
    EXPECT_EQ(readText("#Format=Bin\n#Depth=4\n#Width=18\n000000000000000011\n"), "000: 00003");
    EXPECT_EQ(readText(head + "1\n2\n3\n4\n5\n"), "line 11: There are more words than the 4 of the memory.");
    EXPECT_EQ(readText("#Format=Hex\n#Width=36\n1\n"),
              "line 2: The memory has words of 36 bits, and the program of 18.");
    EXPECT_EQ(readText("#Format=Text\n1\n"), "line 1: FORMAT has a value that is not understood: \"Text\".");
    EXPECT_EQ(readText("#Format=Hex\n#Depth=many\n1\n"), "line 2: DEPTH has a value that is not understood: \"many\".");
    EXPECT_EQ(readText(head + "1\nLOAD\n"), "line 8: \"LOAD\" is no word.");
}

TEST(ImageIntelHex, wordsInTheUsualWays)
{
    // Addresses of words, three bytes a word, the highest first.
    EXPECT_EQ(readText(":03000000000001FC\n:03000100034001B8\n:00000001FF\n"), "000: 00001 34001");
    // Four bytes a word, the lowest first.
    EXPECT_EQ(readText(":0800000001000000014003"
                       "00B3\n:00000001FF\n"),
              "000: 00001 34001");
    // Four bytes a word, the highest first.
    EXPECT_EQ(readText(":08000000000000010003400"
                       "1B3\n:00000001FF\n"),
              "000: 00001 34001");
    EXPECT_EQ(ImageReader::format(":00000001FF"), imageIntelHex);
}

TEST(ImageIntelHex, whatCanNotBeToldIsAnError)
{
    // The bytes 00 02 01 00 are 20100 with the highest byte first, and 10200 with the lowest.
    EXPECT_EQ(readText(":0400000000020100F9\n:00000001FF\n"),
              "line 0: It can not be told how the bytes make words: four bytes a word, the highest first, addresses of "
              "words, or four bytes a word, the lowest first.");
}

TEST(ImageIntelHex, faults)
{
    EXPECT_EQ(readText(":03000000000001FD\n:00000001FF\n"), "line 1: The check sum of the record is wrong.");
    EXPECT_EQ(readText(":03000000000001FC\n"), "line 1: The last record is missing: the file may have been cut off.");
    EXPECT_EQ(readText(":0300000000000\n"), "line 1: \":0300000000000\" is no record.");
    EXPECT_EQ(readText(":03000000000001FC\nx\n"), "line 2: \"x\" is no record.");
    EXPECT_EQ(readText(":00000001FF\n:00000001FF\n"), "line 2: There is text behind the last record.");
    EXPECT_EQ(readText(":04000000FFFFFFFF00\n:00000001FF\n"), "line 0: The bytes make no words of 18 bits.");
}

TEST(ImageListing, addressWordAndText)
{
    const ImageResult result = read("Assembler, version 1.30, 12 Jan 2005\nRun at 14:03:59 on 08 Jul 2011\n\n"
                                    " Addr Code\n\n"
                                    " 000              ; a comment\n"
                                    " 000  00001       start: LOAD s0, 01 ; one\n"
                                    " 001  34000              JUMP start\n"
                                    " 3FF                     ADDRESS 3FF\n"
                                    " 3FF  38001              RETURNI ENABLE\n"
                                    "\n start  000\n");
    ASSERT_TRUE(result.ok) << qPrintable(result.error);
    EXPECT_EQ(result.format, imageListing);
    EXPECT_EQ(imageText(result.image), "000: 00001 34000 | 3FF: 38001");
    EXPECT_EQ(result.image.place(1).line, 8);
    EXPECT_EQ(result.image.place(1).text, "JUMP start");
    EXPECT_EQ(result.image.time, QTime(14, 3, 59));
    EXPECT_EQ(result.image.date, QDate(2011, 7, 8));
}

TEST(ImageListing, formsOfStamps)
{
    const auto stamp = [](const QByteArray& lines) {
        const ImageResult result = read(lines + "\n000 00001 LOAD s0, 01\n");
        return result.image.date.toString(Qt::ISODate) + ' ' + result.image.time.toString(Qt::ISODate);
    };
    EXPECT_EQ(stamp("2014-09-30 08:05:01"), "2014-09-30 08:05:01");
    EXPECT_EQ(stamp("Tue Sep 30 08:05:01 2014"), "2014-09-30 08:05:01");
    EXPECT_EQ(stamp("Timestamp: 08:05:01\nDatestamp: 30 Sep 14"), "2014-09-30 08:05:01");
    EXPECT_EQ(stamp("Date: 30-Sep-2014\nTime: 08:05:01"), "2014-09-30 08:05:01");
    EXPECT_EQ(stamp("Version of 16th May 2013\n\n08:05:01"), " 08:05:01") << "the tool's own date is not the run's";
    EXPECT_EQ(stamp("99:99:99"), " ");
    EXPECT_EQ(stamp("2014-13-45 08:05:01"), " 08:05:01");
}

TEST(ImageListing, addressesAndWordsAlone)
{
    EXPECT_EQ(readText("000 00001\n001 34000\n"), "000: 00001 34000");
    EXPECT_EQ(read("000 00001\n001 34000\n").format, imageListing);
    EXPECT_EQ(readText("000 00001 a\n000 00002 b\n"),
              "line 2: Address 000 has two words: 00001 in line 1, and 00002 here.");
    // A word that is missing would be no less wrong than another one.
    EXPECT_EQ(readText("000 00001 LOAD\n001 3400G JUMP\n"), "line 2: \"3400G\" is no word.");
    EXPECT_EQ(readText("000 00001 LOAD\n001 340001 JUMP\n"), "line 2: \"340001\" is no word.");
    EXPECT_EQ(readText("2014 08:05:01\n1024 36kbit\n000 ABCD: LOAD\n000 00001 LOAD\n"), "000: 00001");
    EXPECT_EQ(readText("000 BEEF0 EQU $1F\n000 ADDED LOAD\n000 00001 LOAD\n"), "000: 00001");
    EXPECT_EQ(readText("000 40001 a\n"), "line 1: The word 40001 has more than 18 bits.");
}

TEST(ImageReader, whatIsNoImageIsAnError)
{
    EXPECT_EQ(readText(""), "line 0: The file is empty.");
    EXPECT_EQ(readText(" \r\n\x1a"), "line 0: The file is empty.");
    EXPECT_EQ(readText("LOAD s0, 1\n"), "line 0: The content is no image of a kind that is known.");
    EXPECT_EQ(readText("00001\nLOAD\n"), "line 2: \"LOAD\" is no word.");
    EXPECT_EQ(readText("@0\n00001\n0xxxx\n"), "line 3: \"0xxxx\" is no word.");
    EXPECT_EQ(readText("@0\n00001\n@\n"), "line 3: \"\" is no address.");
    EXPECT_EQ(readText("00001\n/* 2\n3\n"), "line 3: A comment is not ended.");
    EXPECT_EQ(readText("@0\n"), "line 0: The file has no word.");
    EXPECT_EQ(readText("; nothing\n"), "line 0: The content is no image of a kind that is known.");
    for (int format = imageHex; format <= imageLatticeMem; ++format)
        EXPECT_FALSE(ImageReader::formatName(eImageFormat_t(format)).isEmpty()) << format;
}
