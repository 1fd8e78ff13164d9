// Passwords where no job gets to. What a printer makes of those that are sent stands in data/jobs/credentials.jobs.
#define OPENSSL_SUPPRESS_DEPRECATED // for random bytes that are known
#include "PasswordTicket.h"

#include "Platform.h"
#include "ProductConfig.h"
#include "Rows.h"
#include "TestPPD.h"
#include "TestTicket.h"
#include "secblobenc-internal.h"
#include "secblobenc-key-decoder.h"
#include "secblobenc-sender.h"
#include "secblobenc.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <openssl/evp.h>
#include <openssl/rand.h>
#include <utility>

// Random bytes that count upwards from 1, in so many draws; the draws after them fail.
struct KnownRandomBytes {
    static inline unsigned char last;
    static inline int left;
    static int Draw(unsigned char *out, int count)
    {
        std::generate_n(out, count, [] { return ++last; });
        return left-- > 0;
    }
    explicit KnownRandomBytes(int draws)
    {
        static const RAND_METHOD method = {nullptr, Draw, nullptr, nullptr, nullptr, nullptr};
        last = 0;
        left = draws;
        RAND_set_rand_method(&method);
    }
    ~KnownRandomBytes() { RAND_set_rand_method(nullptr); }
};

static const std::string counting = [] {
    std::string bytes(256, '\0');
    std::ranges::generate(bytes, [byte = 0]() mutable { return static_cast<char>(byte++); });
    return bytes;
}();

static std::span<const unsigned char> Bytes(std::string_view text)
{
    return {reinterpret_cast<const unsigned char *>(text.data()), text.size()};
}

static std::string DerivedKey(std::span<const unsigned char> key, std::span<const unsigned char> message)
{
    unsigned char digest[kPlatformHMACBytes];
    PlatformHMACSHA256(key, message, digest);
    return {digest, std::end(digest)};
}

static constexpr TicketGetter getter = GetTicketPasswordStringConvertedToEncryption;

TEST(Password, WhatIsNoStoredOneStaysAsItIs)
{
    CheckRows("passwords-as-they-are", [](const Cells &given) -> Cells {
        auto field = Buffer(Number(given[1]));
        int32_t present = 0;
        const std::string messages = Printed([&] { present = Read(getter, given[0], field); });
        const std::string text = TextOf(field);
        EXPECT_EQ(std::string(field.begin(), field.end()), text + std::string(field.size() - text.size(), '\0'));
        return {std::to_string(present), text, messages};
    });
}

// Its 48 bytes would begin with "/"; as byte values they are too long for the getter.
TEST(Password, IsNotStoredWhereItCannotBeReadAgain)
{
    EXPECT_EQ(StorePassword("password no 1013" + std::string(32, 'x')), "");
    EXPECT_NE(StorePassword("password no 1014" + std::string(32, 'x')), "");
}

// While it is looked for: what no call may leave in memory that it gives back, and how often that was there.
static std::span<const std::string> lookedFor;
static int found;

static void Look(const void *memory, size_t size)
{
    for (const std::string &secret : lookedFor)
        found += std::string_view(static_cast<const char *>(memory), size).find(secret) != std::string_view::npos;
}

[[gnu::noinline]] void *operator new(size_t size)
{
    void *const block = malloc(size);
    return block ? block : throw std::bad_alloc();
}

[[gnu::noinline]] void operator delete(void *block) noexcept
{
    free(block);
}

[[gnu::noinline]] void operator delete(void *block, size_t size) noexcept
{
    Look(block, size);
    free(block);
}

static const char password[] = "a password of some length, so that nothing else looks like it";

// Calls from so far down that what is called later leaves it alone.
[[gnu::noinline]] static uint32_t CallDeep(uint32_t (*call)())
{
    volatile uint32_t depth[1 << 12];
    depth[0] = call();
    return depth[0];
}

