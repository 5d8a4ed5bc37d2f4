#include "AsmToolFixture.h"
#include "Assembly.h"
#include "CfgStore.h"
#include "ExampleFolder.h"
#include "ImageProof.h"
#include "ImageText.h"
#include "PrjConfig.h"
#include "ProcTable.h"
#include "Processor.h"
#include "Project.h"
#include "Rescue.h"
#include "SourcesConfig.h"

using namespace nsImport;

// The examples, assembled by the batch program: each of the files that it writes holds the same image, and so does the
// result of assembling in memory and of a rescue.

namespace {

struct sExample_t
{
    const char* name;
    const char* output;       ///< name of the outputs without their endings
    const char* oldText = ""; ///< of the project file, for another template
    const char* newText = "";
    bool hasHdl = true;
    bool memHasGaps = false;
};

void PrintTo(const sExample_t& example, std::ostream* stream)
{
    *stream << example.name << ' ' << example.newText;
}

class ImageOfExamples : public AsmToolTest, public ::testing::WithParamInterface<sExample_t>
{
protected:
    QString project() const { return path(QString("%1/%1.nalvo").arg(GetParam().name)); }

    void assemble()
    {
        copyFolder(NALVO_SOURCE_DIR "/examples", path());
        mkdir(QString(GetParam().name) + "/output");
        QFile file(project());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        QByteArray text = file.readAll();
        file.close();
        if (*GetParam().oldText != '\0') {
            ASSERT_TRUE(text.contains(GetParam().oldText));
            text.replace(GetParam().oldText, GetParam().newText);
            ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
            file.close();
        }
        const AsmToolResult result = run({"-q", "-l", path("list"), project()});
        ASSERT_EQ(result.status, 0) << result.err.constData();
    }

    ImageResult read(const QString& file) const
    {
        const ImageResult result = ImageReader().readFile(file);
        EXPECT_TRUE(result.ok) << qPrintable(file) << ": " << qPrintable(result.error) << " " << result.errorLine;
        return result;
    }
    ImageResult output(const char* ending) const
    {
        return read(path(QString("%1/output/%2%3").arg(GetParam().name, GetParam().output, ending)));
    }

    /// Opens the project as a batch program does.
    void open()
    {
        ASSERT_TRUE(m_project.open(project(), nullptr));
        m_sources.rdSourcesConfig(&m_project, nullptr);
        m_processor = nsProc::Processor::ofProject(&m_project);
        m_config.rdAsmFeConfig(&m_project);
        ASSERT_NE(m_processor, nullptr);
    }

    CfgStore m_settings;
    nsModPrj::PrjConfig m_info;
    nsModPrj::Project m_project{&m_settings, &m_info};
    nsModSources::SourcesConfig m_sources;
    nsModAsmFe::AsmFeConfig m_config;
    std::unique_ptr<nsProc::Processor> m_processor;
};

} // namespace

TEST_P(ImageOfExamples, everyOutputIsTheSameImage)
{
    ASSERT_NO_FATAL_FAILURE(assemble());
    const ImageResult list = read(path("list"));
    EXPECT_EQ(list.format, imageListing);
    const ImageResult hex = output(".hex");
    EXPECT_EQ(hex.format, imageHex);
    ASSERT_GT(list.image.count(), 20);
    ASSERT_EQ(hex.image.count() % 1024, 0);
    for (int address = 0; address < hex.image.size(); ++address)
        ASSERT_EQ(hex.image.word(address), list.image.word(address)) << address;

    const ImageResult mem = output(".mem");
    EXPECT_EQ(mem.format, imageMem);
    EXPECT_EQ(imageText(mem.image), imageText(GetParam().memHasGaps ? list.image : hex.image));
    if (!GetParam().hasHdl)
        return;
    for (const char* ending : {".vhd", ".v"}) {
        const ImageResult hdl = output(ending);
        EXPECT_EQ(hdl.format, imageHdl);
        EXPECT_EQ(imageText(hdl.image), imageText(hex.image)) << ending;
    }
}

