// Find in sources: 100 files of 10,000 lines, beside the event loop, as the panel searches them.

#include "SourceSearch.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>
#include <vector>

namespace {

using namespace nsModEditor;

QByteArray program(int file)
{
    QByteArray text;
    for (int line = 0; line < 10000; ++line)
        text += QString("label%1_%2:\tLOAD s%3, 0x%4 ; word%5\n")
                    .arg(file)
                    .arg(line)
                    .arg(line % 16)
                    .arg(line % 256)
                    .arg(line % 300)
                    .toUtf8();
    return text;
}

/// Seconds of a search until its end is reported; the median of five. @param hits gets their number
double secondsOf(const sSearch_t& what, const QList<SourceSearch::sSource_t>& sources, int* hits)
{
    std::vector<double> times;
    for (int round = 0; round < 5; ++round) {
        SourceSearch search;
        bool isEnded = false;
        QObject::connect(&search, &SourceSearch::finished, &search, [&isEnded] { isEnded = true; });
        QElapsedTimer clock;
        clock.start();
        search.start(TextSearch(what), sources);
        while (!isEnded)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        times.push_back(double(clock.nsecsElapsed()) * 1e-9);
        *hits = search.hits();
    }
    std::sort(times.begin(), times.end());
    return times.at(times.size() / 2);
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    QTextStream out(stdout);
    QTemporaryDir folder;
    QList<SourceSearch::sSource_t> sources;
    for (int i = 0; i < 100; ++i) {
        const QString path = folder.filePath(QString("%1.psm").arg(i));
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(program(i)) < 0)
            return 1;
        sources.append({path, false, QString()});
    }
    const struct
    {
        const char* name;
        sSearch_t search;
    } searches[] = {
        {"rare_seconds", {"label77_7777", true, false, false}},
        {"any_case_seconds", {"LABEL77_77", false, false, false}},
        {"whole_word_seconds", {"label50_50", false, true, false}},
        {"expression_seconds", {"^label\\d+_99\\d9:\\s+LOAD s(1|5),", false, false, true}},
        {"missing_seconds", {"nowhere", false, false, false}},
    };
    for (const auto& one : searches) {
        int hits = 0;
        const double seconds = secondsOf(one.search, sources, &hits);
        out << one.name << ": " << seconds << "\n";
        out << QString(one.name).replace("seconds", "hits") << ": " << hits << "\n";
    }
    return 0;
}
