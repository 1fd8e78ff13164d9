#include "LineScan.h"

#include <algorithm>

// Bytes that are looked at together, and the length of common lines.
static constexpr ptrdiff_t kScanStep = 64;
static constexpr ptrdiff_t kShortLine = 256;

// The scans are compiled twice where a processor may have wider vectors than all of its kind.
#if defined(__x86_64__) && defined(__GLIBC__)
#define FOR_WIDE_VECTORS_TOO [[gnu::target_clones("avx2", "default")]]
#else
#define FOR_WIDE_VECTORS_TOO
#endif

// The first position in [from, end) at which the test holds for the byte there and the one `offset` after it, or `end`.
// The inner loop is what compilers make vector code of.
template <typename Test>
[[gnu::always_inline]] static inline const char *FindPosition(const char *from, const char *end, ptrdiff_t offset,
                                                              Test test)
{
    for (; end - from >= kScanStep; from += kScanStep) {
        unsigned char any = 0;
        for (ptrdiff_t i = 0; i < kScanStep; i++)
            any = static_cast<unsigned char>(any | test(from[i], from[i + offset]));
        if (any)
            break;
    }
    while (from < end && !test(from[0], from[offset]))
        from++;
    return from;
}

FOR_WIDE_VECTORS_TOO static const char *ScanForLineEnd(const char *from, const char *end)
{
    return FindPosition(from, end, 0, [](char byte, char) { return IsLineEnd(byte); });
}

FOR_WIDE_VECTORS_TOO static const char *ScanForEndBeforeMarker(const char *from, const char *end)
{
    return FindPosition(from, end, 1,
                        [](char byte, char next) -> unsigned char { return IsLineEnd(byte) & CanBeMarker(next); });
}

FOR_WIDE_VECTORS_TOO static const char *ScanForFrame(const char *from, const char *end, ptrdiff_t distance, char first,
                                                     char last)
{
    return FindPosition(from, end, distance, [first, last](char byte, char after) -> unsigned char {
        return (byte == first) & (after == last);
    });
}

const char *FindLineEnd(const char *from, const char *end)
{
    return ScanForLineEnd(from, end);
}

const char *FindEndBeforeMarker(const char *from, const char *end)
{
    return ScanForEndBeforeMarker(from, end);
}

const char *FindFrame(const char *from, const char *end, ptrdiff_t distance, char first, char last)
{
    return ScanForFrame(from, end, distance, first, last);
}

const char *FindLastLineEnd(const char *from, const char *end)
{
    while (end > from) {
        const char *const begin = end - std::min(end - from, kShortLine);
        if (FindLineEnd(begin, end) < end) {
            while (!IsLineEnd(*--end))
                continue;
            return end;
        }
        end = begin;
    }
    return nullptr;
}

const char *FindLateLineEnd(const char *from, const char *end)
{
    const char *const late = FindLastLineEnd(end - std::min(end - from, kShortLine), end);
    return late ? late : FindLineEnd(from, end);
}
