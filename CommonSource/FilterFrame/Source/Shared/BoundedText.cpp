#include "BoundedText.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstring>

size_t CopyCut(std::span<char> destination, std::string_view text)
{
    if (destination.empty())
        return 0;
    const size_t length = std::min({text.size(), text.find('\0'), destination.size() - 1});
    memcpy(destination.data(), text.data(), length);
    destination[length] = '\0';
    return length;
}

size_t FormatCut(std::span<char> destination, const char *format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    const size_t length = FormatCutList(destination, format, arguments);
    va_end(arguments);
    return length;
}

size_t FormatCutList(std::span<char> destination, const char *format, va_list arguments)
{
    if (destination.empty())
        return 0;
    const int wanted = vsnprintf(destination.data(), destination.size(), format, arguments);
    if (wanted < 0) {
        destination[0] = '\0';
        return 0;
    }
    return std::min(static_cast<size_t>(wanted), destination.size() - 1);
}
