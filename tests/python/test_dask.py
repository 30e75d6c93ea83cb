"""Tiles of Dask arrays against one call, and joined numbers against NumPy's of the whole."""

import itertools

import numpy as np
import orvane
import pytest
from orvane import tiles

da = pytest.importorskip("dask.array", reason="Dask is not there (scripts/setup.sh cluster)")
pytest.importorskip("zarr", reason="Zarr is not there (scripts/setup.sh cluster)")
tifffile = pytest.importorskip("tifffile", reason="tifffile is not there (scripts/setup.sh cluster)")
import orvane.dask as tiled  # noqa: E402

SHAPE = 90, 130
RANDOM = np.random.default_rng(5)
GREY, OTHER = RANDOM.integers(0, 256, (2, *SHAPE), "uint8")
COLOUR = RANDOM.integers(0, 256, (*SHAPE, 3), "uint8")
WORDS = RANDOM.integers(0, 65536, SHAPE, "uint16")
FLOATS = (RANDOM.normal(size=(600, 700)) * 10.0 ** RANDOM.integers(-6, 7, (600, 700))).astype("float32")
CHUNKS = [(20, 33), (90, 130), (45, 130), (90, 17), ((50, 11, 29), (60, 70))]


def cut(image, chunks):
    return da.from_array(image, chunks=(*chunks, -1)[:image.ndim])


def chain(image):
    return orvane.gauss(orvane.convert(orvane.erode(orvane.lowpass(image, 5)), "float32"), kernel_size=9, sigma=2)


def triple(image):
    return np.dstack([image] * 3)


def one_sided(image):
    """The mean of a pixel, the one on its left and the two below it."""
    kernel = [[1, 0, 0], [1, 0, 0], [1, 1, 0]]
    return orvane.convolve(image, kernel, anchor_x=0, anchor_y=2, divisor=4)


STEPS = [(orvane.add, (GREY, OTHER), 0), (orvane.rgb_to_grey, (COLOUR,), 0), (triple, (GREY,), 0),
         (orvane.erode, (COLOUR,), tiles.rule("erode")), (chain, (GREY,), 7), (one_sided, (GREY,), (1, 0, 0, 2))]


@pytest.mark.parametrize("chunks", CHUNKS)
@pytest.mark.parametrize("function, images, halo", STEPS)
def test_map_gives_the_bytes_of_one_call(function, images, halo, chunks):
    made = tiled.map(function, *(cut(image, chunks) for image in images), halo=halo)
    whole = function(*images)
    assert made.chunks[:2] == cut(images[0], chunks).chunks[:2]
    assert (made.shape, made.dtype) == (whole.shape, whole.dtype)
    assert made.compute().tobytes() == whole.tobytes()


@pytest.mark.parametrize("halo", [0, 6, (7, 7, 7, 6), (6, 7, 7, 7), (7, 7, 6, 7), (7, 6, 7, 7)])
def test_a_halo_too_small_shows(halo):
    assert (tiled.map(chain, cut(GREY, (20, 33)), halo=halo).compute() != chain(GREY)).any()


def test_map_says_what_it_refuses():
    image = cut(GREY, (20, 33))
    for function, images, halo, message in [
            (orvane.erode, [cut(GREY, (20, 43))], 2, "the halo is 2 columns, but a chunk has only 1"),
            (orvane.erode, [cut(GREY, (29, 65))], (0, 0, 0, 4), "the halo is 4 rows, but a chunk has only 3"),
            (orvane.add, [image, cut(GREY, (20, 34))], 0, "cut in different ways"),
            (orvane.erode, [da.from_array(COLOUR, chunks=(20, 33, 1))], 0, "cut in different ways"),
            (orvane.add, [image, image], tiles.Rule("point", grid=(2, 1)), "columns are to be cut at multiples of 2"),
            (orvane.sum, [image], tiles.rule("sum", "uint8"), "cannot stand in a chain"),
            (orvane.subtract, [image, cut(WORDS, (20, 33))], 0, "subtract: ")]:
        with pytest.raises(ValueError, match=message):
            tiled.map(function, *images, halo=halo)
    cropped = tiled.map(lambda part: part[1:], image, dtype="uint8")
    with pytest.raises(ValueError, match=r"made \(19, 33\) of \(20, 33\) pixels"):
        cropped.compute()


