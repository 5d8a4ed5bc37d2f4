#include "CodeExtension.h"
#include "FlatGrammar.h"
#include "Grammar.h"
#include "QtPrinters.h"
#include "Tool.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>

using namespace nsSyntax;

namespace {

QJsonObject object(const QByteArray& json)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    EXPECT_EQ(error.error, QJsonParseError::NoError) << error.errorString().toStdString();
    return document.object();
}

QRegularExpression regExp(const QString& expression)
{
    QRegularExpression result(expression);
    EXPECT_TRUE(result.isValid()) << expression.toStdString();
    return result;
}

/// The messages of a real run: an error, a warning, and one without a place.
QStringList messages()
{
    QTemporaryDir dir;
    writeText(dir.filePath("a.psm"), "#EQU unused, 1\n        NOP\n");
    writeText(dir.filePath("b.psm"), "; a source\nstart:  LOAD s0, 300\n");
    QStringList lines;
    for (const char* source : {"a.psm", "b.psm"}) {
        writeText(dir.filePath("p.nalvo"), QByteArray("<project version=\"3\"><sources><srcFiles>") + source +
                                               "</srcFiles></sources><ModProcessor><processor>Xilinx PicoBlaze 3"
                                               "</processor></ModProcessor></project>");
        QProcess process;
        process.setWorkingDirectory(dir.path());
        process.start(NALVO_ASM, {"-e", "none", "p.nalvo"});
        EXPECT_TRUE(process.waitForFinished(60000));
        lines += QString::fromUtf8(process.readAllStandardError()).split('\n', Qt::SkipEmptyParts);
    }
    return lines;
}

} // namespace

TEST(SyntaxGrammar, eachRuleHasANameAndEachKindAStyle)
{
    QSet<QString> names;
    QSet<int> kinds;
    const Grammar grammar;
    for (const sRule_t& rule : grammar.rules()) {
        EXPECT_FALSE(names.contains(rule.name)) << rule.name.toStdString();
        names.insert(rule.name);
        kinds.insert(rule.kind);
    }
    // The assembler gives no text the look of a documentation.
    EXPECT_EQ(kinds.size(), int(nsModAsmFe::highlightCount) - 1);
    EXPECT_EQ(styles().size(), kinds.size());
    for (const sStyle_t& style : styles())
        EXPECT_TRUE(kinds.contains(style.kind)) << style.id;
}

TEST(SyntaxGrammar, knowsTheWordsOfAllProcessors)
{
    QStringList words;
    const Grammar grammar;
    for (const sRule_t& rule : grammar.rules())
        words += rule.words;
    for (const char* word : {"s0", "sF", "r0", "r31", "A", "B", "HWBUILD", "STAR", "NZ", "fifo", "MEMRANGE"})
        EXPECT_TRUE(words.contains(word)) << word;
    EXPECT_FALSE(words.contains("r32"));
    EXPECT_FALSE(words.contains("sG"));
}

TEST(SyntaxGtk, fitsTheSchemaOfTheLibrary)
{
    outputOf("xmllint",
             {"--noout", "--relaxng", "/usr/share/gtksourceview-4/language-specs/language2.rng",
              NALVO_EDITOR_DIR "/gtksourceview/nalvo.lang"},
             QProcessEnvironment::systemEnvironment());
}

TEST(SyntaxInstall, putsEachFileWhereItsEditorLooks)
{
    QTemporaryDir dir;
    outputOf(NALVO_CMAKE, {"--install", NALVO_BINARY_DIR, "--component", "editors", "--prefix", dir.path()},
             QProcessEnvironment::systemEnvironment());
    for (const char* file :
         {"org.kde.syntax-highlighting/syntax/nalvo.xml", "gtksourceview-4/language-specs/nalvo.lang",
          "gtksourceview-5/language-specs/nalvo.lang", "vim/vimfiles/syntax/nalvo.vim",
          "vim/vimfiles/ftdetect/nalvo.vim", "vim/vimfiles/ftplugin/nalvo.vim", "vim/vimfiles/compiler/nalvo_asm.vim",
          "nalvo/editors/vscode/package.json", "nalvo/editors/vscode/syntaxes/nalvo.tmLanguage.json"})
        EXPECT_TRUE(QFile::exists(dir.filePath("share/" + QString(file)))) << file;
}

