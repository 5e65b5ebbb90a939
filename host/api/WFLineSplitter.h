#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

/// Cuts a byte stream into lines as it arrives. A line ends at LF; a CR right before the LF is
/// dropped. A line still without its end after kMaxPendingLine bytes is handed on at that
/// length and the rest continues as a new line, so a program printing without line breaks
/// cannot make the host hold its whole output.
class TWFLineSplitter {
public:
    static constexpr std::size_t kMaxPendingLine = 1024 * 1024;
    using LineFunction = std::function<void(std::string_view line)>;

    explicit TWFLineSplitter(std::size_t maxPendingLine = kMaxPendingLine);

    /// Hands every line completed by data to emit.
    void add(std::string_view data, const LineFunction& emit);
    /// Hands on what remains as the last line, if anything remains, and starts afresh.
    void finish(const LineFunction& emit);
    void clear()
    {
        m_pending.clear();
        m_cut = false;
    }

private:
    std::size_t m_maxPendingLine;
    std::string m_pending;
    /// The last line handed on was cut at the bound.
    bool m_cut = false;
};
