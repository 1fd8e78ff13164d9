// BlobReader: opens an encrypted password the way the printer does, with the openssl command and the development
// private key.
#pragma once

#include <string>
#include <string_view>

// Decrypts the base64 of a key-transport blob. Returns false when a field of the blob is not as the printer expects it;
// throws when a command fails.
bool OpenPasswordBlob(std::string_view base64, std::string &plain);
