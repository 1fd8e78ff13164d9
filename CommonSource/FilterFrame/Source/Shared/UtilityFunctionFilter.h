// UtilityFunctionFilter: the sending computer's name and address, and a small number formatter.
#pragma once

#include "JobState.h"
#include "Platform.h"

#include <cstdint>
#include <string_view>
#include <vector>

// Addresses that are never reported, and the characters that tell the families apart.
extern const char _IPv4_LocalHost_sign_[];
extern const char _IPv6_LocalHost_sign_[];
extern const char _IPv4_sign_[];
extern const char _IPv6_sign_[];

// Fills a buffer of kHostNameSize bytes with the host's name; empty when it has none.
void getHostName(char *destination);

// Cuts a name to what is sent, 32 UTF-16 units in UTF-8 and as many bytes as fit otherwise, into kHostNameSize bytes.
void CutHostName(std::string_view name, bool inUTF8, char *destination);

// Resolves a name (ASCII) to a numeric address of at most `size` bytes, NUL included. Returns whether the last address
// looked at could be formatted; a host that only has loopback addresses leaves the destination empty.
bool getHostAddress(const char *name, char *destination, int32_t size);

// The steps of a lookup: start it, receive its answer, choose among its addresses, and end it.
using HostLookup = std::vector<PlatformAddress>;
bool MyResolveNameToAddress(const char *hostName);
void MyCFHostClientCallBack(HostLookup *host, int32_t error, const char *hostName);
void MyPrintAddressArray(const HostLookup *addresses, const char *hostName);
void MyCFHostCleanup(HostLookup *host);

// Fills the host's name and its address in compact hexadecimal. The buffers have kHostNameSize and kIPAddressSize
// bytes.
void GetClientIPAddress(char *hostBuffer, char *addressBuffer);

// Writes a numeric address in compact hexadecimal, "I" and 8 digits or "6" and 32, into kIPAddressSize bytes; empty
// for a text that is no address.
void CompactAddress(std::string_view address, char *destination);

// Writes the decimal digits of `value` to the end of the buffer, NUL last; 0 gives no digit, negative values are give
// none either. Returns the first digit; a number that is too long keeps its last ones.
char *itoa(int32_t value, char *buffer, int32_t size);
