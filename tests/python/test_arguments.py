"""What is taken, what is refused and by which words, and what stays as it was."""

import gc
import os
import pickle
import subprocess
import sys
import threading
import warnings

import numpy as np
import pytest

import orvane
from layouts import LAYOUTS, backwards, cropped, misaligned, padded, swapped_bytes
from oracles import pixels

A, B = pixels("u1", 6, 8), pixels("u1", 6, 8)
COLOUR, FLOAT = pixels("u1", 6, 8, 3), pixels("f4", 6, 8)

REFUSED = [
    ("add: argument 'b' has the shape (1, 2), a has (1, 4)", lambda: orvane.add(A[:1, :4], A[:1, :2])),
    ("add: argument 'b' is 300, beyond uint8", lambda: orvane.add(A, 300)),
    ("add: argument 'b' is 1.5, no whole number", lambda: orvane.add(A, 1.5)),
    ("add: argument 'b' is 1e+300, beyond float32", lambda: orvane.add(FLOAT, 1e300)),
    ("add: argument 'b' is of type str", lambda: orvane.add(A, "3")),
    ("add: argument 'b' is a list of 2; add takes", lambda: orvane.add(COLOUR, [1, 2])),
    ("add: argument 'b' is missing", lambda: orvane.add(A)),
    ("add: argument 'b' is given twice", lambda: orvane.add(A, B, b=B)),
    ("add: argument 'a' is a list of 3; add takes uint8 x1", lambda: orvane.add([1, 2, 3], 3)),
    ("add: argument 'scale' is 2147483648, beyond int32", lambda: orvane.add(A, B, scale=2 ** 31)),
    ("add: argument 'scale' is of type str; add takes a whole number", lambda: orvane.add(A, B, scale="1")),
    ("add: argument 'scale' is not taken with float32", lambda: orvane.add(FLOAT, FLOAT, scale=1)),
    ("add has no argument 'foo'", lambda: orvane.add(A, B, foo=1)),
    ("add takes 3 arguments by position, not 4", lambda: orvane.add(A, B, None, 1)),
    ("less: argument 'a' is int16 with 3 channels; less takes uint8 x1, uint8 x3",
     lambda: orvane.less(COLOUR.astype("i2"), 3)),
    ("add: argument 'a' is object with 1 channel", lambda: orvane.add(A.astype(object), 3)),
    ("add: argument 'a' is int64 with 1 channel", lambda: orvane.add(A.astype(int), 3)),
    ("add: argument 'out' does not lie in rows", lambda: orvane.add(A, B, out=A[::-1].copy()[::-1])),
    ("add: argument 'out' does not lie in rows", lambda: orvane.add(A, B, out=np.asfortranarray(A))),
    ("add: argument 'out' is read-only", lambda: orvane.add(A, B, out=np.broadcast_to(A[:1], A.shape))),
    ("add: argument 'out' is float32 with 1 channel; add takes uint8 x1", lambda: orvane.add(A, B, FLOAT.copy())),
    ("add: argument 'out' has the shape (5, 8), a has (6, 8)", lambda: orvane.add(A, B, A[:5].copy())),
    ("add: argument 'out' is not aligned", lambda: orvane.add(FLOAT, FLOAT, misaligned(FLOAT))),
    ("add: argument 'out' is not aligned", lambda: orvane.add(FLOAT, FLOAT, swapped_bytes(FLOAT))),
    ("sine_cosine: argument 'out' is no tuple of 2 arrays", lambda: orvane.sine_cosine(FLOAT, FLOAT.copy())),
    ("convert: argument 'dtype' is missing", lambda: orvane.convert(A)),
    ("convert: argument 'dtype' is int16; convert takes uint16 x1, float32 x1", lambda: orvane.convert(A, "i2")),
    ("resize: argument 'shape' is missing", lambda: orvane.resize(COLOUR, None)),
    ("resize: argument 'shape' is no height and width", lambda: orvane.resize(COLOUR, (3, -1))),
    ("resize: argument 'how' is 'cubist'; resize takes 'nearest', 'linear'",
     lambda: orvane.resize(COLOUR, (3, 3), how="cubist")),
    ("resize: argument 'out' has the shape (4, 4, 3), not the one", 
     lambda: orvane.resize(COLOUR, (3, 3), np.empty((4, 4, 3), "u1"))),
    ("lowpass: argument 'size' 4 is not one of those", lambda: orvane.lowpass(FLOAT, 4)),
    ("lowpass: argument 'source' is float32 of shape (8,)", lambda: orvane.lowpass(FLOAT[0], 3)),
    ("mean: argument 'source' is 0 x 6 pixels", lambda: orvane.mean(A[:, :0])),
    ("lookup: argument 'table' has 3 elements where 256 are needed", lambda: orvane.lookup(A, [1, 2, 3])),
    ("lookup: argument 'table' has values beyond uint8", lambda: orvane.lookup(A, [300] * 256)),
    ("convolve: argument 'kernel' has 1 dimensions", lambda: orvane.convolve(A, [1, 2, 3])),
    ("convolve: argument 'divisor' is 0", lambda: orvane.convolve(A, [[1]], divisor=0)),
    ("divide: argument 'b' is 0, and it divides", lambda: orvane.divide(FLOAT, 0)),
    ("warp_perspective: argument 'coefficients' has 4 elements where 9", lambda: orvane.warp_perspective(A, np.eye(2))),
    ("histogram: argument 'bins' is 0", lambda: orvane.histogram(A, 0, 0, 9)),
    ("psd: argument 'signal' 6 is no power of two", lambda: orvane.psd(FLOAT[0, :6])),
    ("psd: argument 'window' has", lambda: orvane.psd(FLOAT[0], FLOAT[0, :4])),
    ("fft2: argument 'source' 6 is no power of two", lambda: orvane.fft2(FLOAT)),
    ("ifft2: argument 'spectrum' is no array of float32", lambda: orvane.ifft2(A)),
    ("normal: argument 'sigma' is not above 0", lambda: orvane.random.Gaussian(1).normal(3, sigma=0)),
    ("multiply: argument 'b' has 6 rows and 8 columns where 8 and 8", lambda: orvane.linalg.multiply(FLOAT, FLOAT)),
    ("invert: argument 'source' is singular", lambda: orvane.linalg.invert(np.zeros((3, 3), "f4"))),
    ("svd: argument 'a' has values for which", lambda: orvane.linalg.svd(np.full((3, 3), np.nan, "f4"))),
    ("getrs: argument 'pivots' has a row that is outside",
     lambda: orvane.linalg.getrs(np.eye(2, dtype="f4"), np.array([0, 2], "i4"), FLOAT[0, :2])),
]


