#pragma once

#include "WFExport.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// Argument kinds of ICommandLineBuilder::AddArgument.
enum : int {
    /// Text is one word written unchanged; the builder adds no quotes.
    akPlain = 2,
    /// Text is a switch and Value its value: written as switch, one blank, value (no quoting).
    akSwitchWithValue = 4,
};

/// One argument of a command line, as added.
class WF_API IArgument {
public:
    virtual ~IArgument() = default;
    virtual std::string GetText() const = 0;
    virtual std::string GetValue() const = 0;
    virtual int GetKind() const = 0;
};

/// Collects a program's command line argument by argument.
class WF_API ICommandLineBuilder {
public:
    virtual ~ICommandLineBuilder() = default;
    /// The command line so far: the arguments in the order added, joined by one blank.
    virtual std::string GetCommandLineText() const = 0;
    virtual std::shared_ptr<IArgument> AddArgument(const std::string& text, const std::string& value, int kind) = 0;
};

class WF_API TCommandLineBuilder final : public ICommandLineBuilder {
public:
    std::string GetCommandLineText() const override;
    std::shared_ptr<IArgument> AddArgument(const std::string& text, const std::string& value, int kind) override;

    const std::vector<std::shared_ptr<IArgument>>& arguments() const { return m_arguments; }
    void clear() { m_arguments.clear(); }

private:
    std::vector<std::shared_ptr<IArgument>> m_arguments;
};

/// Splits a Windows-style command line into arguments; quotes group, backslashes
/// are literal unless they precede a quote (2n backslashes + quote: n backslashes and a
/// quote toggle; 2n+1: n backslashes and a literal quote). Inside quotes, "" is a literal
/// quote. An empty quoted pair is an empty argument.
WF_API std::vector<std::string> splitCommandLine(std::string_view text);

/// The inverse for display and for passing argv through a shell-free launcher on Windows:
/// quotes an argument only when it needs it, so splitCommandLine(joinCommandLine(a)) == a.
WF_API std::string joinCommandLine(const std::vector<std::string>& arguments);
