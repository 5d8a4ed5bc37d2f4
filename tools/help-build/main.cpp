// Turns the sources of the help into what the help compiler makes the program's collection of.
//
//     nalvo-help-build [--check] <folder of the sources> <change log> <folder of the pictures> <output folder>
//
// Ends with 0 if all is written, with 1 and messages on the error stream otherwise. What is wrong between the pages is
// reported; with --check it is a failure, and nothing is written.

#include "CollectionWriter.h"
#include "Contents.h"
#include "InstructionPages.h"
#include "LinkCheck.h"
#include "MarkdownConverter.h"
#include "MessageTables.h"
#include "PageReader.h"

#include <QCoreApplication>
#include <QFile>

#include <cstdio>

namespace {

using namespace nsHelpBuild;

int fail(const QStringList& lines)
{
    for (const QString& line : lines)
        std::fprintf(stderr, "nalvo-help-build: %s\n", qPrintable(line));
    return 1;
}

/// The change log as a page.
HelpPage releaseNotes(const QString& path, QStringList* errors)
{
    HelpPage page;
    page.source = path;
    page.id = QStringLiteral("releaseNotes");
    page.title = QStringLiteral("Release notes");
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        errors->append(path + QStringLiteral(": ") + file.errorString());
    file.readLine(); // its title
    page.markdown = file.readAll();
    return page;
}

/// Copies the style sheet and the pictures that pages show. @return their names in the output folder
QStringList copyFiles(const QString& source, const QString& pictureDir, const QVector<HelpPage>& pages, const QDir& out)
{
    QStringList names{QStringLiteral("style.css")};
    const auto copy = [&](const QString& from, const QString& name) {
        QFile::remove(out.filePath(name));
        return QFile::copy(from, out.filePath(name));
    };
    copy(source + QStringLiteral("/style.css"), names.first());
    out.mkpath(QStringLiteral("pictures"));
    for (const HelpPage& page : pages) {
        for (const QString& picture : page.pictures) {
            const QString name = QStringLiteral("pictures/") + picture;
            if (!names.contains(name) && copy(pictureDir + '/' + picture, name))
                names.append(name);
        }
    }
    return names;
}

} // namespace

int main(int argc, char* argv[])
{
    qSetGlobalQHashSeed(0);
    QCoreApplication app(argc, argv);
    QStringList arguments = QCoreApplication::arguments().mid(1);
    const bool onlyCheck = arguments.removeAll(QStringLiteral("--check")) > 0;
    if (arguments.size() != 4)
        return fail({QStringLiteral("usage: nalvo-help-build [--check] <sources> <change log> <pictures> <output>")});
    const QString source = arguments.at(0);

    QStringList errors;
    QVector<HelpPage> pages = readPages(source + QStringLiteral("/pages"), &errors);
    pages += instructionPages(source + QStringLiteral("/instructions"), &errors);
    pages.append(releaseNotes(arguments.at(1), &errors));
    for (HelpPage& page : pages) {
        const MessageTexts messages = messagesOfPage(page.id);
        MarkdownConverter(messages).convert(&page);
    }
    const QVector<ContentsEntry> contents = readContents(source + QStringLiteral("/contents.txt"), &errors);
    errors += checkPages(pages, contents, arguments.at(2));
    if (onlyCheck)
        return errors.isEmpty() ? 0 : fail(errors);
    fail(errors);

    const QDir out(arguments.at(3));
    if (!out.mkpath(QStringLiteral(".")))
        return fail({out.path() + QStringLiteral(": the folder can not be made")});
    CollectionWriter writer(out);
    if (!writer.write(pages, contents, copyFiles(source, arguments.at(2), pages, out)))
        return fail({writer.errorText()});
    return 0;
}
