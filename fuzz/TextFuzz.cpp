// Text conversion and the rules for names, with buffers of exactly the size that is told.
// Input: a size and a mode (one byte each), then the text.

#include "BoundedText.h"
#include "InProcess.h"
#include "JobState.h"
#include "NameValidation.h"
#include "Platform.h"
#include "TextEncoding.h"
#include "TicketReader.h"
#include "UtilityFunctionFilter.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>

static void ConvertAll(const char *text, int32_t size)
{
    const std::unique_ptr<char[]> out(new char[static_cast<size_t>(size)]);
    const auto fits = [&](int32_t length) {
        return length >= 0 && length < size &&
               strnlen(out.get(), static_cast<size_t>(size)) <= static_cast<size_t>(length);
    };
    Require(fits(ConvertUTF8ToEncoding(text, out.get(), size)));
    Require(fits(ConvertUTF8ToPPDEncoding(text, out.get(), size, kCFStringEncodingUTF8)));
    Require(fits(ConvertUTF8ToEncodingForUTF8(text, out.get(), size)));
    checkIfCharacterIsMultibyte(text);
}

static void DecodeNumbers(const std::string &text)
{
    const std::unique_ptr<char[]> copy(new char[text.size() + 1]);
    memcpy(copy.get(), text.c_str(), text.size() + 1);
    numstrtochar(copy.get(), static_cast<int32_t>(text.size() + 1));
    Require(strlen(copy.get()) <= text.size());
}

// As a job does: convert, then check; the product type comes from the job's options.
static void CheckNames(const std::string &text, unsigned mode)
{
    const std::string options = std::string(kPrintTypeProductType) + "=" + std::to_string(mode >> 4 & 7);
    const char *const argv[] = {"", "1", "", "", "1", mode & 8 ? options.c_str() : "", nullptr};
    ClearJobState();
    const bool inUTF8 = mode & 1;
    UsePPD(PPDOfKind(inUTF8 ? 0 : 1, false));
    const auto convert = inUTF8 ? ConvertUTF8ToEncodingForUTF8 : ConvertUTF8ToEncoding;
    convert(text.c_str(), StdUserName, inUTF8 ? kUserNameSize : kUserNameSizeLegacy);
    CopyCut({StdJBAUserName, inUTF8 ? kJBAUserNameSize : kJBAUserNameSizeLegacy}, StdUserName);
    convert(text.c_str(), StdDocumentName, kDocumentNameSize);
    convert(text.c_str(), PTStdDocumentName, kDocumentNameSize);
    InvalidateStdUserName();
    InvalidateStdDocumentNameForProductType(argv);
    InvalidatePrintTypeDocumentNameForProductType(argv);
    Require(*StdUserName != '\0' && memchr(StdUserName, '\0', sizeof StdUserName));
    Require(memchr(StdJBAUserName, '\0', sizeof StdJBAUserName));
    Require(memchr(StdDocumentName, '\0', sizeof StdDocumentName));
    Require(memchr(PTStdDocumentName, '\0', sizeof PTStdDocumentName));
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size < 2)
        return 0;
    const std::string text(reinterpret_cast<const char *>(data) + 2, size - 2);
    ConvertAll(text.c_str(), 1 + data[0]);
    DecodeNumbers(text);
    CheckNames(text, data[1]);

    std::u16string units;
    PlatformDecodeShiftJIS(text, units);
    if (PlatformDecodeUTF8(text, units))
        Require(UTF8BytesOfUnits(text, units.size()) == text.size());
    char host[kHostNameSize], address[kIPAddressSize];
    CutHostName(text, data[1] & 1, host);
    CompactAddress(text, address);
    return 0;
}
