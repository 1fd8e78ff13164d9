// The document's way in both modes, without the header. Without tickets nothing is injected, so it arrives as sent.
// Input: the kind of PPD, the mode and the source (one byte), then the document.

#include "InProcess.h"
#include "PSLineReader.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

static std::string Expected(std::string_view document, bool spooled)
{
    const size_t lineEnd = document.find_last_of("\r\n");
    std::string expected(document.substr(0, lineEnd == document.npos ? 0 : lineEnd + 1));
    std::string_view tail = document.substr(expected.size());
    // A line without an end is let out in full buffers; the rest is lost, but for the last byte in spooled mode.
    const size_t whole = tail.size() / 8065 * 8065;
    expected += tail.substr(0, whole);
    tail.remove_prefix(whole);
    if (!spooled)
        return expected + '\x04';
    if (!tail.empty())
        expected += tail.back();
    if (document.empty() || document.back() != '\x04')
        expected += '\x04';
    return expected;
}

// Input is small, the reader's blocks are not: a run of a byte stands for a long one, and the first runs of an input
// fill more than a block.
static std::string Unpacked(std::string_view input)
{
    std::string document;
    size_t room = kPSBlockSize + kPSLineRoom;
    while (!input.empty()) {
        const size_t plain = std::min(input.find('\xFE'), input.size());
        document.append(input, 0, plain);
        input.remove_prefix(plain);
        if (input.size() > 3) {
            const auto high = static_cast<unsigned char>(input[2]), low = static_cast<unsigned char>(input[3]);
            const size_t count = std::min<size_t>(high * 256U + low, room);
            document.append(count, input[1]);
            room -= count;
            input.remove_prefix(4);
        } else {
            document += input;
            break;
        }
    }
    return document;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size == 0)
        return 0;
    const bool spooled = data[0] & 16;
    const std::string document = Unpacked({reinterpret_cast<const char *>(data) + 1, size - 1});
    const std::string ppd = PPDOfKind(data[0] & 7, spooled);
    Require(RunDocument(document, ppd, spooled, data[0] & 32) == Expected(document, spooled));
    return 0;
}
