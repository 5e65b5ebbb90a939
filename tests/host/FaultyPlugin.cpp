// A package whose WFRegister fails as WF_FAULTY_PLUGIN says ("throw" or "crash"), and whose
// description holds a tab, a line break and an escape sequence.
#include <csignal>
#include <cstdlib>
#include <stdexcept>
#include <string>

extern "C" __attribute__((visibility("default"))) void WFRegister(bool /*registerPages*/)
{
    const char* fault = std::getenv("WF_FAULTY_PLUGIN");
    const std::string how = fault ? fault : "";
    if (how == "throw")
        throw std::runtime_error("no licence for this host");
    if (how == "crash")
        std::raise(SIGSEGV);
}

extern "C" __attribute__((visibility("default"))) const char* WFPackageDescription()
{
    return "Faulty\tpackage\nsecond line \x1b[31mred\\";
}
