"""Arrays in parts, with the same bytes as the whole: how each operation may be cut, and bands of rows on all cores.

    steps = halo([rule("lowpass", size=5), rule("add"), rule("median", mask_width=3, mask_height=3)])

    def chain(part):
        return orvane.median(orvane.add(orvane.lowpass(part, 5), 10), 3, 3)

    result = map_bands(chain, image, rows=128, halo=steps)     # the bytes of chain(image)

Kinds of rules, and what a part needs to give its part of the result:

point        nothing else; its columns and rows are multiples of `rule.grid`
frame, halo  to be larger by `rule.halo`, as far as the image goes; the result is cropped
place        another place for its result: transposition, mirrors
destination  the whole source: parts are the destination's
join         to be joined with the others' results by `join`; grid[0] is 0 where parts are whole rows
whole        all of the image

Parts of a destination say where they begin in it, and how large it is:

    part = orvane.resize(image, (rows, width), origin_y=first, whole_width=width, whole_height=height)

Deviations follow from joined sums of squares: orvane.deviation_of_sums(pixels, *join("sum_squares", parts)).
"""

import collections.abc as abc
import concurrent.futures
import os
import threading
import typing
from typing import Any

import numpy as np
from numpy.typing import DTypeLike, NDArray

from ._rules import TABLE

__all__ = ["Halo", "Rule", "Band", "rule", "halo", "bands", "map_bands", "join"]


class Halo(typing.NamedTuple):
    """Pixels round a part."""
    left: int = 0
    top: int = 0
    right: int = 0
    bottom: int = 0


class Rule(typing.NamedTuple):
    """How an operation's arrays may be cut: cuts at multiples of grid, columns and rows."""
    kind: str
    halo: Halo = Halo()
    grid: tuple[int, int] = (1, 1)


class Band(typing.NamedTuple):
    """Rows of an image: those of the band, those to read for it, and the band's within these."""
    rows: slice
    read: slice
    crop: slice


# --- rules ------------------------------------------------------------------------------------------


def _arguments(name: str, given: dict[str, Any]) -> dict[str, Any]:
    if name not in TABLE:
        raise ValueError(f"orvane has no operation {name!r}")
    known, _ = TABLE[name]
    unknown = [argument for argument in given if argument not in known]
    if unknown:
        raise TypeError(f"{name} has no argument {unknown[0]!r}")
    return {**known, **given}


