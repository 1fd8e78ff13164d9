"""A print system of its own for a test: a cupsd that only this test talks to, and a printer that keeps what it gets."""

import os
import pwd
import re
import shutil
import socket
import subprocess
import sys
import tempfile
import threading
import time
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).parents[1] / "jobs"))

BOUND = 120  # seconds that anything awaited may take


def wait_for(condition, what):
    end = time.monotonic() + BOUND
    while not condition():
        if time.monotonic() > end:
            raise TimeoutError(f"waited {BOUND} seconds for {what}")
        time.sleep(0.05)


def without_collate(ppd, path):
    """Writes a PPD without the option Collate, of a printer that can't; returns its path."""
    text = Path(ppd).read_text("utf-8")
    Path(path).write_text(re.sub(r"\*OpenUI \*Collate.*?\*CloseUI: \*Collate\n", "", text, flags=re.S), "utf-8")
    return path


class Printer:
    """A socket on the loopback interface that takes one job after the other. Held, it stops in the middle of one."""

    HEAD = 16 * 1024  # bytes of a job that it takes even when held: more than a header

    def __init__(self):
        self.jobs = []  # one bytearray a connection
        self.ended = 0  # connections that the print system has closed
        self.ready = threading.Event()
        self.ready.set()
        self.listener = socket.socket()
        # Small buffers, so that a held job soon waits in the filter.
        self.listener.setsockopt(socket.SOL_SOCKET, socket.SO_RCVBUF, 64 * 1024)
        self.listener.bind(("127.0.0.1", 0))
        self.listener.listen()
        self.uri = f"socket://127.0.0.1:{self.listener.getsockname()[1]}/?snmp=false"
        threading.Thread(target=self._run, daemon=True).start()

    def _run(self):
        while True:
            connection, _ = self.listener.accept()
            job = bytearray()
            self.jobs.append(job)
            with connection:
                while data := connection.recv(16 * 1024):
                    job += data
                    if len(job) > self.HEAD:
                        self.ready.wait()
            self.ended += 1


