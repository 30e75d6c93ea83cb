// LAPACK routines.
#ifndef ORVANE_MKL_WRAPPER_H
#define ORVANE_MKL_WRAPPER_H

#include "Export.h"

/// Four routines of LAPACK, with the standard's calling convention.
class ORVANE_API MKLWrapper {
public:
    /// Does nothing: the class has no state.
    MKLWrapper& operator=(const MKLWrapper& other);

protected:
    /// Does nothing: the class has no instances.
    MKLWrapper(const MKLWrapper& other);
    ~MKLWrapper();
};

#endif
