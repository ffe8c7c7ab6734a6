#pragma once

#include "rotator/NameLookUp.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace rotator
{
/// A connection over TCP. No call waits for anything: whoever uses it calls again later.
class Link
{
public:
    enum class State
    {
        Opening,
        Open,
        Closed ///< for good: by the other side, or never opened
    };

    /// Begins to connect: to the addresses of the host one after the other, until one accepts.
    explicit Link(const Address& address) : m_lookUp(address) {}
    ~Link() { CloseSocket(); }
    Link(const Link&) = delete;
    Link& operator=(const Link&) = delete;

    /// Goes on with what can be done now.
    State Advance();

    /// Sends a short command; one that can't be sent whole closes the link.
    void Send(std::string_view command);

    /// What has come since, some kilobytes at most at a time.
    std::string Receive();

private:
    void TryNextAddress();
    void AwaitConnection();
    void CloseSocket();

    NameLookUp m_lookUp;
    std::optional<std::vector<SocketAddress>> m_addresses; ///< once looked up
    std::size_t m_next = 0;                                ///< of the addresses
    int m_socket = -1;
    State m_state = State::Opening;
};
} // namespace rotator
