#include "config/SpecialFile.h"

#include <sys/stat.h>

const char* SpecialFileAt(const char* path)
{
    struct stat status
    {
    };
    if (stat(path, &status) != 0 || S_ISREG(status.st_mode))
        return nullptr;
    return S_ISDIR(status.st_mode) ? "it is a directory" : "it is a pipe or a device";
}
