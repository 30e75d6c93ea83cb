// The virtual table of images in the Microsoft ABI. Its one slot is the deleting destructor, to which
// Microsoft compilers pass two flags: 1 releases the storage, 2 says that the object is the first of an
// array, with the length in the word below it. clang's own destructor knows only the first flag. Tables of
// one name are folded, and the linker keeps the first it meets: this file comes before the class's.
#if defined(_MSC_VER)
#include "Image.h"

using Orvane::ImageProcessing::Image;

namespace {

constexpr unsigned kRelease = 1;
constexpr unsigned kArray = 2;

void* __thiscall destroy(Image* image, unsigned flags)
{
    if ((flags & kArray) == 0) {
        image->Image::~Image();
        if ((flags & kRelease) != 0) operator delete(image);
        return image;
    }
    unsigned* const block = reinterpret_cast<unsigned*>(image) - 1;
    for (unsigned i = *block; i > 0; --i) image[i - 1].Image::~Image();
    if ((flags & kRelease) != 0) operator delete(block);
    return block;
}

}  // namespace

using Destroy = void*(__thiscall*)(Image*, unsigned);
extern Destroy const table[1] __asm__("??_7Image@ImageProcessing@Orvane@@6B@");
__declspec(selectany) extern Destroy const table[1] = {destroy};
#endif
