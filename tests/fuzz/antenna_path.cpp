#include "FuzzedBytes.h"

#include "propagation/AntennaName.h"
#include "render/TextFile.h"

// Directory and file of an antenna, out of any path.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto name = propagation::AntennaNameOf(render::DecodeText(fuzz::BytesOf(data, size)));
    fuzz::Demand(name.problem.empty() ? name.columns.length() == 21 : name.columns.empty());
    return 0;
}
