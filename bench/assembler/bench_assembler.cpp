// Speed and memory of the batch assembler, process start included, compared with those of nasm on a source of the same
// shape.
//
// Usage: bench_assembler NALVO_ASM NASM SCRATCH_FOLDER
//
// A source has a comment on every line, a label on every eighth line, and one line in a hundred defines a constant. The
// best of several runs counts: the machines are noisy, and noise only adds.

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
    int status = -1;
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
    result.status = WIFEXITED(status) ? WEXITSTATUS(status) : 128;
    return result;
}

Result bestOf(int runs, const std::vector<std::string>& command)
{
    Result best;
    for (int i = 0; i < runs; ++i) {
        const Result result = run(command);
        if (result.status != 0) {
            std::fprintf(stderr, "failed with status %d: %s\n", result.status, command.front().c_str());
            std::exit(1);
        }
        if (i == 0 || result.seconds < best.seconds)
            best = result;
    }
    return best;
}

/// What a line of the source is: the same for both assemblers.
enum class Line { constant, label, instruction };

Line kindOf(int line)
{
    if (line % 100 == 0)
        return Line::constant;
    return line % 8 == 7 ? Line::label : Line::instruction;
}

/// Writes a source of the given number of lines for our assembler, in pages, and returns the number of instructions.
int writeOurs(const std::string& path, int lines, int pages)
{
    std::ofstream out(path);
    const int pageLines = lines / pages + 1;
    int labels = 0;
    int constants = 0;
    int instructions = 1;
    int firstLabelOfPage = 0;
    out << "#SET INSTMEM::PAGECOUNT, " << pages << " ; pages\n";
    out << "#SET INSTMEM::PAGESIZE, " << std::max(1024, pageLines) << " ; words of a page\n";
    out << "#ORG MEMRANGE, SHARED ; code that all pages see\n";
    out << "    NOP ; shared word\n";
    for (int line = 0; line < lines - 4 - pages; ++line) {
        if (line % pageLines == 0) {
            out << "#ORG MEMRANGE, PAGE" << line / pageLines << " ; page\n";
            firstLabelOfPage = labels;
        }
        switch (kindOf(line)) {
        case Line::constant:
            out << "#EQU const_" << constants << ", " << constants % 256 << " ; constant " << constants << '\n';
            ++constants;
            break;
        case Line::label:
            out << "label_" << labels << ": ; label " << labels << '\n';
            ++labels;
            break;
        case Line::instruction:
            ++instructions;
            switch (line % 5) {
            case 0:
                out << "    LOAD s0, const_" << constants - 1 << " ; load comment " << line << '\n';
                break;
            case 1:
                out << "    ADD s1, s2 ; add comment " << line << '\n';
                break;
            case 2:
                if (labels > firstLabelOfPage)
                    out << "    JUMP label_" << labels - 1 << " ; jump comment " << line << '\n';
                else
                    out << "    NOP ; jump comment " << line << '\n';
                break;
            case 3:
                out << "    AND s2, 0x" << std::hex << line % 256 << std::dec << " ; and comment " << line << '\n';
                break;
            default:
                out << "    WRPRT s0, const_" << constants - 1 << " ; out comment " << line << '\n';
                break;
            }
            break;
        }
    }
    // The last label needs an instruction after it.
    out << "    NOP ; end\n";
    return instructions + 1;
}

/// The same shape for nasm.
void writeNasm(const std::string& path, int lines)
{
    std::ofstream out(path);
    int labels = 0;
    int constants = 0;
    out << "bits 32 ; mode\n";
    for (int line = 0; line < lines - 1; ++line) {
        switch (kindOf(line)) {
        case Line::constant:
            out << "const_" << constants << " equ " << constants % 256 << " ; constant " << constants << '\n';
            ++constants;
            break;
        case Line::label:
            out << "label_" << labels << ": ; label " << labels << '\n';
            ++labels;
            break;
        case Line::instruction:
            switch (line % 5) {
            case 0:
                out << "    mov al, const_" << constants - 1 << " ; load comment " << line << '\n';
                break;
            case 1:
                out << "    add al, bl ; add comment " << line << '\n';
                break;
            case 2:
                if (labels > 0)
                    out << "    jmp near label_" << labels - 1 << " ; jump comment " << line << '\n';
                else
                    out << "    nop ; jump comment " << line << '\n';
                break;
            case 3:
                out << "    and bl, 0x" << std::hex << line % 256 << std::dec << " ; and comment " << line << '\n';
                break;
            default:
                out << "    out const_" << constants - 1 << ", al ; out comment " << line << '\n';
                break;
            }
            break;
        }
    }
}

