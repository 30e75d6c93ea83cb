// The LAPACK entry points.
