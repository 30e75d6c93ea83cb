"""Calls of the operations that are not element by element, with what they give: name -> [(arguments, result)]."""

import numpy as np
import scipy.ndimage as ndimage
import skimage.segmentation

from oracles import STANDARDS, pixels, to_rgb, to_ycbcr

BYTES, COLOURS, ALPHA = pixels("u1", 9, 11), pixels("u1", 9, 11, 3), pixels("u1", 9, 11, 4)
WORDS, FLOATS = pixels("u2", 9, 11), pixels("f4", 9, 11)
IMAGES = [BYTES, COLOURS, ALPHA, WORDS, FLOATS]
CASES = {}


class Call:
    def __init__(self, result, *arguments, within=0, **named):
        self.result, self.arguments, self.within, self.named = result, arguments, within, named


def calls(name, *all_calls):
    CASES[name] = list(all_calls)


# --- moving -----------------------------------------------------------------------------------------

calls("fill", Call(np.full((3, 4), 7, "u1"), BYTES[:3, :4].copy(), 7),
      Call(np.full((3, 4, 3), (1, 2, 3), "u1"), COLOURS[:3, :4].copy(), (1, 2, 3)),
      *(Call(np.full((3, 4), 7, a), np.zeros((3, 4), a), 7) for a in ("f8", "c8")))
calls("convert", Call(np.clip(np.rint(FLOATS * 40), 0, 255), FLOATS * 40, "uint8"))
SEQUENCES = [pixels(t, 3, 4) for t in "u1 u2 i4 f4 f8 c8".split()]
calls("clear", *(Call(np.zeros_like(a), a.copy()) for a in SEQUENCES))
RAMPED = [np.zeros(12, t) for t in "u1 u2 i4 f4 f8".split()]
calls("slope", *(Call(3 + 2.0 * np.arange(12), a.copy(), 3, 2) for a in RAMPED))
calls("ramp", *(Call(np.linspace(5, 49, 12), a.copy(), 5, 49) for a in RAMPED),
      Call(np.linspace(-1, 2, 7), np.zeros(7), -1, 2, within=1e-15))
calls("transpose", Call(FLOATS.T, FLOATS))
calls("mirror", *(Call(np.flip(a, axes), a, about=about) for a in (WORDS, COLOURS, ALPHA)
                  for about, axes in (("horizontal", 0), ("vertical", 1), ("both", (0, 1)))))


def alpha_kept(a):
    return np.concatenate([a[..., :3], ALPHA[..., 3:]], -1)


calls("mirror_horizontal", Call(alpha_kept(ALPHA[::-1]), ALPHA))
calls("mirror_vertical", Call(alpha_kept(ALPHA[:, ::-1]), ALPHA))
calls("mirror_both", Call(alpha_kept(ALPHA[::-1, ::-1]), ALPHA))


def padded(a, **how):
    return np.pad(a, ((3, 2), (2, 4)) + ((0, 0),) * (a.ndim - 2), **how)


calls("extend_constant", *(Call(padded(a, constant_values=5), a, (14, 17), 2, 3, 5) for a in IMAGES))
calls("extend_replicate", *(Call(padded(a, mode="edge"), a, (14, 17), 2, 3) for a in IMAGES))

# --- geometry ---------------------------------------------------------------------------------------


def nearest(a, height, width):
    rows = ((np.arange(height) + 0.5) * a.shape[0] / height - 1e-10).astype(int)
    columns = ((np.arange(width) + 0.5) * a.shape[1] / width - 1e-10).astype(int)
    return a[rows][:, columns]


def linear(a, height, width):
    """Pixel centres aligned, edges repeated."""
    rows = (np.arange(height) + 0.5) * a.shape[0] / height - 0.5
    columns = (np.arange(width) + 0.5) * a.shape[1] / width - 0.5
    return ndimage.map_coordinates(a.astype(float), np.meshgrid(rows, columns, indexing="ij"), order=1, mode="nearest")


calls("resize", *(Call(nearest(a, 6, 23), a, (6, 23), how="nearest") for a in IMAGES),
      Call(linear(FLOATS, 13, 7), FLOATS, (13, 7), within=1e-4), Call(linear(WORDS, 18, 22), WORDS, (18, 22), within=1),
      Call(FLOATS[:8, :10].reshape(4, 2, 5, 2).mean((1, 3)), FLOATS[:8, :10], (4, 5), how="area", within=1e-5))
