// PasswordTicket: passwords as tickets store them, and the getter that turns such a one into one that only the printer
// can read.
#pragma once

#include "TicketReader.h"

#include <cups/cups.h>

#include <cstdint>
#include <string>
#include <string_view>

// Size of a field that takes an encrypted password: base64 of a blob of up to 609 bytes needs 812 characters.
constexpr int32_t kEncryptedPasswordSize = 2048;

// Decrypts the stored password and encrypts it for the printer, as base64. A text that is valid base64 but no stored
// password stays as it is. Returns 1 when the destination holds a value, 0, with the destination all zero, when the
// ticket counts as absent.
int32_t GetTicketPasswordStringConvertedToEncryption(const char *key, int32_t optionCount, cups_option_t *options,
                                                     void *destination, int32_t size);

// Longest password that can be stored, in bytes.
constexpr size_t kStoredPasswordMaxLength = 239;

// The ticket value that stores the password: base64 (RFC 4648), or the byte values of its characters where it would
// begin with "/". Empty when the password is empty or too long; some values of more than 47 bytes that would begin with
// "/" are too long as well. Good for a filter built with the same key material.
std::string StorePassword(std::string_view password);

// The row of such a ticket.
constexpr ticketData PasswordTicket(const char *key, char (&field)[kEncryptedPasswordSize])
{
    return TextTicket(key, field, GetTicketPasswordStringConvertedToEncryption);
}
