#include "rotator/Link.h"

#include <cerrno>

#include <poll.h>
#include <unistd.h>

namespace rotator
{
Link::State Link::Advance()
{
    if (m_state != State::Opening || !m_lookUp.IsDone())
        return m_state;
    if (!m_addresses)
        m_addresses = m_lookUp.Found();
    if (m_socket < 0)
        TryNextAddress();
    else
        AwaitConnection();
    return m_state;
}

void Link::TryNextAddress()
{
    if (m_next == m_addresses->size())
    {
        m_state = State::Closed;
        return;
    }
    const SocketAddress& address = (*m_addresses)[m_next++];
    m_socket = socket(address.storage.ss_family, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    const auto* const place = reinterpret_cast<const sockaddr*>(&address.storage);
    if (m_socket >= 0 && connect(m_socket, place, address.length) != 0 && errno != EINPROGRESS)
        CloseSocket();
}

void Link::AwaitConnection()
{
    pollfd ready{m_socket, POLLOUT, 0};
    if (poll(&ready, 1, 0) == 0)
        return;
    int error = 0;
    socklen_t size = sizeof error;
    if (getsockopt(m_socket, SOL_SOCKET, SO_ERROR, &error, &size) == 0 && error == 0)
        m_state = State::Open;
    else
        CloseSocket();
}

void Link::CloseSocket()
{
    if (m_socket >= 0)
        close(m_socket);
    m_socket = -1;
}

void Link::Send(std::string_view command)
{
    // A command fits into any buffer that is not stuffed.
    if (send(m_socket, command.data(), command.size(), MSG_NOSIGNAL) != static_cast<ssize_t>(command.size()))
        m_state = State::Closed;
}

std::string Link::Receive()
{
    std::string bytes(4096, '\0');
    const ssize_t count = recv(m_socket, bytes.data(), bytes.size(), 0);
    if (count == 0 || (count < 0 && errno != EAGAIN && errno != EINTR))
        m_state = State::Closed;
    bytes.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
    return bytes;
}
} // namespace rotator
