// Speed and memory of the batch importer, process start, check of the result and writing included.
//
// Usage: bench_import NALVO_IMPORT SCRATCH_FOLDER
//
// As a memory has 4,096 words at the most, a long program is mostly comments and constants: so are these, with 3,900
// instructions. The best of several runs counts: the machines are noisy, and noise only adds.

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fcntl.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

namespace {

struct Result
{
    double seconds = 0;
    long peakKiB = 0;
    bool ok = false;
};

/// Runs a program with its output thrown away, and waits for it.
Result run(const std::vector<std::string>& command)
{
    const auto start = std::chrono::steady_clock::now();
    const pid_t pid = fork();
    if (pid == 0) {
        const int null = open("/dev/null", O_WRONLY);
        dup2(null, STDOUT_FILENO);
        dup2(null, STDERR_FILENO);
        std::vector<char*> argv;
        for (const std::string& word : command)
            argv.push_back(const_cast<char*>(word.c_str()));
        argv.push_back(nullptr);
        execv(argv[0], argv.data());
        _exit(127);
    }
    int status = 0;
    rusage usage = {};
    wait4(pid, &status, 0, &usage);
    Result result;
    result.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    result.peakKiB = usage.ru_maxrss;
    result.ok = WIFEXITED(status) && WEXITSTATUS(status) == 0;
    return result;
}

/// How a dialect writes what the programs consist of; %s is a number.
struct Dialect
{
    const char* name;
    const char* constant;
    const char* instruction;
    const char* end;
};

const Dialect dialects[] = {
    {"kcpsm3", "        CONSTANT value%s_, 1F           ; a constant",
     "        LOAD    s1, value%s_            ; load it", "end:    JUMP    end"},
    {"kcpsm6", "        CONSTANT value%s_, ~20'd        ; a constant",
     "        LOAD    s1, value%s_            ; load it", "end:    JUMP    end"},
    {"pblazide", "value%s_ EQU $1F                 ; a constant", "        LOAD    s1, value%s_            ; load it",
     "end:    JUMP    end"},
    {"mico8", "        .equ    value%s_, 0x1F          # a constant",
     "        movi    r1, value%s_            # load it", "end:    b       end"},
};

std::string filled(const char* text, int number)
{
    std::string line = text;
    const size_t place = line.find("%s");
    return line.replace(place, 2, std::to_string(number));
}

void writeProgram(const std::string& path, const Dialect& dialect, int lines, int maxInstructions)
{
    std::ofstream file(path);
    int instructions = 0;
    for (int i = 0; i < lines - 1; ++i) {
        switch (i % 10) {
        case 0:
            file << filled(dialect.constant, i) << '\n';
            break;
        case 1:
            if (instructions < maxInstructions) {
                file << filled(dialect.instruction, i - 1) << '\n';
                ++instructions;
                break;
            }
            file << '\n';
            break;
        default:
            file << "; Comment " << i << " of the program, as long as comments are: it says why, and not what.\n";
            break;
        }
    }
    file << dialect.end << '\n';
}

double secondsOf(const std::string& tool, const std::string& folder, const Dialect& dialect, int lines, long* peakKiB)
{
    const std::string source = folder + "/program.psm";
    // The elder processors have 1,024 words.
    const bool isLarge = std::string(dialect.name) == "kcpsm6" || std::string(dialect.name) == "mico8";
    writeProgram(source, dialect, lines, isLarge ? 3900 : 900);
    double best = 0;
    for (int i = 0; i < 5; ++i) {
        const Result result = run({tool, "-q", "--force", "-d", dialect.name, "-o", folder + "/out", source});
        if (!result.ok) {
            std::fprintf(stderr, "bench_import: %s does not convert its program\n", tool.c_str());
            std::exit(1);
        }
        best = i == 0 ? result.seconds : std::min(best, result.seconds);
        *peakKiB = std::max(*peakKiB, result.peakKiB);
    }
    return best;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: bench_import NALVO_IMPORT SCRATCH_FOLDER\n");
        return 2;
    }
    const std::string folder = argv[2];
    mkdir(folder.c_str(), 0700);
    const int lines = 100000;
    double slowest = 0;
    double growth = 0;
    long peakKiB = 0;
    for (const Dialect& dialect : dialects) {
        const double small = secondsOf(argv[1], folder, dialect, lines / 10, &peakKiB);
        const double large = secondsOf(argv[1], folder, dialect, lines, &peakKiB);
        std::printf("%s_seconds: %.3f\n", dialect.name, large);
        slowest = std::max(slowest, large);
        growth = std::max(growth, large / lines / (small / (lines / 10)));
    }
    std::printf("seconds_100000_lines: %.3f\n", slowest);
    std::printf("growth: %.2f\n", growth);
    std::printf("peak_MiB: %.1f\n", double(peakKiB) / 1024);
    return 0;
}
