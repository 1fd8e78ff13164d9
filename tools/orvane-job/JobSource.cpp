#include "JobSource.h"

#include <cstring>

// Room for several pieces, so that few bytes are moved.
static constexpr size_t kRoom = 8 * kPieceLimit;

// At least one piece and the UEL after it, unless the job ends before.
static std::string_view Available(JobSource &source)
{
    if (source.end - source.begin < kPieceLimit + kUEL.size()) {
        source.bytes.resize(kRoom);
        memmove(source.bytes.data(), source.bytes.data() + source.begin, source.end - source.begin);
        source.end -= source.begin;
        source.begin = 0;
        source.end += fread(source.bytes.data() + source.end, 1, kRoom - source.end, source.file);
    }
    return {source.bytes.data() + source.begin, source.end - source.begin};
}

std::string_view NextPiece(JobSource &source)
{
    const std::string_view available = Available(source);
    std::string_view piece = available.substr(0, kPieceLimit);
    const size_t start = piece.starts_with(kUEL) ? kUEL.size() : 0;
    const bool isPJL = piece.substr(start).starts_with(kPJLPrefix);
    const size_t lineEnd = piece.find_first_of(isPJL ? "\n" : "\r\n\x04", start);
    piece = piece.substr(0, lineEnd == piece.npos ? lineEnd : lineEnd + 1);
    piece = piece.substr(0, available.substr(0, piece.size() + kUEL.size() - 1).find(kUEL, 1));
    source.begin += piece.size();
    source.offset += piece.size();
    return piece;
}