@pytest.mark.parametrize("words, call", REFUSED, ids=[words for words, _ in REFUSED])
def test_refused(words, call):
    with pytest.raises(orvane.ArgumentError) as caught:
        call()
    assert str(caught.value).startswith(words)
    assert isinstance(caught.value, TypeError) and isinstance(caught.value, ValueError)


def test_division_by_zero_warns():
    with pytest.warns(RuntimeWarning, match="divide: a division by zero"):
        np.testing.assert_array_equal(orvane.divide(A, 0), np.where(A, 255, 0))
    with warnings.catch_warnings():
        warnings.simplefilter("error")
        with pytest.raises(RuntimeWarning):
            orvane.divide(A, np.zeros_like(A))


@pytest.mark.parametrize("place", [np.copy, cropped, padded])
def test_out_is_written_in_place(place):
    for result, call in ((A & B, orvane.bit_and), (np.maximum(A, B), None)):
        out = place(np.zeros_like(A))
        frame = out if out.base is None else out.base
        if call:
            assert call(A, B, out) is out
            np.testing.assert_array_equal(out, result)
            assert frame.astype(int).sum() == result.astype(int).sum()  # and nothing round it


def test_out_may_be_a_source():
    for out_of in (lambda a: a, lambda a: a[:-1], lambda a: a[1:]):
        for source_of in (lambda a: a[:-1], lambda a: a[1:]):
            a = np.vstack([A, B])
            source = source_of(a)
            out = out_of(a) if out_of(a).shape == source.shape else source
            wanted = 255 - source
            np.testing.assert_array_equal(orvane.bit_not(source, out), wanted)
    image = FLOAT.copy()
    wanted = orvane.lowpass(FLOAT, 3)
    np.testing.assert_array_equal(orvane.lowpass(image, 3, out=image), wanted)
    x, y = FLOAT.copy(), FLOAT[::-1].copy()
    np.testing.assert_array_equal(orvane.larger(x, y, out=x), np.maximum(FLOAT, FLOAT[::-1]))


