#!/usr/bin/env bash
# Tests that Debian packages have all dependencies and that their removal leaves no files:  packages.sh FOLDER
# It installs them into an empty root, and requires fakeroot and the packages for a static link.
set -euo pipefail
packages=("$1"/*.deb)
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
root=$scratch/root
mkdir -p "$root"/var/lib/dpkg/{info,updates,triggers} "$scratch/bin"
touch "$root/var/lib/dpkg/status"
# Maintainer scripts run outside of the root and must not change the library cache of the system.
printf '#!/bin/sh\n' >"$scratch/bin/ldconfig"
chmod +x "$scratch/bin/ldconfig"
in_root() {
    PATH=$scratch/bin:$PATH:/usr/sbin:/sbin fakeroot dpkg --root="$root" --log="$scratch/log" \
        --force-script-chrootless --force-depends "$@" >>"$scratch/output" 2>&1 || { cat "$scratch/output"; return 1; }
}
files() { find "$root" -path "$root/var/lib/dpkg" -prune -o -print | sort; }

files >"$scratch/before"
in_root --install "${packages[@]}"

# Each library of a static link, except those of the compiler, is in a dependency or a direct dependency of one.
modules=$(dirname "$(find "$root" -name lumo_ui_tarn_static.pc)")
libraries=$(PKG_CONFIG_PATH=$modules pkg-config --static --libs-only-l lumo_ui_tarn_static)
names() { tr '|,' '\n\n' | sed 's/[ :(].*//;/^$/d'; }
depends=$(dpkg-deb --field "$1"/liblumo-ui-tarn-dev_*.deb Depends | sed 's/, */,/g' | names)
provided=$depends$'\n'$(dpkg-query -W -f '${Depends}\n' $(grep -v '^liblumo' <<<"$depends") | sed 's/, */,/g' | names)
failed=0 checked=0
for library in $libraries; do
    file=$(cc -print-file-name="lib${library#-l}.so")
    case $library in -llumo* | -lstdc++ | -lm) continue ;; esac
    package=$(dpkg --search "$(realpath -s "$file")" | sed 's/:.*//')
    checked=$((checked + 1))
    grep -qxF "$package" <<<"$provided" || { echo "liblumo-ui-tarn-dev needs $package for $library"; failed=1; }
done
[ $checked -gt 0 ] || { echo "no libraries of a static link were found"; failed=1; }

# The program that a unit starts is installed.
units=("$root"/usr/lib/systemd/system/*.service)
for program in $(sed -n 's/^ExecStart=\([^ ]*\).*/\1/p' "${units[@]}"); do
    [ -x "$root$program" ] || { echo "a unit starts $program, which is not installed"; failed=1; }
done
[ -e "${units[0]}" ] || { echo "no unit is installed"; failed=1; }

# The bytecode that Python writes when a privileged user imports the package.
python=$root/usr/lib/python3/dist-packages/lumo_tarn
[ ! -d "$python" ] || python3 -m compileall -q "$python"
names=()
for package in "${packages[@]}"; do names+=("$(dpkg-deb --field "$package" Package)"); done
in_root --purge "${names[@]}"
files | diff "$scratch/before" - || { echo "the packages leave files behind"; failed=1; }
exit $failed
