#include "WFLineSplitter.h"

#include <algorithm>

namespace {

std::string_view withoutCarriageReturn(std::string_view line)
{
    if (!line.empty() && line.back() == '\r')
        line.remove_suffix(1);
    return line;
}

} // namespace

TWFLineSplitter::TWFLineSplitter(std::size_t maxPendingLine) : m_maxPendingLine(std::max<std::size_t>(maxPendingLine, 2)) {}

void TWFLineSplitter::add(std::string_view data, const LineFunction& emit)
{
    while (!data.empty()) {
        const auto nl = data.find('\n');
        if (nl != std::string_view::npos && m_pending.size() + nl <= m_maxPendingLine) {
            std::string_view line = data.substr(0, nl);
            if (!m_pending.empty()) {
                m_pending.append(line);
                line = m_pending;
            }
            line = withoutCarriageReturn(line);
            // A line end right after a cut ends the piece already handed on.
            if (!(m_cut && line.empty()))
                emit(line);
            data.remove_prefix(nl + 1);
            m_pending.clear();
            m_cut = false;
            continue;
        }
        // No end within the bound: keep what fits and hand on a full piece. A CR at the cut
        // stays pending, as it may belong to a CR LF pair.
        const std::size_t take = std::min(data.size(), m_maxPendingLine - m_pending.size());
        m_pending.append(data, 0, take);
        data.remove_prefix(take);
        if (take > 0)
            m_cut = false;
        if (m_pending.size() >= m_maxPendingLine) {
            const std::size_t piece = m_pending.size() - (m_pending.back() == '\r' ? 1 : 0);
            emit(std::string_view(m_pending).substr(0, piece));
            m_pending.erase(0, piece);
            m_cut = true;
        }
    }
}

void TWFLineSplitter::finish(const LineFunction& emit)
{
    const std::string_view line = withoutCarriageReturn(m_pending);
    if (!m_pending.empty() && !(m_cut && line.empty()))
        emit(line);
    clear();
}