def test_sizes_at_the_ends():
    for shape in ((), (0,), (3, 0), (1, 1, 1, 1, 1)):
        a = np.full(shape, 200, "u1")
        out = orvane.add(a, 100)
        assert out.shape == shape and (out == 255).all()
    np.testing.assert_array_equal(orvane.add(A, np.array(3, "u1")), orvane.add(A, 3))
    np.testing.assert_array_equal(orvane.add(A, np.uint8(3)), orvane.add(A, 3))


def test_reductions_and_filters_of_all_layouts():
    for layout in LAYOUTS:
        assert orvane.mean(layout(A)) == A.mean()
        np.testing.assert_array_equal(orvane.lowpass(layout(FLOAT), 3), orvane.lowpass(FLOAT, 3))
        np.testing.assert_array_equal(orvane.linalg.transpose(layout(FLOAT)), FLOAT.T)


def test_nothing_is_kept():
    a, out = FLOAT.copy(), FLOAT.copy()
    table = np.arange(256, dtype="u1")
    before = [sys.getrefcount(v) for v in (a, out, table)]
    for _ in range(3):
        orvane.add(a, a, out)
        orvane.fft2(a[:4, :8], out=out[:4])
        orvane.lookup(A, table)
        for wrong in (lambda: orvane.add(a, A), lambda: orvane.add(a, a, out[::-1]), lambda: orvane.median(a, 2, 2)):
            with pytest.raises(orvane.ArgumentError):
                wrong()
    gc.collect()
    assert [sys.getrefcount(v) for v in (a, out, table)] == before


def test_threads_run_side_by_side():
    """A long call does not hold the lock: this thread goes on while it runs."""
    image = np.zeros((1500, 1500), "f4")
    running, counted, done = threading.Event(), [0], threading.Event()

    def long_call():
        running.set()
        orvane.median(image, 31, 31)
        done.set()

    thread = threading.Thread(target=long_call)
    thread.start()
    running.wait()
    while not done.is_set():
        counted[0] += 1
    thread.join()
    assert counted[0] > 1000


def test_threads_have_results_of_their_own():
    signals = [pixels("f4", 256) for _ in range(8)]
    wanted = [orvane.psd(s) for s in signals]
    stream, numbers, found = orvane.random.Gaussian(3), [], []

    def work(k):
        found.append(all(np.array_equal(orvane.psd(signals[k]), wanted[k]) for _ in range(200)))
        numbers.append(stream.normal(500))

    threads = [threading.Thread(target=work, args=(k,)) for k in range(8)]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    assert found == [True] * 8
    np.testing.assert_array_equal(np.sort(np.concatenate(numbers)), np.sort(orvane.random.Gaussian(3).normal(4000)))


def test_functions_are_pickled_by_name():
    assert pickle.loads(pickle.dumps(orvane.add)) is orvane.add
    assert pickle.loads(pickle.dumps(orvane.linalg.multiply)) is orvane.linalg.multiply


def test_level():
    assert orvane.level() in ("px", "w7", "v8", "s8", "p8", "g9", "h9")
    assert orvane.__version__.count(".") == 2


def test_lists_live_as_long_as_their_call():
    """With freed memory overwritten, which is what another thread may do to it."""
    call = "import numpy, orvane; orvane.convolve(numpy.zeros((9, 9), 'u1'), [[0, 1, 0], [1, 4, 1], [0, 1, 0]], divisor=8)"
    subprocess.run([sys.executable, "-c", call], env={**os.environ, "PYTHONMALLOC": "debug"}, check=True)
