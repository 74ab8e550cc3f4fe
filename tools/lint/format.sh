#!/usr/bin/env bash
# Checks that every source is formatted as .clang-format says, by clang-format 14. Another version
# only reports.
set -u
cd "$(dirname "$0")/../.." || exit 1

mapfile -t sources < <(find src tests tools bench -name '*.cpp' -o -name '*.h')
if [ ${#sources[@]} = 0 ]; then
    echo "no sources found" >&2
    exit 1
fi
if command -v clang-format-14 >/dev/null; then
    exec clang-format-14 --dry-run -Werror "${sources[@]}"
fi
if ! command -v clang-format >/dev/null; then
    echo "clang-format is not installed" >&2
    exit 1
fi
echo "clang-format 14 is not here; what follows is only a report"
clang-format --dry-run "${sources[@]}"
exit 0
