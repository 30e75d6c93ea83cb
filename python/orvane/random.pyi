from typing import Any

from numpy import float64
from numpy.typing import NDArray

__all__ = ["Gaussian"]

class Gaussian:
    def __init__(self, seed: int) -> None: ...
    def normal(
        self,
        shape: int | tuple[int, ...] | None = ...,
        mean: float = ...,
        sigma: float = ...,
        *,
        out: NDArray[float64] | None = ...,
    ) -> NDArray[float64]: ...
