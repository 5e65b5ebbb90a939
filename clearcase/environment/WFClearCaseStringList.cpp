#include "environment/WFClearCaseStringList.h"

std::string stringListText(const std::vector<std::string>& lines)
{
    std::string text;
    for (const auto& line : lines) {
        text += line;
        text += "\r\n";
    }
    return text;
}

std::vector<std::string> splitStringListText(const std::string& text)
{
    std::vector<std::string> lines;
    std::size_t start = 0;
    while (start < text.size()) {
        const std::size_t end = text.find_first_of("\r\n", start);
        if (end == std::string::npos) {
            lines.push_back(text.substr(start));
            break;
        }
        lines.push_back(text.substr(start, end - start));
        start = end + 1;
        if (text[end] == '\r' && start < text.size() && text[start] == '\n')
            ++start;
    }
    return lines;
}
