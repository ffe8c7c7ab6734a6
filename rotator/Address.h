#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace rotator
{
/// Where a rotctld listens.
struct Address
{
    std::string host; ///< a name or a numeric address, without brackets
    int port;         ///< 1..65535

    bool operator==(const Address&) const = default;

    /// As it is written on a command line: with the port always, an IPv6 address in brackets.
    std::string Text() const;
};

/// The port where rotctld listens unless it is told another.
inline constexpr int kDefaultPort = 4533;

/**
 * Reads HOST or HOST:PORT. An IPv6 address stands in brackets where a port follows, and may do so anywhere.
 *
 * @return none for an empty host, blanks, control characters or others outside ASCII, a host longer than names can be
 *         (253 characters), and a port that is none.
 */
std::optional<Address> ParseAddress(std::string_view text);
} // namespace rotator
