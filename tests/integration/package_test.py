"""The Debian package: built twice under other circumstances to the same bytes, checked, installed, printed through, purged.

usage: package_test.py SOURCES FOLDER
Builds in FOLDER, and leaves the packages there. Exits with 77, and says why, where a tool is missing or it may not install.
"""

import hashlib
import os
import shutil
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

from private_cups import PrivateCups

SOURCES, FOLDER = map(Path, sys.argv[1:3])
PACKAGE = "pstoorvane"
# The folder below FOLDER, umask, environment, and what runs the build.
BUILDS = (("one", 0o022, {"TZ": "UTC", "LC_ALL": "C.UTF-8", "DEB_BUILD_OPTIONS": "parallel=1"}, []),
          ("another/place", 0o027, {"TZ": "Pacific/Kiritimati", "LC_ALL": "C", "DEB_BUILD_OPTIONS": "parallel=2"},
           ["faketime", "+400 days"]))


def run(*command, **options):
    options = {"env": dict(os.environ, LC_ALL="C", DEBIAN_FRONTEND="noninteractive"), **options}
    done = subprocess.run(command, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                          text=True, **options)
    if done.returncode != 0:
        raise RuntimeError(f"{' '.join(map(str, command))}: {done.stdout}")
    return done.stdout


def expect(condition, what):
    if not condition:
        raise AssertionError(what)


class SystemCups(PrivateCups):
    """A private cupsd that runs the system's own programs, and so the installed filter."""

    def _make_server_bin(self):
        os.symlink(os.path.dirname(os.path.dirname(self.filter_path)), self.path("bin"))


def missing_tools():
    for tool in ("dpkg-buildpackage", "dh", "faketime", "lintian"):
        if not shutil.which(tool):
            return f"{tool} is not installed"
    lacking = subprocess.run(["dpkg-checkbuilddeps", "-Pnocheck", SOURCES / "debian" / "control"], text=True,
                             capture_output=True)
    return lacking.stderr.strip()


def build(place, umask, environment, within):
    """Unpacks the source package and builds all packages of it; returns them by name, with their bytes."""
    tree = FOLDER / place / "tree"
    tree.parent.mkdir(parents=True)
    run("dpkg-source", "--no-check", "-x", *FOLDER.glob("*.dsc"), tree, umask=umask)
    run(*within, "dpkg-buildpackage", "--no-sign", "-b", "-Pnocheck", cwd=tree, umask=umask, env={**os.environ, **environment})
    return {path.name: path.read_bytes() for path in tree.parent.glob("*.deb")}


def check_package(package):
    for dependency in ("cups,", "libc6 (>=", "libcups2"):
        expect(dependency in run("dpkg-deb", "-f", package, "Depends"), f"no dependency on {dependency}")
    expect("openssl (= 3" in run("dpkg-deb", "-f", package, "Static-Built-Using"), "no word on libcrypto")
    expect("DEVELOPMENT keys" in run("dpkg-deb", "-f", package, "Description"), "no word on the keys")
    run("dpkg-deb", "-x", package, FOLDER / "unpacked")
    filter_path, = FOLDER.glob("unpacked/**/filter/pstoorvane")
    version = run("dpkg-deb", "-f", package, "Version").strip()
    expect(run(filter_path, "--version").startswith(f"pstoorvane {version},"), f"debian/changelog has version {version}")


def main():
    if reason := missing_tools():
        print(f"skipped: {reason}")
        return 77
    shutil.rmtree(FOLDER, ignore_errors=True)
    FOLDER.mkdir(parents=True)
    run("dpkg-source", "-b", SOURCES, cwd=FOLDER)
    with ThreadPoolExecutor() as workers:
        one, other = workers.map(build, *zip(*BUILDS))
    for name, content in sorted(one.items()):
        print(hashlib.sha256(content).hexdigest(), name)
    expect(len(one) == 2 and one.keys() == other.keys(), f"other packages: {sorted(one)} and {sorted(other)}")
    different = [name for name in one if one[name] != other[name]]
    expect(not different, f"built twice and not the same: {different}, compare them below {FOLDER}")

    package, = FOLDER.glob(f"one/{PACKAGE}_*.deb")
    check_package(package)
    print(run("lintian", "--allow-root", "--fail-on", "error,warning", *FOLDER.glob("*.dsc"), *FOLDER.glob("one/*.changes")))

    if os.geteuid() != 0:
        print("skipped what follows: only root installs packages")
        return 77
    if subprocess.run(["dpkg-query", "-W", PACKAGE], capture_output=True).returncode == 0:
        print("skipped what follows: the package is already installed here, and is left alone")
        return 77
    try:
        run("dpkg", "-i", package)
        with SystemCups(os.path.join(run("cups-config", "--serverbin").strip(), "filter", "pstoorvane")) as cups:
            print(cups.run(str(SOURCES / "debian/tests/print-and-purge")))
    finally:
        run("dpkg", "-P", PACKAGE)
    return 0


sys.exit(main())
