// Readable: bytes of a job as text that can do nothing to a terminal or to JSON.
#pragma once

#include <string>
#include <string_view>

// UTF-8 of a text in the job's encoding. Control characters, and others that would not show, become <1B> or <U+202E>;
// bytes that are not valid become <FF>.
std::string Readable(std::string_view bytes, bool isUTF8);

// Whether the text breaks off inside a character.
bool EndsInsideCharacter(std::string_view bytes, bool isUTF8);

bool HasControlCharacter(std::string_view bytes);

// A readable text in quotes, as JSON (RFC 8259) writes it.
std::string JSONString(std::string_view readable);

// How many characters must be inserted, removed or replaced to make one of the other, without regard to case.
size_t EditDistance(std::string_view one, std::string_view other);

// The nearest of the names, or null when none is near enough to be meant.
template <class Names> const std::string *NearestName(std::string_view name, const Names &names)
{
    const std::string *nearest = nullptr;
    size_t least = name.size() / 3 + 2;
    for (const std::string &candidate : names) {
        const size_t distance = EditDistance(name, candidate);
        if (distance < least) {
            least = distance;
            nearest = &candidate;
        }
    }
    return nearest;
}
