"""Images larger than memory, on many cores or machines, over Dask: the bytes of one call on the whole image.

An image is a Dask array of shape (height, width) or (height, width, channels), its chunks are the tiles. They are never
changed on the way, but for sums of floats; `image.rechunk(...)` does that. Nothing is computed before `write` or
`compute`, Dask's own.
"""

from __future__ import annotations

import builtins
import pathlib
from typing import Any, Callable

import dask.array as da  # type: ignore[import]
import numpy as np
from numpy.typing import DTypeLike

import orvane

from . import tiles

__all__ = ["read", "map", "write", "sum", "histogram", "minmax"]

# Floats are added in cells of fixed places, whatever the chunks are.
CELL = 256


def _part_of_tiff(path: str, block_info: Any = None) -> Any:
    import tifffile  # type: ignore[import]
    import zarr  # type: ignore[import]
    with tifffile.imread(path, aszarr=True, level=0) as store:
        return zarr.open(store, "r")[tuple(slice(*ends) for ends in block_info[None]["array-location"])]


def read(path: str | pathlib.Path, chunks: Any = None) -> da.Array:
    """An image in a Zarr folder or a TIFF file (.tif, .tiff), in its own chunks or those that `chunks` tells.

    Strips of a TIFF are taken together to chunks of Dask's size for arrays. Channels are not divided.
    """
    if pathlib.Path(path).suffix.lower() not in (".tif", ".tiff"):
        return da.from_zarr(str(path), chunks=chunks)
    import tifffile  # type: ignore[import]
    import zarr  # type: ignore[import]
    with tifffile.imread(path, aszarr=True, level=0) as store:
        source = zarr.open(store, "r")
        shape, dtype, stored = source.shape, source.dtype, source.chunks
    chunks = da.core.normalize_chunks(chunks or ("auto", "auto", -1)[:len(shape)], shape, dtype=dtype,
                                      previous_chunks=stored)
    return da.map_blocks(_part_of_tiff, str(path), chunks=chunks, dtype=dtype, meta=np.empty((0,) * len(shape), dtype))


def write(image: da.Array, path: str | pathlib.Path, **options: Any) -> Any:
    """Computes the image and writes it as a Zarr folder; `options` are those of `dask.array.to_zarr`."""
    return da.to_zarr(image, str(path), **options)


def _sides(halo: tiles.Halo | tiles.Rule | int) -> tiles.Halo:
    if isinstance(halo, tiles.Rule):
        return tiles.halo([halo])
    return tiles.Halo(*(halo,) * 4) if isinstance(halo, int) else tiles.Halo(*halo)


def _depth(image: da.Array, halo: tiles.Halo | tiles.Rule | int) -> dict[int, tuple[int, int]]:
    """{axis: (pixels before, pixels after)}; refuses chunks that do not have as many, and cuts beside a grid."""
    sides, grid = _sides(halo), halo.grid if isinstance(halo, tiles.Rule) else (1, 1)
    depth = {0: (sides.top, sides.bottom), 1: (sides.left, sides.right)}
    for axis, name in enumerate(("rows", "columns")):
        if any(n % grid[1 - axis] for n in image.chunks[axis][:-1]):
            raise ValueError(f"map: {name} are to be cut at multiples of {grid[1 - axis]}; rechunk the image before")
        if image.numblocks[axis] == 1:
            depth[axis] = (0, 0)
        elif min(image.chunks[axis]) < max(depth[axis]):
            raise ValueError(f"map: the halo is {max(depth[axis])} {name}, but a chunk has only "
                             f"{min(image.chunks[axis])}; rechunk the image before")
    return depth


