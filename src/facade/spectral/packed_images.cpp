// Packed spectra of images, and windows.
#include "facade/forms.h"
#include "spectral/image_windows.h"
#include "spectral/packed_images.h"

using namespace orv;

SRC_SRC_DST(MulPack_32f_C1R, orv_MulPack_32f_C1R, float, float)
SRC_SRC_DST(MulPackConj_32f_C1R, orv_MulPackConj_32f_C1R, float, float)

// Kernels take a destination that is a source, so these need no copy.

bool ImageProcessingWrapper::MulPack_32f_C1IR(const float* src, int srcStep, float* srcDst, int srcDstStep, int width,
                                              int height)
{
    return MulPack_32f_C1R(src, srcStep, srcDst, srcDstStep, srcDst, srcDstStep, width, height);
}

bool ImageProcessingWrapper::MulPackConj_32f_C1IR(const float* src, int srcStep, float* srcDst, int srcDstStep,
                                                  int width, int height)
{
    return MulPackConj_32f_C1R(src, srcStep, srcDst, srcDstStep, srcDst, srcDstStep, width, height);
}

SRC_DST(MagnitudePack_32f_C1R, orv_MagnitudePack_32f_C1R, float, float)
SRC_DST(PhasePack_32f_C1R, orv_PhasePack_32f_C1R, float, float)
SRC_DST(PackToCplxExtend_32f32fc_C1R, orv_PackToCplxExtend_32f32fc_C1R, float, Complex32f)
SRC_DST(CplxExtendToPack_32fc32f_C1R, orv_CplxExtendToPack_32fc32f_C1R, Complex32f, float)
SRC_DST(Magnitude_32fc32f_C1R, orv_Magnitude_32fc32f_C1R, Complex32f, float)
SRC_DST(Phase_32fc32f_C1R, orv_Phase_32fc32f_C1R, Complex32f, float)
SRC_DST(WinHamming_32f_C1R, orv_WinHamming_32f_C1R, float, float)
SRC_DST(WinBartlett_32f_C1R, orv_WinBartlett_32f_C1R, float, float)
