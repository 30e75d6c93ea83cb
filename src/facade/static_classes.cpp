// What the four static-only classes share: members that exist for the sake of the interface and do
// nothing, and the two exports that belong to no family.
#include "ImageProcessingWrapper.h"

// One body for each of these members, whatever the class. Those of the other classes are further names of it,
// which only the linker can give: they are written as it sees them.
ImageProcessingWrapper::ImageProcessingWrapper(const ImageProcessingWrapper&) {}
ImageProcessingWrapper::~ImageProcessingWrapper() {}
ImageProcessingWrapper& ImageProcessingWrapper::operator=(const ImageProcessingWrapper&) { return *this; }

#if defined(_MSC_VER)

#define SAME_MEMBER(Class, id, before, after) \
    __pragma(comment(linker, "/export:" before Class after "=" before "ImageProcessingWrapper" after))
#define SAME_MEMBERS(Class, length)                            \
    SAME_MEMBER(#Class, copied, "??0", "@@IAE@ABV0@@Z")        \
    SAME_MEMBER(#Class, assigned, "??4", "@@QAEAAV0@ABV0@@Z")  \
    SAME_MEMBER(#Class, destroyed, "??1", "@@IAE@XZ")

#else

#define TEXT_(word) #word
#define TEXT(word) TEXT_(word)
#define SAME_MEMBER(Class, id, length, after)                                                                  \
    extern "C" ORVANE_API void orv_##Class##_##id() noexcept                                             \
        __asm__(TEXT(__USER_LABEL_PREFIX__) "_ZN" length #Class after)                                         \
        __attribute__((alias("_ZN22ImageProcessingWrapper" after)));
// A constructor and a destructor have a second name, for use by derived classes.
#define SAME_MEMBERS(Class, length)                           \
    SAME_MEMBER(Class, copied, length, "C1ERKS_")             \
    SAME_MEMBER(Class, copied_as_base, length, "C2ERKS_")     \
    SAME_MEMBER(Class, assigned, length, "aSERKS_")           \
    SAME_MEMBER(Class, destroyed, length, "D1Ev")             \
    SAME_MEMBER(Class, destroyed_as_base, length, "D2Ev")
#if !defined(__clang__)
#pragma GCC diagnostic ignored "-Wattribute-alias"  // the types of members cannot be written here
#endif

#endif

SAME_MEMBERS(SignalProcessingWrapper, "23")
SAME_MEMBERS(MatrixWrapper, "13")
SAME_MEMBERS(MKLWrapper, "10")

#undef SAME_MEMBERS
#undef SAME_MEMBER

// The DLL has this file twice, once for each C++ ABI, and the variable once: its second name is the linker's.
#if !defined(_MSC_VER)
int nImageProcessingWrapper = 0;
#endif

int fnImageProcessingWrapper() { return 42; }
