// Any bytes given as a project must be refused with a diagnostic or read; what is read must
// write and read back to the same text.
#include "WFAction.h"
#include "WFProject.h"
#include "WFServices.h"

#include <cstdint>
#include <cstdlib>
#include <string>

namespace {

enum TKind { kdOne, kdTwo };

class TFuzzAction final : public TWFExecuteAbstractAction {
public:
    TFuzzAction()
    {
        PublishString("Text", [this] { return m_text; }, [this](const std::string& v) { m_text = v; });
        PublishBoolean("Flag", [this] { return m_flag; }, [this](bool v) { m_flag = v; });
        PublishInteger("Count", [this] { return m_count; }, [this](long long v) { m_count = v; });
        PublishEnum("Kind", {"kdOne", "kdTwo"}, &m_kind);
    }
    std::string m_text;
    bool m_flag = false;
    long long m_count = 0;
    TKind m_kind = kdOne;
};

bool registered = [] {
    WFActionServices().RegisterAction("Fuzz", "Test", WFActionClassOf<TFuzzAction>("TFuzzAction"), "T_FUZZ");
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
