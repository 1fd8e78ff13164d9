#include "BlobReader.h"

#include "JobRunner.h"

#include <cstdio>
#include <stdexcept>

// Runs an openssl command on some input and returns its output.
static std::string OpenSSL(const std::string &arguments, std::string_view input)
{
    const std::string path = TestDirectory() + "/openssl-input";
    WriteFile(path, std::string(input));
    std::string output;
    FILE *pipe = popen(("openssl " + arguments + " < " + path).c_str(), "r");
    for (int byte; pipe && (byte = fgetc(pipe)) != EOF;)
        output += static_cast<char>(byte);
    if (!pipe || pclose(pipe) != 0)
        throw std::runtime_error("openssl " + arguments);
    return output;
}

static std::string Hex(const std::string &bytes)
{
    std::string hex;
    for (const char byte : bytes)
        for (const int shift : {4, 0})
            hex += "0123456789abcdef"[byte >> shift & 15];
    return hex;
}

// Four bytes, the lowest first.
static std::string LittleEndian(size_t number)
{
    return {static_cast<char>(number), static_cast<char>(number >> 8), static_cast<char>(number >> 16), '\0'};
}

bool OpenPasswordBlob(std::string_view base64, std::string &plain)
{
    // Offsets for a 2048-bit key and AES in CBC mode.
    const size_t salt = 48, wrappedKey = 80, vector = 336, payload = 352;
    const std::string key = OV_TEST_DATA "/keys/development-2048.pem", blob = OpenSSL("base64 -d -A", base64);
    const std::string identifier = OpenSSL("dgst -sha256 -binary", OpenSSL("pkey -pubout -outform DER -in " + key, ""));
    const std::string header = "\x08\x01" + LittleEndian(blob.size() - payload) + LittleEndian(blob.size()) +
                               std::string("\x01\0\0\0\0\0", 6) + identifier;
    if (blob.size() < payload + 16 || !blob.starts_with(header))
        return false;
    const std::string secret = OpenSSL("pkeyutl -decrypt -inkey " + key +
                                           " -pkeyopt rsa_padding_mode:oaep -pkeyopt rsa_oaep_md:sha256"
                                           " -pkeyopt rsa_mgf1_md:sha256",
                                       blob.substr(wrappedKey, vector - wrappedKey));
    const std::string aesKey = OpenSSL("dgst -sha256 -mac HMAC -macopt hexkey:" + Hex(secret) + " -binary",
                                       blob.substr(salt, wrappedKey - salt));
    plain = OpenSSL("enc -d -aes-256-cbc -K " + Hex(aesKey) + " -iv " + Hex(blob.substr(vector, payload - vector)),
                    blob.substr(payload));
    return secret.size() == 32;
}
