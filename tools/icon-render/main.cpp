// Renders the SVG sources of the icons to PNG files.
//
//     nalvo-icon-render [--packed] <list file> <folder of the SVG sources> <output folder>
//
// Packed, they are what goes into the program: read faster than PNG, by the program alone.
// Ends with 0 if all pictures were written, with 1 and a message on the error stream otherwise.

#include "IconList.h"
#include "IconRenderer.h"

#include <QCoreApplication>
#include <QHash>
#include <QStringList>

#include <cstdio>

namespace {

int fail(const QString& text)
{
    std::fprintf(stderr, "nalvo-icon-render: %s\n", qPrintable(text));
    return 1;
}

} // namespace

int main(int argc, char* argv[])
{
    // No GUI application: painting on images without text needs neither a display nor the fonts of the desktop.
    qSetGlobalQHashSeed(0);
    QCoreApplication app(argc, argv);

    QStringList arguments = QCoreApplication::arguments();
    const bool isPacked = arguments.removeAll(QStringLiteral("--packed")) > 0;
    if (arguments.size() != 4) {
        return fail(QStringLiteral("usage: nalvo-icon-render [--packed] <list file> <svg folder> <output folder>"));
    }
    IconList list;
    if (!list.read(arguments.at(1))) {
        return fail(list.errorText());
    }
    IconRenderer renderer(QDir(arguments.at(2)), QDir(arguments.at(3)), isPacked);
    for (const IconEntry& entry : list.entries()) {
        if (!renderer.render(entry)) {
            return fail(QStringLiteral("%1:%2: %3").arg(arguments.at(1)).arg(entry.line).arg(renderer.errorText()));
        }
    }
    return 0;
}
