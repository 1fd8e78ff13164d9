// The choice among a host's addresses, their compact form, the cut of its name, and the number formatter.
#include "UtilityFunctionFilter.h"

#include "Rows.h"

#include <netdb.h>
#include <sstream>

// The address as the lookup gives it; bytes that are none for any other word.
static PlatformAddress Address(const std::string &text)
{
    addrinfo hints = {}, *found = nullptr;
    hints.ai_flags = AI_NUMERICHOST;
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
    EXPECT_TRUE(getHostAddress("192.0.2.33", text.data(), 6));
    EXPECT_TRUE(getHostAddress("192.0.2.33", text.data(), 0));
    EXPECT_EQ(TextOf(text), "192.0");
    EXPECT_TRUE(getHostAddress("127.0.0.1", text.data(), 6)); // it has an address, though none to report
    EXPECT_EQ(TextOf(text), "");
    EXPECT_FALSE(getHostAddress("192.0.2.33", text.data(), -1));
    EXPECT_FALSE(getHostAddress(nullptr, text.data(), 6));
    EXPECT_FALSE(getHostAddress("192.0.2.33", nullptr, 6));
}

TEST(HostAddress, LookupsThatEndWithoutAnAddress)
{
    char text[kPlatformAddressText] = "old";
    HostLookup lookup = {text, sizeof text, false, {}};
    EXPECT_FALSE(MyResolveNameToAddress("", &lookup));
    EXPECT_FALSE(MyResolveNameToAddress(std::string(256, 'a').c_str(), &lookup));
    lookup.addresses = {Address("192.0.2.33")};
    MyCFHostClientCallBack(&lookup, -1, "host");
    EXPECT_FALSE(lookup.result);
    EXPECT_STREQ(text, "old");
    EXPECT_TRUE(lookup.addresses.empty());
    EXPECT_TRUE(MyResolveNameToAddress("192.0.2.33", &lookup));
    EXPECT_STREQ(text, "192.0.2.33");
}

TEST(HostAddressDeathTest, EndsTheProcessWithTheConditionThatFailed)
{
    char text[8];
    HostLookup unreadable = {text, sizeof text, false, {PlatformAddress()}};
    EXPECT_DEATH(getHostAddress("\xC3\xA9", text, sizeof text), "inputString != NULL");
    EXPECT_DEATH(MyResolveNameToAddress(nullptr, &unreadable), "\\(hostName != NULL");
    EXPECT_DEATH(MyResolveNameToAddress("host", nullptr), "\\(host != NULL");
    EXPECT_DEATH(MyPrintAddressArray(&unreadable, "host"), "addr != NULL");
}

TEST(HostAddress, CompactForm)
{
    CheckRows("compact-addresses", [](const Cells &given) -> Cells {
        auto compact = Buffer(kIPAddressSize);
        CompactAddress(given[0], compact.data());
        return {TextOf(compact)};
    });
}

TEST(HostName, IsCutByUnitsInUTF8ModeOnly)
{
    CheckRows("host-names", [](const Cells &given) -> Cells {
        auto legacy = Buffer(kHostNameSize), utf8 = Buffer(kHostNameSize);
        CutHostName(given[0], false, legacy.data());
        CutHostName(given[0], true, utf8.data());
        return {TextOf(legacy), TextOf(utf8)};
    });
}

TEST(Itoa, RightAlignedDigits)
{
    CheckRows("itoa", [](const Cells &given) -> Cells {
        auto buffer = Buffer(Number(given[1]));
        return {itoa(Number(given[0]), buffer.data(), Number(given[1]))};
    });
}
