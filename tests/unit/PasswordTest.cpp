// Passwords where no job gets to. What a printer makes of those that are sent stands in data/jobs/credentials.jobs.
#include "PasswordTicket.h"

#include "ProductConfig.h"
#include "Rows.h"
#include "secblobenc-sender.h"
#include "secblobenc.h"

#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>
#include <openssl/evp.h>
#include <openssl/hmac.h>
#include <openssl/rand.h>
#include <pthread.h>
#include <unistd.h>

static const char secret[] = "uvShStrPqbe+e1Ldn4EVdg=="; // "secret" as it is stored

// Reads a ticket into the field and returns what the getter does.
static int32_t Get(const std::string &value, std::vector<char> &field)
{
    cups_option_t *options = nullptr;
    const int count = value == "(absent)" ? 0 : cupsAddOption("password", value.c_str(), 0, &options);
    const int32_t present = GetTicketPasswordStringConvertedToEncryption("password", count, options, field.data(),
                                                                         static_cast<int32_t>(field.size()));
    cupsFreeOptions(count, options);
    return present;
}

TEST(Password, WhatIsNoStoredOneStaysAsItIs)
{
    CheckRows("passwords-as-they-are", [](const Cells &given) -> Cells {
        auto field = Buffer(Number(given[1]));
        int32_t present = 0;
        const std::string messages = Printed([&] { present = Get(given[0], field); });
        const std::string text = TextOf(field);
        EXPECT_EQ(std::string(field.begin(), field.end()), text + std::string(field.size() - text.size(), '\0'));
        return {std::to_string(present), text, messages};
    });
}

// What is looked for in every block that is freed, and how often it was there.
static std::string_view lookedFor;
static int found;

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
    if (!lookedFor.empty() && std::string_view(static_cast<char *>(block), size).find(lookedFor) != std::string::npos)
        found++;
    free(block);
}

static const char password[] = "a password of some length, so that nothing else looks like it";

static void *ReadStored(void *)
{
    auto sent = Buffer(kEncryptedPasswordSize);
    EXPECT_EQ(Get(StorePassword(password), sent), 1);
    return nullptr;
}

static uint32_t stored = 99;

static void *UseStorageKey(void *)
{
    volatile char depth[1 << 16]; // what runs later does not come so far down
    depth[0] = 0;
    static_cast<void>(depth[0]);
    unsigned char out[16];
    uint32_t length = sizeof out;
    stored = Encode_Storage("secret", 6, seed1, sizeof seed1, seed2, sizeof seed2, seed3, sizeof seed3, out, &length);
    return nullptr;
}

// Runs on a stack of the test's own, so that what is left there can be looked at.
TEST(Password, LeavesNoSecretBehind)
{
    constexpr size_t stackSize = 1 << 20;
    unsigned char key[32];
    HMAC(EVP_sha256(), seed1, sizeof seed1, seed2, sizeof seed2, key, nullptr);
    const struct {
        void *(*call)(void *);
        std::string_view wanted;
    } cases[] = {{ReadStored, password}, {UseStorageKey, {reinterpret_cast<const char *>(key), sizeof key}}};
    for (const auto &[call, wanted] : cases) {
        const std::unique_ptr<char, decltype(&free)> stack(static_cast<char *>(aligned_alloc(4096, stackSize)), free);
        memset(stack.get(), 0, stackSize);
        pthread_attr_t attributes;
        pthread_attr_init(&attributes);
        pthread_attr_setstack(&attributes, stack.get(), stackSize);
        pthread_t thread;
        lookedFor = wanted;
        found = 0;
        ASSERT_EQ(pthread_create(&thread, &attributes, call, nullptr), 0);
        pthread_join(thread, nullptr);
        pthread_attr_destroy(&attributes);
        lookedFor = {};
        EXPECT_EQ(found, 0);
        EXPECT_EQ(std::string_view(stack.get(), stackSize).find(wanted), std::string::npos);
    }
    EXPECT_EQ(stored, 0u);
}

TEST(SecureBlob, TransportReportsTheStepThatFailed)
{
    CheckRows("blob-transport", [](const Cells &given) -> Cells {
        auto data = Buffer(99501), out = Buffer(100000);
        std::string key = given[3];
        if (key.starts_with("official")) {
            key.replace(0, strlen("official"), RSA_PUBKEY_2048_OFFICIAL);
            std::erase(key, '\n');
        }
        uint32_t length = 7, status = 0;
        std::string messages = Printed([&] {
            status =
                SecBlobEnc_KT_Encrypt(Number(given[0]), Number(given[1]), data.data(),
                                      static_cast<uint32_t>(Number(given[2])), key.c_str(), 399, out.data(), &length);
        });
        if (messages.starts_with("RSA Error["))
            messages.erase(0, messages.find("ERROR["));
        if (status == 0) {
            EXPECT_EQ(out[11], 1); // it names the 3072-bit key
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

TEST(SecureBlob, ReportsAKeyThatCannotBeDerived)
{
    unsigned char data[16] = {}, out[400];
    uint32_t length = sizeof out;
    Generate_Random(1, data);
    EVP_set_default_properties(nullptr, "provider=none");
    const std::string messages = Printed([&] {
        EXPECT_EQ(Encode_Storage(data, 6, seed1, 32, seed2, 32, seed3, 16, out, &length), 99u);
        EXPECT_EQ(Decode_Storage(data, 16, seed1, 32, seed2, 32, seed3, 16, out, &length), 99u);
        EXPECT_EQ(Encode_Random(data, 6, out, &length), 99u);
    });
    EVP_set_default_properties(nullptr, "");
    EXPECT_EQ(messages, "ERROR[39]: Key Derivation HMAC failed[99].\n"
                        "ERROR[84]: Key Derivation HMAC failed[99].\n"
                        "ERROR[131]: Key Derivation HMAC failed[99].\n");
}

TEST(PasswordDeathTest, NothingIsSentWithoutRandomBytes)
{
    const auto run = [] {
        setvbuf(stdout, nullptr, _IONBF, 0);
        dup2(STDERR_FILENO, STDOUT_FILENO);
        OSSL_LIB_CTX_set0_default(OSSL_LIB_CTX_new()); // in which no random generator has started
        RAND_set_DRBG_type(nullptr, "none", nullptr, nullptr, nullptr);
        auto sent = Buffer(kEncryptedPasswordSize);
        _exit(Get(secret, sent) == 0 && sent == std::vector<char>(sent.size()) ? 0 : 1);
    };
    EXPECT_EXIT(run(), testing::ExitedWithCode(0),
                "^Generate Random Error\\[-1\\]ERROR\\[114\\]: generate random failed\\[99\\]\\.\n"
                "##filter debug## final encode failed encodeResult : 99 \n$");
}
