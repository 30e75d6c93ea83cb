// Packed spectra of images, and windows.
#include "facade/forms.h"
#include "spectral/image_windows.h"
#include "spectral/packed_images.h"

using namespace orv;

SRC_SRC_DST(MulPack_32f_C1R, orv_MulPack_32f_C1R, float, float)
SRC_SRC_DST(MulPackConj_32f_C1R, orv_MulPackConj_32f_C1R, float, float)
SRC_SRCDST(MulPack_32f_C1IR, onto_itself(orv_MulPack_32f_C1R), float, 1)
SRC_SRCDST(MulPackConj_32f_C1IR, onto_itself(orv_MulPackConj_32f_C1R), float, 1)

SRC_DST(MagnitudePack_32f_C1R, orv_MagnitudePack_32f_C1R, float, float)
SRC_DST(PhasePack_32f_C1R, orv_PhasePack_32f_C1R, float, float)
SRC_DST(PackToCplxExtend_32f32fc_C1R, orv_PackToCplxExtend_32f32fc_C1R, float, Complex32f)
SRC_DST(CplxExtendToPack_32fc32f_C1R, orv_CplxExtendToPack_32fc32f_C1R, Complex32f, float)
SRC_DST(Magnitude_32fc32f_C1R, orv_Magnitude_32fc32f_C1R, Complex32f, float)
SRC_DST(Phase_32fc32f_C1R, orv_Phase_32fc32f_C1R, Complex32f, float)
SRC_DST(WinHamming_32f_C1R, orv_WinHamming_32f_C1R, float, float)
SRC_DST(WinBartlett_32f_C1R, orv_WinBartlett_32f_C1R, float, float)
