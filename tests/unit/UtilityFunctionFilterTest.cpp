// The choice among a host's addresses, their compact form, and the number formatter.

#include "UtilityFunctionFilter.h"

#include <arpa/inet.h>
#include <cstring>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <string>

template <typename Socket> static PlatformAddress Bytes(const Socket &address)
{
    const auto *bytes = reinterpret_cast<const unsigned char *>(&address);
    return PlatformAddress(bytes, bytes + sizeof address);
}

static PlatformAddress Address(const char *text)
{
    sockaddr_in v4 = {};
    sockaddr_in6 v6 = {};
    v4.sin_family = AF_INET;
    v6.sin6_family = AF_INET6;
    if (inet_pton(AF_INET, text, &v4.sin_addr) == 1)
        return Bytes(v4);
    if (inet_pton(AF_INET6, text, &v6.sin6_addr) == 1)
        return Bytes(v6);
    return {0xFF}; // no address at all
}

TEST(HostAddress, ChoosesAmongTheAddresses)
{
    const struct {
        std::vector<const char *> list;
        const char *chosen;
    } cases[] = {
        {{"fe80::1", "192.168.1.5"}, "192.168.1.5"},
        {{"2001:db8::5"}, "2001:db8::5"},
        {{"127.0.0.1"}, ""},
        {{"127.0.0.1", "fe80::1", "10.0.0.9", "10.0.0.10"}, "10.0.0.9"},
        {{"2001:db8::5", "127.0.0.1"}, "2001:db8::5"},
        {{"2001:db8::5", "2001:db8::6"}, "2001:db8::6"},
        {{"2001:db8::5", "bad", "fe80::1"}, "2001:db8::5"},
        {{"fe80::1234"}, ""},
        {{"::1"}, "::1"},
        {{"127.0.0.2"}, "127.0.0.2"},
        {{}, ""},
    };
    for (const auto &c : cases) {
        char chosen[kPlatformAddressText] = "old";
        getHostAddress("", chosen, sizeof chosen); // no host has this name: it only sets the destination
        ASSERT_STREQ(chosen, "");
        HostLookup *host = new HostLookup;
        for (const char *text : c.list)
            host->push_back(Address(text));
        MyCFHostClientCallBack(host, 0, "host");
        EXPECT_STREQ(chosen, c.chosen);
    }
}

TEST(HostAddress, StoresWithinTheDestination)
{
    char text[kPlatformAddressText] = "old";
    EXPECT_TRUE(getHostAddress("127.0.0.1", text, sizeof text)); // read, but never reported
    EXPECT_STREQ(text, "");
    EXPECT_TRUE(getHostAddress("192.0.2.33", text, 6));
    EXPECT_TRUE(getHostAddress("192.0.2.33", text, 0));
    EXPECT_STREQ(text, "192.0");
    EXPECT_FALSE(getHostAddress("192.0.2.33", text, -1));
    EXPECT_FALSE(getHostAddress(nullptr, text, sizeof text));
    EXPECT_FALSE(getHostAddress("192.0.2.33", nullptr, sizeof text));
}

TEST(HostAddressDeathTest, EndsTheProcessWithTheConditionThatFailed)
{
    char text[8];
    const HostLookup unreadable = {PlatformAddress()};
    EXPECT_DEATH(getHostAddress("\xC3\xA9", text, sizeof text), "inputString != NULL");
    EXPECT_DEATH(MyResolveNameToAddress(nullptr), "hostName != NULL");
    EXPECT_DEATH(MyPrintAddressArray(nullptr, "host"), "addresses != NULL");
    EXPECT_DEATH(MyPrintAddressArray(&unreadable, nullptr), "hostName != NULL");
    EXPECT_DEATH(MyPrintAddressArray(&unreadable, "host"), "addr != NULL");
    EXPECT_DEATH(MyCFHostCleanup(nullptr), "host != NULL");
}

TEST(HostAddress, CompactForm)
{
    const struct {
        const char *address, *compact;
    } cases[] = {
        {"192.168.1.5", "IC0A80105"},
        {"255.0.10.171", "IFF000AAB"},
        {"10.256.1.1", "I0A"},
        {"2001:db8::5", "620010db8000000000000000000000005"},
        {"fe80::1%eth0.100", "6fe800000000000000000000000000001"},
        {"::1", "600000000000000000000000000000001"},
        {"2001:db8::", "620010db8000000000000000000000000"},
        {"1:22:333:4444:5:6:7:8", "600010022033344440005000600070008"},
        {"::ffff:192.168.1.5", "IC0A80105"},
        {"", ""},
    };
    for (const auto &c : cases) {
        std::vector<char> compact(kIPAddressSize, 'x');
        CompactAddress(c.address, compact.data());
        EXPECT_STREQ(compact.data(), c.compact) << c.address;
    }
}

TEST(HostName, IsCutByUnitsInUTF8ModeOnly)
{
    const struct {
        std::string name, legacy, utf8;
    } cases[] = {
        {"box", "box", "box"},
        {std::string(32, 'a'), std::string(32, 'a'), std::string(32, 'a')},
        {std::string(40, 'a'), std::string(40, 'a'), std::string(32, 'a')},
        {std::string(97, 'a'), std::string(96, 'a'), std::string(32, 'a')},
        {std::string(31, 'a') + "日本", std::string(31, 'a') + "日本", std::string(31, 'a') + "日"},
        {std::string(31, 'a') + "😀", std::string(31, 'a') + "😀", std::string(31, 'a')},
        {std::string(95, 'a') + "\xFF\xFF", std::string(95, 'a') + "\xFF", std::string(95, 'a') + "\xFF"},
    };
    for (const auto &c : cases) {
        std::vector<char> name(kHostNameSize, 'x');
        CutHostName(c.name, name.data());
        EXPECT_EQ(std::string(name.data()), c.legacy);
        UTF8Mode = true;
        CutHostName(c.name, name.data());
        UTF8Mode = false;
        EXPECT_EQ(std::string(name.data()), c.utf8);
    }
}

TEST(Itoa, RightAlignedDigits)
{
    const struct {
        int32_t value, size;
        const char *digits;
    } cases[] = {
        {123, 10, "123"}, {0, 10, ""}, {7, 2, "7"},   {2147483647, 11, "2147483647"},
        {123, 3, "23"},   {5, 1, ""},  {-12, 10, ""}, {-2147483647 - 1, 10, ""},
    };
    for (const auto &c : cases) {
        std::vector<char> buffer(static_cast<size_t>(c.size), 'x');
        EXPECT_STREQ(itoa(c.value, buffer.data(), c.size), c.digits);
        EXPECT_EQ(buffer.back(), '\0');
    }
    char untouched = 'x';
    itoa(1, &untouched, 0);
    itoa(1, &untouched, -5);
    EXPECT_EQ(untouched, 'x');
}