def _told(arguments: dict[str, Any], arrays: dict[str, tuple[Any, ...]]) -> dict[str, Any]:
    """With the arguments that an array tells: the sides of a kernel, and its middle."""
    for name, (array, axis, *divisor) in arrays.items():
        if arguments.get(name) is None and arguments.get(array) is not None:
            arguments = {**arguments, name: np.shape(arguments[array])[axis] // (divisor or [1])[0]}
    return arguments


def _rule_of(case: tuple[Any, ...], arguments: dict[str, Any]) -> Rule | None:
    """The rule of a case, or None where an argument that it depends on is not given."""
    _, kind, grid, names, reach, whole, arrays, _ = case
    values = [_told(arguments, arrays).get(name) for name in names]
    if any(value is None for value in values):
        return None
    if whole and whole(*values):
        return Rule("whole")
    return Rule(kind, Halo(*reach(*values)) if reach else Halo(), grid)


def rule(name: str, dtype: DTypeLike = None, **arguments: Any) -> Rule:
    """How arrays of an operation may be cut: rule("lowpass", size=5), rule("sum", "uint8").

    The arguments are the operation's; those that the rule depends on are needed. The dtype is the source's, and
    needed where types differ.
    """
    given = _arguments(name, arguments)
    cases = TABLE[name][1]
    if dtype is not None:
        cases = [case for case in cases if np.dtype(dtype).name in case[0].split()] or cases
    found = {made: case[0] for case in cases if (made := _rule_of(case, given))}
    if not found:
        raise TypeError(f"the rule of {name} depends on {' or '.join(', '.join(case[3]) for case in cases)}")
    if len(found) > 1 and dtype is None:
        raise TypeError(f"{name} differs by dtype: " + ", ".join(f"{r.kind} for {t}" for r, t in found.items()))
    return min(found, key=lambda made: made.kind != "whole")  # where vectors and images differ, the stricter one


def halo(chain: abc.Iterable[Rule | str]) -> Halo:
    """The halo of operations that follow one another: the sum of theirs. Names stand for rule(name)."""
    steps = [rule(step) if isinstance(step, str) else step for step in chain]
    for step in steps:
        if step.kind not in ("point", "frame", "halo"):
            raise ValueError(f"an operation that is cut by {step.kind!r} cannot stand in a chain")
    return Halo(*(sum(side) for side in zip(Halo(), *(step.halo for step in steps))))


# --- bands ------------------------------------------------------------------------------------------


def _vertical(reach: Halo | Rule | int) -> tuple[int, int]:
    if isinstance(reach, Rule):
        return halo([reach])[1::2]
    return (reach, reach) if isinstance(reach, int) else (reach.top, reach.bottom)


def bands(height: int, rows: int, halo: Halo | Rule | int = 0) -> list[Band]:
    """The bands of an image: `rows` rows each but for the last, with the rows that are to be read for them."""
    if rows < 1:
        raise ValueError(f"rows is {rows}; a band has at least one")
    if isinstance(halo, Rule) and rows % halo.grid[1]:
        raise ValueError(f"rows is {rows}, no multiple of {halo.grid[1]}")
    above, below = _vertical(halo)

    def band(first: int) -> Band:
        end = min(first + rows, height)
        start = max(first - above, 0)
        return Band(slice(first, end), slice(start, min(end + below, height)), slice(first - start, end - start))

    return [band(first) for first in range(0, height, rows)]


class _Result:
    """The array that bands are written to, made like the first one that comes."""

    def __init__(self, height: int, out: NDArray[Any] | None) -> None:
        self.height, self.array, self.lock = height, out, threading.Lock()

    def write(self, band: Band, part: NDArray[Any]) -> None:
        needed = band.read.stop - band.read.start
        if not isinstance(part, np.ndarray) or part.ndim < 1 or len(part) != needed:
            raise ValueError(f"the function gave {np.shape(part)} for a part of {needed} rows")
        with self.lock:
            if self.array is None:
                self.array = np.empty((self.height, *part.shape[1:]), part.dtype)
        self.array[band.rows] = part[band.crop]


def map_bands(function: abc.Callable[[NDArray[Any]], NDArray[Any]], array: NDArray[Any], rows: int,
              halo: Halo | Rule | int = 0, threads: int | None = None, out: NDArray[Any] | None = None) -> NDArray[Any]:
    """function(array), computed in bands of `rows` rows with a halo, on as many threads as there are cores.

    The function gets a part of the array and returns one of as many rows; orvane's operations do that, and release the
    lock. A halo that is a number counts rows above and below.
    """
    parts = bands(len(array), rows, halo)
    result = _Result(len(array), out)

    def work(band: Band) -> None:
        result.write(band, function(array[band.read]))

    count = threads or len(os.sched_getaffinity(0))
    if count == 1:
        for band in parts:
            work(band)
    else:
        with concurrent.futures.ThreadPoolExecutor(count) as pool:
            try:
                for done in [pool.submit(work, band) for band in parts]:
                    done.result()
            except BaseException:
                pool.shutdown(cancel_futures=True)
                raise
    return result.array if result.array is not None else function(array)


# --- joining ----------------------------------------------------------------------------------------

_ADDED, _SAME = {"total", "squares", "counts"}, {"levels"}
_COMPARED: dict[str, abc.Callable[[Any, Any], Any]] = {"least": lambda a, b: a < b, "greatest": lambda a, b: a > b}


def _by_channel(one: Any, other: Any, choose: abc.Callable[[Any, Any], Any]) -> Any:
    if isinstance(one, tuple):
        return tuple(choose(a, b) for a, b in zip(one, other))
    return choose(one, other)


def join(name: str, results: abc.Sequence[Any], origins: abc.Sequence[tuple[int, int]] | None = None) -> Any:
    """The result of an operation for the whole, from those of its parts. Sums are exact below 2**53.

    For positions, origins are the parts' first columns and rows. Parts whose rule keeps rows whole come in their order.
    """
    joinable = [case[7] for case in TABLE[name][1] if case[1] == "join"]
    if not joinable or not results:
        raise ValueError(f"results of {name} are not joined" if not joinable else "there is nothing to join")
    # Positions in images have a column and a row, those in vectors an index.
    count = len(results[0]) if isinstance(results[0], tuple) else 1
    names = next((n for n in joinable if len(n) == count), joinable[0])
    single = len(names) == 1
    parts = [dict(zip(names, (r,) if single else r)) for r in results]
    if "row" in names or "index" in names:
        return _joined_place(parts, origins or [(0, 0)] * len(parts))
    joined = parts[0]
    for part in parts[1:]:
        joined = {key: _joined(key, value, part[key]) for key, value in joined.items()}
    return joined[names[0]] if single else tuple(joined.values())


def _joined(key: str, one: Any, other: Any) -> Any:
    if key in _SAME:
        return one
    if key in _ADDED:
        return _by_channel(one, other, lambda a, b: a + b)
    better = _COMPARED[key]
    return _by_channel(one, other, lambda a, b: b if better(b, a) or a != a else a)


def _joined_place(parts: list[dict[str, Any]], origins: abc.Sequence[tuple[int, int]]) -> Any:
    extreme = "least" if "least" in parts[0] else "greatest"
    sign = 1 if extreme == "least" else -1
    across = "column" if "column" in parts[0] else "index"
    placed = [(p[extreme] != p[extreme], sign * p[extreme], p.get("row", 0) + y, p[across] + x, p[extreme])
              for p, (x, y) in zip(parts, origins)]
    _, _, row, column, value = min(placed)
    return (value, column, row) if "row" in parts[0] else (value, column)
