#include "VimDefinition.h"

#include "Grammar.h"

#include <QStringList>
#include <QVector>

namespace nsSyntax {

namespace {

QByteArray header(const char* what)
{
    return QByteArray("\" Vim ") + what + " for " + languageTitle + "\n\" Written by the build of Nalvo.\n\n";
}

QString groupOf(eHighlight_t kind)
{
    QString id = QLatin1String(styleOf(kind).id);
    id[0] = id[0].toUpper();
    return languageId + id;
}

QString matchOf(const sRule_t& rule)
{
    QString line = "syntax match " + groupOf(rule.kind) + ' ';
    line += "/" + vimExpression(rule.expression) + (rule.cs == Qt::CaseInsensitive ? "\\c/" : "\\C/");
    if (reachesLineEnd(rule))
        line += QString(" contains=%1,@Spell").arg(groupOf(nsModAsmFe::highlightNavigator));
    if (rule.place == placeComment)
        line += " contained";
    return line;
}

} // namespace

QString vimExpression(const QString& expression)
{
    QString result;
    QStringList ends; // of the open groups
    for (int i = 0; i < expression.size(); ++i) {
        const QStringRef rest = expression.midRef(i);
        const QChar character = expression.at(i);
        if (rest.startsWith(QLatin1String("(?<="))) {
            result += QLatin1String("\\%(");
            ends.append(QStringLiteral("\\)\\@<="));
            i += 3;
        } else if (rest.startsWith(QLatin1String("(?:"))) {
            result += QLatin1String("\\%(");
            ends.append(QStringLiteral("\\)"));
            i += 2;
        } else if (character == ')') {
            result += ends.takeLast();
        } else if (rest.startsWith(QLatin1String("\\b"))) {
            // A word begins where an expression begins, and ends elsewhere.
            result += i == 0 ? QLatin1String("\\<") : QLatin1String("\\>");
            ++i;
        } else if (character == '\\') {
            result += rest.left(2);
            ++i;
        } else if (character == '[') {
            // A collection is written alike.
            const int end = expression.indexOf(']', i);
            result += expression.midRef(i, end - i + 1);
            i = end;
        } else {
            if (QStringLiteral("+?{|").contains(character))
                result += '\\';
            result += character;
        }
    }
    return result;
}

QByteArray vimSyntax(const Grammar& grammar)
{
    QStringList lines = {"if exists(\"b:current_syntax\")",
                         "  finish",
                         "endif",
                         "let s:cpo = &cpo",
                         "set cpo&vim",
                         "",
                         "syntax iskeyword @,48-57,_,192-255",
                         "\" Each item of a line begins anew.",
                         "syntax sync minlines=1",
                         ""};
    // Of those that match at the same place, the last one counts.
    const QVector<sRule_t>& rules = grammar.rules();
    for (int i = rules.size() - 1; i >= 0; --i)
        lines.append(matchOf(rules.at(i)));
    lines.append(QString());
    for (const sStyle_t& style : styles())
        lines.append("highlight default link " + groupOf(style.kind) + ' ' + style.vim);
    lines << QString() << QString("let b:current_syntax = \"%1\"").arg(languageId) << "let &cpo = s:cpo"
          << "unlet s:cpo" << QString();
    return header("syntax file") + lines.join('\n').toUtf8();
}

QByteArray vimDetection()
{
    return header("detection of files") + "autocmd BufNewFile,BufRead " + sourcePattern + " setfiletype " + languageId +
           "\nautocmd BufNewFile,BufRead *" + projectSuffix + " setfiletype xml\n";
}

QByteArray vimPlugin()
{
    return header("file type plugin") + R"(if exists("b:did_ftplugin")
  finish
endif
let b:did_ftplugin = 1

setlocal comments=:; commentstring=;\ %s
setlocal formatoptions-=t
" gq puts lines into columns.
setlocal formatprg=nalvo-asm\ --format\ -
let b:undo_ftplugin = "setlocal comments< commentstring< formatoptions< formatprg<"
)";
}

QByteArray vimCompiler()
{
    return header("compiler file") + R"(if exists("current_compiler")
  finish
endif
let current_compiler = "nalvo_asm"
if exists(":CompilerSet") != 2
  command -nargs=* CompilerSet setlocal <args>
endif

" The project: b:nalvo_project, g:nalvo_project, or the one that lies in the present folder. Options are given to :make.
let s:project = get(b:, "nalvo_project", get(g:, "nalvo_project", get(glob("*.nalvo", 0, 1), 0, "")))
if s:project != ""
  let s:project = " -- " . shellescape(s:project, 1)
endif
execute "CompilerSet makeprg=" . escape("nalvo-asm $*" . s:project, ' \|"')
unlet s:project

CompilerSet errorformat=
      \%f:%l:\ %trror:\ %m,
      \%f:%l:\ %tarning:\ %m,
      \%f:%l:\ %tnfo:\ %m,
      \%f:\ %trror:\ %m,
      \%f:\ %tarning:\ %m,
      \%f:\ %tnfo:\ %m,
      \%trror:\ %m,
      \%tarning:\ %m,
      \%tnfo:\ %m
)";
}

} // namespace nsSyntax
