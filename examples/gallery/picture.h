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
        unsigned char* const p = c == 3 ? ImageProcessingWrapper::Malloc_8u_C3(w, h, &step) : ImageProcessingWrapper::Malloc_8u_C1(w, h, &step);
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
        float* const p = c == 3 ? ImageProcessingWrapper::Malloc_32f_C3(w, h, &step) : ImageProcessingWrapper::Malloc_32f_C1(w, h, &step);
        buffer.reset(p, ImageProcessingWrapper::Free);
    }
    float* data() const { return buffer.get(); }
};

Picture read_picture(const std::string& path);  // three channels; throws std::runtime_error
void write_png(const Picture& picture, const std::string& path);
