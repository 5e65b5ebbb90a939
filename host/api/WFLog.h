#pragma once

#include "WFExport.h"

#include <functional>
#include <string_view>

/// Where the build log goes. The host's runner, the designer and tests each supply one.
class WF_API IWFLogSink {
public:
    enum class Stream { Message, StdOut, StdErr };
    virtual ~IWFLogSink() = default;
    /// One log line, without its line break, exactly as sent.
    virtual void Line(Stream stream, std::string_view text) = 0;
    /// Everything a program printed so far has been handed over: a sink that buffers program
    /// output may show it now. Called once per chunk of output, not per line.
    virtual void Settle() {}
};

/// A warning outside any run (a library that would not load, a package named twice). Goes to
/// standard error as "PROGRAM: warning: TEXT" unless a host or a test routes it elsewhere.
WF_API void WFWarning(std::string_view text);
using TWFWarningHandler = std::function<void(std::string_view text)>;
/// Replaces where warnings go; an empty function restores standard error. Returns the previous one.
WF_API TWFWarningHandler SetWFWarningHandler(TWFWarningHandler handler);
