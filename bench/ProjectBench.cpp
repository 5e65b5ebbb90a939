// Loads, validates and saves generated projects of the sizes given, with the real package
// registered, and prints one line per size: actions, load, validate, save (seconds).
// With --attributes, reads projects whose one action has that many attributes and prints
// one line per count: attributes, bytes, read (seconds), the first diagnostic.
// With --variables, reads projects of that many variables and prints one line per count:
// variables, bytes, read (seconds).
#include "WFAction.h"
#include "shell/WFClearCaseRegistration.h"
#include "WFFiles.h"
#include "WFIniFile.h"
#include "WFProject.h"
#include "WFServices.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

class TCountingErrors final : public IWFActionValidationError {
public:
    void AddError(const std::string&, const std::string&) override { ++count; }
    int count = 0;
};

double seconds(std::chrono::steady_clock::time_point since)
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - since).count();
}

int benchAttributes(int argc, char** argv)
{
    for (int n = 3; n < argc; ++n) {
        const long count = std::atol(argv[n]);
        std::string text = "<wfproject version=\"1\"><actions><action type=\"CC_CHECKOUT\"";
        for (long i = 0; i < count; ++i)
            text += " a" + std::to_string(i) + "=\"v\"";
        text += "/></actions></wfproject>\n";
        const auto start = std::chrono::steady_clock::now();
        TWFProject project;
        std::vector<TWFProjectDiagnostic> diagnostics;
        ReadProjectText(text, "crowded.wfp", project, diagnostics);
        const double read = seconds(start);
        std::printf("%ld %zu %.6f %s\n", count, text.size(), read,
                    diagnostics.empty() ? "(none)" : diagnostics.front().ToString().c_str());
    }
    return 0;
}

int benchVariables(int argc, char** argv)
{
    for (int n = 3; n < argc; ++n) {
        const long count = std::atol(argv[n]);
        std::string text = "<wfproject version=\"1\"><variables>\n";
        for (long i = 0; i < count; ++i)
            text += "<variable name=\"V" + std::to_string(i) + "\" type=\"string\" value=\"x\"/>\n";
        text += "</variables></wfproject>\n";
        const auto start = std::chrono::steady_clock::now();
        TWFProject project;
        std::vector<TWFProjectDiagnostic> diagnostics;
        if (!ReadProjectText(text, "variables.wfp", project, diagnostics)) {
            std::fprintf(stderr, "%s\n", diagnostics.front().ToString().c_str());
            return 1;
        }
        std::printf("%ld %zu %.6f\n", count, text.size(), seconds(start));
    }
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 3) {
        std::fprintf(stderr, "usage: bench_projects WORK_DIR SIZE...\n");
        return 2;
    }
    const std::string work = argv[1];
    ClearCaseRegister(false);
    if (std::string(argv[2]) == "--attributes")
        return benchAttributes(argc, argv);
    if (std::string(argv[2]) == "--variables")
        return benchVariables(argc, argv);
    std::string error;
    WFOptionsServices().Load(work + "/options.ini", error);
    const char* types[] = {"CC_CHECKOUT", "CC_CHECKIN", "CC_LABEL", "CC_FINDCHECKOUTS", "UCM_MAKEBL"};
    for (int n = 2; n < argc; ++n) {
        const int size = std::atoi(argv[n]);
        std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<wfproject version=\"1\">\n  <actions>\n";
        for (int i = 0; i < size; ++i) {
            text += std::string("    <action type=\"") + types[i % 5] + "\" description=\"step " + std::to_string(i)
                + "\" enabled=\"True\">\n      <property name=\"Comment\">nightly build " + std::to_string(i)
                + "</property>\n      <property name=\"PathNameStorageString\">src/a.c&#13;&#10;src/b.c@@/main/3&#13;&#10;</property>\n"
                  "      <property name=\"ViewContextPath\">" + work + "</property>\n    </action>\n";
        }
        text += "  </actions>\n</wfproject>\n";
        const std::string path = work + "/project-" + std::to_string(size) + ".wfp";
        if (!writeFileAtomically(path, text, error)) {
            std::fprintf(stderr, "%s\n", error.c_str());
            return 1;
        }
        const auto start = std::chrono::steady_clock::now();
        TWFProject project;
        std::vector<TWFProjectDiagnostic> diagnostics;
        if (!ReadProjectFile(path, project, diagnostics)) {
            std::fprintf(stderr, "%s\n", diagnostics.front().ToString().c_str());
            return 1;
        }
        const double load = seconds(start);
        const auto validateStart = std::chrono::steady_clock::now();
        TCountingErrors errors;
        for (auto& action : project.actions)
            action->Validate(errors);
        const double validate = seconds(validateStart);
        const auto saveStart = std::chrono::steady_clock::now();
        if (!WriteProjectFile(path + ".saved", project, error)) {
            std::fprintf(stderr, "%s\n", error.c_str());
            return 1;
        }
        const double save = seconds(saveStart);
        std::printf("%d %.6f %.6f %.6f %d\n", size, load, validate, save, errors.count);
    }
    return 0;
}
