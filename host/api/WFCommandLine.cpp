#include "WFCommandLine.h"

namespace {

class TArgument final : public IArgument {
public:
    TArgument(std::string text, std::string value, int kind)
        : m_text(std::move(text)), m_value(std::move(value)), m_kind(kind) {}
    std::string GetText() const override { return m_text; }
    std::string GetValue() const override { return m_value; }
    int GetKind() const override { return m_kind; }

    std::string rendered() const { return m_kind == akSwitchWithValue ? m_text + " " + m_value : m_text; }

private:
    std::string m_text;
    std::string m_value;
    int m_kind;
};

} // namespace

std::string TCommandLineBuilder::GetCommandLineText() const
{
    std::string text;
    for (const auto& argument : m_arguments) {
        if (!text.empty() || &argument != &m_arguments.front())
            text += ' ';
        text += static_cast<const TArgument&>(*argument).rendered();
    }
    return text;
}

std::shared_ptr<IArgument> TCommandLineBuilder::AddArgument(const std::string& text, const std::string& value, int kind)
{
    auto argument = std::make_shared<TArgument>(text, kind == akSwitchWithValue ? value : std::string(), kind);
    m_arguments.push_back(argument);
    return argument;
}

std::vector<std::string> splitCommandLine(std::string_view text)
{
    std::vector<std::string> arguments;
    std::string current;
    bool inArgument = false;
    bool inQuotes = false;
    std::size_t i = 0;
    while (i < text.size()) {
        const char c = text[i];
        if (!inQuotes && (c == ' ' || c == '\t' || c == '\n' || c == '\r')) {
            if (inArgument) {
                arguments.push_back(std::move(current));
                current.clear();
                inArgument = false;
            }
            ++i;
            continue;
        }
        inArgument = true;
        if (c == '\\') {
            std::size_t count = 0;
            while (i < text.size() && text[i] == '\\') {
                ++count;
                ++i;
            }
            if (i < text.size() && text[i] == '"') {
                current.append(count / 2, '\\');
                if (count % 2 == 1) {
                    current += '"';
                    ++i;
                }
                // An even count leaves the quote to toggle quoting on the next pass.
            } else {
                current.append(count, '\\');
            }
            continue;
        }
        if (c == '"') {
            if (inQuotes && i + 1 < text.size() && text[i + 1] == '"') {
                current += '"';
                i += 2;
                continue;
            }
            inQuotes = !inQuotes;
            ++i;
            continue;
        }
        current += c;
        ++i;
    }
    if (inArgument)
        arguments.push_back(std::move(current));
    return arguments;
}

std::string joinCommandLine(const std::vector<std::string>& arguments)
{
    std::string text;
    for (std::size_t n = 0; n < arguments.size(); ++n) {
        const std::string& argument = arguments[n];
        if (n > 0)
            text += ' ';
        const bool needsQuotes = argument.empty() || argument.find_first_of(" \t\n\r\"") != std::string::npos;
        if (!needsQuotes) {
            text += argument;
            continue;
        }
        text += '"';
        std::size_t backslashes = 0;
        for (char c : argument) {
            if (c == '\\') {
                ++backslashes;
                continue;
            }
            if (c == '"') {
                text.append(backslashes * 2 + 1, '\\');
                text += '"';
            } else {
                text.append(backslashes, '\\');
                text += c;
            }
            backslashes = 0;
        }
        text.append(backslashes * 2, '\\');
        text += '"';
    }
    return text;
}
