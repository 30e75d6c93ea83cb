// The image container.
#ifndef ORVANE_IMAGE_H
#define ORVANE_IMAGE_H

#include "Export.h"

namespace Orvane {
namespace ImageProcessing {

/// An image that is always empty: it describes size, row step, channels, pixel size, element type and address of an
/// image, and all of them are always 0.
///
/// Every constructor creates a zeroed description and no operation fills it; the class is there for hosts that pass
/// such objects around. Images for the operations are plain memory: see ImageProcessingWrapper::Malloc_8u_C1.
/// Assignment shares it. It is never released, so each constructed object keeps its description (28
/// bytes on 32-bit systems) for the life of the process; hosts that share descriptions between objects
/// depend on that. When the description cannot be allocated, construction throws std::bad_alloc; this
/// is the only exception that leaves the library. (On Windows it raises the system exception
/// STATUS_NO_MEMORY, 0xC0000017, instead: hosts of every compiler can handle that.)
class ORVANE_API Image {
public:
    /// An empty image.
    Image();
    /// An empty image: the arguments are accepted and ignored.
    Image(int width, int height, int type);
    /// An empty image: nothing of `other` is copied.
    Image(const Image& other);
    /// Shares the description of `other`.
    Image& operator=(const Image& other);
    /// Releases nothing.
    virtual ~Image();

    /// Width in pixels.
    int GetWidth() const;
    /// Height in pixels.
    int GetHeight() const;
    /// Row step in bytes.
    int GetStride() const;
    /// Number of channels.
    int GetChannels() const;
    /// Element type code.
    int GetType() const;
    /// Address of the first pixel.
    const unsigned char* GetData() const;
    /// Address of the first pixel.
    unsigned char* GetData();
    /// Address of the pixel in column x and row y; neither is checked.
    const unsigned char* GetData(int x, int y) const;
    /// Address of the pixel in column x and row y; neither is checked.
    unsigned char* GetData(int x, int y);

    /// Fills the first `size` bytes of the object with zeros; for use before a constructor runs on it.
    void __autoclassinit2(unsigned int size);

private:
    struct Description;

    int reserved_[7];  // copied by assignment, read by nothing
    Description* description_;
};

}  // namespace ImageProcessing
}  // namespace Orvane

#endif