calls("zoom", Call(np.repeat(np.repeat(FLOATS[2:6, 3:7], 2, 0), 2, 1), FLOATS[:8, 1:9], 2, smooth=False),
      Call(WORDS, WORDS, 1, smooth=False))
calls("rotate", Call(COLOURS, COLOURS, 0, 0, 0),
      Call(np.rot90(FLOATS, 1), FLOATS, 90, 0, 11, shape=(11, 9), how="nearest"))
calls("rotate_about", *(Call(a[::-1, ::-1], a, 180, 5.5, 4.5) for a in (COLOURS, ALPHA, WORDS, FLOATS)))
shift = [1, 0, 2, 0, 1, -3, 0, 0, 1]
moved = np.zeros_like(BYTES)
moved[:6, 2:] = BYTES[3:, :9]
calls("warp_perspective", Call(BYTES, BYTES, np.eye(3)), Call(moved, BYTES, shift),
      Call(moved, BYTES, np.reshape(shift, (3, 3)), how="nearest"))
x, y = np.meshgrid(np.linspace(0, 10, 8, dtype="f4"), np.linspace(8, 0, 5, dtype="f4"))
sampled = ndimage.map_coordinates(FLOATS.astype(float), [y, x], order=1)
upwards = np.float32(np.meshgrid(range(11), range(8, -1, -1)))
calls("remap", Call(sampled, FLOATS, x, y, within=1e-4), Call(WORDS[::-1], WORDS, *upwards))
calls("rotate_bound", Call((0, -11, 9, 0), 11, 9, 90, 0, 0, within=1e-9))
calls("rotate_shift", Call((10, 8), 5, 4, 180, within=1e-9))
calls("perspective_bound", Call((2, -3, 13, 6), 11, 9, shift, within=1e-9))

# --- filters ----------------------------------------------------------------------------------------


def weighted(a, kernel, **how):
    how = how or {"mode": "nearest"}
    planes = a.reshape(*a.shape[:2], -1).astype(float)
    out = [ndimage.correlate(planes[..., c], np.asarray(kernel, float), **how) for c in range(planes.shape[2])]
    return np.stack(out, -1).reshape(a.shape)


