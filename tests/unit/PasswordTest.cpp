// Passwords: stored values made, and what is sent for them opened, with the openssl command line.

#include "PasswordTicket.h"
#include "ProductConfig.h"
#include "secblobenc-sender.h"
#include "secblobenc.h"

#include <gtest/gtest.h>
#include <openssl/evp.h>
#include <openssl/rand.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <span>
#include <string>
#include <unistd.h>
#include <vector>

using namespace std::string_literals;
using Bytes = std::vector<unsigned char>;

// Runs an openssl command on some input and returns its output.
static std::string OpenSSL(const std::string &arguments, const std::string &input)
{
    const std::string path = testing::TempDir() + "password-test-" + std::to_string(getpid());
    std::ofstream(path, std::ios::binary) << input;
    std::string output;
    if (FILE *pipe = popen(("openssl " + arguments + " < " + path).c_str(), "r")) {
        for (int byte; (byte = fgetc(pipe)) != EOF;)
            output += static_cast<char>(byte);
        EXPECT_EQ(pclose(pipe), 0) << arguments;
    }
    unlink(path.c_str());
    return output;
}

static std::string Text(std::span<const unsigned char> bytes)
{
    return {bytes.begin(), bytes.end()};
}

static std::string Hex(const std::string &bytes)
{
    std::string hex;
    for (const char byte : bytes)
        for (const int shift : {4, 0})
            hex += "0123456789abcdef"[byte >> shift & 15];
    return hex;
}

static std::string HMAC(const std::string &key, const std::string &message)
{
    return OpenSSL("dgst -sha256 -mac HMAC -macopt hexkey:" + Hex(key) + " -binary", message);
}

static std::string AES(const std::string &direction, const std::string &key, const std::string &iv,
                       const std::string &data)
{
    return OpenSSL("enc " + direction + " -aes-256-cbc -K " + Hex(key) + " -iv " + Hex(iv), data);
}

// What the print dialog keeps for a password.
static std::string Store(const std::string &password)
{
    return OpenSSL("base64 -A", AES("-e", HMAC(Text(seed1), Text(seed2)), Text(seed3), password));
}

// The same for "secret", without a process.
static std::string StoredSecret()
{
    const std::string password = "secret";
    unsigned char stored[16];
    uint32_t length = sizeof stored;
    Encode_Storage(reinterpret_cast<const unsigned char *>(password.data()), 6, seed1, 32, seed2, 32, seed3, 16, stored,
                   &length);
    unsigned char base64[25];
    EVP_EncodeBlock(base64, stored, sizeof stored);
    return reinterpret_cast<const char *>(base64);
}

// Reads a ticket into a destination of `size` bytes and returns what the getter does.
static int32_t Get(const char *value, Bytes &destination)
{
    cups_option_t *options = nullptr;
    const int count = value ? cupsAddOption("password", value, 0, &options) : 0;
    const int32_t present = GetTicketPasswordStringConvertedToEncryption("password", count, options, destination.data(),
                                                                         static_cast<int32_t>(destination.size()));
    cupsFreeOptions(count, options);
    return present;
}

static std::string Encrypt(const std::string &stored)
{
    Bytes sent(kEncryptedPasswordSize, '#');
    EXPECT_EQ(Get(stored.c_str(), sent), 1);
    return reinterpret_cast<const char *>(sent.data());
}

