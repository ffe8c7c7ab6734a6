// Run by the build: writes the pixels of the built-in world as a source file, so that a start of the program neither
// reads 44,551 colours nor relocates as many lines of text.

#include "render/CompiledPicture.h"
#include "resources/world.xpm"

#include <cstdio>

int main()
{
    const render::PixelGrid world = render::UnpackXpm(world_xpm);
    std::printf("#include \"render/WorldPixels.h\"\n\nconst render::WorldPixels render::kWorldPixels{%d, %d, {",
                world.width, world.height);
    for (const render::Argb pixel : world.pixels)
        std::printf("%#x,", pixel);
    std::printf("}};\n");
}
