// Reads PNG and JPEG, writes both.
#include <fstream>
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

Pictures read_pictures(const std::string& photo, const std::string& folder)
{
    constexpr int kLargest = 900;  // what a page shows
    Pictures p;
    p.photo = reduced(read_picture(photo), kLargest);
    if (p.photo.width < 128 || p.photo.height < 128)
        throw std::runtime_error("the picture is too small: 128 x 128 pixels are the least");
    const auto read = [&](const char* name) {
        const std::string path = folder + "/" + name;
        return std::ifstream(path) ? reduced(read_picture(path), kLargest) : p.photo;
    };
    p.astronaut = read("astronaut.png");
    p.cat = read("chelsea.png");
    p.coins = read("coins.png");
    p.deep_field = read("hubble_deep_field.jpg");
    p.left = read("motorcycle_left.png");
    p.page = read("page.png");
    p.retina = read("retina.jpg");
    p.right = read("motorcycle_right.png");
    return p;
}

std::string png_of(const Picture& picture)
{
    std::string bytes;
    const auto append = [](void* to, void* data, int size) {
        static_cast<std::string*>(to)->append(static_cast<const char*>(data), static_cast<std::size_t>(size));
    };
    stbi_write_png_to_func(append, &bytes, picture.width, picture.height, picture.channels, picture.data(),
                           picture.step);
    return bytes;
}

void write_png(const Picture& picture, const std::string& path)
{
    if (!(std::ofstream(path, std::ios::binary) << png_of(picture))) throw std::runtime_error("cannot write " + path);
}

void write_jpeg(const Picture& picture, const std::string& path)
{
    std::vector<unsigned char> packed(static_cast<std::size_t>(picture.width * picture.height * picture.channels));
    ImageProcessingWrapper::Copy_8u_C1(picture.data(), picture.step, packed.data(), picture.width * picture.channels,
                                       picture.width * picture.channels, picture.height);
    if (stbi_write_jpg(path.c_str(), picture.width, picture.height, picture.channels, packed.data(), 85) == 0)
        throw std::runtime_error("cannot write " + path);
}
