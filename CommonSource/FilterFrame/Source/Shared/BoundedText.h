// BoundedText: the one bounded copy and the one bounded format.
// Both write at most the destination's size, its NUL included, and cut what is longer.
#pragma once

#include <cstdarg>
#include <cstddef>
#include <span>
#include <string_view>

// Copies `text` up to its first NUL, or as much as fits. Returns the number of bytes copied, NUL not counted.
size_t CopyCut(std::span<char> destination, std::string_view text);

// Formats as snprintf does and cuts. Returns the number of bytes that stayed, NUL not counted.
[[gnu::format(printf, 2, 3)]] size_t FormatCut(std::span<char> destination, const char *format, ...);
[[gnu::format(printf, 2, 0)]] size_t FormatCutList(std::span<char> destination, const char *format, va_list arguments);
