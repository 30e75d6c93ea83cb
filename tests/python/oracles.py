"""What every operation of the package gives, said once more with NumPy, SciPy and exact numbers.

ELEMENTWISE: name -> (oracle, types, makers of further arguments, tolerance); OTHERS: name -> list of cases.
"""

from fractions import Fraction

import numpy as np

RNG = np.random.default_rng(7)


def pixels(dtype, *shape, low=None, high=None):
    dtype = np.dtype(dtype)
    if dtype.kind == "c":
        return (pixels("f4", *shape) + 1j * pixels("f4", *shape)).astype("c8")
    if dtype.kind == "f":
        return RNG.uniform(-9 if low is None else low, 9 if high is None else high, shape).astype(dtype)
    info = np.iinfo(dtype)
    a = RNG.integers(info.min if low is None else low, info.max if high is None else high, shape, dtype, endpoint=True)
    return np.asarray(a, dtype)


def is_integer(a):
    return np.asarray(a).dtype.kind in "iu"


def clipped(values, dtype):
    info = np.iinfo(dtype)
    return np.vectorize(lambda v: min(max(round(v), info.min), info.max), otypes=[dtype])(values)


def exactly(function, *operands):
    """Integers as Python's, which have no end."""
    objects = [np.asarray(o).astype(object) for o in operands]
    return np.frompyfunc(function, len(objects), 1)(*objects)


def per_channel(value, like):
    return np.asarray(value, like.dtype if np.ndim(value) else None)


def scaled(function):
    def oracle(a, b, scale=0):
        if not is_integer(a):
            return function(a, per_channel(b, a)).astype(a.dtype)
        return clipped(exactly(lambda x, y: Fraction(function(x, y)) / Fraction(2) ** scale, a, b), a.dtype)
    return oracle


def quotient(a, b, scale=0):
    if not is_integer(a):
        return (a / per_channel(b, a)).astype(a.dtype)
    beyond = 2 ** 40
    def divide(x, y):
        return Fraction(x, y) / Fraction(2) ** scale if y else beyond * ((x > 0) - (x < 0))
    return clipped(exactly(divide, a, b), a.dtype)


def swapped(oracle):
    return lambda value, source, scale=0: oracle(np.full_like(source, value), source, scale)


def compared(relation):
    def oracle(a, b):
        holds = relation(a, b)
        return np.where(holds.all(-1) if a.ndim > 2 and a.shape[-1] in (3, 4) else holds, 255, 0).astype("u1")
    return oracle


def bits(function):
    return lambda a, b: function(a, np.asarray(b).astype(a.dtype))


def shifted(left):
    def shift(a, count):
        width = 8 * a.itemsize
        mask = (1 << width) - 1
        def one(x, n):
            if not left:
                return x >> min(n, 99)
            bits = (x << min(n, 99)) & mask
            return bits - (1 << width) if np.dtype(a.dtype).kind == "i" and bits >> (width - 1) else bits
        return exactly(one, a, count).astype(a.dtype)
    return shift


def threshold(below):
    def oracle(a, limit, value=None):
        limit, value = per_channel(limit, a), per_channel(limit if value is None else value, a)
        return np.where(a < limit if below else a > limit, value, a).astype(a.dtype)
    return oracle


def threshold_both(a, low, low_value, high, high_value):
    return np.where(a > high, high_value, np.where(a < low, low_value, a)).astype(a.dtype)


STANDARDS = {"bt601_video": (0.299, 0.114, 16, 219, 224), "bt601_full": (0.299, 0.114, 0, 255, 255),
             "bt709_video": (0.2126, 0.0722, 16, 219, 224), "bt709_full": (0.2126, 0.0722, 0, 255, 255)}


def luma_matrix(standard):
    kr, kb, y0, s, t = STANDARDS[standard]
    luma = np.array([kr, 1 - kr - kb, kb])
    chroma = [t * (np.eye(3)[c] - luma) / (2 - 2 * k) for c, k in ((2, kb), (0, kr))]
    return np.array([s * luma, *chroma]) / 255, np.array([y0, 128, 128])


def to_ycbcr(rgb, standard):
    matrix, offset = luma_matrix(standard)
    out = rgb.astype(float)
    out[..., :3] = rgb[..., :3] @ matrix.T + offset
    return out