TEST(Password, OpensWithTheCommandLine)
{
    if (system("openssl version > /dev/null") != 0)
        GTEST_SKIP() << "no openssl command";
    const std::string privateKey = OV_TEST_DATA "/keys/development-2048.pem";
    const std::string identifier =
        OpenSSL("dgst -sha256 -binary", OpenSSL("pkey -pubout -outform DER -in " + privateKey, ""));
    const struct {
        std::string password;
        size_t sentLength;
        std::string lengths; // of the payload and of the blob, little-endian
    } cases[] = {
        {"", 492, "\x10\0\0\0\x70\x01\0\0"s},
        {"secret", 492, "\x10\0\0\0\x70\x01\0\0"s},
        {"sixteen bytes ..", 512, "\x20\0\0\0\x80\x01\0\0"s},
        {std::string(239, 'x'), 792, "\xF0\0\0\0\x50\x02\0\0"s},
    };
    for (const auto &c : cases) {
        const std::string stored = Store(c.password);
        const std::string sent = Encrypt(stored);
        EXPECT_EQ(sent.size(), c.sentLength);
        EXPECT_NE(sent, Encrypt(stored));

        const std::string blob = OpenSSL("base64 -d -A", sent);
        ASSERT_GT(blob.size(), 352u);
        EXPECT_EQ(Hex(blob.substr(0, 16)), Hex("\x08\x01" + c.lengths + "\x01\0\0\0\0\0"s));
        EXPECT_EQ(Hex(blob.substr(16, 32)), Hex(identifier));
        const std::string secret = OpenSSL("pkeyutl -decrypt -inkey " + privateKey +
                                               " -pkeyopt rsa_padding_mode:oaep -pkeyopt rsa_oaep_md:sha256"
                                               " -pkeyopt rsa_mgf1_md:sha256",
                                           blob.substr(80, 256));
        EXPECT_EQ(secret.size(), 32u);
        EXPECT_EQ(AES("-d", HMAC(secret, blob.substr(48, 32)), blob.substr(336, 16), blob.substr(352)), c.password);
    }
}

static const std::string kBadLength = "AES Error[-4303]\nERROR[97]: AES Decrypt failed[99].\n";
static const std::string kBadPadding = "AES Error[-4304]\nERROR[97]: AES Decrypt failed[99].\n";

TEST(Password, OtherTickets)
{
    const std::string secret = StoredSecret();
    const std::string bytes255(340, 'A');
    const std::string bytes258(344, 'A');
    const struct {
        const char *value;
        size_t size;
        int32_t present;
        std::string text, messages;
    } cases[] = {
        {nullptr, 64, 0, "", ""},
        {"", 64, 0, "", ""},
        {"1234567", 64, 0, "", ""},
        {bytes258.c_str(), 400, 0, "", ""},
        {secret.c_str(), 492, 0, "", ""}, // no room for the NUL
        {bytes255.c_str(), 400, 1, bytes255, kBadLength},
        {"abcd", 64, 1, "abcd", kBadLength},
        {"abcdefgh", 5, 1, "abcd", kBadLength},
        {"/097/098/099/100", 64, 1, "abcd", kBadLength},
        {"====", 64, 1, "====", kBadPadding},
        {"\xFF\xFF\xFF\xFF", 64, 1, "", kBadPadding},
    };
    for (const auto &c : cases) {
        Bytes destination(c.size, '#');
        testing::internal::CaptureStdout();
        EXPECT_EQ(Get(c.value, destination), c.present);
        EXPECT_EQ(testing::internal::GetCapturedStdout(), c.messages);
        EXPECT_EQ(Text(destination), c.text + std::string(c.size - c.text.size(), '\0'));
    }
}

TEST(SecureBlob, TransportReportsTheStepThatFailed)
{
    const Bytes data(99501, 'x');
    Bytes out(100000);
    const struct {
        int32_t mode, keyType;
        uint32_t length;
        const char *key;
        uint32_t status;
        std::string messages;
    } cases[] = {
        {1, 1, 99500, RSA_PUBKEY_2048_OFFICIAL, 0, ""},
        {1, 2, 99501, RSA_PUBKEY_2048_OFFICIAL, 2, "ERROR[88]: too long bufLen [99501].\n"},
        {0, 2, 6, RSA_PUBKEY_2048_OFFICIAL, 2, "ERROR[106]: invalid key type[2].\n"},
        {0, 0, 6, "A-A", 99, "ERROR[150]: RSA Encrypt failed[99].\n"},
        {0, 0, 6, RSA_PUBKEY_2048_OFFICIAL, 99, "AES Error. Unsupported AES Mode.ERROR[161]: AES Encrypt failed[2].\n"},
    };
    for (const auto &c : cases) {
        uint32_t length = 7;
        testing::internal::CaptureStdout();
        EXPECT_EQ(SecBlobEnc_KT_Encrypt(c.mode, c.keyType, data.data(), c.length, c.key, 399, out.data(), &length),
                  c.status);
        std::string messages = testing::internal::GetCapturedStdout();
        if (messages.starts_with("RSA Error["))
            messages.erase(0, messages.find("ERROR[")); // the library's own code and text
        EXPECT_EQ(messages, c.messages);
        EXPECT_EQ(length, c.status ? 7 : 352 + 99504u);
    }
    EXPECT_EQ(out[11], 1);
    EXPECT_EQ(Text({&out[16], 32}), Text(pubkey3072_OFFICIAL_SHA256));
}

