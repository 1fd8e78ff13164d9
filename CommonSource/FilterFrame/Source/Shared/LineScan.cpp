#include "LineScan.h"

#include <algorithm>
// Written in C that clang++ does not take for C++.
#if defined(__x86_64__) && !defined(__clang__) && __has_include(<sys/platform/x86.h>)
#include <sys/platform/x86.h>
#endif

// Bytes that are looked at together, and the length of common lines.
static constexpr ptrdiff_t kScanStep = 64;
static constexpr ptrdiff_t kShortLine = 256;

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

[[gnu::always_inline]] static inline const char *ScanForLineEnd(const char *from, const char *end)
{
    return FindPosition(from, end, 0, [](char byte, char) { return IsLineEnd(byte); });
}

[[gnu::always_inline]] static inline const char *ScanForEndBeforeMarker(const char *from, const char *end)
{
    return FindPosition(from, end, 1,
                        [](char byte, char next) -> unsigned char { return IsLineEnd(byte) & CanBeMarker(next); });
}

[[gnu::always_inline]] static inline const char *ScanForFrame(const char *from, const char *end, ptrdiff_t distance,
                                                              char first, char last)
{
    return FindPosition(from, end, distance, [first, last](char byte, char after) -> unsigned char {
        return (byte == first) & (after == last);
    });
}

// The scans are compiled twice where a processor may have wider vectors than all of its kind. The C library knows which
// it is; to ask the processor once more costs a small job a fiftieth of its time in a virtual machine.
#ifdef CPU_FEATURE_ACTIVE
static const bool wideVectors = CPU_FEATURE_ACTIVE(AVX2);

template <auto Scan, typename... Arguments> [[gnu::target("avx2")]] static const char *ScanWide(Arguments... arguments)
{
    return Scan(arguments...);
}

template <auto Scan, typename... Arguments> static const char *ScanBest(Arguments... arguments)
{
    return wideVectors ? ScanWide<Scan>(arguments...) : Scan(arguments...);
}
#else
template <auto Scan, typename... Arguments> static const char *ScanBest(Arguments... arguments)
{
    return Scan(arguments...);
}
#endif

const char *FindLineEnd(const char *from, const char *end)
{
    return ScanBest<ScanForLineEnd>(from, end);
}

const char *FindEndBeforeMarker(const char *from, const char *end)
{
    return ScanBest<ScanForEndBeforeMarker>(from, end);
}

const char *FindFrame(const char *from, const char *end, ptrdiff_t distance, char first, char last)
{
    return ScanBest<ScanForFrame>(from, end, distance, first, last);
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
