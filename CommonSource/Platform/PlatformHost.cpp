// Host lookup and numeric addresses.
#include "Platform.h"

#include <cstring>
#include <memory>
#include <netdb.h>
#include <sys/socket.h>

bool PlatformResolveHost(const char *name, std::vector<PlatformAddress> &addresses)
{
    addresses.clear();
    addrinfo hints = {};
    hints.ai_socktype = SOCK_STREAM; // one entry for each address, not one for each kind of socket
    addrinfo *list = nullptr;
    if (getaddrinfo(name, nullptr, &hints, &list) != 0)
        return false;
    const std::unique_ptr<addrinfo, void (*)(addrinfo *)> owner(list, freeaddrinfo);
    for (const addrinfo *entry = list; entry; entry = entry->ai_next) {
        PlatformAddress address(entry->ai_addrlen);
        memcpy(address.data(), entry->ai_addr, entry->ai_addrlen);
        addresses.push_back(std::move(address));
    }
    return !addresses.empty();
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
