// Splitting must never crash, and joining what it split must split back the same way.
#include "WFCommandLine.h"

#include <cstdint>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const auto arguments = splitCommandLine(text);
    if (splitCommandLine(joinCommandLine(arguments)) != arguments)
        std::abort();
    return 0;
}
