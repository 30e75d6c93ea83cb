#!/usr/bin/env bash
# The hosts that cut an image in bands, against the installed package: on all cores (oneTBB), and on one to three
# processes (MPI), which give equal bytes; one of which is killed, which must not be taken for success.
# Usage: check_cluster.sh BUILD-FOLDER
set -eu
cd "$(dirname "$0")/.."
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cmake --install "$1" --prefix "$work/prefix"
for example in cores mpi; do
    cmake -S examples/$example -B "$work/$example" -G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_PREFIX_PATH="$work/prefix"
    cmake --build "$work/$example"
done
"$work/cores/cores" 1201 907

width=2003 height=1501
python3 -c "import random, sys; sys.stdout.buffer.write(random.Random(1).randbytes($width * $height))" > "$work/scan.raw"
# restore PROCESSES HEIGHT RESULT
restore() {
    timeout 60 mpirun --allow-run-as-root --oversubscribe -n "$1" "$work/mpi/bands" $width "$2" "$work/scan.raw" "$work/$3"
}
for processes in 1 2 3; do
    restore $processes $height $processes.raw
    cmp "$work/1.raw" "$work/$processes.raw"
done
[ "$(stat -c %s "$work/1.raw")" -eq $((width * height)) ]
restore 3 5 few_rows.raw

if restore 2 $((height + 1)) short.raw; then
    echo "a file that is too short was not noticed"
    exit 1
fi

if timeout 60 mpirun --allow-run-as-root --oversubscribe -n 3 bash -c '
    [ "$OMPI_COMM_WORLD_RANK" -ne 1 ] || { sleep 1; kill -KILL $$; }
    exec "$@"' - "$work/mpi/bands" $width $height "$work/scan.raw" "$work/killed.raw"; then
    echo "a killed process was not noticed"
    exit 1
fi
echo "all as it must be"
