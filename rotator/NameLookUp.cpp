#include "rotator/NameLookUp.h"

#include <cstring>

#include <netdb.h>

namespace rotator
{
struct NameLookUp::Request
{
    std::string host;
    std::string port;
    addrinfo hints{};
    gaicb block{};
};

NameLookUp::NameLookUp(const Address& address) : m_request(std::make_unique<Request>())
{
    Request& request = *m_request;
    request.host = address.host;
    request.port = std::to_string(address.port);
    request.hints.ai_socktype = SOCK_STREAM;
    request.block.ar_name = request.host.c_str();
    request.block.ar_service = request.port.c_str();
    request.block.ar_request = &request.hints;
    gaicb* blocks[] = {&request.block};
    getaddrinfo_a(GAI_NOWAIT, blocks, 1, nullptr);
}

NameLookUp::~NameLookUp()
{
    if (!IsDone() && gai_cancel(&m_request->block) != EAI_CANCELED && !IsDone())
        static_cast<void>(m_request.release()); // still being written to: better lost
    else if (m_request->block.ar_result)
        freeaddrinfo(m_request->block.ar_result);
}

bool NameLookUp::IsDone() const
{
    return gai_error(&m_request->block) != EAI_INPROGRESS;
}

std::vector<SocketAddress> NameLookUp::Found() const
{
    std::vector<SocketAddress> found;
    if (gai_error(&m_request->block) != 0)
        return found;
    for (const addrinfo* info = m_request->block.ar_result; info; info = info->ai_next)
    {
        SocketAddress& address = found.emplace_back();
        address.length = info->ai_addrlen;
        std::memcpy(&address.storage, info->ai_addr, info->ai_addrlen);
    }
    return found;
}
} // namespace rotator
