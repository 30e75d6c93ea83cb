#!/usr/bin/env python3
"""A photograph and a sound in a darkroom: every step is a function, and a page shows it beside what it makes.

Usage: darkroom.py PICTURE FOLDER [SOUND]     writes FOLDER/index.html; PICTURE in colours, SOUND a WAV file of 16 bits
"""

import html
import inspect
import math
import pathlib
import sys
import wave

import numpy as np
import orvane
from PIL import Image


def mirrored_mean(photo):
    """The mean of the photograph and its mirror image: the sum, halved by the scale"""
    return orvane.add(photo, orvane.mirror(photo), scale=1)


def warm(photo):
    """Channels multiplied by 160, 128 and 96, and divided by 128: warmer light"""
    return orvane.multiply(photo, (160, 128, 96), scale=7)


def falling_light(photo):
    height, width = photo.shape[:2]
    y, x = np.ogrid[:height, :width]
    light = 255 - 90 * ((2.0 * x / width - 1) ** 2 + (2.0 * y / height - 1) ** 2)
    return np.repeat(light.astype("uint8")[..., None], 3, axis=2)


def dimmed(photo):
    """Multiplied by a light that falls off to the corners, as a cheap lens does it"""
    return orvane.multiply(photo, falling_light(photo), scale=8)


def evened(photo):
    """Divided by that light: the corners are back"""
    return orvane.divide(dimmed(photo), falling_light(photo), scale=-8)


def brightness(photo):
    red, green, blue = np.moveaxis(orvane.convert(photo, "float32"), -1, 0)
    return np.float32(0.299) * red + np.float32(0.587) * green + np.float32(0.114) * blue


def smooth(photo):
    """The brightness through a Gaussian of deviation 3"""
    return orvane.gauss(brightness(photo), kernel_size=19, sigma=3).clip(0, 255).astype("uint8")


def edges(photo):
    """Canny's edges of the smoothed brightness"""
    return orvane.canny(orvane.gauss(brightness(photo), kernel_size=9, sigma=1.5), 60, 120)


def spectrogram(samples, rate):
    """Power over time and frequency: white is -40 dB of full scale squared per Hz, black -120 dB"""
    n, hop, bins = 1024, 256, 256
    window = (0.5 - 0.5 * np.cos(2 * np.pi * np.arange(n) / n)).astype("float32")
    unit = 2 / (rate * float(sum(float(w * w) for w in window)) * 32768 * 32768)
    picture = np.empty((bins, (len(samples) - n) // hop), "uint8")
    for block in range(picture.shape[1]):
        power = unit * orvane.psd(samples[block * hop:][:n], window)[:bins].astype(float)
        shade = [(10 * math.log10(p + 1e-14) + 120) / 80 for p in power]
        picture[::-1, block] = 255 * np.clip(shade, 0, 1)
    return picture


PHOTOGRAPHS = [mirrored_mean, warm, dimmed, evened, smooth, edges]


def read_picture(path):
    return np.asarray(Image.open(path).convert("RGB"))


def read_sound(path):
    """The first channel and the rate."""
    with wave.open(path) as file:
        samples = np.frombuffer(file.readframes(file.getnframes()), "<i2").reshape(-1, file.getnchannels())
        return samples[:, 0].astype("float32"), file.getframerate()


def figure(folder, step, picture):
    Image.fromarray(picture).save(folder / f"{step.__name__}.png")
    return (f'<figure><img src="{step.__name__}.png" alt=""><figcaption>{html.escape(step.__doc__)}</figcaption>'
            f"<pre>{html.escape(inspect.getsource(step))}</pre></figure>")


def main(picture, folder, sound=None):
    folder = pathlib.Path(folder)
    folder.mkdir(parents=True, exist_ok=True)
    photo = read_picture(picture)
    figures = [figure(folder, step, step(photo)) for step in PHOTOGRAPHS]
    if sound:
        figures.append(figure(folder, spectrogram, spectrogram(*read_sound(sound))))
    style = "body { font-family: sans-serif; max-width: 60rem; margin: auto } img { max-width: 100% }"
    (folder / "index.html").write_text(f'<!doctype html>\n<html lang="en"><meta charset="utf-8"><title>A darkroom'
                                       f"</title><style>{style}</style>\n<h1>A darkroom in Python</h1>\n" +
                                       "\n".join(figures) + "\n</html>\n")
    print(folder / "index.html")


if __name__ == "__main__":
    if len(sys.argv) not in (3, 4):
        sys.exit(__doc__)
    main(*sys.argv[1:])
