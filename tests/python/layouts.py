"""The same values in other places of memory."""

import numpy as np


def cropped(a):
    """The middle of a larger array."""
    frame = np.zeros([n + 5 for n in a.shape], a.dtype)
    middle = frame[tuple(slice(2, 2 + n) for n in a.shape)]
    middle[...] = a
    return middle


def padded(a):
    """Rows with something between them."""
    if a.ndim < 2:
        return a.copy()
    frame = np.zeros((a.shape[0], a.shape[1] + 3, *a.shape[2:]), a.dtype)
    frame[:, :a.shape[1]] = a
    return frame[:, :a.shape[1]]


def backwards(a):
    return a[(slice(None, None, -1),) * a.ndim].copy()[(slice(None, None, -1),) * a.ndim]


def every_second(a):
    spread = np.zeros([2 * n for n in a.shape], a.dtype)
    spread[(slice(None, None, 2),) * a.ndim] = a
    return spread[(slice(None, None, 2),) * a.ndim]


def swapped_bytes(a):
    return a.astype(a.dtype.newbyteorder(">"))


def misaligned(a):
    memory = np.zeros(a.nbytes + 1, "u1")[1:]
    memory[:] = np.frombuffer(a.tobytes(), "u1")
    return memory.view(a.dtype).reshape(a.shape)


def read_only(a):
    a = a.copy()
    a.flags.writeable = False
    return a


LAYOUTS = [np.copy, cropped, padded, np.asfortranarray, backwards, every_second, swapped_bytes, misaligned, read_only]
