#pragma once

#include "rotator/Azimuth.h"

#include <optional>
#include <string>
#include <string_view>

/// What is said to a rotctld and what it answers, in the extended form of its protocol (rotctld(1)): every answer then
/// ends with "RPRT" and a code.
namespace rotator
{
inline constexpr const char* kAskPosition = "+\\get_pos\n";
inline constexpr const char* kAskState = "+\\dump_state\n";
inline constexpr const char* kStop = "+\\stop\n";

/// Turns to an azimuth in degrees, at elevation 0.
std::string TurnCommand(double azimuthDeg);

/// No answer of a rotctld is longer, in bytes.
inline constexpr std::size_t kLongestReply = 16384;

/// A whole answer.
struct Reply
{
    int code = 0;           ///< 0, or one of Hamlib's negative error codes
    std::string body;       ///< the lines before the code
    std::size_t length = 0; ///< of all of it, in bytes
};

/// The first answer in what has been received; none as long as it is not whole. A code that is no number counts as a
/// protocol error, -8.
std::optional<Reply> ReadReply(std::string_view received);

/// The azimuth in the answer to kAskPosition, degrees; none where there is no finite one.
std::optional<double> AzimuthIn(const Reply& reply);

/// The range in the answer to kAskState; none where there is none.
std::optional<AzimuthRange> RangeIn(const Reply& reply);

/// What an error code means, to be read after "Rotator: ".
std::string ErrorText(int code);
} // namespace rotator
