#pragma once

/// The numbers of commands, tools and timers; those of the parameters stand in config::kParameters. They are design:
/// event bindings rely on them.
namespace ui
{
enum Id : int
{
    kIdGreylineTimer = 101,
    kIdPropagationTimer = 102,

    kIdQuit = 1000,
    kIdAbout = 1001,
    kIdToolBar = 1002, // the same number as the tool of the first parameter; handlers look at the event's command id
    kIdCreate = 1003,
    kIdOptions = 1004,
    kIdFirstFrequency = 1005,
    kIdLastFrequency = 1013,
    kIdGreyline = 1017,
    kIdSave = 5003,
    kIdHelp = 5009,
    kIdProperties = 5041,
};
} // namespace ui