// The calls do nothing after what they are about, as that could lie over what was left.
TEST(Password, LeavesNoSecretBehind)
{
    static const TestPPD ppd("*OVTicket a: \"ticket=added\"\n"); // makes the text of the options longer
    static std::string stored = StorePassword(password), longer[] = {std::string(999, 'x'), std::string(4000, 'x')};
    static char name[] = "password", sent[kEncryptedPasswordSize];
    static cups_option_t option = {name, stored.data()};
    static unsigned char out[400];
    static uint32_t length = sizeof out;
    const struct {
        uint32_t (*call)();
        uint32_t answer;
    } calls[] = {{[] { return static_cast<uint32_t>(StorePassword(password).size()); }, 88},
                 {[] { return static_cast<uint32_t>(getter(name, 1, &option, sent, sizeof sent)); }, 1},
                 {[] { return Encode_Storage("x", 1, seed1, 32, seed2, 32, seed3, 16, out, &length); }, 0},
                 {[] { return SecBlobEnc_KT_Encrypt(0, 0, "x", 1, RSA_PUBKEY_2048_OFFICIAL, 399, out, &length); }, 99},
                 {[] { // longer options in their place
                      for (const char *text : {password, longer[0].c_str(), longer[1].c_str()}) {
                          const char *const argv[] = {"", "1", "taro", text, "1", text, nullptr};
                          OptionsOfJob(argv);
                      }
                      return 0u;
                  },
                  0}};
    // Of the password the end: something short may lie over its beginning.
    const std::string secrets[] = {password + 8, DerivedKey({seed1, 32}, {seed2, 32}), counting.substr(1, 32),
                                   DerivedKey(Bytes(counting.substr(1, 32)), Bytes(counting.substr(33, 32)))};
    // The stack below this function, and some of it for what is called here.
    constexpr size_t own = 1 << 13, belowSize = 1 << 18;
    auto *const below =
        reinterpret_cast<char *>(reinterpret_cast<uintptr_t>(__builtin_frame_address(0)) - own - belowSize);
    for (const auto &[call, answer] : calls) {
        const KnownRandomBytes random(9);
        memset(below, 0, belowSize);
        found = 0;
        lookedFor = secrets;
        EXPECT_EQ(CallDeep(call), answer);
        Look(below, belowSize);
        lookedFor = {};
        EXPECT_EQ(found, 0) << "answers " << answer;
    }
}

// A blob's secret, salt and vector are bytes of its own; without them nothing is sent.
TEST(SecureBlob, IsMadeOfRandomBytes)
{
    for (const size_t first : {1, 113}) { // the second blob's, after 32 for the padding of the first
        const KnownRandomBytes random(9);
        unsigned char blob[512], plain[16] = {};
        KnownRandomBytes::last = static_cast<unsigned char>(first - 1);
        uint32_t length = 0;
        size_t plainLength = 0;
        ASSERT_EQ(Encode_Random("secret", 6, blob, &length), 0u);
        const std::string secret = counting.substr(first, 32), salt = counting.substr(first + 32, 32),
                          iv = counting.substr(first + 64, 16);
        EXPECT_EQ(salt + iv, std::string(blob + 48, blob + 80) + std::string(blob + 336, blob + 352));
        PlatformAESCBCDecrypt(Bytes(DerivedKey(Bytes(secret), Bytes(salt))), Bytes(iv), {blob + 352, blob + length},
                              plain, plainLength);
        EXPECT_EQ(std::string(plain, plain + plainLength), "secret");
    }
    for (const auto &[draws, location] : {std::pair{0, "114"}, {1, "122"}, {2, "139"}}) {
        const KnownRandomBytes random(draws);
        auto sent = Buffer(kEncryptedPasswordSize);
        testing::internal::CaptureStderr();
        const std::string messages = Printed([&] { EXPECT_EQ(Read(getter, StorePassword("secret"), sent), 0); });
        EXPECT_EQ(messages + testing::internal::GetCapturedStderr(),
                  std::string("Generate Random Error[-1]ERROR[") + location + "]: generate random failed[99].\n" +
                      "##filter debug## final encode failed encodeResult : 99 \n");
        EXPECT_EQ(sent, std::vector<char>(sent.size()));
    }
}

