#include "UtilityFunctionFilter.h"

#include "BoundedText.h"
#include "PPDLookup.h"
#include "TextEncoding.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <span>
#include <string>
#include <unistd.h>

const char _IPv4_LocalHost_sign_[] = "127.0.0.1";
const char _IPv6_LocalHost_sign_[] = "fe80::1";
const char _IPv4_sign_[] = ".";
const char _IPv6_sign_[] = ":";

// Longest host name that is asked for, its NUL not counted, and the UTF-16 units of it that are sent in UTF-8 mode.
constexpr size_t kSystemHostName = 255;
constexpr size_t kHostNameUnits = 32;

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

ChosenAddress ChooseAddress(const std::vector<PlatformAddress> &addresses)
{
    ChosenAddress chosen = {};
    for (const PlatformAddress &address : addresses) {
        char text[kPlatformAddressText];
        chosen.readable = PlatformNumericAddress(address, text);
        const bool IPv4 = strstr(text, _IPv4_sign_) && strcmp(text, _IPv4_LocalHost_sign_) != 0;
        const bool IPv6 = strstr(text, _IPv6_sign_) && !strstr(text, _IPv6_LocalHost_sign_);
        if (IPv4 || IPv6)
            chosen.text = text;
        if (IPv4)
            break;
    }
    return chosen;
}

bool getHostAddress(const char *name, char *destination, int32_t size)
{
    if (!name || !destination || size < 0)
        return false;
    Require(IsASCII(name), "inputString != NULL", __func__);
    memset(destination, 0, static_cast<size_t>(size));
    HostLookup host = {destination, size, false, {}};
    return MyResolveNameToAddress(name, &host) && host.result;
}

bool MyResolveNameToAddress(const char *hostName, HostLookup *host)
{
    Require(hostName != nullptr, "hostName != NULL", __func__);
    Require(host != nullptr, "host != NULL", __func__);
    const PlatformLookup outcome = PlatformResolveHost(hostName, host->addresses);
    if (outcome == PlatformLookup::NotStarted) {
        MyCFHostCleanup(host);
        return false;
    }
    MyCFHostClientCallBack(host, outcome == PlatformLookup::Found ? 0 : -1, hostName);
    return true;
}

void MyCFHostClientCallBack(HostLookup *host, int32_t error, const char *hostName)
{
    if (error == 0)
        MyPrintAddressArray(host, hostName);
    MyCFHostCleanup(host);
}

void MyPrintAddressArray(HostLookup *host, const char *hostName)
{
    Require(host != nullptr, "addresses != NULL", __func__);
    Require(hostName != nullptr, "hostName != NULL", __func__);
    Require(IsASCII(hostName), "success", __func__);
    for (const PlatformAddress &address : host->addresses)
        Require(!address.empty(), "addr != NULL", __func__);
    const ChosenAddress chosen = ChooseAddress(host->addresses);
    if (!chosen.text.empty())
        CopyCut({host->outString, static_cast<size_t>(host->outStringLen)}, chosen.text);
    host->result = chosen.readable;
}

void MyCFHostCleanup(HostLookup *host)
{
    Require(host != nullptr, "host != NULL", __func__);
    host->addresses.clear();
}

void CompactAddress(std::string_view address, char *destination)
{
    const std::vector<unsigned char> bytes = PlatformAddressBytes(address);
    const bool IPv4 = bytes.size() == 4;
    const std::span<char> out(destination, kIPAddressSize);
    memset(destination, 0, kIPAddressSize);
    size_t length = bytes.empty() ? 0 : CopyCut(out, IPv4 ? "I" : "6");
    for (const unsigned char byte : bytes)
        length += FormatCut(out.subspan(length), IPv4 ? "%02X" : "%02x", byte);
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
