// Any bytes given as a project must be refused with a diagnostic or read; what is read must
// write and read back to the same text.
#include "PropertiesAction.h"
#include "WFProject.h"

#include <cstdint>
#include <cstdlib>
#include <string>

namespace {

bool registered = [] {
    wftest::registerPropertiesAction();
    return true;
}();

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    TWFProject project;
    std::vector<TWFProjectDiagnostic> diagnostics;
    if (!ReadProjectText(text, "fuzz.wfp", project, diagnostics)) {
        if (diagnostics.empty())
            std::abort();
        return 0;
    }
    const std::string written = WriteProjectText(project);
    TWFProject again;
    diagnostics.clear();
    if (!ReadProjectText(written, "again.wfp", again, diagnostics))
        std::abort();
    if (WriteProjectText(again) != written)
        std::abort();
    return 0;
}
