"""Numerical primitives for image and signal processing on NumPy's arrays: the same bits on every processor.

Arrays are never kept, the lock is released round every call, and what is wrong with a call is said by an
ArgumentError that names the argument.
"""

from . import _core, linalg, random
from ._core import *
from ._core import __version__

__all__ = [name for name in vars(_core) if name[0] != "_"] + ["linalg", "random", "__version__"]
