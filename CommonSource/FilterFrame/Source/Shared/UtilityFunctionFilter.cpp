#include "UtilityFunctionFilter.h"

#include "BoundedText.h"
#include "PPDLookup.h"
#include "TextEncoding.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <unistd.h>

const char _IPv4_LocalHost_sign_[] = "127.0.0.1";
const char _IPv6_LocalHost_sign_[] = "fe80::1";
const char _IPv4_sign_[] = ".";
const char _IPv6_sign_[] = ":";

// Longest host name that is asked for, its NUL not counted, and the UTF-16 units of it that are sent in UTF-8 mode.
constexpr size_t kSystemHostName = 255;
constexpr size_t kHostNameUnits = 32;

// Groups of an IPv6 address and digits of a group (RFC 4291).
constexpr size_t kIPv6Groups = 8;
constexpr size_t kIPv6GroupDigits = 4;

// The lookup that runs: where its address goes, the size of that buffer, and whether the last address was readable.
static char *outString;
static int32_t outStringLen;
static bool result;

// Ends the process when what must hold doesn't, also in a release build.
static void Require(bool holds, const char *condition, const char *function)
{
    if (holds)
        return;
    fprintf(stderr, "Assertion failed: (%s), function %s, file UtilityFunctionFilter.cpp.\n", condition, function);
    abort();
}

static bool IsASCII(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

void CutHostName(std::string_view name, bool inUTF8, char *destination)
{
    std::u16string units;
    if (inUTF8 && PlatformDecodeUTF8(name, units) && units.size() > kHostNameUnits)
        name = name.substr(0, UTF8BytesOfUnits(name, kHostNameUnits));
    memset(destination, 0, kHostNameSize);
    CopyCut({destination, kHostNameSize}, name);
}

void getHostName(char *destination)
{
    char name[kSystemHostName + 1] = "";
    if (gethostname(name, kSystemHostName) != 0)
        name[0] = '\0';
    CutHostName(name, IsUTF8Mode(), destination);
}

bool getHostAddress(const char *name, char *destination, int32_t size)
{
    result = false;
    if (!name || !destination || size < 0)
        return false;
    Require(IsASCII(name), "inputString != NULL", __func__);
    outString = destination;
    outStringLen = size;
    memset(destination, 0, static_cast<size_t>(size));
    MyResolveNameToAddress(name);
    return result;
}

bool MyResolveNameToAddress(const char *hostName)
{
    Require(hostName != nullptr, "hostName != NULL", __func__);
    HostLookup *host = new HostLookup;
    MyCFHostClientCallBack(host, PlatformResolveHost(hostName, *host) ? 0 : -1, hostName);
    return true;
}

void MyCFHostClientCallBack(HostLookup *host, int32_t error, const char *hostName)
{
    if (error == 0)
        MyPrintAddressArray(host, hostName);
    MyCFHostCleanup(host);
}

void MyPrintAddressArray(const HostLookup *addresses, const char *hostName)
{
    Require(addresses != nullptr, "addresses != NULL", __func__);
    Require(hostName != nullptr, "hostName != NULL", __func__);
    Require(IsASCII(hostName), "success", __func__);
    for (const PlatformAddress &address : *addresses) {
        Require(!address.empty(), "addr != NULL", __func__);
        char text[kPlatformAddressText];
        result = PlatformNumericAddress(address, text);
        const bool IPv4 = strstr(text, _IPv4_sign_) && strcmp(text, _IPv4_LocalHost_sign_) != 0;
        const bool IPv6 = strstr(text, _IPv6_sign_) && !strstr(text, _IPv6_LocalHost_sign_);
        if (IPv4 || IPv6)
            CopyCut({outString, static_cast<size_t>(outStringLen)}, text);
        if (IPv4)
            return;
    }
}

void MyCFHostCleanup(HostLookup *host)
{
    Require(host != nullptr, "host != NULL", __func__);
    delete host;
}

static std::string CompactIPv4(const char *octets)
{
    std::string compact = "I";
    for (const char *octet = octets; octet; octet = strchr(octet, '.')) {
        if (*octet == '.')
            octet++;
        const int value = atoi(octet);
        if (value < 0 || value >= 256)
            break;
        char digits[3];
        FormatCut(digits, "%02X", static_cast<unsigned>(value));
        compact += digits;
    }
    return compact;
}

// The groups of one side of "::", each padded to four digits.
static std::string PaddedGroups(std::string_view groups)
{
    std::string padded;
    while (!groups.empty()) {
        const std::string_view group = groups.substr(0, groups.find(':'));
        padded.append(kIPv6GroupDigits - std::min(group.size(), kIPv6GroupDigits), '0').append(group);
        groups.remove_prefix(std::min(group.size() + 1, groups.size()));
    }
    return padded;
}

static std::string CompactIPv6(std::string_view address)
{
    const size_t gap = address.find("::");
    const std::string head = PaddedGroups(address.substr(0, gap));
    const std::string tail = gap == std::string_view::npos ? "" : PaddedGroups(address.substr(gap + 2));
    const size_t digits = kIPv6Groups * kIPv6GroupDigits;
    return "6" + head + std::string(digits - std::min(digits, head.size() + tail.size()), '0') + tail;
}

void CompactAddress(std::string_view address, char *destination)
{
    const std::string numeric(address.substr(0, address.find('%')));
    std::string compact;
    if (numeric.find(_IPv4_sign_) != std::string::npos) // also as the end of an IPv6 address that stands for IPv4
        compact = CompactIPv4(numeric.substr(numeric.rfind(_IPv6_sign_) + 1).c_str());
    else if (numeric.find(_IPv6_sign_) != std::string::npos)
        compact = CompactIPv6(numeric);
    memset(destination, 0, kIPAddressSize);
    CopyCut({destination, kIPAddressSize}, compact);
}

void GetClientIPAddress(char *hostBuffer, char *addressBuffer)
{
    char address[kPlatformAddressText] = "";
    getHostName(hostBuffer);
    getHostAddress(hostBuffer, address, sizeof address);
    CompactAddress(address, addressBuffer);
}

char *itoa(int32_t value, char *buffer, int32_t size)
{
    if (size <= 0)
        return buffer;
    char *digit = buffer + size - 1;
    *digit = '\0';
    for (; value > 0 && digit > buffer; value /= 10)
        *--digit = static_cast<char>('0' + value % 10);
    return digit;
}
