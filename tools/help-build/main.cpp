// Turns the sources of the help into what the help compiler makes the program's collection of, or into a web site.
//
//     nalvo-help-build [--check | --site] <folder of the sources> <change log> <folder of the pictures> <output folder>
//     nalvo-help-build --fix-times <collection file of the help compiler>
//
// Ends with 0 if all is written, with 1 and messages on the error stream otherwise. What is wrong between the pages is
// reported; with --check it is a failure, nothing is written, and figures of the help are printed. A picture that is
// missing is always a failure, except that --check does not look for pictures, which come from a run of the program.

#include "CollectionTimes.h"
#include "CollectionWriter.h"
#include "HelpSources.h"
#include "LinkCheck.h"
#include "MessageTables.h"
#include "Pictures.h"
#include "SiteWriter.h"

#include <QCoreApplication>

#include <cstdio>

namespace {

using namespace nsHelpBuild;

int fail(const QStringList& lines)
{
    for (const QString& line : lines)
        std::fprintf(stderr, "nalvo-help-build: %s\n", qPrintable(line));
    return 1;
}

/// Prints how much there is.
void printFigures(const HelpSources& help)
{
    int places = 0;
    int links = 0;
    int examples = 0;
    int keys = 0;
    for (const HelpPage& page : help.pages()) {
        places += page.anchors.size();
        links += page.links.size();
        examples += page.examples.size();
    }
    for (const QString& id : messagePages())
        keys += messagesOfPage(id).size();
    std::printf("%d pages, %d places, %d links, %d messages with a key, %d examples\n", int(help.pages().size()),
                places, links, keys, examples);
}

template <class Writer>
int write(const HelpSources& help, const QString& pictureDir, const QDir& out)
{
    if (!out.mkpath(QStringLiteral(".")))
        return fail({out.path() + QStringLiteral(": the folder can not be made")});
    Writer writer(out);
    return writer.write(help, copyPictures(pictureDir, help.pages(), out)) ? 0 : fail({writer.errorText()});
}

} // namespace

int main(int argc, char* argv[])
{
    qSetGlobalQHashSeed(0);
    QCoreApplication app(argc, argv);
    QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments.size() == 2 && arguments.first() == QLatin1String("--fix-times")) {
        QString error;
        return fixCollectionTimes(arguments.last(), &error) ? 0
                                                            : fail({arguments.last() + QStringLiteral(": ") + error});
    }
    const bool onlyCheck = arguments.removeAll(QStringLiteral("--check")) > 0;
    const bool isSite = arguments.removeAll(QStringLiteral("--site")) > 0;
    if (arguments.size() != 4 || (onlyCheck && isSite))
        return fail(
            {QStringLiteral("usage: nalvo-help-build [--check | --site] <sources> <change log> <pictures> <output>")});

    HelpSources help;
    help.read(arguments.at(0), arguments.at(1));
    const QString pictureDir = arguments.at(2);
    const QStringList problems = help.errors() + checkPages(help.pages(), help.contents());
    if (onlyCheck) {
        printFigures(help);
        return problems.isEmpty() ? 0 : fail(problems);
    }
    fail(problems);
    const QStringList missing = checkPictures(help.pages(), pictureDir);
    if (!missing.isEmpty())
        return fail(missing);
    help.setPictureWidths(pictureDir);
    const QDir out(arguments.at(3));
    return isSite ? write<SiteWriter>(help, pictureDir, out) : write<CollectionWriter>(help, pictureDir, out);
}
