// BlobReader: opens an encrypted password the way the printer does.
// Uses OpenSSL and the development private key only, none of the product's code.
#pragma once

#include <string>
#include <string_view>

// Decrypts the base64 of a key-transport blob. Returns false, with `plain` empty, when any field of the blob is not as
// the printer expects it or a step fails.
bool OpenPasswordBlob(std::string_view base64, std::string &plain);
