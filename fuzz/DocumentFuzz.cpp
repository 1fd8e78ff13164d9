// The document in both modes. Without tickets nothing is injected, so it arrives as it was sent.
// Input: the kind of PPD and the mode (one byte), then the document.

#include "InProcess.h"

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

// Input is small, the reader's blocks are not: a run of a byte stands for a long one.
static std::string Unpacked(std::string_view input)
{
    std::string document;
    for (size_t i = 0; i < input.size(); i++) {
        if (input[i] == '\xFE' && input.size() - i > 3) {
            const auto high = static_cast<unsigned char>(input[i + 2]), low = static_cast<unsigned char>(input[i + 3]);
            document.append(high * 256U + low, input[i + 1]);
            i += 3;
        } else {
            document += input[i];
        }
    }
    return document;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size == 0)
        return 0;
    const bool spooled = data[0] & 16;
    InProcessJob job;
    job.ppd = PPDOfKind(data[0], spooled);
    job.fromFile = data[0] & 32;
    job.document = Unpacked({reinterpret_cast<const char *>(data) + 1, size - 1});
    // Feature code reaches the header in spooled mode, but never an end of it.
    const std::string output = RunInProcess(job);
    Require(DocumentOf(output) == Expected(job.document, spooled));
    return 0;
}
