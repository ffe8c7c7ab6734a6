#include "config/SpecialFile.h"

#include <filesystem>

namespace
{
std::filesystem::file_status StatusOf(const char* path)
{
    std::error_code nobodyAsks;
    return std::filesystem::status(path, nobodyAsks);
}
} // namespace

const char* SpecialFileAt(const char* path)
{
    return is_directory(StatusOf(path)) ? "it is a directory" : PipeOrDeviceAt(path);
}

const char* PipeOrDeviceAt(const char* path)
{
    const std::filesystem::file_status status = StatusOf(path);
    return is_other(status) ? "it is a pipe or a device" : nullptr;
}
