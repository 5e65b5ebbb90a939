// A cleartool stand-in that prints BENCH_OUTPUT_BYTES of check-out listing as fast as it can.
#include <cstdlib>
#include <cstring>
#include <string>

#include <unistd.h>

int main()
{
    const char* sizeText = std::getenv("BENCH_OUTPUT_BYTES");
    std::size_t remaining = sizeText ? std::strtoull(sizeText, nullptr, 10) : 0;
    std::string block;
    for (int i = 0; block.size() < (1u << 20); ++i)
        block += "/views/bench/vobs/main/src/module" + std::to_string(i % 997) + "/file" + std::to_string(i) + ".c\n";
    while (remaining > 0) {
        const std::size_t n = remaining < block.size() ? remaining : block.size();
        std::size_t done = 0;
        while (done < n) {
            const ssize_t written = ::write(1, block.data() + done, n - done);
            if (written <= 0)
                return 1;
            done += static_cast<std::size_t>(written);
        }
        remaining -= n;
    }
    return 0;
}
