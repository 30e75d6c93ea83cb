"""Packs the tree that it lies in: conan create packaging/conan"""

import os
import re

from conan import ConanFile
from conan.errors import ConanInvalidConfiguration
from conan.tools.cmake import CMake, CMakeDeps, CMakeToolchain, cmake_layout
from conan.tools.files import copy, load, rmdir

TREE = os.path.join("..", "..")
SOURCES = ("CMakeLists.txt", "LICENSE", "THIRD_PARTY_NOTICES", "README.md", "CHANGELOG.md", "CONTRIBUTING.md",
           "SECURITY.md", "bench/RESULTS.md", "cmake/*", "docs/*", "examples/*", "include/*", "packaging/*", "scripts/*",
           "src/*")


class OrvaneConan(ConanFile):
    name = "orvane"
    description = "Numerical primitives for image and signal processing: the same bits on every x86 processor"
    license = ("MIT", "BSD-3-Clause-Open-MPI")
    topics = ("image-processing", "signal-processing", "fft", "simd")
    package_type = "library"
    settings = "os", "arch", "compiler", "build_type"
    options = {"shared": [True, False]}
    default_options = {"shared": True}

    def set_version(self):
        text = load(self, os.path.join(self.recipe_folder, TREE, "CMakeLists.txt"))
        self.version = re.search(r"^ +VERSION ([0-9.]+)$", text, re.M).group(1)

    def export_sources(self):
        for pattern in SOURCES:
            copy(self, pattern, os.path.join(self.recipe_folder, TREE), self.export_sources_folder)

    def validate(self):
        if self.settings.os != "Linux" or self.settings.arch not in ("x86", "x86_64"):
            raise ConanInvalidConfiguration("built on Linux for x86; the Windows DLL is cross-built by docs/windows.md")

    def layout(self):
        cmake_layout(self)

    def generate(self):
        CMakeToolchain(self).generate()
        CMakeDeps(self).generate()

    def build(self):
        cmake = CMake(self)
        cmake.configure()
        cmake.build()

    def package(self):
        CMake(self).install()
        for name in ("LICENSE", "THIRD_PARTY_NOTICES"):
            copy(self, name, self.source_folder, os.path.join(self.package_folder, "licenses"))
        for folder in (("lib", "cmake"), ("lib", "pkgconfig"), ("share",)):
            rmdir(self, os.path.join(self.package_folder, *folder))

    def package_info(self):
        self.cpp_info.set_property("cmake_file_name", "Orvane")
        self.cpp_info.set_property("cmake_target_name", "Orvane::orvane")
        self.cpp_info.set_property("pkg_config_name", "orvane")
        self.cpp_info.includedirs = ["include/orvane", "include"]
        self.cpp_info.libs = ["orvane"]
        if not self.options.shared:
            self.cpp_info.system_libs = ["m", "stdc++"]
