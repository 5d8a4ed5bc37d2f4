// A program that behaves as its first argument says, for the tests of external programs.

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include <sys/wait.h>
#include <unistd.h>

namespace {

void say(const char* text)
{
    std::fputs(text, stdout);
    std::fflush(stdout);
}

/// Waits for the signal that ends it.
[[noreturn]] void rest()
{
    for (;;)
        pause();
}

void writeAll(int fd, const std::string& text)
{
    for (size_t done = 0; done < text.size();) {
        const ssize_t count = write(fd, text.data() + done, text.size() - done);
        if (count <= 0)
            std::exit(3);
        done += size_t(count);
    }
}

/// Numbered lines on both outputs, or text without any line end.
void flood(long megabytes, bool lines)
{
    const size_t blockSize = 1 << 16;
    long number = 0;
    for (long done = 0; megabytes < 0 || done < megabytes * 16; ++done) {
        for (int fd : {STDOUT_FILENO, STDERR_FILENO}) {
            std::string block;
            while (lines && block.size() < blockSize)
                block += "line " + std::to_string(number++) + " of the flood\n";
            block.resize(blockSize, lines ? '.' : 'x');
            if (lines)
                block.back() = '\n';
            writeAll(fd, block);
        }
    }
}

/// Prints the bytes that stand in the argument as hexadecimal numbers.
void printBytes(const char* hex)
{
    for (; hex[0] != 0 && hex[1] != 0; hex += 2) {
        const char digits[] = {hex[0], hex[1], 0};
        std::putchar(int(std::strtol(digits, nullptr, 16)));
        std::fflush(stdout);
    }
}

/// Leaves a child that holds the outputs, with its number on the output, and ends.
int leaveChild()
{
    const pid_t child = fork();
    if (child == 0)
        rest();
    std::printf("child %d\n", int(child));
    std::fflush(stdout);
    return 0;
}

/// A child that this program waits for, as a script waits for its tools.
int waitForChild()
{
    const pid_t child = fork();
    if (child == 0)
        rest();
    std::printf("child %d\n", int(child));
    std::fflush(stdout);
    int status = 0;
    waitpid(child, &status, 0);
    return 0;
}

/// A child that ignores all requests to end, of a program that does not.
int stubbornChild()
{
    std::signal(SIGTERM, SIG_IGN);
    const pid_t child = fork();
    if (child == 0)
        rest();
    std::signal(SIGTERM, SIG_DFL);
    std::printf("child %d\n", int(child));
    std::fflush(stdout);
    rest();
}

void echoInput()
{
    char buffer[256];
    say("input:");
    for (size_t count; (count = std::fread(buffer, 1, sizeof buffer, stdin)) > 0;)
        std::fwrite(buffer, 1, count, stdout);
    say("|end\n");
}

void printFolder()
{
    char buffer[4096];
    std::puts(getcwd(buffer, sizeof buffer) != nullptr ? buffer : "?");
}

void noSignals()
{
    std::signal(SIGTERM, SIG_IGN);
    std::signal(SIGINT, SIG_IGN);
    std::signal(SIGHUP, SIG_IGN);
}

} // namespace

int main(int argc, char** argv)
{
    const std::string mode = argc > 1 ? argv[1] : "";
    const char* argument = argc > 2 ? argv[2] : "0";
    if (mode == "exit")
        return std::atoi(argument);
    if (mode == "crash")
        std::raise(SIGKILL);
    else if (mode == "rest" || mode == "stubborn" || mode == "stubbornFlood" || mode == "closeInput") {
        if (mode != "rest" && mode != "closeInput")
            noSignals();
        if (mode == "closeInput")
            close(STDIN_FILENO);
        std::printf("ready %d\n", int(getpid()));
        std::fflush(stdout);
        if (mode == "stubbornFlood")
            flood(-1, true);
        rest();
    } else if (mode == "flood")
        flood(std::atol(argument), true);
    else if (mode == "endlessLine")
        flood(std::atol(argument), false);
    else if (mode == "bytes")
        printBytes(argument);
    else if (mode == "leaveChild")
        return leaveChild();
    else if (mode == "stubbornChild")
        return stubbornChild();
    else if (mode == "waitForChild")
        return waitForChild();
    else if (mode == "echo")
        echoInput();
    else if (mode == "folder")
        printFolder();
    else if (mode == "both") {
        say("on out\n");
        std::fputs("on err\n", stderr);
    } else {
        // The arguments, each in brackets.
        std::printf("%d:", argc - 1);
        for (int i = 1; i < argc; ++i)
            std::printf("[%s]", argv[i]);
        std::puts("");
    }
    return 0;
}