def map(function: Callable[..., Any], *images: da.Array, halo: tiles.Halo | tiles.Rule | int = 0,
        dtype: DTypeLike | None = None) -> da.Array:
    """function(*images), tile by tile: the bytes of one call where `halo` is that of the function's operations.

    function: takes arrays and gives one of the same height and width; other types and channels are found by a trial.
    halo: how far it reads: `orvane.tiles.halo` of its steps, or one number for all sides. Beyond the image's edge
    nothing is added, so that the operations see the edge where it is.
    dtype: the result's type, where a trial on an image of zeros cannot give it.
    """
    first = images[0]
    for image in images:
        if image.chunks[:2] != first.chunks[:2] or image.numblocks[2:] not in ((), (1,)):
            raise ValueError(f"map: images are cut in different ways: {first.chunks} and {image.chunks}; rechunk them")
    depth, last = _depth(first, halo), [count - 1 for count in first.numblocks[:2]]

    def tile(*parts: Any, block_id: Any = None) -> Any:
        made = np.asarray(function(*parts))
        if made.shape[:2] != parts[0].shape[:2]:
            raise ValueError(f"map: the function made {made.shape[:2]} of {parts[0].shape[:2]} pixels")
        inner = []
        for axis, (before, after) in depth.items():
            begin, end = block_id[axis] == 0, block_id[axis] == last[axis]
            inner.append(slice(0 if begin else before, made.shape[axis] - (0 if end else after)))
        return np.ascontiguousarray(made[tuple(inner)])

    size = [min(64 + builtins.sum(depth[axis]), first.shape[axis]) for axis in (0, 1)]
    trial = np.asarray(function(*(np.zeros((*size, *image.shape[2:]), image.dtype) for image in images)))
    dtype = trial.dtype if dtype is None else np.dtype(dtype)
    if any(sides != (0, 0) for sides in depth.values()):
        images = tuple(da.overlap.overlap(image, depth, "none", allow_rechunk=False) for image in images)
    return da.map_blocks(tile, *images, chunks=first.chunks[:2] + tuple((n,) for n in trial.shape[2:]),
                         drop_axis=2 if first.ndim > trial.ndim else None,
                         new_axis=2 if first.ndim < trial.ndim else None, meta=np.empty((0,) * trial.ndim, dtype))


def _of_tiles(function: Callable[[Any], Any], image: da.Array, dtype: DTypeLike, count: int, cell: int = 0) -> da.Array:
    """`count` numbers for each tile or for each of its cells, in an array of rows and columns of them."""
    def tile(part: Any) -> Any:
        rows, columns = (range(0, n, cell or n) for n in part.shape[:2])
        return np.array([[np.ravel(function(part[y:y + rows.step, x:x + columns.step])) for x in columns]
                         for y in rows], dtype)
    chunks = [tuple(-(-n // (cell or n)) for n in image.chunks[axis]) for axis in (0, 1)]
    return da.map_blocks(tile, image, chunks=(*chunks, (count,)), drop_axis=2 if image.ndim == 3 else None, new_axis=2,
                         meta=np.empty((0, 0, 0), dtype))


def _tree(cells: Any) -> Any:
    sums = cells.reshape(-1, cells.shape[2])
    while len(sums) > 1:
        even = len(sums) // 2 * 2
        sums = np.concatenate([sums[0:even:2] + sums[1:even:2], sums[even:]])
    return sums[0]


def sum(image: da.Array) -> da.Array:
    """The sum, or one for each channel. Integers: exact, in int64.

    Floats: `orvane.sum` of cells of 256 x 256 pixels, which are added in pairs, the sums in pairs, and so on: the same
    bits for all chunks and any number of workers. One call on the whole image has another order, so other last bits.
    """
    channels = image.shape[2] if image.ndim == 3 else 1
    if image.dtype.kind != "f":
        total = _of_tiles(orvane.sum, image, np.int64, channels).sum(axis=(0, 1))
    else:
        whole_cells = tuple(max(n // CELL, 1) * CELL for n in image.chunksize[:2])
        cells = _of_tiles(orvane.sum, image.rechunk((*whole_cells, -1)[:image.ndim]), np.float64, channels, CELL)
        total = da.map_blocks(_tree, cells.rechunk(-1), drop_axis=(0, 1), meta=np.empty(0, np.float64))
    return total if image.ndim == 3 else total[0]


def histogram(image: da.Array, bins: int, lower: int, upper: int) -> tuple[da.Array, Any]:
    """(counts, levels) as `orvane.histogram` gives them, of the whole image; counts in int64."""
    levels = orvane.histogram(np.zeros((1, 1), image.dtype), bins, lower, upper)[1]
    counts = _of_tiles(lambda part: orvane.histogram(part, bins, lower, upper)[0], image, np.int64, len(levels) - 1)
    return counts.sum(axis=(0, 1)), levels


def _joined(ends: da.Array, join: np.ufunc) -> da.Array:
    def reduce(part: Any, axis: Any, keepdims: bool) -> Any:
        return join.reduce(part, axis, keepdims=keepdims)
    return da.reduction(ends, reduce, reduce, axis=(0, 1), dtype=ends.dtype)


def minmax(image: da.Array) -> tuple[da.Array, da.Array]:
    """(minimum, maximum), or of each channel, in the image's type, without NaNs, as of `orvane.minimum_maximum`."""
    channels = image.shape[2] if image.ndim == 3 else 1
    ends = _of_tiles(orvane.minimum_maximum, image, image.dtype, 2 * channels)
    least, greatest = _joined(ends[..., :channels], np.fmin), _joined(ends[..., channels:], np.fmax)
    return (least, greatest) if image.ndim == 3 else (least[0], greatest[0])
