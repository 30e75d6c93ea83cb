#!/usr/bin/env python3
"""The form of the files in packaging/: what the package managers would read is run with stand-ins for them, that take
the arguments which they take. What the Conan recipe exports is configured: nothing must be missing.

Usage: scripts/check_ports.py
"""

import fnmatch
import json
import pathlib
import re
import runpy
import shutil
import subprocess
import sys
import tempfile
import types

TREE = pathlib.Path(__file__).resolve().parent.parent
VERSION = re.search(r"^  VERSION ([0-9.]+)$", (TREE / "CMakeLists.txt").read_text(), re.M).group(1)

# Each command of vcpkg with the keywords that it takes; files that are named must exist.
VCPKG = """
macro(takes command flags one many)
  cmake_parse_arguments(arg "${flags}" "${one}" "${many}" ${ARGN})
  if(arg_UNPARSED_ARGUMENTS OR arg_KEYWORDS_MISSING_VALUES)
    message(FATAL_ERROR "${command}: ${arg_UNPARSED_ARGUMENTS} ${arg_KEYWORDS_MISSING_VALUES}")
  endif()
  message("${command}")
  foreach(file ${arg_FILE_LIST} ${arg_SOURCE_PATH})
    if(NOT EXISTS "${file}")
      message(FATAL_ERROR "${command}: there is no ${file}")
    endif()
  endforeach()
endmacro()
function(vcpkg_cmake_configure)
  takes(configure "DISABLE_PARALLEL_CONFIGURE" "SOURCE_PATH;GENERATOR" "OPTIONS;OPTIONS_RELEASE;OPTIONS_DEBUG" ${ARGN})
endfunction()
function(vcpkg_cmake_install)
  takes(install "DISABLE_PARALLEL;ADD_BIN_TO_PATH" "" "" ${ARGN})
endfunction()
function(vcpkg_cmake_config_fixup)
  takes(config "DO_NOT_DELETE_PARENT_CONFIG_PATH;NO_PREFIX_CORRECTION" "PACKAGE_NAME;CONFIG_PATH;TOOLS_PATH" "" ${ARGN})
endfunction()
function(vcpkg_fixup_pkgconfig)
  takes(pkgconfig "SKIP_CHECK" "" "" ${ARGN})
endfunction()
function(vcpkg_install_copyright)
  takes(copyright "" "COMMENT" "FILE_LIST" ${ARGN})
endfunction()
include(${PORTFILE})
"""


def check_vcpkg(folder):
    port = TREE / "packaging/vcpkg/orvane"
    manifest = json.loads((port / "vcpkg.json").read_text())
    assert manifest["name"] == port.name and manifest["version"] == VERSION, manifest
    assert {entry["name"] for entry in manifest["dependencies"]} == {"vcpkg-cmake", "vcpkg-cmake-config"}
    script = folder / "vcpkg.cmake"
    script.write_text(VCPKG)
    settings = {"PORT": port.name, "PORTFILE": port / "portfile.cmake", "CURRENT_PACKAGES_DIR": folder / "packages"}
    run = subprocess.run(["cmake", *(f"-D{name}={value}" for name, value in settings.items()), "-P", script],
                         capture_output=True, text=True, check=True)
    assert run.stderr.split() == ["configure", "install", "config", "pkgconfig", "copyright"], run.stderr
    assert (folder / "packages/share/orvane/usage").exists()


def stand_in(name, **members):
    sys.modules[name] = types.ModuleType(name)
    vars(sys.modules[name]).update(members)


class ConanFile:
    """What a recipe inherits, as far as it is used here."""

    def __init__(self, recipe, folder):
        self.recipe_folder, self.export_sources_folder = str(recipe), str(folder)
        self.options = types.SimpleNamespace(shared=False)
        self.cpp_info = types.SimpleNamespace(set_property=lambda key, value: None)


def copy(_, pattern, source, destination):
    found = [f for f in pathlib.Path(source).glob(pattern.replace("/*", "/**/*")) if f.is_file()]
    assert found and all(fnmatch.fnmatch(f.relative_to(source), pattern) for f in found), pattern
    for file in found:
        target = pathlib.Path(destination, file.relative_to(source))
        target.parent.mkdir(parents=True, exist_ok=True)
        shutil.copy(file, target)


def check_conan(folder):
    stand_in("conan", ConanFile=ConanFile)
    stand_in("conan.errors", ConanInvalidConfiguration=type("ConanInvalidConfiguration", (Exception,), {}))
    stand_in("conan.tools.build", can_run=bool)
    stand_in("conan.tools.cmake", CMake=None, CMakeDeps=None, CMakeToolchain=None, cmake_layout=None)
    stand_in("conan.tools.files", copy=copy, load=lambda _, name: pathlib.Path(name).read_text(), rmdir=None)
    names = runpy.run_path(str(TREE / "packaging/conan/conanfile.py"))
    recipe = names["OrvaneConan"](TREE / "packaging/conan", folder / "sources")
    recipe.set_version()
    assert recipe.version == VERSION, recipe.version
    recipe.export_sources()
    recipe.package_info()
    subprocess.run(["cmake", "-S", folder / "sources", "-B", folder / "build"], check=True, stdout=subprocess.DEVNULL)
    test = runpy.run_path(str(TREE / "packaging/conan/test_package/conanfile.py"))
    assert "test" in vars(test["OrvaneTestConan"])


def main():
    with tempfile.TemporaryDirectory() as folder:
        check_vcpkg(pathlib.Path(folder))
        check_conan(pathlib.Path(folder))


if __name__ == "__main__":
    main()
