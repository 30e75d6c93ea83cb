"""Random numbers that are the same everywhere."""

from . import _core

__all__ = ["Gaussian"]

Gaussian = _core._random.Gaussian
Gaussian.__module__ = __name__
