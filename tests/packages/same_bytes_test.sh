#!/bin/sh
# Builds the packages once more, from the tarball of the sources, in another folder and without git, and
# compares them with the first ones byte for byte.
# Usage: same_bytes_test.sh DIST FOLDER     (DIST with SHA256SUMS and the sources; FOLDER is made anew)
set -eu
dist=$(realpath "$1")
sources=$(ls "$dist"/linewright-*.tar.gz)
rm -rf "$2"
mkdir -p "$2"
tar xzf "$sources" -C "$2" --strip-components=1
cd "$2"
GIT_DIR=/nonexistent ./package debian
grep '[.]deb$' "$dist/SHA256SUMS" >build/debian.sums
(cd dist && sha256sum -c ../build/debian.sums)
