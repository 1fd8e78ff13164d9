"""The Debian package on the system it is for: built, checked, installed, printed through, and purged.

usage: package_test.py BUILD-FOLDER DOCUMENT
Exits with 77, and says why, where it may not install packages.
"""

import glob
import os
import shutil
import subprocess
import sys
import tempfile

from private_cups import PrivateCups, Printer, wait_for

BUILD, DOCUMENT = sys.argv[1:3]
PACKAGE = "pstoorvane"
MODELS = {"orvane/mono.ppd": "Orvane Mono 20", "orvane/office.ppd": "Orvane Office C4",
          "orvane/production.ppd": "Orvane Production P9"}


def run(*command, **options):
    done = subprocess.run(command, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                          text=True, env=dict(os.environ, LC_ALL="C", DEBIAN_FRONTEND="noninteractive"), **options)
    if done.returncode != 0:
        raise RuntimeError(f"{' '.join(command)}: {done.stdout}")
    return done.stdout


def expect(condition, what):
    if not condition:
        raise AssertionError(what)


class SystemCups(PrivateCups):
    """A private cupsd that runs the system's own programs, and so the installed filter."""

    def _make_server_bin(self):
        os.symlink(os.path.dirname(os.path.dirname(self.filter_path)), self.path("bin"))


def skip_reason():
    if os.geteuid() != 0:
        return "only root installs packages"
    for tool in ("dpkg", "dpkg-shlibdeps", "cpack", "cups-config"):
        if not shutil.which(tool):
            return f"{tool} is not installed"
    if subprocess.run(["dpkg-query", "-W", PACKAGE], capture_output=True).returncode == 0:
        return "the package is already installed here, and is left alone"
    return None


def check_file(package):
    fields = run("dpkg-deb", "-f", package, "Depends", "Description")
    for dependency in ("cups,", "libc6 (>=", "libcups2"):
        expect(dependency in fields, f"no dependency on {dependency}: {fields}")
    expect("DEVELOPMENT keys" in fields, f"no word on the keys: {fields}")
    if shutil.which("lintian"):
        print(run("lintian", "--allow-root", "--fail-on", "error", package))
    else:
        print("skipped: lintian is not installed")


def check_printing(filter_path):
    printer = Printer()
    with SystemCups(filter_path) as cups:
        listed = dict(line.split(" ", 1) for line in cups.run("lpinfo", "-m").splitlines())
        for model, name in MODELS.items():
            expect(listed.get(model, "").startswith(name), f"{model} is not among the models: {listed}")
        cups.run("lpadmin", "-p", "office", "-E", "-v", printer.uri, "-m", "orvane/office.ppd")
        cups.wait_done(cups.lp("office", DOCUMENT, "Installed", ["OVStaple=None"]))
        wait_for(lambda: printer.ended == 1, "the printer's job")
    job = bytes(printer.jobs[0])
    expect(job.startswith(b"\x1b%-12345X@PJL SET STRINGCODESET=UTF8\n@PJL JOB MODE=PRINTER\r\n"), job[:200])
    expect(b"@PJL COMMENT PRINTJOBINFO STAPLE=OFF\n" in job, "the job lacks its setting")
    expect(job.endswith(b"\x04\x1b%-12345X@PJL EOJ\n"), job[-200:])


def main():
    if reason := skip_reason():
        print(f"skipped: {reason}")
        return 77
    with tempfile.TemporaryDirectory() as folder:
        run("cpack", "-G", "DEB", "-B", folder, "--config", os.path.join(BUILD, "CPackConfig.cmake"), cwd=BUILD)
        package = glob.glob(os.path.join(folder, "*.deb"))[0]
        check_file(package)
        try:
            run("dpkg", "-i", package)
            installed = run("dpkg", "-L", PACKAGE).split()
            check_printing(next(path for path in installed if path.endswith("/filter/pstoorvane")))
        finally:
            run("dpkg", "-P", PACKAGE)
        left = [path for path in installed if PACKAGE in path or "orvane" in path if os.path.lexists(path)]
        expect(not left, f"left behind: {left}")
    return 0


sys.exit(main())