TEST(SecureBlob, StorageReportsTheStepThatFailed)
{
    const std::string tooSmall = "AES Error[-4301]\nERROR[52]: AES Encrypt failed[99].\n";
    const Bytes data(32, 'x');
    const struct {
        decltype(Encode_Storage) *operation;
        uint32_t length, ivLength, capacity, status;
        std::string messages;
    } cases[] = {
        {Encode_Storage, 15, 16, 16, 0, ""},
        {Encode_Storage, 15, 16, 15, 99, tooSmall},
        {Encode_Storage, 16, 16, 31, 99, tooSmall},
        {Encode_Storage, 15, 12, 16, 99, "AES Error[-4300]\nERROR[52]: AES Encrypt failed[99].\n"},
        {Decode_Storage, 17, 16, 32, 99, kBadLength},
        {Decode_Storage, 32, 16, 32, 99, kBadPadding},
    };
    for (const auto &c : cases) {
        Bytes out(c.capacity);
        uint32_t length = c.capacity;
        testing::internal::CaptureStdout();
        EXPECT_EQ(c.operation(data.data(), c.length, seed1, 32, seed2, 32, seed3, c.ivLength, out.data(), &length),
                  c.status);
        EXPECT_EQ(testing::internal::GetCapturedStdout(), c.messages);
    }

    unsigned char stored[16], plain[5];
    uint32_t length = sizeof stored;
    Encode_Storage(data.data(), 6, seed1, 32, seed2, 32, seed3, 16, stored, &length);
    length = sizeof plain;
    testing::internal::CaptureStdout();
    EXPECT_EQ(Decode_Storage(stored, 16, seed1, 32, seed2, 32, seed3, 16, plain, &length), 99u);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "AES Error[-4301]\nERROR[97]: AES Decrypt failed[99].\n");
}

TEST(SecureBlob, ReportsAKeyThatCannotBeDerived)
{
    unsigned char data[16] = {}, out[400];
    uint32_t length = sizeof out;
    Generate_Random(1, data);
    EVP_set_default_properties(nullptr, "provider=none");
    testing::internal::CaptureStdout();
    EXPECT_EQ(Encode_Storage(data, 6, seed1, 32, seed2, 32, seed3, 16, out, &length), 99u);
    EXPECT_EQ(Decode_Storage(data, 16, seed1, 32, seed2, 32, seed3, 16, out, &length), 99u);
    EXPECT_EQ(Encode_Random(data, 6, out, &length), 99u);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "ERROR[39]: Key Derivation HMAC failed[99].\n"
                                                      "ERROR[84]: Key Derivation HMAC failed[99].\n"
                                                      "ERROR[131]: Key Derivation HMAC failed[99].\n");
    EVP_set_default_properties(nullptr, "");
}

// In a process of its own, in which no random generator has started.
TEST(PasswordDeathTest, NothingIsSentWithoutRandomBytes)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto run = [] {
        setvbuf(stdout, nullptr, _IONBF, 0);
        dup2(STDERR_FILENO, STDOUT_FILENO);
        RAND_set_DRBG_type(nullptr, "none", nullptr, nullptr, nullptr);
        Bytes sent(kEncryptedPasswordSize, '#');
        _exit(Get(StoredSecret().c_str(), sent) == 0 && sent == Bytes(sent.size(), '\0') ? 0 : 1);
    };
    EXPECT_EXIT(run(), testing::ExitedWithCode(0),
                "^Generate Random Error\\[-1\\]ERROR\\[114\\]: generate random failed\\[99\\]\\.\n"
                "##filter debug## final encode failed encodeResult : 99 \n$");
}
