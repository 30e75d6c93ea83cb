"""Every operation against what it gives in NumPy's and SciPy's words, on arrays however they lie in memory."""

import warnings

import numpy as np
import pytest
from hypothesis import given, settings
from hypothesis import strategies as st

import orvane
from cases import CASES, LINALG
from layouts import LAYOUTS
from oracles import CHANNELS, ELEMENTWISE, pixels, scaling

OBJECTS = {"ArgumentError", "level", "random", "linalg", "__version__"}
WITHOUT_ORACLE = {"getrf", "getrs", "lu_decompose", "lu_solve"}  # tested together below


def close(got, wanted, within):
    if isinstance(wanted, tuple):
        assert len(got) == len(wanted)
        for one, other in zip(got, wanted):
            close(one, other, within)
        return
    got, wanted = np.asarray(got), np.asarray(wanted)
    assert got.shape == wanted.shape
    if within == 0:
        np.testing.assert_array_equal(got, wanted)
    elif np.iscomplexobj(wanted):
        np.testing.assert_allclose(got, wanted, rtol=within, atol=within)
    else:
        np.testing.assert_allclose(got.astype(float), wanted.astype(float), rtol=min(within, 1e-3), atol=within)


def test_all_have_oracles_and_docstrings():
    tested = {*ELEMENTWISE, *CHANNELS, *CASES} | OBJECTS
    assert tested == {*orvane.__all__}
    assert {*LINALG} | WITHOUT_ORACLE == {*orvane.linalg.__all__}
    for module in (orvane, orvane.linalg):
        for name in module.__all__:
            assert name == "__version__" or len(getattr(module, name).__doc__) > 20, name


@pytest.mark.parametrize("module, name, call", [
    (module, name, call) for module, cases in ((orvane, CASES), (orvane.linalg, LINALG))
    for name, calls in cases.items() for call in calls], ids=lambda v: v if isinstance(v, str) else "")
def test_call(module, name, call):
    close(getattr(module, name)(*call.arguments, **call.named), call.result, call.within)


def called(name, arguments, value_first, **more):
    if value_first:
        return getattr(orvane, name)(3, arguments[0], **more)
    return getattr(orvane, name)(*arguments, **more)


SHAPES = st.lists(st.integers(1, 7), min_size=1, max_size=4)


@settings(max_examples=25)
@given(data=st.data())
@pytest.mark.parametrize("name", ELEMENTWISE)
def test_elementwise(name, data):
    oracle, types, makers, within = ELEMENTWISE[name]
    value_first = makers == "value first"
    shape = data.draw(SHAPES)
    if shape and len(shape) > 2 and shape[-1] in (2, 3, 4):
        shape[-1] = 5  # where channels count, they do; test_channels has them
    a = pixels(data.draw(st.sampled_from(types.split())), *shape)
    if a.dtype.kind in "fc" and "divide" in name:
        a[a == 0] = 1
    maker = data.draw(st.sampled_from(makers or [lambda a: ()])) if not value_first else lambda a: ()
    arguments = [a, *maker(a)]
    if name == "divide" and a.dtype.kind in "fc" and isinstance(arguments[1], np.ndarray):
        arguments[1][arguments[1] == 0] = 2
    more = scaling(a) if name in ("add", "subtract", "multiply", "divide", "subtract_from") else {}
    with warnings.catch_warnings(), np.errstate(all="ignore"):
        warnings.simplefilter("ignore")
        wanted = oracle(*([3] if value_first else []), *arguments, **more)
        laid = [data.draw(st.sampled_from(LAYOUTS))(v) if isinstance(v, np.ndarray) and v.shape == a.shape else v
                for v in arguments]
        keep = [v.copy() if isinstance(v, np.ndarray) else v for v in laid]
        if name in ("square_root", "logarithm"):
            laid[0] = np.abs(laid[0])
        close(called(name, laid, value_first, **more), wanted, within)
        if name not in ("square_root", "logarithm"):
            for v, kept in zip(laid, keep):
                np.testing.assert_array_equal(v, kept)


@pytest.mark.parametrize("name", CHANNELS)
def test_channels(name):
    oracle, channels, makers, within = CHANNELS[name]
    for count in channels:
        for shape in ((6, 9, count), (2, 3, 4, count)):
            for layout in LAYOUTS:
                for maker in makers:
                    a = pixels("u1", *shape)
                    *arguments, last = a, *maker(a)
                    named = last if isinstance(last, dict) else {}
                    arguments += [] if named else [last]
                    wanted = oracle(*arguments, **named)
                    close(getattr(orvane, name)(layout(a), *arguments[1:], **named), wanted, within)


def test_factors_solve():
    a = pixels("f4", 6, 6) + 10 * np.eye(6, dtype="f4")
    b = pixels("f4", 6)
    wanted = np.linalg.solve(a.astype(float), b)
    order, factors = orvane.linalg.lu_decompose(a)
    close(orvane.linalg.lu_solve(factors, order, b), wanted, 1e-4)
    lu, pivots = orvane.linalg.getrf(a)
    close(orvane.linalg.getrs(lu, pivots, b), wanted, 1e-4)
    close(orvane.linalg.getrs(lu, pivots, np.stack([b, b], 1), transposed=True)[:, 1],
          np.linalg.solve(a.T.astype(float), b), 1e-4)
    u, s, vt = orvane.linalg.svd(a[:, :4], full_matrices=False)
    close(u * s @ vt, a[:, :4], 1e-4)
    with pytest.warns(RuntimeWarning, match="getrf"):
        orvane.linalg.getrf(np.zeros((3, 3), "f4"))


def test_random_numbers():
    whole = orvane.random.Gaussian(5).normal(1000, mean=2, sigma=3)
    assert abs(whole.mean() - 2) < 0.5 and abs(whole.std() - 3) < 0.3
    stream = orvane.random.Gaussian(5)
    parts = [stream.normal((7, 3), 2.0, 3.0).ravel(), stream.normal(979, 2.0, 3.0)]
    np.testing.assert_array_equal(np.concatenate(parts), whole)
    assert not np.array_equal(orvane.random.Gaussian(6).normal(9), whole[:9])
    out = np.empty((2, 5))
    assert orvane.random.Gaussian(5).normal(out=out, mean=2, sigma=3) is out
    np.testing.assert_array_equal(out.ravel(), whole[:10])
