"""Small matrices, and LAPACK."""

from . import _core

__all__ = [name for name in vars(_core._linalg) if name[0] != "_"]
globals().update({name: getattr(_core._linalg, name) for name in __all__})
