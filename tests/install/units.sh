#!/usr/bin/env bash
# Prints the exposure of systemd units and fails if it is more than 2.0:  units.sh UNIT...
set -euo pipefail
for unit in "$@"; do
    assessment=$(systemd-analyze security --offline=true --no-pager --threshold=20 "$unit" 2>&1) || {
        printf '%s\n' "$assessment"
        exit 1
    }
    grep 'Overall exposure level' <<<"$assessment"
done