def to_rgb(ycbcr, standard):
    matrix, offset = luma_matrix(standard)
    out = ycbcr.astype(float)
    out[..., :3] = np.clip((ycbcr[..., :3] - offset) @ np.linalg.inv(matrix).T, 0, 255)
    return out


def composite(ground, over, premultiplied=False):
    g, o = ground.astype(object), over.astype(object)
    a1, a2 = g[..., 3:], o[..., 3:]
    if premultiplied:
        return clipped(o + exactly(lambda n: round(Fraction(n, 255)), (255 - a2) * g), "u1")
    total = 255 * a2 + (255 - a2) * a1
    colour = exactly(lambda n, d: Fraction(n, d) if d else 0, 255 * a2 * o + (255 - a2) * a1 * g,
                     np.broadcast_to(total, g.shape))
    return clipped(np.concatenate([colour[..., :3], exactly(lambda n: Fraction(n, 255), total)], -1), "u1")


def on_opaque(ground, over, premultiplied=False):
    a2 = over[..., 3:].astype(int)
    rest = (255 - a2) * ground
    out = over + np.rint(rest / 255) if premultiplied else np.rint((a2 * over + rest) / 255)
    return np.concatenate([np.minimum(out, 255)[..., :3], ground[..., 3:]], -1).astype("u1")


def colour_matrix(source, twist):
    t = np.asarray(twist, "f4").reshape(3, 4)
    s = source[..., :3].astype("f4")
    out = ((t[:, 0] * s[..., :1] + t[:, 1] * s[..., 1:2]) + t[:, 2] * s[..., 2:3]) + t[:, 3]
    if source.dtype == np.uint8:
        out = np.clip(np.rint(out), 0, 255)
    return np.concatenate([out, source[..., 3:]], -1).astype(source.dtype)


INTEGERS, REALS = "u1 u2 i2 i4", "f4 f8"
ELEMENTS = "u1 u2 i4 f4 f8"  # of vectors
NUMBERS = f"{INTEGERS} {REALS} c8"


def twin(a):
    return (pixels(a.dtype, *a.shape),)


def constant(a):
    return (3,)


CONVERTED = "u1 u2 i4 f4 f8".split()


def another_type(k):
    return lambda a: (CONVERTED[(CONVERTED.index(a.dtype.str[1:]) + k) % len(CONVERTED)],)


def converted(a, dtype):
    return a.astype(dtype) if np.dtype(dtype).kind == "f" else clipped(a.astype(float), dtype)


def limits(a):
    """Integers have only the form with a value."""
    return (3, 7) if is_integer(a) or a.size % 2 else (3,)


def scaling(a):
    return {"scale": int(RNG.integers(-3, 9))} if is_integer(a) else {}


