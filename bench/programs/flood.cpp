// Writes as much as it can: numbered lines, and in every eighth block bytes that are no text. Both outputs get the same
// amount. Usage: flood MEGABYTES_A_STREAM [scripts]; with the word, lines of all the scripts of the world instead.

#include <cstdlib>
#include <string>

#include <unistd.h>

namespace {

const size_t blockSize = 1 << 16;

bool writeAll(int fd, const std::string& block)
{
    for (size_t done = 0; done < block.size();) {
        const ssize_t count = write(fd, block.data() + done, block.size() - done);
        if (count <= 0)
            return false;
        done += size_t(count);
    }
    return true;
}

unsigned nextRandom()
{
    static unsigned state = 1;
    state = state * 1664525U + 1013904223U;
    return state >> 8;
}

/// Random characters of three bytes in UTF-8, in lines of 80.
std::string scriptsBlock()
{
    std::string block;
    for (int column = 0; block.size() + 4 < blockSize; ++column) {
        const unsigned code = 0x800 + nextRandom() % (0xd800 - 0x800);
        block += char(0xe0 | (code >> 12));
        block += char(0x80 | ((code >> 6) & 0x3f));
        block += char(0x80 | (code & 0x3f));
        if (column % 80 == 79)
            block += '\n';
    }
    block.resize(blockSize, '\n');
    return block;
}

} // namespace

int main(int argc, char** argv)
{
    const long megabytes = argc > 1 ? std::atol(argv[1]) : 1;
    const bool allScripts = argc > 2;
    std::string binary = allScripts ? scriptsBlock() : std::string();
    while (binary.size() < blockSize)
        binary += char(nextRandom() >> 16);
    long number = 0;
    for (long block = 0; block < megabytes * 16; ++block) {
        for (int fd : {STDOUT_FILENO, STDERR_FILENO}) {
            std::string lines;
            const bool isBinary = allScripts || block % 8 == 7;
            while (!isBinary && lines.size() < blockSize)
                lines += "line " + std::to_string(number++) + " of the flood, as a tool without mercy writes it\n";
            lines.resize(blockSize, '\n');
            if (!writeAll(fd, isBinary ? binary : lines))
                return 1;
        }
    }
    return 0;
}
