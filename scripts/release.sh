#!/usr/bin/env bash
# Makes a release of the version that CMakeLists.txt names: looks whether it keeps what versions promise, runs all
# tests, gathers the packages that were tested with checksums, hashes and lists of exports in build/release-<version>, and
# sets the tag v<version>. docs/versions.md has the rules.
# Usage: release.sh [--dry-run]       without tests and tag, with the packages that there are
set -eu
cd "$(dirname "$0")/.."
dry=${1:-}
case $dry in '' | --dry-run) ;; *) sed -n '2,5s/^# //p' "$0"; exit 2 ;; esac
version=$(sed -n 's/^  VERSION \([0-9.]*\)$/\1/p' CMakeLists.txt)
output=build/release-$version
refuse() { echo "no release: $1" >&2; exit 1; }

# What the change log says about this version.
notes() { awk -v heading="## $version " 'index($0, "## ") == 1 { on = index($0, heading) == 1 } on' CHANGELOG.md; }

ready() {
    case $(notes | head -n 1) in
    "## $version (20"[0-9][0-9]-[0-9][0-9]-[0-9][0-9]")") ;;
    "## $version (unreleased)") [ "$dry" ] || refuse "CHANGELOG.md has no date for $version" ;;
    *) refuse "CHANGELOG.md does not know $version" ;;
    esac
    grep -q "\"version\": \"$version\"" packaging/vcpkg/orvane/vcpkg.json ||
        refuse "the port for vcpkg has another version"
    [ -z "$(git tag --list "v$version")" ] || refuse "v$version exists"
    [ "$dry" ] || [ -z "$(git status --porcelain --untracked-files=no)" ] ||
        refuse "there are changes that are not committed"
}

hashes() { sed -n 's/^HASH("\(.*\)", \(.*\))$/\1 \2/p' | sort; }

# Against the version before: exports stay while the first number does, changed results are told.
promises() {
    local before list gone changed
    before=$(git describe --tags --abbrev=0 --match 'v*' 2> /dev/null) || return 0
    for list in tests/exports.txt tests/exports_windows.txt; do
        gone=$(comm -23 <(git show "$before:$list" | sort) <(sort "$list") | head -n 5)
        [ -z "$gone" ] || [ "${before%%.*}" != "v${version%%.*}" ] || refuse "$before exported what $list lacks: $gone"
    done
    changed=$(join <(git show "$before:tests/hashes.inc" | hashes) <(hashes < tests/hashes.inc) |
        awk '$2 != $3 { print $1 }')
    [ -z "$changed" ] || notes | grep -q '^- Changed results:' ||
        refuse "results differ from $before, and CHANGELOG.md has no 'Changed results:' for ${changed//$'\n'/ }"
}

gather() {
    rm -rf "$output"
    mkdir -p "$output"
    for pattern in 'build/release/package/*_amd64.deb' 'build/release/package/*_all.deb' \
        'build/i386/package/*_i386.deb' "build/windows/package/orvane-$version-*.zip"; do
        # shellcheck disable=SC2086
        cp $pattern "$output" 2> /dev/null || [ "$dry" ] || refuse "there is no $pattern"
    done
    git archive --prefix="orvane-$version/" -o "$output/orvane-$version.tar.gz" HEAD
    cp tests/hashes.inc tests/exports.txt tests/exports_windows.txt "$output"
    notes > "$output/NOTES.md"
    (cd "$output" && sha256sum -- * > SHA256SUMS)
}

ready
promises
[ "$dry" ] || scripts/test.sh || refuse "tests fail"
gather
[ "$dry" ] || git tag -a "v$version" -F "$output/NOTES.md"
echo "$output:"
cat "$output/SHA256SUMS"
