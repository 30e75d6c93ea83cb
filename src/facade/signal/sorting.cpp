// Sorting of vectors.
#include "facade/forms.h"
#include "signal/sorting.h"

using namespace orv;

#define SORTED(name, operation, T) \
    bool SignalProcessingWrapper::name(T* srcDst, int len) { return call(operation, srcDst, Count{len}); }
#define SORTED_WITH_INDEX(name, operation, T)                           \
    bool SignalProcessingWrapper::name(T* srcDst, int* index, int len)  \
    {                                                                   \
        return call(operation, srcDst, index, Count{len});              \
    }

SORTED(SortAscend_8u_I, orv_SortAscend_8u_I, unsigned char)
SORTED(SortAscend_16u_I, orv_SortAscend_16u_I, unsigned short)
SORTED(SortAscend_32s_I, orv_SortAscend_32s_I, int)
SORTED(SortAscend_32f_I, orv_SortAscend_32f_I, float)
SORTED(SortAscend_64f_I, orv_SortAscend_64f_I, double)
SORTED(SortDescend_8u_I, orv_SortDescend_8u_I, unsigned char)
SORTED(SortDescend_16u_I, orv_SortDescend_16u_I, unsigned short)
SORTED(SortDescend_32s_I, orv_SortDescend_32s_I, int)
SORTED(SortDescend_32f_I, orv_SortDescend_32f_I, float)
SORTED(SortDescend_64f_I, orv_SortDescend_64f_I, double)

SORTED_WITH_INDEX(SortIndxAscend_8u_I, orv_SortIndxAscend_8u_I, unsigned char)
SORTED_WITH_INDEX(SortIndxAscend_16u_I, orv_SortIndxAscend_16u_I, unsigned short)
SORTED_WITH_INDEX(SortIndxAscend_32s_I, orv_SortIndxAscend_32s_I, int)
SORTED_WITH_INDEX(SortIndxAscend_32f_I, orv_SortIndxAscend_32f_I, float)
SORTED_WITH_INDEX(SortIndxAscend_64f_I, orv_SortIndxAscend_64f_I, double)
SORTED_WITH_INDEX(SortIndxDescend_8u_I, orv_SortIndxDescend_8u_I, unsigned char)
SORTED_WITH_INDEX(SortIndxDescend_16u_I, orv_SortIndxDescend_16u_I, unsigned short)
SORTED_WITH_INDEX(SortIndxDescend_32s_I, orv_SortIndxDescend_32s_I, int)
SORTED_WITH_INDEX(SortIndxDescend_32f_I, orv_SortIndxDescend_32f_I, float)
SORTED_WITH_INDEX(SortIndxDescend_64f_I, orv_SortIndxDescend_64f_I, double)
#undef SORTED
#undef SORTED_WITH_INDEX
