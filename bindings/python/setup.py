"""Builds the package for an installed library, which pkg-config finds: the library, and the modules that were generated
from its schema and its headers."""

import shlex
import subprocess
from pathlib import Path

from setuptools import setup
from setuptools.command.build_py import build_py


def installed(*query: str) -> str:
    try:
        answer = subprocess.run(["pkg-config", *query, "lumo_ui_tarn"], stdout=subprocess.PIPE, check=True)
    except (OSError, subprocess.CalledProcessError) as error:
        raise SystemExit(f"pkg-config does not find lumo_ui_tarn; set PKG_CONFIG_PATH=PREFIX/lib/pkgconfig: {error}")
    return " ".join(shlex.split(answer.stdout.decode()))  # spaces in paths are quoted


class Build(build_py):
    def run(self) -> None:
        super().run()
        package = Path(self.build_lib, "lumo_tarn")
        generated = sorted(Path(installed("--variable=pythondir")).glob("*.py*"))
        if not generated:
            raise SystemExit("the installed library was built without the Python package")
        for module in generated:
            self.copy_file(str(module), str(package / module.name))
        libraries = Path(installed("--variable=libdir")).resolve()
        package.joinpath("_installed.py").write_text(f"LIBRARIES = {str(libraries)!r}\n")


setup(version=installed("--modversion"), cmdclass={"build_py": Build})
