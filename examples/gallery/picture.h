// Pictures of the gallery: buffers of the library, released by themselves.
#pragma once

#include <ImageProcessingWrapper.h>

#include <memory>
#include <string>

// An 8-bit picture of one or three channels.
struct Picture {
    int width = 0, height = 0, channels = 0, step = 0;
    std::shared_ptr<unsigned char> buffer;

    Picture() = default;
    Picture(int w, int h, int c) : width(w), height(h), channels(c)
    {
        unsigned char* const p = c == 3 ? ImageProcessingWrapper::Malloc_8u_C3(w, h, &step)
                                        : ImageProcessingWrapper::Malloc_8u_C1(w, h, &step);
        buffer.reset(p, ImageProcessingWrapper::Free);
        ImageProcessingWrapper::Set_8u_C1(0, p, step, w * c, h);
    }
    unsigned char* data() const { return buffer.get(); }

    Picture copy() const
    {
        Picture other(width, height, channels);
        ImageProcessingWrapper::Copy_8u_C1(data(), step, other.data(), other.step, width * channels, height);
        return other;
    }
};

// A float picture of one or three channels.
struct FloatPicture {
    int width = 0, height = 0, channels = 0, step = 0;
    std::shared_ptr<float> buffer;

    FloatPicture(int w, int h, int c) : width(w), height(h), channels(c)
    {
        float* const p = c == 3 ? ImageProcessingWrapper::Malloc_32f_C3(w, h, &step)
                                : ImageProcessingWrapper::Malloc_32f_C1(w, h, &step);
        buffer.reset(p, ImageProcessingWrapper::Free);
    }
    float* data() const { return buffer.get(); }
};

// The brightness of a picture of three channels, as floats from 0 to 255.
inline FloatPicture brightness(const Picture& photo)
{
    FloatPicture colour(photo.width, photo.height, 3), grey(photo.width, photo.height, 1);
    ImageProcessingWrapper::Convert_8u32f_C3(photo.data(), photo.step, colour.data(), colour.step, photo.width,
                                             photo.height);
    for (int y = 0; y < photo.height; ++y) {
        const float* const c = colour.data() + y * (colour.step / 4);
        float* const g = grey.data() + y * (grey.step / 4);
        for (int x = 0; x < photo.width; ++x) g[x] = 0.299f * c[3 * x] + 0.587f * c[3 * x + 1] + 0.114f * c[3 * x + 2];
    }
    return grey;
}

// Floats from `low` (black) to `high` (white) as a picture of one channel.
inline Picture to_picture(const FloatPicture& f, float low = 0, float high = 255)
{
    Picture p(f.width, f.height, 1);
    for (int y = 0; y < f.height; ++y) {
        for (int x = 0; x < f.width; ++x) {
            const float v = (f.data()[y * (f.step / 4) + x] - low) * 255 / (high - low);
            p.data()[y * p.step + x] = static_cast<unsigned char>(v < 0 ? 0 : v > 255 ? 255 : v);
        }
    }
    return p;
}

Picture read_picture(const std::string& path);  // three channels; throws std::runtime_error
void write_png(const Picture& picture, const std::string& path);
