#!/usr/bin/env bash
# Runs the commands of a page with a server of the bus, whose address is $BUS:  page.sh NATS_SERVER COMMAND...
set -euo pipefail
scratch=$(mktemp -d)
"$1" --addr 127.0.0.1 --port -1 --ports_file_dir "$scratch" --log "$scratch/log" &
server=$!
trap 'kill $server; rm -rf "$scratch"' EXIT
for ((i = 0; i < 600; ++i)); do
    BUS=$(sed -n 's/.*"nats": *\["\([^"]*\)".*/\1/p' "$scratch"/*.ports 2>/dev/null || true)
    [ -z "$BUS" ] || break
    sleep 0.1
done
export BUS
"${@:2}"
