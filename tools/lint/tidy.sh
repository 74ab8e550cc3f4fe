#!/usr/bin/env bash
# Runs clang-tidy 14 over the sources of the program, its tools and its benchmarks, with the findings
# of .clang-tidy as errors. Tests have the compiler's warnings alone: with them the check would take
# twice its time. Another version only reports. Files named as arguments are looked at alone.
set -u
cd "$(dirname "$0")/../.." || exit 1

tidy=clang-tidy-14
command -v $tidy >/dev/null || tidy=clang-tidy
if ! command -v $tidy >/dev/null; then
    echo "clang-tidy is not installed" >&2
    exit 1
fi

# clang-tidy cannot read the compiler's precompiled headers, so it has a build tree without them.
if ! cmake --preset tidy >build-tidy.log 2>&1; then
    cat build-tidy.log
    rm -f build-tidy.log
    exit 1
fi
rm -f build-tidy.log

if [ $# -gt 0 ]; then
    sources=("$@")
else
    mapfile -t sources < <(sed -n 's/^ *"file": "\(.*\)",\{0,1\}$/\1/p' \
        build/tidy/compile_commands.json | grep -v -e '/build/' -e '/tests/' | sort -u)
fi
if [ ${#sources[@]} = 0 ]; then
    echo "no sources found" >&2
    exit 1
fi

printf '%s\0' "${sources[@]}" |
    xargs -0 -n 2 -P "$(nproc)" $tidy -p build/tidy --quiet 2>/dev/null
found=$?
if [ $found = 0 ]; then
    echo "${#sources[@]} sources, nothing found"
elif [ $tidy = clang-tidy ]; then
    echo "clang-tidy 14 is not here; this is only a report"
    exit 0
fi
exit $found
