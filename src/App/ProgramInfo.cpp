#include "ProgramInfo.h"

#include "Release.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace ProgramInfo {

namespace {

const char* const program = "nalvo";
const char* const helpOption = "--help";
const char* const versionOption = "--version";

QString tr(const char* text)
{
    return QCoreApplication::translate("ProgramInfo", text);
}

bool contains(int argc, const char* const* argv, const char* option)
{
    return std::any_of(argv + std::min(argc, 1), argv + argc,
                       [option](const char* word) { return std::strcmp(word, option) == 0; });
}

QString helpText()
{
    // The window reads its arguments itself, and reports what is wrong with them in its message view: the parser only
    // sets out this text, in the form that the batch programs have.
    QCommandLineParser parser;
    parser.setApplicationDescription(tr("Opens the window of Nalvo, on a project and with a script where they are "
                                        "given.\nMessages about the command line are in the message view."));
    parser.addOptions({
        {"s", tr("Run the script, after the project is open."), tr("SCRIPT.js")},
        {"help", tr("Show this help.")},
        {"version", tr("Show the version.")},
    });
    parser.addPositionalArgument("PROJECT.nalvo", tr("The project to open."), "[PROJECT.nalvo]");
    return parser.helpText();
}

} // namespace

bool isAsked(int argc, const char* const* argv)
{
    return contains(argc, argv, helpOption) || contains(argc, argv, versionOption);
}

QString text(int argc, const char* const* argv)
{
    if (contains(argc, argv, helpOption))
        return helpText();
    return QString::fromLatin1(program) + ' ' + Release::own().text() + '\n';
}

int show(int argc, char** argv)
{
    QByteArray name(program);
    char* names[] = {name.data(), nullptr};
    int count = 1;
    const QCoreApplication application(count, names);
    const QByteArray bytes = text(argc, argv).toLocal8Bit();
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stdout);
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0)
        return 0;
    std::fprintf(stderr, "%s: %s\n", program, qPrintable(tr("Can not write standard output.")));
    return 1;
}

} // namespace ProgramInfo
