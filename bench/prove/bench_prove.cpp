// Processor time of nalvo-prove with the models of the tests under Icarus Verilog, that of its tools included.
//
// Usage: bench_prove NALVO_PROVE SOURCE_FOLDER
//
// The best of several runs counts: the machines are noisy, and noise only adds.

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fcntl.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

namespace {

const int runs = 3;
const int shortRun = 1;
const int longRun = 20000; ///< instructions

double seconds(const timeval& time)
{
    return double(time.tv_sec) + double(time.tv_usec) / 1e6;
}

/// @return processor time in seconds, negative if the program does not succeed
double run(const std::vector<std::string>& command)
{
    const pid_t pid = fork();
    if (pid == 0) {
        const int null = open("/dev/null", O_WRONLY);
        dup2(null, STDOUT_FILENO);
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
    const bool isGood = WIFEXITED(status) && WEXITSTATUS(status) == 0;
    return isGood ? seconds(usage.ru_utime) + seconds(usage.ru_stime) : -1;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: bench_prove NALVO_PROVE SOURCE_FOLDER\n");
        return 2;
    }
    const std::string root = argv[2];
    const char* const cores[][2] = {{"kcpsm3", "split_rams"}, {"kcpsm6", "motor_control"}, {"lm8", "keypad_lock"}};
    for (const auto& core : cores) {
        const std::string example = std::string("/examples/") + core[1] + '/' + core[1] + ".nalvo";
        double best[2] = {1e9, 1e9};
        for (int i = 0; i < runs; ++i) {
            for (const int isLong : {0, 1}) {
                const double time = run({argv[1], "-q", "-n", std::to_string(isLong != 0 ? longRun : shortRun),
                                         "--core", root + "/tests/cores/" + core[0] + ".v", root + example});
                if (time < 0) {
                    std::fprintf(stderr, "%s fails\n", core[0]);
                    return 1;
                }
                best[isLong] = std::min(best[isLong], time);
            }
        }
        std::printf("%s_start_seconds: %.3f\n", core[0], best[0]);
        std::printf("%s_seconds_per_1000: %.4f\n", core[0], best[1] / longRun * 1000);
    }
    return 0;
}
