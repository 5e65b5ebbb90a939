#pragma once

#include "WFAction.h"
#include "WFLog.h"

#include <string>
#include <vector>

namespace wftest {

/// A log that keeps every line it is sent.
class RecordingLog final : public IWFLogSink {
public:
    struct Entry {
        Stream stream;
        std::string text;
    };
    void Line(Stream stream, std::string_view text) override { entries.push_back({stream, std::string(text)}); }
    /// The Message lines only.
    std::vector<std::string> messages() const;
    /// Every line, whatever its stream.
    std::vector<std::string> lines() const;
    std::vector<Entry> entries;
};

/// A persistence writer that keeps every value as "Name=text", in the order written.
class RecordingWriter final : public IZTXMLWriter {
public:
    void WriteValue(const std::string& name, const std::string& value) override { values.push_back(name + "=" + value); }
    std::vector<std::string> values;
};

class RecordingErrors final : public IWFActionValidationError {
public:
    void AddError(const std::string& location, const std::string& message) override
    {
        errors.push_back(location + ": " + message);
    }
    std::vector<std::string> errors;
};

/// A fresh folder, removed with everything in it at the end of the scope.
class TempDir {
public:
    TempDir();
    ~TempDir();
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;
    const std::string& path() const { return m_path; }
    std::string file(const std::string& name) const { return m_path + "/" + name; }
    /// Writes a file below the folder (creating its parents) and returns its path.
    std::string write(const std::string& name, const std::string& bytes) const;

private:
    std::string m_path;
};

/// Sets an environment variable for the scope, restoring the old value after.
class ScopedEnv {
public:
    ScopedEnv(std::string name, const std::string& value);
    ~ScopedEnv();
    ScopedEnv(const ScopedEnv&) = delete;
    ScopedEnv& operator=(const ScopedEnv&) = delete;

private:
    std::string m_name;
    bool m_had = false;
    std::string m_old;
};

/// One start of the test program, as it recorded it.
struct Invocation {
    std::string cwd;
    std::vector<std::string> args;
};
std::vector<Invocation> readInvocations(const std::string& recordFile);

/// Path of the process-scenario program (tests/support/wf_testapp).
std::string testAppPath();
/// Copies the test program into a folder under the name `name` (e.g. "cleartool") and returns its path.
std::string installFakeProgram(const std::string& directory, const std::string& name);

std::string readFile(const std::string& path);
/// The text with every `from` replaced by `to`.
std::string replaceAll(std::string text, const std::string& from, const std::string& to);

} // namespace wftest
