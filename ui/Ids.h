#pragma once

/// The numbers of commands, tools and timers. They are design: event bindings rely on them.
namespace ui
{
enum Id : int
{
    kIdGreylineTimer = 101,
    kIdPropagationTimer = 102,

    kIdQuit = 1000,
    kIdAbout = 1001,
    kIdToolBar = 1002, // the same number as the first parameter tool; handlers look at the event's command id
    kIdParameterSdbw = 1002,
    kIdCreate = 1003,
    kIdOptions = 1004,
    kIdFirstFrequency = 1005,
    kIdLastFrequency = 1013,
    kIdParameterSnr = 1014,
    kIdParameterMuf = 1015,
    kIdParameterRel = 1016,
    kIdGreyline = 1017,
    kIdSave = 5003,
    kIdHelp = 5009,
    kIdProperties = 5041,
};

/// The tools of the four propagation parameters, by parameter.
inline constexpr int kParameterTools[] = {kIdParameterSdbw, kIdParameterSnr, kIdParameterMuf, kIdParameterRel};
} // namespace ui
