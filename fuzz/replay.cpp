// Feeds files, and all files of folders, to a fuzz target: kept inputs run wherever the tests run.
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size);

// For targets with a mutator of their own, which nothing calls here.
extern "C" std::size_t LLVMFuzzerMutate(uint8_t *, std::size_t size, std::size_t) { return size; }

namespace {

void replay(const std::filesystem::path &file)
{
    std::ifstream in(file, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(in), {}};
    std::fprintf(stderr, "%s\n", file.c_str()); // the last line names the input of a crash
    LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t *>(bytes.data()), bytes.size());
}

} // namespace

int main(int argc, char **argv)
{
    int count = 0;
    for (int i = 1; i < argc; ++i) {
        if (std::filesystem::is_regular_file(argv[i]))
            replay(argv[i]), ++count;
        else if (std::filesystem::is_directory(argv[i]))
            for (const auto &entry : std::filesystem::directory_iterator(argv[i]))
                replay(entry.path()), ++count;
    }
    std::printf("%d inputs replayed\n", count);
    return count > 0 ? 0 : 1;
}
