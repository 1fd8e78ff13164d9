// UtilityFunctionFilter: the sending computer's name and address, and a small number formatter.
#pragma once

#include "JobState.h"
#include "Platform.h"

#include <cstdint>
#include <string>
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

// The address to report: the first of IPv4 or, without one, the last of IPv6; numeric, empty when there is none.
// readable: whether the last address looked at could be formatted.
struct ChosenAddress {
    std::string text;
    bool readable;
};
ChosenAddress ChooseAddress(const std::vector<PlatformAddress> &addresses);

// Resolves a name (ASCII) to the address to report, of at most `size` bytes, NUL included. Returns whether the last
// address looked at could be formatted; a host that only has loopback addresses leaves the destination empty.
bool getHostAddress(const char *name, char *destination, int32_t size);

// One lookup: where its address goes, the size of that buffer, whether the last address was readable, and the answer.
struct HostLookup {
    char *outString;
    int32_t outStringLen;
    bool result;
    std::vector<PlatformAddress> addresses;
};

// The steps of a lookup: start it (false when none could be started), receive its answer, take the address out of it,
// and end it. The answer comes before the first returns.
bool MyResolveNameToAddress(const char *hostName, HostLookup *host);
void MyCFHostClientCallBack(HostLookup *host, int32_t error, const char *hostName);
void MyPrintAddressArray(HostLookup *host, const char *hostName);
void MyCFHostCleanup(HostLookup *host);

// Fills the host's name and its address in compact hexadecimal. The buffers have kHostNameSize and kIPAddressSize
// bytes.
void GetClientIPAddress(char *hostBuffer, char *addressBuffer);

// Writes a numeric address in compact hexadecimal, "I" and 8 digits or "6" and 32, into kIPAddressSize bytes; empty for
// a text that is not an address.
void CompactAddress(std::string_view address, char *destination);

// Writes the decimal digits of `value` to the end of the buffer, NUL last; 0 and negative values give none. Returns the
// first digit; a number that is too long keeps its last ones.
char *itoa(int32_t value, char *buffer, int32_t size);
