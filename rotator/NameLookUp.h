#pragma once

#include "rotator/Address.h"

#include <memory>
#include <vector>

#include <sys/socket.h>

namespace rotator
{
/// An address of a host, as sockets take it.
struct SocketAddress
{
    sockaddr_storage storage;
    socklen_t length;
};

/// Looks up the addresses of a host without waiting for them: name servers may take their time.
class NameLookUp
{
public:
    explicit NameLookUp(const Address& address);
    ~NameLookUp();
    NameLookUp(const NameLookUp&) = delete;
    NameLookUp& operator=(const NameLookUp&) = delete;

    bool IsDone() const;

    /// The addresses, in the order in which they should be tried; none if there are none or before it is done.
    std::vector<SocketAddress> Found() const;

private:
    struct Request;
    std::unique_ptr<Request> m_request;
};
} // namespace rotator
