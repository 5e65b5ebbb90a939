// Runs a fuzz target over every file of the folders given: its seed corpus and the inputs that
// once crashed it. Built when no fuzzer is, so each found crash stays a test.
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char** argv)
{
    int count = 0;
    for (int i = 1; i < argc; ++i) {
        if (!std::filesystem::is_directory(argv[i]))
            continue;
        for (const auto& entry : std::filesystem::directory_iterator(argv[i])) {
            if (!entry.is_regular_file())
                continue;
            std::ifstream in(entry.path(), std::ios::binary);
            const std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
            ++count;
        }
    }
    std::printf("%d inputs passed\n", count);
    return count > 0 ? 0 : 1;
}