@pytest.mark.parametrize("chunks", CHUNKS)
def test_exact_joins(chunks):
    for image in (GREY, COLOUR, WORDS, WORDS.view("int16")):
        pixels = image.reshape(SHAPE[0] * SHAPE[1], -1).astype("int64")
        total, (least, greatest) = tiled.sum(cut(image, chunks)).compute(), tiled.minmax(cut(image, chunks))
        assert total.dtype == "int64" and least.dtype == greatest.dtype == image.dtype
        assert total.shape == least.shape == image.shape[2:]
        for made, expected in ((total, pixels.sum(0)), (least, pixels.min(0)), (greatest, pixels.max(0))):
            assert np.array_equal(np.ravel(np.asarray(made)), expected)
    for image, levels in ((GREY, np.linspace(0, 256, 17)), (WORDS, np.arange(0, 60001, 7500))):
        counts, found = tiled.histogram(cut(image, chunks), len(levels) - 1, int(levels[0]), int(levels[-1]))
        expected = np.histogram(image[image < levels[-1]], levels)[0]
        assert np.array_equal(found, levels) and np.array_equal(counts.compute(), expected)


def in_pairs(numbers):
    while len(numbers) > 1:
        numbers = [a if b is None else a + b for a, b in itertools.zip_longest(numbers[::2], numbers[1::2])]
    return numbers[0]


def test_sums_of_floats_do_not_depend_on_chunks():
    cells = [FLOATS[y:y + 256, x:x + 256] for y in range(0, 600, 256) for x in range(0, 700, 256)]
    expected = in_pairs([orvane.sum(cell) for cell in cells])
    both = np.dstack([FLOATS, FLOATS[::-1], FLOATS[:, ::-1]])
    for chunks in ((600, 700), (256, 256), (100, 700), (512, 300), (1, 700), ((300, 44, 256), (699, 1))):
        assert tiled.sum(cut(FLOATS, chunks)).compute() == expected
        assert tiled.sum(cut(both, chunks)).compute()[0] == expected
    assert abs(expected - FLOATS.sum(dtype="float64")) <= 1e-12 * np.abs(FLOATS).sum(dtype="float64")


def test_extremes_of_floats_leave_nans_out():
    image = FLOATS.copy()
    image[:256, :256] = np.nan
    image[300, 300], image[599, 699] = -np.inf, np.nan
    for chunks in ((256, 256), (600, 700)):
        assert [end.compute() for end in tiled.minmax(cut(image, chunks))] == [-np.inf, np.nanmax(image)]
    assert all(np.isnan(end.compute()) for end in tiled.minmax(cut(np.full(SHAPE, np.nan, "float32"), (20, 33))))


@pytest.mark.parametrize("image", [GREY, COLOUR, WORDS, FLOATS])
def test_files(image, tmp_path):
    tifffile.imwrite(tmp_path / "strips.tif", image, rowsperstrip=7)
    tifffile.imwrite(tmp_path / "tiles.TIFF", image, tile=(32, 48), compression="zlib")
    tiled.write(cut(image, (50, 64)), tmp_path / "image.zarr")
    for name, stored in (("strips.tif", None), ("tiles.TIFF", None), ("image.zarr", (50, 64))):
        for chunks in (None, (41, 77, image.shape[2:])[:2] + image.shape[2:]):
            made = tiled.read(tmp_path / name, chunks)
            assert made.chunksize[:2] == (chunks or stored or image.shape)[:2], name
            assert made.dtype == image.dtype and made.compute().tobytes() == image.tobytes(), name