TEST_P(ImageOfExamples, assemblingInMemoryGivesTheSame)
{
    ASSERT_NO_FATAL_FAILURE(assemble());
    ASSERT_NO_FATAL_FAILURE(open());
    QVector<AssemblySource> sources;
    for (const QString& file : m_sources.srcFiles) {
        QFile source(file);
        ASSERT_TRUE(source.open(QIODevice::ReadOnly));
        sources.append({QDir(path()).relativeFilePath(file), source.readAll()});
    }
    Assembly assembly(m_processor->table());
    assembly.settings = m_processor->settings();
    assembly.config = m_config;
    const AssemblyResult result = assembly.run(sources);
    ASSERT_TRUE(result.ok) << qPrintable(result.firstError());
    const ImageProof proof(m_processor->table());
    const ImageProofResult same = proof.compare(result.image, output(".hex").image);
    EXPECT_TRUE(same.equal) << qPrintable(same.report().join('\n'));
    EXPECT_EQ(same.equalCount + same.filledCount, output(".hex").image.count());

    // A word that is another one is found, with both lines.
    const ProgramImage hex = output(".hex").image;
    ProgramImage other;
    for (int address = 0; address < hex.size(); ++address)
        other.setWord(address, address == 7 ? hex.word(address) ^ 1 : hex.word(address), address + 1);
    const ImageProofResult wrong = proof.compare(result.image, other);
    EXPECT_FALSE(wrong.equal);
    ASSERT_EQ(wrong.differenceCount, 1);
    EXPECT_EQ(wrong.first.first().address, 7);
    EXPECT_EQ(wrong.first.first().referencePlace.line, 8);
    EXPECT_TRUE(wrong.first.first().oursPlace.file.endsWith(".psm"));
}

TEST_P(ImageOfExamples, aRescueGivesTheSame)
{
    ASSERT_NO_FATAL_FAILURE(assemble());
    ASSERT_NO_FATAL_FAILURE(open());
    const ProgramImage hex = output(".hex").image;
    const RescueResult result = Rescue(m_processor->table()).run(hex);
    ASSERT_TRUE(result.ok) << qPrintable(result.error);
    EXPECT_TRUE(result.invalid.isEmpty());
    EXPECT_EQ(result.addedCount, 0);
    EXPECT_EQ(result.settings.pageSize, hex.size());
    Assembly assembly(m_processor->table());
    assembly.settings = result.settings;
    const AssemblyResult again = assembly.run({{"a.psm", result.source}});
    ASSERT_TRUE(again.ok) << qPrintable(again.firstError());
    const ImageProofResult same = ImageProof(m_processor->table()).compare(again.image, hex);
    EXPECT_TRUE(same.equal) << qPrintable(same.report().join('\n'));
    // For a look: what an engineer gets.
    QDir().mkpath(NALVO_BINARY_DIR "/rescued");
    QFile file(QString(NALVO_BINARY_DIR "/rescued/%1.psm").arg(GetParam().name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(result.source) == result.source.size());
}

INSTANTIATE_TEST_SUITE_P(
    Examples, ImageOfExamples,
    ::testing::Values(sExample_t{"uart_monitor", "uart_monitor_rom"},
                      sExample_t{"uart_monitor", "uart_monitor_rom", "rom_1kx18", "rom_1kx18_halves"},
                      sExample_t{"uart_monitor", "uart_monitor_rom", "<gapStuffingEn>1", "<gapStuffingEn>0", true,
                                 true},
                      sExample_t{"two_pages", "two_pages_rom"},
                      sExample_t{"two_pages", "two_pages_rom", "rom_2kx18", "rom_2kx18_halves"},
                      sExample_t{"motor_control", "motor_control_rom"}, sExample_t{"keypad_lock", "keypad_lock_rom"},
                      sExample_t{"split_rams", "split_rams_program", "", "", false, true}));