TEST(SecureBlob, TransportReportsTheStepThatFailed)
{
    CheckRows("blob-transport", [](const Cells &given) -> Cells {
        auto data = Buffer(99501), out = Buffer(100000);
        std::string key = given[3];
        if (key.starts_with("official"))
            key.replace(0, strlen("official"), RSA_PUBKEY_2048_OFFICIAL);
        uint32_t length = 7, status = 0;
        std::string messages = Printed([&] {
            status = SecBlobEnc_KT_Encrypt(Number(given[0]), Number(given[1]), data.data(),
                                           static_cast<uint32_t>(Number(given[2])), key.c_str(),
                                           static_cast<uint32_t>(Number(given[4])), out.data(), &length);
        });
        if (messages.starts_with("RSA Error["))
            messages.erase(0, messages.find("ERROR["));
        if (status == 0) {
            EXPECT_EQ(static_cast<unsigned char>(out[8]), length >> 16); // of its length's bytes the third
            EXPECT_EQ(out[11], 1);                                       // it names the 3072-bit key
            EXPECT_EQ(memcmp(&out[16], pubkey3072_OFFICIAL_SHA256, 32), 0);
        }
        return {std::to_string(status), std::to_string(length), messages};
    });
}

TEST(SecureBlob, StorageReportsTheStepThatFailed)
{
    CheckRows("blob-storage", [](const Cells &given) -> Cells {
        const auto operation = given[0] == "encrypt" ? Encode_Storage : Decode_Storage;
        auto out = Buffer(Number(given[3]));
        uint32_t length = static_cast<uint32_t>(out.size()), status = 0;
        const std::string messages = Printed([&] {
            status = operation(given[1].data(), static_cast<uint32_t>(given[1].size()), seed1, 32, seed2, 32, seed3,
                               static_cast<uint32_t>(Number(given[2])), out.data(), &length);
        });
        return {std::to_string(status), messages};
    });
}

TEST(SecureBlob, StepsTakeNoShortKeyAndNeedTheirRoom)
{
    unsigned char out[256];
    size_t length = 0;
    for (const auto operation : {PlatformAESCBCEncrypt, PlatformAESCBCDecrypt})
        EXPECT_EQ(operation({seed1, 31}, {seed3, 16}, {seed2, 32}, std::span(out), length), kPlatformBadArgument);
    PlatformError error;
    const std::vector<unsigned char> key = SecBlobEnc_Decode_Key(RSA_PUBKEY_2048_OFFICIAL);
    for (const size_t room : {255u, 256u})
        EXPECT_EQ(PlatformRSAOAEPEncrypt(key, {seed2, 32}, {out, room}, length, error),
                  room < 256 ? kPlatformOutputTooSmall : 0);
}

TEST(SecureBlob, DataIsWrittenInPlaceOfOlderData)
{
    const std::string path = testing::TempDir() + std::to_string(getpid()) + ".data";
    outputData("older", 5, path.c_str());
    outputData("abc", 3, path.c_str());
    std::ifstream file(path);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(file), {}), "abc");
    unlink(path.c_str());
}

TEST(SecureBlob, ReportsAKeyThatCannotBeDerived)
{
    unsigned char data[16] = {}, out[400];
    uint32_t length = sizeof out;
    Generate_Random(1, data); // the generator stays
    EVP_set_default_properties(nullptr, "provider=none");
    EXPECT_EQ(Printed([&] {
                  EXPECT_EQ(Encode_Storage(data, 6, seed1, 32, seed2, 32, seed3, 16, out, &length), 99u);
                  EXPECT_EQ(Decode_Storage(data, 16, seed1, 32, seed2, 32, seed3, 16, out, &length), 99u);
                  EXPECT_EQ(Encode_Random(data, 6, out, &length), 99u);
              }),
              "ERROR[39]: Key Derivation HMAC failed[99].\nERROR[84]: Key Derivation HMAC failed[99].\n"
              "ERROR[131]: Key Derivation HMAC failed[99].\n");
    EVP_set_default_properties(nullptr, "");
}
