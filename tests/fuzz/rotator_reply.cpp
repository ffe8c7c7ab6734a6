#include "FuzzedBytes.h"

#include "rotator/Address.h"
#include "rotator/Protocol.h"

#include <cmath>

// What comes from the network, and the address where it comes from.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes = fuzz::BytesOf(data, size);
    if (const auto reply = rotator::ReadReply(bytes))
    {
        fuzz::Demand(reply->length <= size && reply->body.size() <= reply->length);
        const auto azimuth = rotator::AzimuthIn(*reply);
        fuzz::Demand(!azimuth || std::isfinite(*azimuth));
        rotator::RangeIn(*reply);
        fuzz::Demand(!rotator::ErrorText(reply->code).empty());
    }
    if (const auto address = rotator::ParseAddress(bytes))
        fuzz::Demand(rotator::ParseAddress(address->Text()) == address);
    return 0;
}
