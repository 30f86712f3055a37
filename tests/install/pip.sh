#!/bin/sh
# Installs the Python package with pip into an environment of its own, and uses it: pip.sh PYTHON SOURCES PKGCONFIG SCRATCH
set -eu
python=$1 sources=$2 pkgconfig=$3 scratch=$4
rm -rf "$scratch"
mkdir -p "$scratch"
cp -r "$sources" "$scratch/sources" # setuptools writes beside them
unset PYTHONPATH LUMO_TARN_LIBRARY LD_LIBRARY_PATH
"$python" -m venv --system-site-packages --without-pip "$scratch/venv"
pip() { "$python" -m pip --python "$scratch/venv/bin/python" --disable-pip-version-check "$@"; }

# Without an installation, the error names what is missing.
if PKG_CONFIG_LIBDIR="$scratch" pip install --no-index --no-build-isolation "$scratch/sources" >"$scratch/log" 2>&1; then
    echo "installed without a library"
    exit 1
fi
grep -q 'pkg-config does not find lumo_ui_tarn; set PKG_CONFIG_PATH' "$scratch/log"

PKG_CONFIG_PATH=$pkgconfig pip install --no-index --no-build-isolation "$scratch/sources"
cd "$scratch"
venv/bin/python - <<'PROGRAM'
import pathlib
import sys

import lumo_tarn

assert pathlib.Path(lumo_tarn.__file__).is_relative_to(sys.prefix), lumo_tarn.__file__
with lumo_tarn.serve("127.0.0.1:0", {"cl-debug": lambda request: [lumo_tarn.DebugSettingMsg()]}) as server:
    assert len(lumo_tarn.ask(server.address, "cl-debug")) == 1
PROGRAM
pip uninstall --yes lumo-tarn
test ! -e venv/lib/python3*/site-packages/lumo_tarn
