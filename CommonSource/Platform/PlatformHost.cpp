// Host lookup and numeric addresses.
#include "Platform.h"

#include <arpa/inet.h>
#include <cstring>
#include <memory>
#include <netdb.h>
#include <netinet/in.h>
#include <sys/socket.h>

// Longest name of a host (RFC 1035).
constexpr size_t kMaxHostName = 255;

static PlatformLookup OutcomeOf(int error)
{
    switch (error) {
    case EAI_BADFLAGS:
    case EAI_FAMILY:
    case EAI_MEMORY:
    case EAI_SOCKTYPE:
    case EAI_SYSTEM:
        return PlatformLookup::NotStarted;
    default:
        return PlatformLookup::NoAddress;
    }
}

PlatformLookup PlatformResolveHost(const char *name, std::vector<PlatformAddress> &addresses)
{
    addresses.clear();
    if (*name == '\0' || strlen(name) > kMaxHostName)
        return PlatformLookup::NotStarted;
    addrinfo hints = {};
    hints.ai_socktype = SOCK_STREAM; // one entry for each address, not one for each kind of socket
    addrinfo *list = nullptr;
    if (const int error = getaddrinfo(name, nullptr, &hints, &list))
        return OutcomeOf(error);
    const std::unique_ptr<addrinfo, void (*)(addrinfo *)> owner(list, freeaddrinfo);
    for (const addrinfo *entry = list; entry; entry = entry->ai_next) {
        PlatformAddress address(entry->ai_addrlen);
        memcpy(address.data(), entry->ai_addr, entry->ai_addrlen);
        addresses.push_back(std::move(address));
    }
    return addresses.empty() ? PlatformLookup::NoAddress : PlatformLookup::Found;
}

bool PlatformNumericAddress(const PlatformAddress &address, std::span<char, kPlatformAddressText> out)
{
    out[0] = '\0';
    sockaddr_storage storage = {};
    if (address.size() > sizeof storage)
        return false;
    memcpy(&storage, address.data(), address.size());
    if (getnameinfo(reinterpret_cast<const sockaddr *>(&storage), static_cast<socklen_t>(address.size()), out.data(),
                    static_cast<socklen_t>(out.size()), nullptr, 0, NI_NUMERICHOST) == 0)
        return true;
    out[0] = '\0';
    return false;
}

std::vector<unsigned char> PlatformAddressBytes(std::string_view text)
{
    const std::string numeric(text.substr(0, text.find('%')));
    in_addr four;
    in6_addr sixteen;
    if (inet_pton(AF_INET, numeric.c_str(), &four) == 1) {
        const auto *bytes = reinterpret_cast<const unsigned char *>(&four);
        return {bytes, bytes + sizeof four};
    }
    if (inet_pton(AF_INET6, numeric.c_str(), &sixteen) != 1)
        return {};
    const size_t first = IN6_IS_ADDR_V4MAPPED(&sixteen) ? sizeof sixteen - sizeof four : 0;
    return {sixteen.s6_addr + first, sixteen.s6_addr + sizeof sixteen};
}
