// Reads PNG and JPEG, writes PNG.
#include <stdexcept>

#include "picture.h"

#define STB_IMAGE_IMPLEMENTATION
#include <stb/stb_image.h>
#define STB_IMAGE_WRITE_IMPLEMENTATION
#include <stb/stb_image_write.h>

Picture read_picture(const std::string& path)
{
    int width = 0, height = 0, channels = 0;
    unsigned char* const pixels = stbi_load(path.c_str(), &width, &height, &channels, 3);
    if (pixels == nullptr) throw std::runtime_error("cannot read " + path + ": " + stbi_failure_reason());
    Picture picture(width, height, 3);
    ImageProcessingWrapper::Copy_8u_C3(pixels, 3 * width, picture.data(), picture.step, width, height);
    stbi_image_free(pixels);
    return picture;
}

void write_png(const Picture& picture, const std::string& path)
{
    if (stbi_write_png(path.c_str(), picture.width, picture.height, picture.channels, picture.data(), picture.step) ==
        0) {
        throw std::runtime_error("cannot write " + path);
    }
}
