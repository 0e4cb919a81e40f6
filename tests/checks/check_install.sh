#!/usr/bin/env bash
# What is installed can be moved, names no folder of the build, and is all that programs need: one in C11 that finds it
# by pkg-config, one in C++17 that finds it by CMake.
# usage: check_install.sh CC CXX BUILD|PACKAGE.deb...
set -euo pipefail

cc=$1 cxx=$2 root=$( cd "$( dirname "${BASH_SOURCE[0]}" )/../.." && pwd )
scratch=$( mktemp -d )
trap 'rm -rf "$scratch"' EXIT
fail() { echo "$1"; exit 1; }

for from in "${@:3}"; do
    case $from in
        *.deb) dpkg-deb --extract "$from" "$scratch/first" ;;
        *) cmake --install "$from" --prefix "$scratch/first/usr" >/dev/null ;;
    esac
done
mv "$scratch/first" "$scratch/moved"
cd "$scratch/moved/usr"

! grep -rlF -e "$root/source" -e "$root/build" -e "$3" -e "$scratch" . || fail "these files name a folder of the build"
diff <( cd "$root/source" && printf 'include/corvane/%s\n' */*.{h,def} $( ls telsx/telsx.hpp 2>/dev/null ) | sort ) \
    --label "public headers" <( find include -type f | sort ) || fail "these headers differ"
libraries=$( dirname "$( find "$PWD" -name libtelsx.so )" )
for library in "$libraries"/*.so; do
    ! readelf -d "$library" | grep -E 'R(UN)?PATH' | grep -vF '[$ORIGIN]' || fail "$library searches elsewhere"
done
# The dynamic linker finds those of a package by itself, once they are below /usr; others find each other.
case $3 in *.deb) export LD_LIBRARY_PATH=$libraries ;; esac

export PKG_CONFIG_PATH=$libraries/pkgconfig
"$cc" -std=c11 -Wall -Wextra -Wpedantic -Werror -o "$scratch/consumer" "$root/tests/install/consumer.c" \
    $( pkg-config --cflags --libs telsx ) "-Wl,-rpath,$libraries"
"$scratch/consumer" || fail "the program in C exits with $?"
! readelf -d "$scratch/consumer" | grep -E 'NEEDED.*(telsx|corvane)' | grep -vE '\.so\.[0-9]+\]' ||
    fail "the program needs libraries without a version"

cmake -G "${CMAKE_GENERATOR:-Ninja}" -S "$root/tests/install" -B "$scratch/build" \
    -D "CMAKE_CXX_COMPILER=$cxx" -D "CMAKE_PREFIX_PATH=$PWD" \
    -D "VERSION=$( pkg-config --modversion telsx )" >"$scratch/log" &&
    cmake --build "$scratch/build" >>"$scratch/log" || { cat "$scratch/log"; exit 1; }
"$scratch/build/consumer" || fail "the program in C++ exits with $?"