def highpass(side):
    kernel = np.full((side, side), -1.0)
    kernel[side // 2, side // 2] += side * side
    return kernel


LAPLACE = [[-1, -3, -4, -3, -1], [-3, 0, 6, 0, -3], [-4, 6, 20, 6, -4], [-3, 0, 6, 0, -3], [-1, -3, -4, -3, -1]]
SMOOTH = {3: np.outer([1, 2, 1], [1, 2, 1]) / 16,
          5: np.array([[2, 7, 12, 7, 2], [7, 31, 52, 31, 7], [12, 52, 127, 52, 12], [7, 31, 52, 31, 7],
                       [2, 7, 12, 7, 2]]) / 571}
CROSS = {3: -np.outer([-1, 0, 1], [-1, 0, 1]), 5: -np.outer([-1, -2, 0, 2, 1], [-1, -2, 0, 2, 1])}
calls("lowpass", *(Call(np.rint(weighted(a, np.full((s, s), 1 / s ** 2))), a, s)
                   for s in (3, 5) for a in (BYTES, COLOURS, WORDS)),
      Call(weighted(FLOATS, np.full((5, 5), 0.04)), FLOATS, 5, within=1e-5),
      Call(weighted(FLOATS, np.full((3, 3), 1 / 9), mode="constant", cval=2), FLOATS, 3, beyond="constant", value=2,
           within=1e-5))
both = [(a, s, 1e-3 if a is FLOATS else 0) for a in (BYTES, FLOATS) for s in (3, 5)]
calls("highpass", *(Call(weighted(a, highpass(s)), a, s, within=w) for a, s, w in both))
calls("laplace", *(Call(weighted(a, highpass(3) if s == 3 else LAPLACE), a, s, within=w) for a, s, w in both))
calls("sobel_cross", *(Call(weighted(a, CROSS[s]), a, s, within=w) for a, s, w in both))
taps = np.exp(-np.arange(-3, 4) ** 2 / (2 * 1.5 ** 2))
calls("gauss", *(Call(np.rint(weighted(a, SMOOTH[s])), a, s) for a in (BYTES, WORDS) for s in (3, 5)),
      Call(weighted(FLOATS, np.outer(taps, taps) / taps.sum() ** 2), FLOATS, kernel_size=7, sigma=1.5, within=1e-5))
box = np.full((5, 3), 1 / 15)
mean, square = weighted(FLOATS, box), weighted(FLOATS.astype(float) ** 2, box)
variance = square - mean ** 2
for_noise = [variance.mean(), 4.0]
cleaned = [np.where(variance > n, mean + (FLOATS - mean) * (variance - n) / variance, mean) for n in for_noise]
calls("wiener", *(Call((clean, n), FLOATS, 3, 5, noise=given, within=1e-4)
                  for clean, n, given in zip(cleaned, for_noise, (-1, 4.0))))
calls("median", Call(ndimage.median_filter(FLOATS, (3, 5), mode="nearest"), FLOATS, 5, 3))
around = [(3, 3) + (1,) * (a.ndim - 2) for a in IMAGES]
calls("erode", *(Call(ndimage.grey_erosion(a, s, mode="nearest"), a) for a, s in zip(IMAGES, around)))
calls("dilate", *(Call(ndimage.grey_dilation(a, s, mode="nearest"), a) for a, s in zip(IMAGES, around)))


def convolved(a, kernel, divisor=1, **how):
    sums = weighted(a, np.flip(kernel), **how)
    if a.dtype.kind == "f":
        return sums
    info = np.iinfo(a.dtype)
    return np.clip(np.rint(sums / divisor), info.min, info.max)


kernel = np.array([[1, -2, 3], [4, 5, -6], [7, 0, 1]])
calls("convolve", *(Call(convolved(a, kernel, 5), a, kernel, divisor=5) for a in (BYTES, COLOURS, WORDS)),
      Call(weighted(BYTES, np.flip(kernel)), BYTES, kernel / 1.0),
      Call(weighted(FLOATS, np.flip(kernel)), FLOATS, kernel, within=1e-4),
      Call(np.clip(weighted(BYTES, np.flip(kernel)), -32768, 32767), BYTES, kernel.tolist(), dtype="i2"),
      Call(convolved(BYTES, kernel, mode="constant", cval=9), BYTES, kernel, beyond="constant", value=9))


def canny(a, low, high):
    """Sobel's gradients, the larger of two neighbours along them, and what is joined to a strong one."""
    p = np.pad(a, 1, mode="edge")
    d, s = p[:, 2:] - p[:, :-2], p[:, :-2] + p[:, 2:] + 2 * p[:, 1:-1]
    gx, gy = d[:-2] + d[2:] + 2 * d[1:-1], s[2:] - s[:-2]
    m = np.pad((gx.astype(float) ** 2 + gy.astype(float) ** 2), 1)
    tangent = 0.41421356237309503
    ax, ay = np.abs(gx), np.abs(gy)
    dx = np.where(ay <= tangent * ax, 1, np.where(ax <= tangent * ay, 0, np.where((gx > 0) == (gy > 0), 1, -1)))
    dy = np.where(ay <= tangent * ax, 0, 1)
    rows, columns = np.indices(a.shape) + 1
    own, first, second = m[rows, columns], m[rows - dy, columns - dx], m[rows + dy, columns + dx]
    candidate = (own > low ** 2) & (own > first) & (own >= second)
    labels, _ = ndimage.label(candidate, np.ones((3, 3)))
    return np.where(candidate & np.isin(labels, labels[candidate & (own > high ** 2)]), 255, 0).astype("u1")


calls("canny", Call(canny(FLOATS, 9, 30), FLOATS, 9, 30))
blobs = (pixels("u1", 12, 15) > 99).astype("u1")
filled = skimage.segmentation.flood_fill(blobs, (4, 5), 9, connectivity=2)
calls("flood_fill", Call((filled, np.count_nonzero(filled == 9)), blobs, 5, 4, 9))

# --- colour -----------------------------------------------------------------------------------------


def to_422(rgb, standard):
    pairs = rgb.reshape(rgb.shape[0], -1, 2, 3)
    out = np.empty((*rgb.shape[:2], 2))
    out[..., 0] = to_ycbcr(rgb, standard)[..., 0]
    out[:, 0::2, 1], out[:, 1::2, 1] = np.moveaxis(to_ycbcr(pairs.mean(2), standard)[..., 1:], -1, 0)
    return out


def from_422(yuv, standard):
    chroma = np.stack([np.repeat(yuv[:, k::2, 1], 2, 1) for k in (0, 1)], -1)
    return to_rgb(np.concatenate([yuv[..., :1], chroma], -1), standard)


even, coded = COLOURS[:, :10], pixels("u1", 9, 10, 2)
half = [pixels("u1", 5, 6) for _ in "uv"]
fine = [np.repeat(np.repeat(p, 2, 0), 2, 1)[:9, :11] for p in half]
calls("rgb_to_yuv422", *(Call(to_422(even, s), even, s, within=0.51) for s in STANDARDS))
calls("yuv422_to_rgb", *(Call(from_422(coded, s), coded, s, within=0.54) for s in STANDARDS))
calls("yuv420_to_rgb", *(Call(to_rgb(np.stack([BYTES, *fine], -1), s), BYTES, *half, s, within=0.54)
                         for s in STANDARDS))

# --- statistics -------------------------------------------------------------------------------------

SIGNED = pixels("i2", 9, 11)
FLOAT_COLOURS = pixels("f4", 9, 11, 3)
SERIES = [pixels(t, 99) for t in "u1 u2 i4 f4 f8".split()]


def reduced(function, *images):
    def wanted(a):
        exact = a.astype("f8") if a.dtype == "f4" else a
        return tuple(function(exact, (0, 1)).tolist()) if a.ndim > 2 else function(exact)
    return [Call(wanted(a), a, within=1e-4) for a in images]


EACH = [BYTES, COLOURS, ALPHA, WORDS, SIGNED, FLOATS, FLOAT_COLOURS]
calls("sum", *reduced(lambda a, axis=None: a.sum(axis, dtype=float), *EACH, *SERIES))
calls("mean", *reduced(np.mean, *EACH, FLOATS[0], *SERIES))
calls("minimum", *reduced(np.min, BYTES, COLOURS, WORDS, SIGNED, FLOATS, FLOAT_COLOURS, *SERIES))
calls("maximum", *reduced(np.max, BYTES, ALPHA, WORDS, SIGNED, FLOATS, FLOAT_COLOURS, *SERIES))
calls("minimum_maximum", *(Call((a.min(), a.max()), a) for a in (BYTES, WORDS, SIGNED, FLOATS, *SERIES)))
calls("mean_deviation", *(Call((a.mean(), a.std()), a, within=1e-6) for a in (BYTES, WORDS, SERIES[3])))
calls("deviation", Call(SERIES[3].astype("f8").std(), SERIES[3], within=1e-6))
calls("dot_product", *(Call(np.dot(a.astype("f8"), a[::-1].astype("f8")), a, a[::-1].copy(), within=1e-9)
                       for a in SERIES[3:]))
calls("minimum_index", *(Call((a.min(), *np.unravel_index(a.argmin(), a.shape)[::-1]), a)
                         for a in (BYTES, WORDS, *SERIES)))
calls("maximum_index", *(Call((a.max(), *np.unravel_index(a.argmax(), a.shape)[::-1]), a)
                         for a in (BYTES, WORDS, *SERIES)))
squares = [(a, (a.sum(dtype=int), (a.astype(int) ** 2).sum())) for a in (BYTES, WORDS, np.full((9, 9), 65535, "u2"))]
calls("sum_squares", *(Call(sums, a) for a, sums in squares))
calls("deviation_of_sums", *(Call((a.mean(), a.std()), a.size, *map(int, sums), within=1e-6) for a, sums in squares))
levels = np.array([0, 50, 100, 150, 200])
calls("histogram", Call((np.histogram(BYTES[BYTES < 200], levels)[0], levels), BYTES, 4, 0, 200))

# --- sorting ----------------------------------------------------------------------------------------

VECTORS = [pixels(dtype, 300) for dtype in ("u1", "u2", "i4", "f4", "f8")]
calls("sort", *(Call(np.sort(v), v) for v in VECTORS))
calls("sort_descending", *(Call(np.sort(v)[::-1], v) for v in VECTORS))
calls("sort_index", *(Call((np.sort(v), np.argsort(v, kind="stable")), v) for v in VECTORS))
calls("sort_index_descending", *(Call((np.sort(v)[::-1], np.argsort(-v.astype("f8"), kind="stable")), v)
                                 for v in VECTORS))

# --- spectra ----------------------------------------------------------------------------------------


def packed(spectrum):
    """The half of a real image's spectrum that says it all, as the transforms write it."""
    height, width = spectrum.shape
    out = np.empty((height, width))
    inner = (width - 1) // 2
    out[:, 1:2 * inner + 1:2], out[:, 2:2 * inner + 2:2] = spectrum.real[:, 1:inner + 1], spectrum.imag[:, 1:inner + 1]
    for column, u in [(0, 0)] + [(width - 1, width // 2)] * (width % 2 == 0):
        rows = (height - 1) // 2
        out[0, column] = spectrum[0, u].real
        out[1:2 * rows + 1:2, column], out[2:2 * rows + 2:2, column] = (spectrum.real[1:rows + 1, u],
                                                                       spectrum.imag[1:rows + 1, u])
        if height % 2 == 0:
            out[height - 1, column] = spectrum[height // 2, u].real
    return out


spectra = [np.fft.fft2(pixels("f4", *s)) for s in ((8, 12), (8, 12), (1, 16), (1, 16))]
p = [packed(s).astype("f4") for s in spectra]
conjugate = [packed(spectra[0] * spectra[1].conj()), packed(spectra[2] * spectra[3].conj())]
calls("multiply_packed", Call(packed(spectra[0] * spectra[1]), p[0], p[1], within=1e-2),
      Call(packed(spectra[2] * spectra[3])[0], p[2][0], p[3][0], within=1e-2))
calls("multiply_packed_conjugate", Call(conjugate[0], p[0], p[1], within=1e-2),
      Call(conjugate[1][0], p[2][0], p[3][0], within=1e-2))
calls("magnitude_packed", Call(np.abs(spectra[0]), p[0], within=1e-3))
own_twins = np.ix_((0, 4), (0, 6))
spectra[0][own_twins] = spectra[0][own_twins].real  # the sign of a zero decides between pi and -pi
calls("phase_packed", Call(np.angle(spectra[0]), p[0], within=1e-4))
calls("packed_to_complex", Call(spectra[0], p[0], within=1e-4))
calls("complex_to_packed", Call(p[0], spectra[0].astype("c8"), within=1e-4))
calls("hamming_window", Call(FLOATS * np.outer(np.hamming(9), np.hamming(11)), FLOATS, within=1e-5),
      Call(FLOATS[0] * np.hamming(11), FLOATS[0], within=1e-5))
calls("bartlett_window", Call(FLOATS * np.outer(np.bartlett(9), np.bartlett(11)), FLOATS, within=1e-5))
signal, window, square_image = pixels("f4", 64), np.hanning(64).astype("f4"), pixels("f4", 16, 32)
centred = signal - signal.mean()
calls("psd", Call(np.abs(np.fft.fft(centred)) ** 2, signal, within=1e-1),
      Call(np.abs(np.fft.fft(centred * window)) ** 2, signal, window, within=1e-1))
calls("fft2", Call(packed(np.fft.fft2(square_image)), square_image, within=1e-3))
calls("ifft2", Call(square_image, packed(np.fft.fft2(square_image)).astype("f4"), within=1e-4))

# --- matrices ---------------------------------------------------------------------------------------

a, b, c = pixels("f4", 5, 4), pixels("f4", 5, 4), pixels("f4", 4, 3)
square = pixels("f4", 5, 5) + 20 * np.eye(5, dtype="f4")
wide, long_vector, short_vector = pixels("f8", 5, 4), pixels("f8", 5), pixels("f8", 4)
LINALG = {
    "copy": [Call(a.T, a.T)],
    "add": [Call(a + b, a, b)],
    "subtract": [Call(a - b, a, b), Call(a.T[:2] - b.T[:2], a.T[:2], b.T[:2])],
    "multiply": [Call(a @ c, a, c, within=1e-4), Call(a * 3, a, 3),
                 Call(wide @ short_vector, wide, short_vector, within=1e-9)],
    "transpose_multiply": [Call(wide.T @ long_vector, wide, long_vector, within=1e-9),
                           Call(wide.T @ wide, wide, wide, within=1e-9)],
    "transpose": [Call(a.T, a)],
    "invert": [Call(np.linalg.inv(m), m, within=1e-5) for m in (square, square.astype(float))],
    "identity": [Call(np.eye(3, 5), (3, 5))],
    "svd": [Call(np.linalg.svd(m, compute_uv=False), m, compute_uv=False, within=1e-4) for m in (a, wide)],
}
