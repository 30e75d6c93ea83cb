"""Small matrices, and LAPACK."""

from . import _core

globals().update({name: value for name, value in vars(_core.linalg).items() if name[0] != "_"})
__all__ = [name for name in vars(_core.linalg) if name[0] != "_"]
