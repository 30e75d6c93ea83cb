// Pictures of the gallery: buffers of the library, released by themselves.
#pragma once

#include <ImageProcessingWrapper.h>

#include <memory>
#include <string>
#include <vector>

// Rows of pixels of some type, at the library's own step.
template <class T>
struct Rows {
    int width = 0, height = 0, channels = 0, step = 0;
    std::shared_ptr<T> buffer;

    Rows() = default;
    Rows(int w, int h, int c) : width(w), height(h), channels(c)
    {
        void* const p = ImageProcessingWrapper::Malloc_8u_C1(w * c * static_cast<int>(sizeof(T)), h, &step);
        buffer.reset(static_cast<T*>(p), [](T* q) { ImageProcessingWrapper::Free(q); });
        ImageProcessingWrapper::Set_8u_C1(0, static_cast<unsigned char*>(p), step, step, h);
    }
    T* data() const { return buffer.get(); }
    T* row(int y) const { return data() + y * (step / static_cast<int>(sizeof(T))); }
    T* at(int x, int y) const { return row(y) + x * channels; }

    Rows copy() const
    {
        Rows other(width, height, channels);
        ImageProcessingWrapper::Copy_8u_C1(reinterpret_cast<const unsigned char*>(data()), step,
                                           reinterpret_cast<unsigned char*>(other.data()), other.step, step, height);
        return other;
    }
};
using Picture = Rows<unsigned char>;
using WordPicture = Rows<unsigned short>;
using FloatPicture = Rows<float>;
using ComplexPicture = Rows<Complex32f>;

// The pictures that the gallery works on. Those that are missing are the photograph.
struct Pictures {
    Picture photo, astronaut, cat, coins, deep_field, left, page, retina, right;
};

Picture read_picture(const std::string& path);  // three channels; throws std::runtime_error
Pictures read_pictures(const std::string& photo, const std::string& folder);
void write_png(const Picture& picture, const std::string& path);
std::string png_of(const Picture& picture);  // the bytes of the file
void write_jpeg(const Picture& picture, const std::string& path);

FloatPicture brightness(const Picture& colour);  // from 0 to 255
Picture grey(const Picture& colour);             // one channel
Picture colours_of(const Picture& grey);         // three equal channels
Picture channel(const Picture& colour, int c);
Picture part(const Picture& picture, int x, int y, int width, int height);
FloatPicture part(const FloatPicture& picture, int x, int y, int width, int height);
Picture reduced(const Picture& picture, int width);                 // of that width, or smaller if it was smaller
Picture enlarged(const Picture& picture, int times);                // pixel by pixel
Picture difference(const Picture& a, const Picture& b, int times);  // |a - b|, so many times as large
Picture beside(const Picture& a, const Picture& b);                 // with a gap; of the same height and channels
// Floats from `low` (black) to `high` (white).
Picture to_picture(const FloatPicture& f, float low = 0, float high = 255);
