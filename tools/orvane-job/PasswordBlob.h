// PasswordBlob: what stands in a line that carries a password, and what is in it for whoever has the printer's key.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

struct evp_pkey_st;
struct PrivateKeyCloser {
    void operator()(evp_pkey_st *key) const;
};
using PrivateKey = std::unique_ptr<evp_pkey_st, PrivateKeyCloser>;

// Reads an RSA key in PEM (RFC 7468) and asks at the terminal for its passphrase, if it has one. Null when it can't.
PrivateKey ReadPrivateKey(const char *path);

enum class PasswordState {
    Clear,    // no blob: the text itself
    Damaged,  // a blob that is not whole
    Blob,     // whole, and not looked into for want of a key
    Opened,   // the key opens it
    WrongKey, // the key does not
};

// bytes: of the encrypted part, which pads the password to whole blocks. isForThisBuild: encrypted for the key that
// this build has. text: the password when it is in clear or opened.
struct Password {
    PasswordState state = PasswordState::Clear;
    uint32_t bytes = 0;
    bool isForThisBuild = false;
    std::string text = {};
};

// value: as the line has it, not empty. key: or null.
Password ReadPassword(std::string_view value, evp_pkey_st *key);