TEST(SyntaxCode, thePackageNamesItsFiles)
{
    const QJsonObject package = object(definition("vscode/package.json"));
    EXPECT_TRUE(regExp("^\\d+\\.\\d+\\.\\d+$").match(package.value("version").toString()).hasMatch());
    const QJsonObject contributes = package.value("contributes").toObject();
    QStringList files;
    for (const char* key : {"languages", "grammars"}) {
        for (const QJsonValue& entry : contributes.value(key).toArray()) {
            for (const char* file : {"configuration", "path"}) {
                if (entry.toObject().contains(file))
                    files.append(entry.toObject().value(file).toString());
            }
        }
    }
    EXPECT_EQ(files, QStringList({"./language-configuration.json", "./syntaxes/nalvo.tmLanguage.json"}));
    for (const QString& file : files)
        EXPECT_FALSE(object(definition("vscode/" + file)).isEmpty()) << file.toStdString();
    const QJsonObject grammar = contributes.value("grammars").toArray().at(0).toObject();
    EXPECT_EQ(grammar.value("scopeName"),
              object(definition("vscode/syntaxes/nalvo.tmLanguage.json")).value("scopeName"));
    EXPECT_EQ(grammar.value("language"), contributes.value("languages").toArray().at(0).toObject().value("id"));
}

TEST(SyntaxCode, foldsWhatTheWindowFolds)
{
    const QJsonObject configuration = object(definition("vscode/language-configuration.json"));
    EXPECT_EQ(configuration.value("comments").toObject().value("lineComment").toString(), ";");
    const QJsonObject markers = configuration.value("folding").toObject().value("markers").toObject();
    const QRegularExpression start = regExp(markers.value("start").toString());
    const QRegularExpression end = regExp(markers.value("end").toString());
    for (const char* line : {"#IFDEF a", "  #ifdef a", "#NAMESPACE n", "; \\navGrpBegin \"g\""}) {
        EXPECT_TRUE(start.match(line).hasMatch()) << line;
        EXPECT_FALSE(end.match(line).hasMatch()) << line;
    }
    for (const char* line : {"#ENDIF", " #EndNamespace", ";\\navGrpEnd"}) {
        EXPECT_TRUE(end.match(line).hasMatch()) << line;
        EXPECT_FALSE(start.match(line).hasMatch()) << line;
    }
    EXPECT_FALSE(start.match("; #IFDEF a").hasMatch());
}

TEST(SyntaxMessages, areMatchedByTheExtension)
{
    const QJsonObject matcher = object(definition("vscode/package.json"))
                                    .value("contributes")
                                    .toObject()
                                    .value("problemMatchers")
                                    .toArray()
                                    .at(0)
                                    .toObject();
    EXPECT_EQ(matcher.value("name").toString(), "nalvo-asm");
    const QJsonObject pattern = matcher.value("pattern").toObject();
    const QRegularExpression expression = regExp(pattern.value("regexp").toString());
    QStringList found;
    for (const QString& line : messages()) {
        const QRegularExpressionMatch match = expression.match(line);
        if (!match.hasMatch())
            continue;
        QStringList fields;
        for (const char* field : {"file", "line", "severity", "message", "code"})
            fields.append(match.captured(pattern.value(field).toInt()));
        found.append(fields.join('|'));
    }
    EXPECT_EQ(found, QStringList({"a.psm|1|warning|Unused EQU directive: unused|warnEquUnused",
                                  "b.psm|2|error|Value \"300\"exceeds maximum of \"255\"!|errExceededMaxNumeric"}));
}

/// As the usual matchers for GCC and GNU see the messages.
TEST(SyntaxMessages, areMatchedLikeThoseOfACompiler)
{
    const char* const matchers[] = {
        // VS Code: file, line, column or nothing, severity, text
        "^(?<file>.*?):(?<line>\\d+):(?:\\d*):?\\s+(?:fatal\\s+)?(?<severity>warning|error):\\s+(?<text>.*)$",
        // Kate's plug-in for builds
        "(?<file>(?:[a-np-zA-Z]:[\\\\/])?[^\\s:(]+)[:\\(](?<line>\\d+)[,:]?(?:\\d+)?[\\):]* (?<severity>\\w+): "
        "(?<text>.*)"};
    for (const char* matcher : matchers) {
        const QRegularExpression expression = regExp(matcher);
        QStringList found;
        for (const QString& line : messages()) {
            const QRegularExpressionMatch match = expression.match(line);
            if (match.hasMatch())
                found.append(match.captured("file") + ':' + match.captured("line") + ' ' + match.captured("severity"));
        }
        EXPECT_EQ(found, QStringList({"a.psm:1 warning", "b.psm:2 error"})) << matcher;
    }
}
