// Writes the syntax definitions for other editors.
//
//     nalvo-syntax-definitions <version> <output folder>
//
// Ends with 0 if all is written, with 1 and a message otherwise.

#include "CodeExtension.h"
#include "Grammar.h"
#include "GtkDefinition.h"
#include "KateDefinition.h"
#include "VimDefinition.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstdio>

namespace {

using namespace nsSyntax;

struct sFile_t
{
    const char* path;
    QByteArray content;
};

QVector<sFile_t> filesOf(const Grammar& grammar, const QString& version)
{
    return {{"kate/nalvo.xml", kateDefinition(grammar)},
            {"gtksourceview/nalvo.lang", gtkDefinition(grammar)},
            {"vim/syntax/nalvo.vim", vimSyntax(grammar)},
            {"vim/ftdetect/nalvo.vim", vimDetection()},
            {"vim/ftplugin/nalvo.vim", vimPlugin()},
            {"vim/compiler/nalvo_asm.vim", vimCompiler()},
            {"vscode/package.json", codePackage(version)},
            {"vscode/language-configuration.json", codeLanguage()},
            {"vscode/syntaxes/nalvo.tmLanguage.json", textMateGrammar(grammar)}};
}

bool writeFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    const bool written = QFileInfo(path).dir().mkpath(QStringLiteral(".")) && file.open(QIODevice::WriteOnly) &&
                         file.write(content) == content.size() && file.flush();
    if (!written)
        std::fprintf(stderr, "nalvo-syntax-definitions: %s: %s\n", qPrintable(path), qPrintable(file.errorString()));
    return written;
}

} // namespace

int main(int argc, char* argv[])
{
    qSetGlobalQHashSeed(0);
    if (argc != 3) {
        std::fprintf(stderr, "usage: nalvo-syntax-definitions <version> <output folder>\n");
        return 1;
    }
    const QDir out(QFile::decodeName(argv[2]));
    const QVector<sFile_t> files = filesOf(Grammar(), QString::fromLocal8Bit(argv[1]));
    for (const sFile_t& file : files) {
        if (!writeFile(out.filePath(file.path), file.content))
            return 1;
    }
    return 0;
}
