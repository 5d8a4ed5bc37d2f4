// What leads into the help and from page to page: every reference of the program, every message, instruction and
// directive, every link.

#include "HelpTree.h"
#include "QtPrinters.h"

#include "InstructionPages.h"
#include "LinkCheck.h"
#include "MessageEntries.h"
#include "MessageTables.h"
#include "ProcTables.h"
#include "eOpcode.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

namespace {

using namespace nsHelpBuild;
using nsModAsmFe::eOpcode_t;

void reportAll(const QStringList& problems)
{
    for (const QString& problem : problems)
        ADD_FAILURE() << problem.toStdString();
}

/// All matches of the first group in the C++ files of a folder, with the files.
QVector<QPair<QString, QString>> foundInCode(const QString& folder, const QString& pattern)
{
    const QRegularExpression expression(pattern);
    QVector<QPair<QString, QString>> found;
    QDirIterator it(HelpTree::sourceDir() + '/' + folder, {"*.cpp", "*.h"}, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        QFile file(it.next());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
        QRegularExpressionMatchIterator matches = expression.globalMatch(QString::fromUtf8(file.readAll()));
        while (matches.hasNext())
            found.append({matches.next().captured(1), file.fileName()});
    }
    return found;
}

TEST(HelpPages, NothingIsWrongWithThem)
{
    reportAll(HelpTree::help().errors());
    reportAll(checkPages(HelpTree::help().pages(), HelpTree::help().contents()));
}

TEST(HelpPages, EveryPictureIsThere)
{
    reportAll(checkPictures(HelpTree::help().pages(), HelpTree::pictures()));
}

TEST(HelpPages, TheGeneratorChecksTheSame)
{
    const bool isRight = HelpTree::help().errors().isEmpty() &&
                         checkPages(HelpTree::help().pages(), HelpTree::help().contents()).isEmpty();
    const QStringList arguments{"--check", HelpTree::folder(), HelpTree::changeLog(), "no-pictures", "no-output"};
    QProcess process;
    process.start(NALVO_HELP_BUILD, arguments);
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), isRight ? 0 : 1) << process.readAllStandardError().constData();
    EXPECT_TRUE(
        process.readAllStandardOutput().startsWith(QByteArray::number(HelpTree::help().pages().size()) + " pages, "));
    EXPECT_FALSE(QFile::exists("no-output"));
}

TEST(HelpReferences, EveryPageThatTheCodeNamesIsThere)
{
    const auto references = foundInCode("src", "page[iI]d://([A-Za-z0-9]+(?:#[\\w-]+)?)\"") +
                            foundInCode("tools", "page[iI]d://([A-Za-z0-9]+(?:#[\\w-]+)?)\"");
    EXPECT_GT(references.size(), 40);
    for (const auto& reference : references) {
        const HelpPage* page = HelpTree::page(reference.first.section('#', 0, 0));
        const QString anchor = reference.first.section('#', 1);
        EXPECT_TRUE(page != nullptr && (anchor.isEmpty() || HelpTree::hasAnchor(*page, anchor)))
            << reference.second.toStdString() << ": " << reference.first.toStdString();
    }
}

TEST(HelpReferences, EveryPageOfAProcessorIsThere)
{
    for (const nsProc::ProcTable* table : nsProc::procTables()) {
        for (const char* id : {table->asmHelpPage, table->simHelpPage, table->cfgHelpPage})
            EXPECT_NE(HelpTree::page(id), nullptr) << table->name << ": " << id;
        EXPECT_NE(HelpTree::page(instructionPageId(*table)), nullptr) << table->name;
    }
}

TEST(HelpReferences, EverySettingsPageHasAPage)
{
    const auto answers = foundInCode("src", "::pageHelpRef\\(\\)[^;{]*\\{([^}]*)\\}");
    EXPECT_GE(answers.size(), 6);
    for (const auto& answer : answers) {
        const QRegularExpression name("(configPage\\w+)\"");
        const HelpPage* page = HelpTree::page(name.match(answer.first).captured(1));
        EXPECT_NE(page, nullptr) << answer.second.toStdString() << ": " << answer.first.toStdString();
    }
}

TEST(HelpReferences, EveryInstructionHasItsPlace)
{
    for (const nsProc::ProcTable* table : nsProc::procTables()) {
        const HelpPage* page = HelpTree::page(instructionPageId(*table));
        ASSERT_NE(page, nullptr) << table->name;
        int count = 0;
        for (int opcode = nsModAsmFe::ocUndefined + 1; opcode < nsModAsmFe::ocCount; ++opcode) {
            const bool isOfProcessor =
                table->isExecuted(eOpcode_t(opcode)) || table->assembled(eOpcode_t(opcode)) != nullptr;
            const QString mnemonic = mnemonicOfOpcode(eOpcode_t(opcode));
            EXPECT_EQ(HelpTree::hasAnchor(*page, mnemonic), isOfProcessor)
                << table->name << ": " << mnemonic.toStdString();
            count += isOfProcessor ? 1 : 0;
        }
        EXPECT_GT(count, 20) << table->name;
    }
}

