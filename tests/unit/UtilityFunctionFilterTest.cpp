// The lookup of a host, the choice among its addresses, their compact form, the cut of its name;
// and what the kernel is asked.
#include "UtilityFunctionFilter.h"

#include "Rows.h"

#include <algorithm>
#include <cstring>
#include <dlfcn.h>
#include <netdb.h>
#include <sstream>
#include <sys/resource.h>
#include <unistd.h>

// Stands in for the system's lookup: what it was asked for, its error, and whether it gives any name two addresses.
static std::string asked;
static int error;
static bool standsIn;

extern "C" int getaddrinfo(const char *name, const char *service, const addrinfo *hints, addrinfo **found)
{
    static const auto lookUp = reinterpret_cast<decltype(&getaddrinfo)>(dlsym(RTLD_NEXT, "getaddrinfo"));
    asked = name;
    if (error || !standsIn)
        return error ? error : lookUp(name, service, hints, found);
    return lookUp("2001:db8::5", service, hints, found) | lookUp("192.0.2.33", service, hints, &(*found)->ai_next);
}

// Nobody is asked for the name of an address.
extern "C" int getnameinfo(const sockaddr *address, socklen_t size, char *host, socklen_t hostSize, char *service,
                           socklen_t serviceSize, int flags)
{
    static const auto name = reinterpret_cast<decltype(&getnameinfo)>(dlsym(RTLD_NEXT, "getnameinfo"));
    return flags & NI_NUMERICHOST ? name(address, size, host, hostSize, service, serviceSize, flags) : EAI_FAIL;
}

// The address as the lookup gives it; bytes that are none for any other word.
static PlatformAddress Address(const std::string &text)
{
    addrinfo hints = {}, *found = nullptr;
    hints.ai_flags = AI_NUMERICHOST;
    hints.ai_socktype = SOCK_STREAM;
    if (getaddrinfo(text.c_str(), nullptr, &hints, &found) != 0)
        return {0xFF};
    const auto *bytes = reinterpret_cast<const unsigned char *>(found->ai_addr);
    const PlatformAddress address(bytes, bytes + found->ai_addrlen);
    freeaddrinfo(found);
    return address;
}

TEST(HostAddress, ChoosesAmongTheAddresses)
{
    CheckRows("host-addresses", [](const Cells &given) -> Cells {
        std::vector<PlatformAddress> addresses;
        std::istringstream list(given[0]);
        for (std::string text; list >> text;)
            addresses.push_back(Address(text));
        const ChosenAddress chosen = ChooseAddress(addresses);
        return {chosen.text, chosen.readable ? "yes" : "no"};
    });
}

TEST(HostAddress, StoresWithinTheDestination)
{
    auto text = Buffer(6);
    for (const int32_t size : {6, 0}) // the second leaves it as it is
        EXPECT_TRUE(getHostAddress("192.0.2.33", text.data(), size));
    EXPECT_EQ(TextOf(text), "192.0");
    EXPECT_TRUE(getHostAddress("127.0.0.1", text.data(), 6)); // it has an address, though none to report
    EXPECT_EQ(TextOf(text), "");
    HostLookup ended = {text.data(), 6, false, {Address("192.0.2.33")}};
    MyCFHostClientCallBack(&ended, 0, "host");
    EXPECT_EQ(TextOf(text), "192.0");
    EXPECT_TRUE(ended.result && ended.addresses.empty());
    EXPECT_FALSE(getHostAddress("192.0.2.33", text.data(), -1));
    EXPECT_FALSE(getHostAddress(nullptr, text.data(), 6));
    EXPECT_FALSE(getHostAddress("192.0.2.33", nullptr, 6));
}

TEST(HostAddress, IsNoLongerThanAnyOfTheSystem)
{
    PlatformAddress address = Address("192.0.2.33");
    address.resize(sizeof(sockaddr_storage) + 1);
    char text[kPlatformAddressText] = "old";
    EXPECT_FALSE(PlatformNumericAddress(address, text));
    EXPECT_STREQ(text, "");
}

TEST(HostAddress, OfTheComputer)
{
    auto host = Buffer(kHostNameSize), address = Buffer(kIPAddressSize);
    standsIn = true;
    GetClientIPAddress(host.data(), address.data());
    standsIn = false;
    char name[256] = "";
    gethostname(name, sizeof name);
    EXPECT_EQ(TextOf(host), name);
    EXPECT_EQ(asked, name);
    EXPECT_EQ(TextOf(address), "IC0000221");
}

