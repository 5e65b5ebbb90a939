#include "WFUtf8.h"

#include <algorithm>
#include <cctype>
#include <cstdio>

std::size_t utf8SequenceLength(std::string_view text, std::size_t i)
{
    const auto byte = [&](std::size_t k) { return static_cast<unsigned char>(text[k]); };
    const unsigned char lead = byte(i);
    std::size_t length = 0;
    unsigned int lowest = 0;
    if (lead < 0x80)
        return 1;
    if ((lead & 0xE0) == 0xC0)
        length = 2, lowest = 0x80;
    else if ((lead & 0xF0) == 0xE0)
        length = 3, lowest = 0x800;
    else if ((lead & 0xF8) == 0xF0)
        length = 4, lowest = 0x10000;
    else
        return 0;
    if (i + length > text.size())
        return 0;
    unsigned int code = lead & (0x7F >> length);
    for (std::size_t k = 1; k < length; ++k) {
        if ((byte(i + k) & 0xC0) != 0x80)
            return 0;
        code = (code << 6) | (byte(i + k) & 0x3F);
    }
    const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
    if (code < lowest || code > 0x10FFFF || surrogate)
        return 0;
    return length;
}

std::string describeByte(unsigned char byte)
{
    char text[8];
    std::snprintf(text, sizeof text, "0x%02X", byte);
    return text;
}

int WFCompareIgnoringCase(std::string_view a, std::string_view b)
{
    const std::size_t n = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < n; ++i) {
        const int ca = std::tolower(static_cast<unsigned char>(a[i]));
        const int cb = std::tolower(static_cast<unsigned char>(b[i]));
        if (ca != cb)
            return ca < cb ? -1 : 1;
    }
    return a.size() == b.size() ? 0 : (a.size() < b.size() ? -1 : 1);
}
