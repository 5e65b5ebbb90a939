#pragma once

#include "WFExport.h"

#include <cstddef>
#include <string>
#include <string_view>

/// Length of the well-formed UTF-8 sequence at text[i] (1 for ASCII), or 0 when the bytes
/// there are no character: a stray continuation byte, a truncated or overlong sequence, a
/// surrogate or a code point beyond U+10FFFF.
WF_API std::size_t utf8SequenceLength(std::string_view text, std::size_t i);

/// Compares as ASCII letters of either case were the same (other bytes as they are): below 0,
/// 0 or above 0 as `a` sorts before, with or after `b`.
WF_API int WFCompareIgnoringCase(std::string_view a, std::string_view b);

/// The byte for a message: `0xE9`.
WF_API std::string describeByte(unsigned char byte);