TEST(HelpReferences, EveryDirectiveHasItsPlace)
{
    const HelpPage* page = HelpTree::page("langDirectives");
    ASSERT_NE(page, nullptr);
    const auto directives = foundInCode("src/Asm/Stages", "\\{\"#([A-Z]+)\", &");
    EXPECT_GE(directives.size(), 10);
    for (const auto& directive : directives)
        EXPECT_TRUE(HelpTree::hasAnchor(*page, directive.first)) << directive.first.toStdString();
}

TEST(HelpEntries, EveryMessageIsExplained)
{
    for (const QString& id : messagePages()) {
        const HelpPage* page = HelpTree::page(id);
        ASSERT_NE(page, nullptr) << id.toStdString();
        const MessageTexts messages = messagesOfPage(id);
        EXPECT_FALSE(messages.isEmpty()) << id.toStdString();
        for (const HelpAnchor& anchor : page->anchors) {
            if (!messages.contains(anchor.name))
                continue;
            // More than its grade and its text.
            const QString text = messages.value(anchor.name).text;
            EXPECT_TRUE(anchor.text.contains(text)) << id.toStdString() << ": " << anchor.name.toStdString();
            EXPECT_GT(anchor.text.size(), text.size() + 40) << id.toStdString() << ": " << anchor.name.toStdString();
        }
    }
}

/// What the pages say about messages, as one line.
QString textOfEntries()
{
    QString text;
    for (const QString& id : entryPages() + QStringList{"nalvoAsm", "nalvoSim"}) {
        const HelpPage* page = HelpTree::page(id);
        EXPECT_NE(page, nullptr) << id.toStdString();
        if (page == nullptr)
            continue;
        text += page->intro;
        for (const HelpAnchor& anchor : page->anchors)
            text += anchor.title + ' ' + anchor.text;
    }
    return text.simplified();
}

/// The texts in double quotes of a piece of code, those that follow each other as one, without the places of arguments.
QStringList textsOf(QString code)
{
    static const QRegularExpression joints("\"\\s*\"");
    static const QRegularExpression literal("\"((?:[^\"\\\\]|\\\\.)*)\"");
    static const QRegularExpression places("%\\d|\\\\n");
    static const QRegularExpression end("[:.\\s]+$");
    QStringList texts;
    code.remove(joints);
    QRegularExpressionMatchIterator it = literal.globalMatch(code);
    while (it.hasNext()) {
        for (QString text : it.next().captured(1).split(places)) {
            text = text.trimmed().remove(end);
            if (text.contains(' '))
                texts.append(text);
        }
    }
    return texts;
}

TEST(HelpEntries, EveryTextWithoutAKeyIsExplained)
{
    const QString entries = textOfEntries();
    const QString calls = "(?:show(?:Error|Warning|Info)Message|openGroup)\\(([^;]*);";
    int count = 0;
    for (const auto& call : foundInCode("src", calls) + foundInCode("tools", calls)) {
        for (const QString& text : textsOf(call.first)) {
            EXPECT_TRUE(entries.contains(text)) << call.second.toStdString() << ": " << text.toStdString();
            ++count;
        }
    }
    EXPECT_GT(count, 20);
}

TEST(HelpEntries, TheAssemblerPrintsThem)
{
    const QTemporaryDir dir;
    QDir(dir.path()).mkpath("bin");
    QDir(dir.path()).mkpath("hlp");
    ASSERT_TRUE(QFile::copy(NALVO_ASM, dir.filePath("bin/nalvo-asm")));
    QFile file(dir.filePath("hlp/messages.txt"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(messageEntries(HelpTree::help().pages()));
    file.close();
    QProcess process;
    process.start(dir.filePath("bin/nalvo-asm"), {"--explain", "errsyntax"});
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 0);
    const QByteArray text = process.readAllStandardOutput();
    EXPECT_TRUE(text.startsWith("errSyntax  (Messages of the assembler)\n\nError: Syntax error.\n\n"))
        << text.constData();
    EXPECT_TRUE(text.contains("\nProvokes it:\n\n    #EQU")) << text.constData();
    EXPECT_TRUE(text.contains("\nMended:\n\n    #EQU")) << text.constData();
}

} // namespace
