#!/usr/bin/env bash
# A release, made but for tests and tag; and that it is refused where a promise would be broken: each case is a change to
# a copy of the tree and what the refusal must say.
set -eu
cd "$(dirname "$0")/.."
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

output=$(scripts/release.sh --dry-run | sed -n 's/:$//p')
(cd "$output" && sha256sum --quiet -c SHA256SUMS)
tar tzf "$output"/orvane-*.tar.gz | grep -q '/THIRD_PARTY_NOTICES$'
for package in build/release/package/*.deb; do cmp "$package" "$output/$(basename "$package")"; done
[ -z "$(git tag --list "v${output##*-}")" ]

# The committed tree with the scripts as they are, after a version before it.
git clone -q --shared . "$work/tree"
cp scripts/release.sh "$work/tree/scripts"
cd "$work/tree"
git config user.name maintainers
git config user.email maintainers@orvane.example
version=${output##*-}
in_last_version() { git checkout -q --detach && eval "$1" && git commit -qam before && git tag -a v0.0.9 -m before; }
refused() {
    local message
    git checkout -q -f "$start"
    git tag -d v0.0.9 > /dev/null 2>&1 || true
    if message=$(eval "$1" && scripts/release.sh ${3---dry-run} 2>&1); then echo "released in spite of: $1"; exit 1; fi
    case $message in *"$2"*) ;; *) echo "$1: '$message' does not say '$2'"; exit 1 ;; esac
}
git add -A
git commit -q --allow-empty -m now
start=$(git rev-parse HEAD)
after="git checkout -q -f $start -- . && git commit -qam after"
no_results="sed -i 's/^- Changed results:/- Results:/' CHANGELOG.md"

refused "sed -i 's/^## $version /## 9.9.9 /' CHANGELOG.md" "CHANGELOG.md does not know $version"
refused "sed -i 's/\"version\": \".*\"/\"version\": \"9.9.9\"/' packaging/vcpkg/orvane/vcpkg.json" "port for vcpkg"
refused "git tag v$version" "v$version exists"
git tag -d "v$version" > /dev/null
refused "true" "no date" ""
refused "sed -i 's/(unreleased)/(2030-01-01)/' CHANGELOG.md" "not committed" ""
refused "in_last_version 'echo Gone::gone >> tests/exports.txt' && $after" "Gone::gone"
refused "in_last_version 'echo gone@@ >> tests/exports_windows.txt' && $after" "gone@@"
refused "in_last_version \"sed -i '/Add_32f_C1\\\"/s/0x./0xZ/' tests/hashes.inc\" && $after && $no_results" "Add_32f_C1"
