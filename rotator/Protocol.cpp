#include "rotator/Protocol.h"

#include <charconv>
#include <cmath>
#include <cstdio>

namespace rotator
{
namespace
{
constexpr std::string_view kCode = "RPRT ";
constexpr int kProtocolError = -8;

struct ErrorMeaning
{
    int code;
    const char* text;
};

constexpr ErrorMeaning kErrors[] = {
    {-1, "position out of range"},  {-2, "wrong configuration"},
    {-4, "it can't do that"},       {-5, "it does not answer its rotctld"},
    {-6, "rotctld can't reach it"}, {kProtocolError, "protocol error"},
    {-9, "it has refused"},         {-11, "it can't do that"},
};

/// The number with which a text begins and, up to white space, ends.
template <class Number>
std::optional<Number> NumberAt(std::string_view text)
{
    Number number{};
    const char* const end = text.data() + text.size();
    const auto [stopped, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || (stopped != end && *stopped != '\n' && *stopped != '\r'))
        return std::nullopt;
    return number;
}

/// The finite number in the line that begins with a name.
std::optional<double> Field(const std::string& body, std::string_view name)
{
    const std::size_t place = ("\n" + body).find("\n" + std::string(name));
    if (place == std::string::npos)
        return std::nullopt;
    const auto number = NumberAt<double>(std::string_view(body).substr(place + name.size()));
    return number && std::isfinite(*number) ? number : std::nullopt;
}
} // namespace

std::string TurnCommand(double azimuthDeg)
{
    char command[64];
    std::snprintf(command, sizeof command, "+\\set_pos %.1f 0\n", azimuthDeg);
    return command;
}

std::optional<Reply> ReadReply(std::string_view received)
{
    for (std::size_t line = 0, end = 0; (end = received.find('\n', line)) != std::string_view::npos; line = end + 1)
        if (received.substr(line).starts_with(kCode))
        {
            const auto code = NumberAt<int>(received.substr(line + kCode.size(), end - line - kCode.size()));
            return Reply{code.value_or(kProtocolError), std::string(received.substr(0, line)), end + 1};
        }
    return std::nullopt;
}

std::optional<double> AzimuthIn(const Reply& reply)
{
    return Field(reply.body, "Azimuth: ");
}

std::optional<AzimuthRange> RangeIn(const Reply& reply)
{
    const auto min = Field(reply.body, "Minimum Azimuth: ");
    const auto max = Field(reply.body, "Maximum Azimuth: ");
    if (!min || !max || *min >= *max)
        return std::nullopt;
    return AzimuthRange{*min, *max};
}

std::string ErrorText(int code)
{
    for (const ErrorMeaning& error : kErrors)
        if (error.code == code)
            return error.text;
    return "error " + std::to_string(code);
}
} // namespace rotator
