#include "rotator/Address.h"

#include <algorithm>
#include <charconv>

namespace rotator
{
namespace
{
constexpr std::size_t kLongestName = 253; // RFC 1035

std::optional<int> ParsePort(std::string_view text)
{
    int port = 0;
    const char* const end = text.data() + text.size();
    const auto [stopped, error] = std::from_chars(text.data(), end, port);
    if (error != std::errc() || stopped != end || port < 1 || port > 65535)
        return std::nullopt;
    return port;
}

bool IsHost(std::string_view host)
{
    const auto isStray = [](unsigned char c) { return c <= ' ' || c >= 127 || c == '[' || c == ']' || c == '/'; };
    return !host.empty() && host.size() <= kLongestName && std::ranges::none_of(host, isStray);
}

/// Of a host and what follows it: nothing, or a colon and a port.
std::optional<Address> Combine(std::string_view host, std::string_view rest)
{
    const auto port = rest.empty() ? kDefaultPort : rest[0] == ':' ? ParsePort(rest.substr(1)) : std::nullopt;
    if (!port || !IsHost(host))
        return std::nullopt;
    return Address{std::string(host), *port};
}
} // namespace

std::string Address::Text() const
{
    const bool isIpV6 = host.find(':') != std::string::npos;
    return (isIpV6 ? "[" + host + "]" : host) + ":" + std::to_string(port);
}

std::optional<Address> ParseAddress(std::string_view text)
{
    if (text.starts_with('['))
    {
        const std::size_t bracket = text.find(']');
        return bracket == std::string_view::npos ? std::nullopt
                                                 : Combine(text.substr(1, bracket - 1), text.substr(bracket + 1));
    }
    const std::size_t colon = text.find(':');
    // Several colons: an IPv6 address.
    if (colon == std::string_view::npos || text.find(':', colon + 1) != std::string_view::npos)
        return Combine(text, "");
    return Combine(text.substr(0, colon), text.substr(colon));
}
} // namespace rotator
