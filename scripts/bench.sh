#!/usr/bin/env bash
# Builds the benchmark, runs it pinned to one core, prints one table and draws it.
# Usage: scripts/bench.sh [FILTER]     FILTER is a regular expression over operation/size/who.
set -eu
cd "$(dirname "$0")/.."
scripts/setup.sh bench
cmake -S . -B build/bench -G Ninja -DCMAKE_BUILD_TYPE=Release -DORVANE_BUILD_TESTS=OFF -DORVANE_BUILD_BENCH=ON > /dev/null
cmake --build build/bench > build/bench/build.log 2>&1 || { tail -n 20 build/bench/build.log >&2; exit 1; }
# Edges are found in a photograph; without a network, in noise.
scripts/fetch_package.sh lxqt-themes build/demo || true
export ORVANE_PHOTOGRAPH="${ORVANE_PHOTOGRAPH:-build/demo/lxqt-themes/usr/share/lxqt/wallpapers/Valendas.png}"
core=$(($(nproc) - 1))
# The minimum of three passes, so that a slow moment does not fall on one of the contenders. In each, the
# rows of the table come one after another: the images of one row at a time are in memory.
for pass in 1 2 3; do
    taskset -c "$core" build/bench/bench/orvane_bench --benchmark_filter="${1:-.}" --benchmark_min_time=0.02 \
        --benchmark_repetitions=2 --benchmark_format=json > build/bench/times$pass.json 2> build/bench/times.log
done
echo "$(sed -n 's/^model name[^:]*: //p' /proc/cpuinfo | head -n 1), $(date +%F), one core, $(g++ --version | head -n 1)"
echo
python3 scripts/bench_table.py build/bench/ratios.dat build/bench/times[123].json
if [ -s build/bench/ratios.dat ]; then
    gnuplot -e "set terminal svg size 1000,$((200 + 16 * $(wc -l < build/bench/ratios.dat))); set output 'build/bench/ratios.svg';
        set title 'Best peer / orvane (right of 1: we are faster)'; set style fill solid 0.6; set boxwidth 0.4; set logscale x;
        unset key; set yrange [-1:*] reverse; set ytics font ',9'; set grid x; set arrow from 1, graph 0 to 1, graph 1 nohead lw 2;
        plot 'build/bench/ratios.dat' using (1):0:(1):2:(\$0-0.3):(\$0+0.3):ytic(1) with boxxyerror"
    echo
    echo "drawn in build/bench/ratios.svg"
fi
