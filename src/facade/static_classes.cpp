// What the four static-only classes share: members that exist for the sake of the interface and do
// nothing, and the two exports that belong to no family.
#include "ImageProcessingWrapper.h"
#include "MKLWrapper.h"
#include "MatrixWrapper.h"
#include "SignalProcessingWrapper.h"

#define WITHOUT_INSTANCES(Class)                                        \
    Class::Class(const Class&) {}                                       \
    Class::~Class() {}                                                  \
    Class& Class::operator=(const Class&) { return *this; }

WITHOUT_INSTANCES(ImageProcessingWrapper)
WITHOUT_INSTANCES(SignalProcessingWrapper)
WITHOUT_INSTANCES(MatrixWrapper)
WITHOUT_INSTANCES(MKLWrapper)

#undef WITHOUT_INSTANCES

// The DLL has this file twice, once for each C++ ABI, and the variable once: its second name is the linker's.
#if !defined(_MSC_VER)
int nImageProcessingWrapper = 0;
#endif

int fnImageProcessingWrapper() { return 42; }
