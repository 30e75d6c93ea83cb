"""Every operation of every type, cut at random by its rule: the bytes of the whole. And the tools that cut."""

import itertools
import pathlib
import sys
import warnings
import zlib

import numpy as np
import orvane
import pytest
from orvane.tiles import Halo, Rule, bands, halo, join, map_bands, rule

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "interface"))
import headers  # noqa: E402
import python_model  # noqa: E402
from table import Table  # noqa: E402

FUNCTIONS = [(operation.name, f) for operation in python_model.operations(
    Table(ROOT / "interface/table.toml", headers.read(ROOT / "include")), ROOT / "include")
    for f in operation.functions if operation.module == "orvane"]

INTERPOLATIONS = python_model.read_enumerations(ROOT / "include")["interpolation"]

# --- arguments --------------------------------------------------------------------------------------

HEIGHT, WIDTH = 63, 93
HALF = ((HEIGHT + 1) // 2, (WIDTH + 1) // 2)
KERNEL = np.array([[1, -2, 3, 5], [4, 5, -6, 2], [7, 1, 1, -3]])
CURVE = ([0, 50, 100], [7, 80, 20])
TWIST = [0.5, 0.25, 0, 1, 0, 1, 0, 2, 0.1, 0.2, 0.7, 3]
LISTS = {"kernel": KERNEL, "levels": CURVE[0], "values": CURVE[1], "twist": TWIST, "coefficients": np.eye(3)}
# Arguments that the examples of the table do not have, or have for other arrays.
MORE = {
    "convert": lambda f: {"dtype": dtype_of(f.parameters[1])},
    "convolve": lambda f: {"kernel": KERNEL / 23, "dtype": "float32"} if dtype_of(f.parameters[2]) == "float32" else
                          {"kernel": KERNEL, "divisor": 23, "dtype": dtype_of(f.parameters[1])},
    "lookup": lambda f: {"table": noise("table", dtype_of(f.parameters[-1]), *(
        (f.parameters[0].channels, 256) if f.parameters[0].channels > 1 else (values_of(f.parameters[0]),)))},
    "palette": lambda f: {"colours": noise("colours", dtype_of(f.parameters[1]), values_of(f.parameters[0]))},
    "extend_constant": lambda f: {"shape": (HEIGHT + 9, WIDTH + 7), "left": 3, "top": 2},
    "extend_replicate": lambda f: {"shape": (HEIGHT + 9, WIDTH + 7), "left": 3, "top": 2},
    "resize": lambda f: {"shape": (42, 62)},  # both sides by 2/3
    "yuv420_to_rgb": lambda f: {"u": noise("u", "u1", *HALF), "v": noise("v", "u1", *HALF)},
    "remap": lambda f: {"x_map": np.float32(noise("x", "u1", 40, 70) * 0.4 - 3),
                        "y_map": np.float32(noise("y", "u1", 40, 70) * 0.26 - 3)},
    "histogram": lambda f: {"bins": 9, "lower": -20, "upper": 200},
    "wiener": lambda f: {"noise": 2.0},
}


def dtype_of(p):
    return python_model.TYPES[p.element]


def values_of(p):
    return 256 if dtype_of(p) == "uint8" else 65536


def noise(name, dtype, *shape):
    """The same in every run. Floats have very different magnitudes: the order in which they are added shows."""
    rng = np.random.default_rng(zlib.crc32(f"{name} {dtype} {shape}".encode()))
    dtype = np.dtype(dtype)
    if dtype.kind in "iu":
        return np.frombuffer(rng.bytes(int(np.prod(shape)) * dtype.itemsize), dtype).reshape(shape)
    values = rng.normal(size=shape) * 2.0 ** rng.integers(-20, 20, shape)
    return (values * np.exp(1j * values) if dtype.kind == "c" else values).astype(dtype)


def array_for(p, name):
    width = WIDTH + 1 if name == "yuv422_to_rgb" else WIDTH
    shape = (1027,) if p.kind == "vector" else (HEIGHT, width, p.channels) if p.channels > 1 else (HEIGHT, width)
    return noise(p.name, dtype_of(p), *shape)


def argument(p, f, examples):
    """For what a function's caller gives; None where it has a default."""
    if p.name in LISTS and p.kind == "array":
        return LISTS[p.name]
    if p.kind == "code":
        return "bt709_full" if p.default is None else None
    if p.name in examples:
        numbers = [float(v) if "." in v else int(v) for v in examples[p.name]]
        return (numbers * p.channels)[:p.channels] if p.channels > 1 and p.kind == "constant" else numbers[0]
    return 3 if p.default is None else None


def arguments(name, f):
    """The arguments of a call, and which of them are arrays that are cut."""
    examples = {part.split()[0]: part.split()[1:] for part in f.entry.example.split(", ") if part}
    given = {p.python: array_for(p, name) if p.kind in ("image", "vector") else argument(p, f, examples)
             for p in f.inputs()}
    given.update(MORE.get(name, lambda f: {})(f))
    arrays = {p.python for p in f.inputs() if p.kind in ("image", "vector")}
    if name in ("fill", "clear"):
        given["out"] = array_for(f.parameters[0], name)
        arrays = {"out"}
    return {key: value for key, value in given.items() if value is not None}, arrays


# --- cutting ----------------------------------------------------------------------------------------


def call(name, given):
    with warnings.catch_warnings():
        warnings.simplefilter("ignore")
        return getattr(orvane, name)(**given)


def as_tuple(result):
    return result if isinstance(result, tuple) else (result,)


def ranges(length, multiple, rng):
    """Two to six pieces."""
    places = range(multiple, length, multiple) if multiple else []
    inner = sorted(rng.choice(places, min(len(places), rng.integers(1, 6)), replace=False)) if len(places) else []
    return list(itertools.pairwise([0, *map(int, inner), length]))


def regions(shape, grid, rng):
    """Parts of an image, or of a vector, in the order of their places."""
    axes = [ranges(shape[0], grid[1], rng), ranges(shape[1], grid[0], rng)] if len(shape) > 1 else \
        [ranges(shape[0], max(grid), rng)]
    return itertools.product(*axes)


def part_of(a, region, shape):
    """A region's part of an array, which may be half as large as the others; ends are ends."""
    halves = [round(whole / own) for own, whole in zip(a.shape, shape)]
    return a[tuple(slice(first // n, None if end == whole else end // n)
                   for (first, end), n, whole in zip(region, halves, shape))]


def grown(region, reach, shape):
    before, after = (reach.top, reach.left), (reach.bottom, reach.right)
    return [(max(first - b, 0), min(end + e, n)) for (first, end), b, e, n in zip(region, before, after, shape)]


def assembled(whole, pieces):
    made = [np.zeros_like(w) for w in whole]
    for place, parts in pieces:
        for all_of_it, part in zip(made, parts):
            place(all_of_it)[...] = part
    return made


class Cutting:
    """One function and its arguments."""

    def __init__(self, name, f, rng, **more):
        self.name, self.rng = name, rng
        self.given, self.arrays = arguments(name, f)
        self.given.update(more)
        self.shape = next((self.given[a].shape[:2] for a in self.given if a in self.arrays), ())
        scalars = {key: value for key, value in self.given.items() if key not in self.arrays}
        source = next((p for p in f.parameters if p.kind in ("image", "vector")), None)
        self.known = {p.python for p in f.parameters}
        self.rule = rule(name, source and dtype_of(source), **{k: v for k, v in scalars.items() if k != "dtype"})

    def on(self, region):
        return as_tuple(call(self.name, {key: part_of(value, region, self.shape).copy() if key in self.arrays else value
                                         for key, value in self.given.items()}))

    def whole(self):
        return self.on([(0, n) for n in self.shape])

    def regions(self):
        return regions(self.shape, self.rule.grid, self.rng)

    def point(self):
        return assembled(self.whole(), [(lambda a, r=r: part_of(a, r, self.shape), self.on(r)) for r in self.regions()])

    def halo(self, reach=None):
        def piece(region):
            read = grown(region, reach or self.rule.halo, self.shape)
            crop = tuple(slice(first - start, end - start) for (first, end), (start, _) in zip(region, read))
            return [part[crop] if isinstance(part, np.ndarray) else part for part in self.on(read)]
        return assembled(self.whole(), [(lambda a, r=r: part_of(a, r, self.shape) if np.ndim(a) else a, piece(r))
                                        for r in self.regions()])

    frame = halo

    def place(self):
        def moved(region):
            (top, bottom), (left, right) = region
            if self.name == "transpose":
                return slice(left, right), slice(top, bottom)
            return slice(top, bottom), slice(WIDTH - right, WIDTH - left)
        several = (7, 7)  # a mirror of one row or column is refused
        return assembled(self.whole(), [(lambda a, r=r: a[moved(r)], self.on(r))
                                        for r in regions(self.shape, several, self.rng)])

    def destination(self):
        """Maps are cut with the destination."""
        whole = self.whole()
        shape = whole[0].shape[:2]
        pieces = []
        for region in regions(shape, self.rule.grid, self.rng):
            (top, bottom), (left, right) = region
            given = {key: part_of(value, region, shape) if key.endswith("_map") else value
                     for key, value in self.given.items()}
            if self.name != "remap":
                given.update(shape=(bottom - top, right - left), origin_x=left, origin_y=top)
            wholes = {"whole_width": shape[1], "whole_height": shape[0]}
            given.update({key: value for key, value in wholes.items() if key in self.known})
            pieces.append((lambda a, r=region: part_of(a, r, shape), as_tuple(call(self.name, given))))
        return assembled(whole, pieces)

    def join(self):
        parts = list(self.regions())
        results = [call(self.name, {**self.given, **{a: part_of(self.given[a], r, self.shape) for a in self.arrays}})
                   for r in parts]
        return as_tuple(join(self.name, results, [(r[-1][0], r[0][0]) for r in parts]))


def same(one, other):
    return all(np.asarray(a).tobytes() == np.asarray(b).tobytes() for a, b in zip(one, other, strict=True))


def choices(f):
    """Each interpolation, where there are several."""
    if "how" not in {p.python for p in f.parameters}:
        return [{}]
    return [{"how": word} for word, code in INTERPOLATIONS if code in (f.entry.codes or [code])]


def described(value):
    return value if isinstance(value, str) else "-".join(f"{dtype_of(p)}x{p.channels}" for p in value.parameters
                                                         if p.kind in ("image", "vector"))


@pytest.mark.parametrize("name, f", FUNCTIONS, ids=described)
def test_parts_give_the_bytes_of_the_whole(name, f):
    rng = np.random.default_rng(zlib.crc32(name.encode()))
    for more in choices(f):
        cutting = Cutting(name, f, rng, **more)
        for _ in range(3 if cutting.rule.kind != "whole" else 0):
            assert same(getattr(cutting, cutting.rule.kind)(), cutting.whole()), more


@pytest.mark.parametrize("name, f", [(n, f) for n, f in FUNCTIONS if f.entry.frame or "halo" in f.entry.cut],
                         ids=described)
def test_no_halo_is_larger_than_needed(name, f):
    """So that the comparison above is seen to find what is missing."""
    cutting = Cutting(name, f, np.random.default_rng(5))
    for side, pixels_read in cutting.rule.halo._asdict().items():
        if pixels_read:
            assert not same(cutting.halo(cutting.rule.halo._replace(**{side: pixels_read - 1})), cutting.whole()), side


# --- tools ------------------------------------------------------------------------------------------


@pytest.mark.parametrize("name, given, wanted", [
    ("add", {"scale": 3}, Rule("point")),
    ("rgb_to_yuv422", {}, Rule("point", Halo(), (2, 1))),
    ("convolve", {"kernel": KERNEL}, Rule("frame", Halo(1, 1, 2, 1))),
    ("convolve", {"kernel": KERNEL, "anchor_x": 0}, Rule("frame", Halo(3, 1, 0, 1))),
    ("wiener", {"mask_width": 3, "mask_height": 5}, Rule("whole")),
    ("gauss", {"kernel_size": 9, "sigma": 2.0}, Rule("halo", Halo(4, 4, 4, 4))),
    ("gauss", {"size": 5}, Rule("frame", Halo(2, 2, 2, 2))),
    ("minimum", {"dtype": "f4"}, Rule("join", Halo(), (0, 1))),
    ("linalg.add", {}, Rule("whole"))])
def test_rule(name, given, wanted):
    assert rule(name, **given) == wanted


@pytest.mark.parametrize("call, error, words", [
    (lambda: rule("ad"), ValueError, "no operation 'ad'"),
    (lambda: rule("add", scal=1), TypeError, "no argument 'scal'"),
    (lambda: rule("gauss"), TypeError, "depends on size or kernel_size"),
    (lambda: rule("sum"), TypeError, "join for uint8 uint16 int16, whole for float32 int32 float64"),
    (lambda: halo([rule("sum", "u1")]), ValueError, "by 'join'"),
    (lambda: bands(9, 0), ValueError, "rows is 0"),
    (lambda: bands(9, 3, rule("yuv420_to_rgb")), ValueError, "no multiple of 2"),
    (lambda: map_bands(lambda part: part[1:], np.zeros((9, 9)), 4), ValueError, "part of 4 rows"),
    (lambda: join("mean", [1.0]), ValueError, "not joined"),
    (lambda: join("sum", []), ValueError, "nothing")])
def test_mistakes_are_named(call, error, words):
    with pytest.raises(error, match=words):
        call()


def chain(part):
    return orvane.median(orvane.subtract(orvane.convolve(part, KERNEL), 10), 5, 3)


STEPS = halo([rule("convolve", kernel=KERNEL), "subtract", rule("median", mask_width=5, mask_height=3)])


@pytest.mark.parametrize("threads", [None, 1, 5])
def test_chains_in_bands(threads):
    assert STEPS == Halo(3, 2, 4, 2)
    image = noise("image", "f4", 130, 47)
    for rows in (1, 16, 129, 200):
        out = np.empty_like(image)
        assert map_bands(chain, image, rows, STEPS, threads, out) is out
        assert same([out], [chain(image)])
        assert same([map_bands(chain, image, rows, 2, threads)], [chain(image)])
    assert not same([map_bands(chain, image, 16, 1)], [chain(image)])


@pytest.mark.parametrize("threads", [1, 3])
def test_errors_arrive(threads):
    with pytest.raises(ZeroDivisionError):
        map_bands(lambda part: 1 // 0, np.zeros((9, 9)), 1, threads=threads)


def test_deviations_join():
    image = noise("image", "u2", 130, 47)
    sums = join("sum_squares", [orvane.sum_squares(image[band.rows]) for band in bands(130, 9)])
    assert orvane.deviation_of_sums(image.size, *sums) == orvane.mean_deviation(image)
    with pytest.raises(orvane.ArgumentError, match="beyond uint64"):
        orvane.deviation_of_sums(1, 2 ** 64, 0)


def test_first_of_equals_wins():
    extremes = np.array([[np.nan, np.nan], [-0.0, 0.0], [0.0, -0.0]], "f4")
    for name in ("minimum", "maximum"):
        parts = [getattr(orvane, name)(extremes[band.rows]) for band in bands(3, 1)]
        assert same([join(name, parts)], [getattr(orvane, name)(extremes)])
    tiles = [np.array(v, "u1") for v in ([[5, 9]], [[9, 9]], [[9, 4]])]
    found = [orvane.maximum_index(tile) for tile in tiles]
    assert join("maximum_index", found, [(2, 1), (0, 1), (2, 0)]) == (9, 2, 0)
    series = [orvane.minimum_index(np.array(v, "f8")) for v in ([np.nan, np.nan], [3, -0.0], [0.0, 1])]
    assert join("minimum_index", series, [(0, 0), (2, 0), (4, 0)]) == (0, 3)