# oracle, types, further arguments, tolerance (absolute and relative); channels where they are told.
ELEMENTWISE = {
    "copy": (lambda a: a, NUMBERS, [], 0),
    "convert": (converted, " ".join(CONVERTED), [another_type(k) for k in range(1, 5)], 0),
    "add": (scaled(lambda x, y: x + y), NUMBERS, [twin, constant], 0),
    "subtract": (scaled(lambda x, y: x - y), "u1 u2 i2 i4 f4 c8", [twin, constant], 0),
    "multiply": (scaled(lambda x, y: x * y), NUMBERS, [twin, constant], 1e-6),
    "divide": (quotient, NUMBERS, [twin, lambda a: twin(a) if a.dtype == "i4" else (3,)], 1e-6),
    "absolute": (np.abs, "f4", [], 0),
    "square_root": (lambda a: np.sqrt(np.abs(a)), REALS, [], 1e-6),
    "logarithm": (lambda a: np.log(np.abs(a)), REALS, [], 1e-5),
    "exponential": (np.exp, REALS, [], 1e-5),
    "sine": (np.sin, "f4", [], 1e-3),
    "cosine": (np.cos, "f4", [], 1e-3),
    "sine_cosine": (lambda a: (np.sin(a), np.cos(a)), REALS, [], 1e-3),
    "angle": (np.arctan2, "f4", [twin], 1e-3),
    "hypotenuse": (np.hypot, "f4", [twin], 1e-3),
    "floor": (np.floor, "f4", [], 0),
    "bit_and": (bits(np.bitwise_and), "u1 u2 i4", [twin, constant], 0),
    "bit_or": (bits(np.bitwise_or), "u1 u2 i4", [twin, constant], 0),
    "bit_xor": (bits(np.bitwise_xor), "u1 u2 i4", [twin, constant], 0),
    "bit_not": (np.invert, "u1", [], 0),
    "left_shift": (shifted(True), "u1 u2 i4", [constant, lambda a: (40,)], 0),
    "right_shift": (shifted(False), "u1 u2 i2 i4", [constant, lambda a: (40,)], 0),
    "less": (compared(np.less), "u1 u2 i2 f4", [twin, constant], 0),
    "less_equal": (compared(np.less_equal), "u1 u2 i2 f4", [twin, constant], 0),
    "equal": (compared(np.equal), "u1 u2 i2 f4", [twin, constant, lambda a: (a.copy(),)], 0),
    "greater_equal": (compared(np.greater_equal), "u1 u2 i2 f4", [twin, constant], 0),
    "greater": (compared(np.greater), "u1 u2 i2 f4", [twin, constant], 0),
    "larger": (np.maximum, "f4", [twin], 0),
    "smaller": (np.minimum, "f4", [twin], 0),
    "threshold_less": (threshold(True), ELEMENTS, [limits], 0),
    "threshold_greater": (threshold(False), ELEMENTS, [limits], 0),
    "threshold_both": (threshold_both, ELEMENTS,
                       [lambda a: (30, 7, 200, 250) if a.dtype.kind == "u" else (-2, -1, 3, 5)], 0),
    "add_product": (lambda a, b, s: (a.astype(float) * b + s).astype("f4"), "f4",
                    [lambda a: (*twin(a), *twin(a))], 2e-6),
    "lookup": (lambda a, table: np.asarray(table)[a], "u1",
               [lambda a: (np.arange(255, -1, -1, "u1"),), lambda a: (np.arange(256, dtype="f4") / 3,),
                lambda a: (np.arange(256, dtype="u2") * 200,)], 0),
    "curve": (lambda a, levels, values: np.interp(a, levels, values), "u1 u2",
              [lambda a: (np.array([3, 90, 200], a.dtype), np.array([7, 250, 20], a.dtype))], 0.5),
    "palette": (lambda a, colours: colours[np.minimum(a, len(colours) - 1)], "u2",
                [lambda a: (pixels("u4", 50000),)], 0),
    "phase": (np.angle, "c8", [], 1e-6),
    "magnitude": (np.abs, "c8", [], 1e-6),
    "to_complex": (lambda re, im: re + 1j * im, "f4", [twin], 0),
    "subtract_from": (lambda value, a, **k: swapped(scaled(lambda x, y: x - y))(value, a, **k), "u1 u2 i4 f4",
                      "value first", 0),
    "divide_into": (swapped(quotient), "f4", "value first", 1e-6),
}
CHANNELS = {
    "rgb_to_ycbcr": (to_ycbcr, (3, 4), [lambda a: (s,) for s in STANDARDS], 0.51),
    "ycbcr_to_rgb": (to_rgb, (3, 4), [lambda a: (s,) for s in STANDARDS], 0.54),
    "composite": (composite, (4,), [twin, lambda a: (*twin(a), {"premultiplied": True})], 0),
    "composite_on_opaque": (on_opaque, (4,), [twin, lambda a: (*twin(a), {"premultiplied": True})], 0),
    "blend": (lambda g, o, alpha: np.rint((alpha * o.astype(int) + (255 - alpha) * g.astype(int)) / 255), (3,),
              [lambda a: (*twin(a), 77)], 0),
    "colour_matrix": (colour_matrix, (3, 4), [lambda a: (pixels("f4", 3, 4, low=-1, high=1),)], 0),
    "rgb_to_grey": (lambda a, standard="bt601_full": to_ycbcr(a, standard)[..., 0], (3, 4),
                    [lambda a, s=s: ({"standard": s},) for s in STANDARDS], 0.51),
    "lookup": (lambda a, tables: np.stack([tables[c][a[..., c]] for c in range(a.shape[-1])], -1), (3, 4),
               [lambda a: (pixels("u1", a.shape[-1], 256),)], 0),
    "swap_channels": (lambda a, order: a[..., list(order)], (3, 4), [lambda a: (range_of(a),)], 0),
    "multiply": (scaled(lambda x, y: x * y), (3, 4), [lambda a: (range_of(a),)], 0),
    "less": (compared(np.less), (3, 4), [lambda a: (tuple(100 + v for v in range_of(a)),)], 0),
}


def range_of(a):
    return tuple(range(a.shape[-1]))[::-1]
