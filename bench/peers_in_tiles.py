#!/usr/bin/env python3
"""Filters of floats on whole images and in tiles with correct halos: in how many images do bytes differ?

Usage: peers_in_tiles.py     prints a table; 60 images: channels of photographs as they are, linear, and with each
pixel times a power of ten from -8 to 8, as spectra and other raw data range
"""

import cv2
import numpy as np
import orvane
import scipy.ndimage
import skimage.data
import skimage.filters

TILES = [(64, 10000), (128, 160), (77, 131)]

CONVOLUTION = np.outer(np.hanning(9)[1:-1], np.hamming(7)).astype("float32")

# who, what, radius, function
FILTERS = [
    ("orvane", "gauss, 9", 4, lambda a: orvane.gauss(a, kernel_size=9, sigma=1.5)),
    ("orvane", "gauss, 31", 15, lambda a: orvane.gauss(a, kernel_size=31, sigma=5)),
    ("orvane", "lowpass, 5", 2, lambda a: orvane.lowpass(a, 5)),
    ("orvane", "highpass, 5", 2, lambda a: orvane.highpass(a, 5)),
    ("orvane", "laplace, 5", 2, lambda a: orvane.laplace(a, 5)),
    ("orvane", "sobel_cross, 5", 2, lambda a: orvane.sobel_cross(a, 5)),
    ("orvane", "convolve, 7", 3, lambda a: orvane.convolve(a, CONVOLUTION)),
    ("orvane", "convolve, 15", 7, lambda a: orvane.convolve(a, np.full((15, 15), 1 / 225, "float32"))),
    ("orvane", "median, 5", 2, lambda a: orvane.median(a, 5, 5)),
    ("orvane", "wiener, 5, noise given", 2, lambda a: orvane.wiener(a, 5, 5, noise=0.5)[0]),
    ("OpenCV", "GaussianBlur, 3", 1, lambda a: cv2.GaussianBlur(a, (3, 3), 0.5)),
    ("OpenCV", "GaussianBlur, 5", 2, lambda a: cv2.GaussianBlur(a, (5, 5), 0.8)),
    ("OpenCV", "GaussianBlur, 9", 4, lambda a: cv2.GaussianBlur(a, (9, 9), 1.5)),
    ("OpenCV", "GaussianBlur, 31", 15, lambda a: cv2.GaussianBlur(a, (31, 31), 5)),
    ("OpenCV", "blur, 5", 2, lambda a: cv2.blur(a, (5, 5))),
    ("OpenCV", "blur, 15", 7, lambda a: cv2.blur(a, (15, 15))),
    ("OpenCV", "Laplacian, 5", 2, lambda a: cv2.Laplacian(a, -1, ksize=5)),
    ("OpenCV", "Sobel, 3", 1, lambda a: cv2.Sobel(a, -1, 1, 0)),
    ("OpenCV", "filter2D, 7", 3, lambda a: cv2.filter2D(a, -1, CONVOLUTION)),
    ("OpenCV", "filter2D, 15", 7, lambda a: cv2.filter2D(a, -1, np.full((15, 15), 1 / 225, "float32"))),
    ("OpenCV", "bilateralFilter, 9", 4, lambda a: cv2.bilateralFilter(a, 9, 20, 3)),
    ("OpenCV", "medianBlur, 5", 2, lambda a: cv2.medianBlur(a, 5)),
    ("SciPy", "gaussian_filter, 9", 4, lambda a: scipy.ndimage.gaussian_filter(a, 1.5, truncate=2.6)),
    ("SciPy", "uniform_filter, 5", 2, lambda a: scipy.ndimage.uniform_filter(a, 5)),
    ("SciPy", "uniform_filter, 15", 7, lambda a: scipy.ndimage.uniform_filter(a, 15)),
    ("SciPy", "convolve, 7", 3, lambda a: scipy.ndimage.convolve(a, CONVOLUTION)),
    ("SciPy", "median_filter, 5", 2, lambda a: scipy.ndimage.median_filter(a, 5)),
    ("scikit-image", "gaussian, 9", 4, lambda a: skimage.filters.gaussian(a, 1.5, truncate=2.6, preserve_range=True)),
    ("scikit-image", "sobel", 1, skimage.filters.sobel),
]


def channels():
    """20 channels of photographs, at most 400 x 500 pixels of each."""
    data = skimage.data
    colours = [data.astronaut(), data.chelsea(), data.coffee(), data.hubble_deep_field(), data.immunohistochemistry()]
    greys = [data.camera(), data.coins(), data.moon(), data.page(), data.text()]
    found = [np.moveaxis(picture, 2, 0) for picture in colours] + [picture[None] for picture in greys]
    return [channel[:400, :500].astype("float32") for picture in found for channel in picture]


def images():
    random = np.random.default_rng(1)
    for photo in channels():
        yield photo
        yield ((photo + 1) / 256) ** np.float32(2.2)
        yield (photo * 10.0 ** random.uniform(-8, 8, photo.shape)).astype("float32")


def in_tiles(function, image, radius, tile):
    result = None
    for y in range(0, image.shape[0], tile[0]):
        for x in range(0, image.shape[1], tile[1]):
            top, left = max(y - radius, 0), max(x - radius, 0)
            part = image[top:y + tile[0] + radius, left:x + tile[1] + radius].copy()
            made = function(part)[y - top:, x - left:][:tile[0], :tile[1]]
            if result is None:
                result = np.empty(image.shape, made.dtype)
            result[y:y + tile[0], x:x + tile[1]] = made
    return result


def main():
    everything = list(images())
    print(f"| who | filter | images of {len(everything)} that differ | by at most, ulps of the largest value |")
    print("|---|---|---|---|")
    for who, what, radius, function in FILTERS:
        differ, furthest = 0, 0.0
        for image in everything:
            whole = function(image)
            parts = [in_tiles(function, image, radius, tile) for tile in TILES]
            differ += any(part.tobytes() != whole.tobytes() for part in parts)
            ulp = np.spacing(np.abs(whole).max())
            furthest = max(furthest, *(float(np.abs(part - whole).max() / ulp) for part in parts))
        print(f"| {who} | {what} | {differ} | {furthest:.2g} |", flush=True)


if __name__ == "__main__":
    main()
