"""Random numbers that are the same everywhere."""

from ._core import Gaussian

__all__ = ["Gaussian"]

Gaussian.__module__ = __name__