TEST(HostAddress, LookupsThatEndWithoutAnAddress)
{
    const int notStarted[] = {EAI_BADFLAGS, EAI_FAMILY, EAI_MEMORY, EAI_SOCKTYPE, EAI_SYSTEM};
    for (const size_t length : {0, 1, 255, 256}) // of the name: none is empty or longer than 255
        for (const int code :
             {EAI_NONAME, EAI_AGAIN, EAI_FAIL, EAI_BADFLAGS, EAI_FAMILY, EAI_MEMORY, EAI_SOCKTYPE, EAI_SYSTEM}) {
            SCOPED_TRACE(testing::Message() << length << ' ' << code);
            char text[] = "old";
            HostLookup lookup = {text, sizeof text, false, {Address("192.0.2.33")}};
            const std::string name(length, 'a');
            error = code;
            EXPECT_EQ(MyResolveNameToAddress(name.c_str(), &lookup),
                      length > 0 && length < 256 && std::ranges::count(notStarted, code) == 0);
            EXPECT_FALSE(getHostAddress(name.c_str(), text, 0));
            error = 0;
            EXPECT_FALSE(lookup.result);
            EXPECT_TRUE(lookup.addresses.empty());
            EXPECT_STREQ(text, "old");
        }
    std::vector<PlatformAddress> addresses(2);
    EXPECT_EQ(PlatformResolveHost("2001:db8::5", addresses), PlatformLookup::Found);
    EXPECT_EQ(addresses, std::vector<PlatformAddress>{Address("2001:db8::5")}); // once, not for each kind of socket
}

TEST(HostAddressDeathTest, EndsTheProcessWithTheConditionThatFailed)
{
    char text[8];
    HostLookup unreadable = {text, sizeof text, false, {PlatformAddress()}};
    EXPECT_DEATH(getHostAddress("\xC3\xA9", text, sizeof text), "inputString != NULL");
    EXPECT_DEATH(MyResolveNameToAddress(nullptr, &unreadable), "\\(hostName != NULL\\), function MyResolve");
    EXPECT_DEATH(MyResolveNameToAddress("host", nullptr), "\\(host != NULL\\), function MyResolve");
    EXPECT_DEATH(MyPrintAddressArray(nullptr, "host"), "addresses != NULL");
    EXPECT_DEATH(MyPrintAddressArray(&unreadable, nullptr), "hostName != NULL");
    EXPECT_DEATH(MyPrintAddressArray(&unreadable, "\xC3\xA9"), "success");
    EXPECT_DEATH(MyPrintAddressArray(&unreadable, "host"), "addr != NULL");
}

TEST(HostAddress, CompactForm)
{
    CheckRows("compact-addresses", [](const Cells &given) -> Cells {
        auto compact = Buffer(kIPAddressSize);
        CompactAddress(given[0], compact.data());
        EXPECT_EQ(compact.back(), '\0');
        return {TextOf(compact)};
    });
}

TEST(HostName, IsCutByUnitsInUTF8ModeOnly)
{
    CheckRows("host-names", [](const Cells &given) -> Cells {
        auto legacy = Buffer(kHostNameSize), utf8 = Buffer(kHostNameSize);
        CutHostName(given[0], false, legacy.data());
        CutHostName(given[0], true, utf8.data());
        EXPECT_TRUE(legacy.back() == '\0' && utf8.back() == '\0'); // all of what is left is zero
        return {TextOf(legacy), TextOf(utf8)};
    });
}

TEST(System, KernelReleaseFitsOrFails)
{
    char release[64];
    EXPECT_TRUE(PlatformKernelRelease(release));
    const size_t size = strlen(release) + 1;
    EXPECT_TRUE(PlatformKernelRelease({release, size}));
    EXPECT_FALSE(PlatformKernelRelease({release, size - 1}));
}

TEST(System, LeavesNoCoreFile)
{
    rlimit limit = {};
    PlatformKeepMemoryPrivate();
    getrlimit(RLIMIT_CORE, &limit);
    EXPECT_TRUE(limit.rlim_cur == 0 && limit.rlim_max == 0);
}