void writeProject(const std::string& folder, int pageSize, bool allOutputs)
{
    std::ofstream out(folder + "/bench.nalvo");
    const char* const on = allOutputs ? "1" : "0";
    out << "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n<project version=\"3\">\n"
        << "    <PrjInfo>\n        <title>bench</title>\n        <version>0.1</version>\n    </PrjInfo>\n"
        << "    <sources>\n        <srcFiles>bench.psm</srcFiles>\n    </sources>\n"
        << "    <ModProcessor>\n        <processor>Xilinx PicoBlaze 3</processor>\n    </ModProcessor>\n"
        << "    <XPBlze3>\n        <memMap>\n            <pageSize>" << pageSize
        << "</pageSize>\n        </memMap>\n    </XPBlze3>\n"
        << "    <AsmFe>\n        <behavior>\n            <set>2</set>\n        </behavior>\n        <target>\n";
    const auto target = [&](const char* kind, const char* en, const char* more) {
        out << "            <" << kind << ">\n                <en>" << en
            << "</en>\n                <writeFileEventBut1>" << en
            << "</writeFileEventBut1>\n                <outputFile>out." << kind << "</outputFile>\n"
            << more << "            </" << kind << ">\n";
    };
    const char* const hdl = "                <entityName>rom</entityName>\n"
                            "                <templateFile>rom.tmpl</templateFile>\n";
    target("vhdl", on, hdl);
    target("verilog", on, hdl);
    target("hex", "1", "");
    target("mem", on, "");
    out << "        </target>\n    </AsmFe>\n</project>\n";
}

void writeTemplate(const std::string& path, int words)
{
    std::ofstream out(path);
    out << "{begin template}\n-- {NAME}\n";
    char index[16];
    for (int block = 0; block < words / 16; ++block) {
        std::snprintf(index, sizeof index, "%02X", unsigned(block));
        out << "  INIT_" << index << " => X\"{INIT_" << index << "}\",\n";
    }
    for (int block = 0; block < words / 128; ++block) {
        std::snprintf(index, sizeof index, "%02X", unsigned(block));
        out << "  INITP_" << index << " => X\"{INITP_" << index << "}\",\n";
    }
}

std::string makeFolder(const std::string& path)
{
    mkdir(path.c_str(), 0777);
    return path;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 4) {
        std::fprintf(stderr, "usage: bench_assembler NALVO_ASM NASM SCRATCH_FOLDER\n");
        return 2;
    }
    const std::string nalvo = argv[1];
    const std::string nasm = argv[2];
    const std::string scratch = makeFolder(argv[3]);
    const int few = 10000;
    const int many = 1000000;

    const std::string fewFolder = makeFolder(scratch + "/few");
    writeOurs(fewFolder + "/bench.psm", few, 2);
    writeProject(fewFolder, 1024, false);
    const std::string manyFolder = makeFolder(scratch + "/many");
    const int instructions = writeOurs(manyFolder + "/bench.psm", many, 16);
    writeProject(manyFolder, 1024, false);
    writeNasm(scratch + "/bench.asm", many);
    const std::string smallFolder = makeFolder(scratch + "/small");
    {
        std::ofstream out(smallFolder + "/bench.psm");
        for (int i = 0; i < 4096; ++i)
            out << "    LOAD s" << i % 10 << ", " << i % 256 << " ; word " << i << '\n';
    }
    writeProject(smallFolder, 4096, true);
    writeTemplate(smallFolder + "/rom.tmpl", 4096);

    const Result fewResult = bestOf(7, {nalvo, "-q", fewFolder + "/bench.nalvo"});
    const Result manyResult = bestOf(3, {nalvo, "-q", manyFolder + "/bench.nalvo"});
    const Result nasmResult = bestOf(3, {nasm, "-f", "bin", scratch + "/bench.asm", "-o", scratch + "/bench.bin"});
    const Result smallResult = bestOf(7, {nalvo, "-q", smallFolder + "/bench.nalvo"});

    std::printf("lines_per_second: %.0f\n", many / manyResult.seconds);
    std::printf("growth: %.2f\n", (manyResult.seconds / many) / (fewResult.seconds / few));
    std::printf("vs_nasm: %.2f\n", nasmResult.seconds / manyResult.seconds);
    std::printf("bytes_per_instruction: %.0f\n", double(manyResult.peakKiB) * 1024 / instructions);
    std::printf("ms_4096: %.1f\n", smallResult.seconds * 1000);
    return 0;
}
