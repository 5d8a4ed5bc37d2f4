// Writes as much as it can: numbered lines, and in every eighth block bytes that are no text. Both outputs get the same
// amount. Usage: flood MEGABYTES_A_STREAM

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

} // namespace

int main(int argc, char** argv)
{
    const long megabytes = argc > 1 ? std::atol(argv[1]) : 1;
    std::string binary;
    unsigned state = 1;
    while (binary.size() < blockSize) {
        state = state * 1664525U + 1013904223U;
        binary += char(state >> 24);
    }
    long number = 0;
    for (long block = 0; block < megabytes * 16; ++block) {
        for (int fd : {STDOUT_FILENO, STDERR_FILENO}) {
            std::string lines;
            while (block % 8 != 7 && lines.size() < blockSize)
                lines += "line " + std::to_string(number++) + " of the flood, as a tool without mercy writes it\n";
            lines.resize(blockSize, '\n');
            if (!writeAll(fd, block % 8 == 7 ? binary : lines))
                return 1;
        }
    }
    return 0;
}
