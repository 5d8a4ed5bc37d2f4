#include "FlatGrammar.h"
#include "Painted.h"
#include "Tool.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

TEST(SyntaxTextMate, paintsTheSamples)
{
    const FlatGrammar grammar = FlatGrammar::ofTextMate(definition("vscode/syntaxes/nalvo.tmLanguage.json"));
    expectSamples(grammar.painted(sampleLines()), "TextMate");
}

TEST(SyntaxTextMate, paintsTheSourcesAsTheWindow)
{
    const FlatGrammar grammar = FlatGrammar::ofTextMate(definition("vscode/syntaxes/nalvo.tmLanguage.json"));
    expectAsWindow(grammar.painted(sourceLines()), "TextMate");
}

TEST(SyntaxGtk, paintsTheSamples)
{
    const FlatGrammar grammar = FlatGrammar::ofGtk(definition("gtksourceview/nalvo.lang"));
    expectSamples(grammar.painted(sampleLines()), "GtkSourceView");
}

TEST(SyntaxGtk, paintsTheSourcesAsTheWindow)
{
    const FlatGrammar grammar = FlatGrammar::ofGtk(definition("gtksourceview/nalvo.lang"));
    expectAsWindow(grammar.painted(sourceLines()), "GtkSourceView");
}
