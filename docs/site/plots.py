#!/usr/bin/env python3
"""Draws the ratios of bench/RESULTS.md.

Usage: docs/site/plots.py FOLDER     writes FOLDER/speed.svg and FOLDER/ratios.svg
"""

import pathlib
import re
import statistics
import subprocess
import sys

# What the short plot shows: a row of the results, and what it is called there. Losses are among them.
CHOSEN = [
    ("Add_8u_C1 sf1", "mean of two images, 8u"),
    ("Mul_8u_C3 sf8", "product, scaled, 8u"),
    ("CompareCGreater_8u_C3R", "comparison, 8u x 3"),
    ("RShiftC_8u_C3R", "shift, 8u x 3"),
    ("Lowpass3x3_8u_C3R", "mean 3x3, 8u x 3"),
    ("Filter_8u_C1R 5x5", "convolution 5x5, 8u"),
    ("Filter_32f_C1R 5x5", "convolution 5x5, 32f"),
    ("FilterMedian_32f_C1 5x5", "median 5x5, 32f"),
    ("Erode3x3_8u_C1", "erosion, 8u"),
    ("ResizeCubic_8u_C3R down 1.6", "resize, cubic, 8u x 3"),
    ("WarpPerspective_8u_C3 linear", "perspective, linear, 8u x 3"),
    ("Rotate_8u_C4 cubic", "rotation, cubic, 8u x 4"),
    ("RGBToYCbCr_8u_C3", "RGB to YCbCr"),
    ("MinMax_8u_C1", "least and greatest, 8u"),
    ("PsdFFT, 1024", "power spectrum of 1024"),
    ("forward, 2^12", "FFT of 4096"),
    ("Sin_32f_A11", "sine, 11 bits, 4096 x 32f"),
    ("Atan2_32f_A24", "arc tangent, 0.5004 ulp, 4096 x 32f"),
    ("Exp_32f", "exponential, 0.5 ulp, 4096 x 32f"),
    ("Mul_32fc_C1", "complex product, 32fc"),
]

# The curves of the long plot: a heading of the results and its title.
CURVES = [
    ("## Images, 256x256", "images of 256x256"),
    ("## Tables, colour, warps", "tables, colour, warps"),
    ("## Convolution, ranks, packed spectra, 256x256", "convolution, ranks, spectra"),
    ("## Images, 4096x4096 and 8192x8192", "images beyond the caches"),
    ("### 4096 elements", "vectors of 4096"),
    ("## Transforms", "Fourier transforms"),
    ("## Matrices", "small matrices (peers of fixed size)"),
]


def read(results):
    """(heading, operation, peer, ratio) of each row that has a peer, in the order of the file."""
    heading = ""
    for line in results.read_text().split("\n"):
        if line.startswith("#"):
            heading = line
        cells = [cell.strip().strip("*") for cell in line.split("|")]
        if len(cells) >= 7 and re.fullmatch(r"[\d.]+", cells[4]) and re.match(r"[\w-]+( [\d.]+)?$", cells[3]):
            peer = cells[3].split()[0]
            if peer != "out-of-place":
                yield heading, cells[1], peer, float(cells[4])


STYLE = """set encoding utf8
set border 0 lc rgb '#888888'
set tics nomirror scale 0 textcolor rgb '#333333'
set object 1 rectangle from screen 0,0 to screen 1,1 behind fillcolor rgb 'white' fillstyle solid noborder
"""


def draw(target, height, text):
    terminal = f"set terminal svg size 860,{height} font 'DejaVu Sans,13' background rgb 'white'\n"
    subprocess.run(["gnuplot"], input=f"{terminal}set output '{target}'\n{STYLE}{text}", text=True, check=True)


def draw_chosen(rows, target):
    """A bar for each chosen row."""
    by_name = {}
    for _, operation, peer, ratio in rows:
        by_name.setdefault(operation, (peer, ratio))
    bars = sorted((by_name[row][1], f"{title}  [{by_name[row][0]}]") for row, title in CHOSEN)
    data = "\n".join(f'{ratio} {i} "{title}"' for i, (ratio, title) in enumerate(bars))
    draw(target, 90 + 23 * len(bars), f"""$bars << END
{data}
END
set title 'Time of the best peer / time of ours: beyond 1, ours is faster' font ',14'
set logscale x 2
set xrange [0.35:40]
set xtics (0.5, 1, 2, 4, 8, 16, 32)
set format x '%g x'
set grid xtics lc rgb '#dddddd'
set yrange [-0.7:{len(bars) - 0.3}]
unset key
set arrow 1 from 1, graph 0 to 1, graph 1 nohead lw 1.5 lc rgb '#555555' front
plot $bars using 1:2:(($1>1)?1:$1):(($1>1)?$1:1):($2-0.33):($2+0.33):(($1<1)?0xc25b4e:0x3b76a8):ytic(3) \\
     with boxxyerror fillstyle solid lc rgb variable, \\
     $bars using ($1>1?$1:1):2:(sprintf('  %.2f', $1)) with labels left font ',11'
""")


def draw_curves(rows, target):
    """All ratios of a section in ascending order, each section stretched to one width."""
    blocks, curves = [], []
    for i, (heading, title) in enumerate(CURVES):
        ratios = sorted(ratio for h, _, _, ratio in rows if h.startswith(heading))
        ratios = ratios or sys.exit(f"no rows under {heading}")
        points = "\n".join(f"{100 * (k + 0.5) / len(ratios)} {ratio}" for k, ratio in enumerate(ratios))
        blocks.append(f"$c{i} << END\n{points}\nEND\n")
        label = f"{title}: {len(ratios)} rows, median {statistics.median(ratios):.2f}"
        curves.append(f"$c{i} using 1:2 with lines lw 2 title '{label}'")
    draw(target, 640, f"""{"".join(blocks)}
set title 'Time of the best peer / time of ours, the rows of each section from the worst to the best' font ',14'
set xlabel 'share of the rows (%)'
set ylabel 'peer / ours'
set logscale y 2
set yrange [0.03:128]
set format y '%g'
set grid ytics lc rgb '#dddddd'
set key below left reverse Left maxcols 2
set arrow 1 from graph 0, first 1 to graph 1, first 1 nohead lw 1.5 lc rgb '#555555'
plot {", ".join(curves)}
""")


def headline(results):
    """How many rows the first curve has, and their median."""
    ratios = [ratio for heading, _, _, ratio in read(results) if heading.startswith(CURVES[0][0])]
    return len(ratios), statistics.median(ratios)


def write(results, folder):
    rows = list(read(results))
    draw_chosen(rows, folder / "speed.svg")
    draw_curves(rows, folder / "ratios.svg")


if __name__ == "__main__":
    write(pathlib.Path(__file__).resolve().parents[2] / "bench/RESULTS.md", pathlib.Path(sys.argv[1]))
