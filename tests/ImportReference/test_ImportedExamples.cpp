// The programs under examples/import through the converter, with their reference images.

#include "ImportRun.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using foreign::Dialect;

namespace {

struct Example
{
    const char* main;
    const char* reference;
    Dialect dialect;
    int memorySize;
};

const Example examples[] = {
    {"kcpsm3/belt_counter.psm", "kcpsm3/belt_counter.hex", Dialect::Kcpsm3, 1024},
    {"kcpsm3/belt_counter.psm", "kcpsm3/belt_counter.log", Dialect::Kcpsm3, 1024},
    {"kcpsm6/console.psm", "kcpsm6/console.log", Dialect::Kcpsm6, 2048},
    {"pblazide/stepper.psm", "pblazide/stepper.hex", Dialect::PBlazIde, 1024},
    {"mico8_vendor/flash_reader.s", "mico8_vendor/flash_reader.hex", Dialect::Mico8Vendor, 1024},
    {"mico8_gnu/monitor.s", "mico8_gnu/monitor.hex", Dialect::Mico8Gnu, 512},
};

QString pathOf(const char* name)
{
    return QString(NALVO_SOURCE_DIR "/examples/import/") + name;
}

class ImportedExamples : public ::testing::TestWithParam<Example>
{
protected:
    ToolRun import(const QString& dialect, const QString& reference)
    {
        return runTool(
            NALVO_IMPORT,
            {"-d", dialect, "-o", m_folder.filePath("result"), "--reference", reference, pathOf(GetParam().main)},
            m_folder.path());
    }

    QTemporaryDir m_folder;
};

} // namespace

TEST_P(ImportedExamples, areTheSamePrograms)
{
    const ToolRun run = import(dialectOption(GetParam().dialect), pathOf(GetParam().reference));
    EXPECT_EQ(run.status, 0) << run.out.toStdString() << run.err.toStdString();
    EXPECT_TRUE((run.out + run.err).contains("all equal")) << run.out.toStdString() << run.err.toStdString();
    QString problem;
    const QMap<int, quint32> words = assembledProject(m_folder.filePath("result"), &problem);
    EXPECT_EQ(problem.toStdString(), "");
    QStringList errors;
    foreign::Options options;
    options.memorySize = GetParam().memorySize;
    const foreign::Image image = foreign::assemble(GetParam().dialect, pathOf(GetParam().main), options, &errors);
    EXPECT_EQ(differences(image.words, words).toStdString(), "");
}

TEST_P(ImportedExamples, areRecognised)
{
    const ToolRun run = import("auto", pathOf(GetParam().reference));
    EXPECT_EQ(run.status, 0) << run.out.toStdString() << run.err.toStdString();
}

/// A reference with one other word ends with 1, and the line of the original is named.
TEST_P(ImportedExamples, showTheFirstOtherWord)
{
    QFile original(pathOf(GetParam().reference));
    ASSERT_TRUE(original.open(QIODevice::ReadOnly));
    QByteArray text = original.readAll();
    // The word at 3 is an instruction in each of them.
    const bool log = QString(GetParam().reference).endsWith(".log");
    const int place = log ? text.indexOf("\n  003  ") + 8 : 3 * 6;
    text[place + 4] = text[place + 4] == '1' ? '2' : '1';
    const QString changed = m_folder.filePath(log ? "changed.log" : "changed.hex");
    QFile file(changed);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
    file.close();
    const ToolRun run = import(dialectOption(GetParam().dialect), changed);
    EXPECT_EQ(run.status, 1) << run.out.toStdString() << run.err.toStdString();
    const QString word = QString::fromLatin1(text.mid(place, 5));
    EXPECT_TRUE((run.out + run.err).contains(word, Qt::CaseInsensitive))
        << run.out.toStdString() << run.err.toStdString();
    EXPECT_FALSE((run.out + run.err).contains("all equal"));
}

INSTANTIATE_TEST_SUITE_P(All, ImportedExamples, ::testing::ValuesIn(examples));
