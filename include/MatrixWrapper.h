// Small matrices.
#ifndef ORVANE_MATRIX_WRAPPER_H
#define ORVANE_MATRIX_WRAPPER_H

#include "Export.h"

/// Operations on small dense matrices whose elements lie at fixed byte distances.
class ORVANE_API MatrixWrapper {
public:
    /// Does nothing: the class has no state.
    MatrixWrapper& operator=(const MatrixWrapper& other);

protected:
    /// Does nothing: the class has no instances.
    MatrixWrapper(const MatrixWrapper& other);
    ~MatrixWrapper();
};

#endif
