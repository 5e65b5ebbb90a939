#pragma once

#include "WFExport.h"

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
