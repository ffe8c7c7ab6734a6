#pragma once

/// What stands where a file is to be read or written, as the end of a message; none where there is a file, or nothing.
/// Directories can't be read, and one might wait for pipes and devices for ever.
const char* SpecialFileAt(const char* path);

/// The same for pipes and devices alone.
const char* PipeOrDeviceAt(const char* path);