class PrivateCups:
    def __init__(self, filter_path, web=False):
        """With web it has its pages, at self.address, and queues have addresses that lpoptions -l can ask."""
        self.filter_path = filter_path
        self.address = None
        if web:
            with socket.socket() as free:
                free.bind(("127.0.0.1", 0))
                self.address = f"127.0.0.1:{free.getsockname()[1]}"
        self.root = tempfile.mkdtemp(prefix="ovcups.", dir="/tmp")  # short: the socket's path is limited
        self.server = None

    def path(self, *parts):
        return os.path.join(self.root, *parts)

    def __enter__(self):
        os.chmod(self.root, 0o755)
        self._make_server_bin()
        self._write_configuration()
        self.environment = dict(os.environ, CUPS_SERVER=self.path("cups.sock"), HOME=self.root, LC_ALL="C",
                                CUPS_SERVERROOT=self.path("etc"),  # for what lpoptions keeps when run by root
                                PATH=os.environ["PATH"] + ":/usr/sbin:/sbin")  # where lpadmin is
        with open(self.path("cupsd.out"), "wb") as out:
            self.server = subprocess.Popen(
                ["cupsd", "-f", "-c", self.path("cupsd.conf"), "-s", self.path("cups-files.conf")],
                env=self.environment, stdin=subprocess.DEVNULL, stdout=out, stderr=out)
        try:
            wait_for(self._running, "cupsd")
        except BaseException:
            self.__exit__(None, None, None)
            raise
        return self

    def __exit__(self, kind, value, trace):
        self.server.terminate()
        try:
            self.server.wait(BOUND)
        except subprocess.TimeoutExpired:
            self.server.kill()
            self.server.wait()
        if kind is None:
            shutil.rmtree(self.root)
        else:
            print(f"cupsd's files are kept in {self.root}")

    def _told(self, what):
        return subprocess.run(["cups-config", what], check=True, capture_output=True, text=True).stdout.strip()

    def _make_server_bin(self):
        # Filters and backends of the system, and the filter under test: a copy, since cupsd run by root refuses a
        # filter that does not belong to root or is where others may write.
        for folder in ("filter", "backend", "daemon", "driver", "notifier", "cgi-bin", "monitor"):
            os.makedirs(self.path("bin", folder), 0o755)
            for entry in Path(self._told("--serverbin"), folder).glob("*"):
                if entry.name != "pstoorvane":
                    os.symlink(entry, self.path("bin", folder, entry.name))
        os.chmod(shutil.copy(self.filter_path, self.path("bin", "filter", "pstoorvane")), 0o755)

    def _write_configuration(self):
        owner = pwd.getpwnam("lp") if os.geteuid() == 0 else None
        for folder in ("etc", "etc/ppd", "cache", "state", "spool", "spool/tmp"):
            os.makedirs(self.path(folder), 0o755)
            if owner and not folder.startswith("etc"):
                os.chown(self.path(folder), owner.pw_uid, owner.pw_gid)
        places = {"ServerRoot": "etc", "CacheDir": "cache", "StateDir": "state", "RequestRoot": "spool",
                  "TempDir": "spool/tmp", "DocumentRoot": self._told("--datadir") + "/doc-root", "ServerBin": "bin",
                  "ServerKeychain": "etc/ssl",
                  "AccessLog": "access_log", "ErrorLog": "error_log", "PageLog": "page_log"}
        with open(self.path("cups-files.conf"), "w") as conf:
            conf.writelines(f"{name} {self.path(value)}\n" for name, value in places.items())
            conf.write("FatalErrors none\nPassEnv ASAN_OPTIONS UBSAN_OPTIONS LSAN_OPTIONS\n")
        with open(self.path("cupsd.conf"), "w") as conf:
            conf.write(f"Listen {self.address}\nWebInterface Yes\n" if self.address else "WebInterface No\n")
            conf.write(f"""Listen {self.path("cups.sock")}
LogLevel debug
MaxLogSize 0
PageLogFormat %p %j %u %P %C
Browsing No
DefaultShared No
IdleExitTimeout 0
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  JobPrivateAccess all
  JobPrivateValues none
  <Limit All>
    Order deny,allow
  </Limit>
</Policy>
""")

    def _running(self):
        if self.server.poll() is not None:
            raise RuntimeError("cupsd ended at once:\n" + self.text("cupsd.out") + self.text("error_log"))
        return os.path.exists(self.path("cups.sock")) and "is running" in self.run("lpstat", "-r")

    def text(self, name):
        path = Path(self.path(name))
        return path.read_text("utf-8", errors="replace") if path.exists() else ""

    def run(self, *command):
        done = subprocess.run(command, env=self.environment, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT, text=True, timeout=BOUND)
        if done.returncode != 0 and command[0] != "lpstat":
            raise RuntimeError(f"{' '.join(command)}: {done.stdout}{self.text('error_log')}")
        return done.stdout

    def add_queue(self, name, ppd, printer):
        self.run("lpadmin", "-p", name, "-E", "-v", printer.uri, "-P", ppd, "-o", "printer-error-policy=abort-job")

    def lp(self, queue, document, title, options=()):
        """Submits a job of the user taro and returns its name (queue-number)."""
        arguments = [argument for option in options for argument in ("-o", option)]
        reply = self.run("lp", "-U", "taro", "-d", queue, "-t", title, *arguments, document)
        return reply.split("request id is ")[1].split()[0]

    def wait_done(self, job):
        wait_for(lambda: job not in self.run("lpstat", "-W", "not-completed", "-o").split(), f"the end of {job}")

    def log_of(self, job):
        """What cupsd and the job's filters logged about it."""
        mark = f"[Job {job.rsplit('-', 1)[1]}]"
        return [line for line in self.text("error_log").splitlines() if mark in line]


class CupsJobs(unittest.TestCase):
    """Tests with a printer and a print system, whose filter is the first argument."""

    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.printer = Printer()
        cls.cups = cls.enterClassContext(PrivateCups(sys.argv[1]))

    def taken(self, submit, meanwhile=None):
        """Submits a job and returns what the printer takes of it, and its name."""
        index = len(self.printer.jobs)
        name = submit()
        try:
            if meanwhile:
                meanwhile(name, index)
            wait_for(lambda: self.printer.ended > index, f"the last byte of {name}")
            self.cups.wait_done(name)
        except TimeoutError as error:
            self.fail("\n".join([str(error), *self.cups.log_of(name)]))
        return bytes(self.printer.jobs[index]), name

    def logged(self, job):
        """The pages that were reported of the job, each with its copies; what cupsd made of them is their sum."""
        reports = [re.search(r"PAGE: (\d+) (\d+)$", line) for line in self.cups.log_of(job)]
        pages = [(int(report[1]), int(report[2])) for report in reports if report]
        rows = [row.split() for row in self.cups.text("page_log").splitlines()]
        self.assertEqual([row[3:] for row in rows if row[1] == job.rsplit("-", 1)[1]],
                         [["total", str(sum(copies for _, copies in pages))]])
        return pages
