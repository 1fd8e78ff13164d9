"""The filter when what is around it fails: broken and slow pipes, signals, full disks, junk instead of files.

usage: faults_test.py FILTER FILTER-THAT-KEEPS-A-COPY [unittest arguments]

Wherever standard output can be written, a job has a complete header and trailer. Times and sizes are bounds, not
measurements: they tell an end from a hang and a buffer from the whole job.
"""

import array
import base64
import fcntl
import itertools
import os
import pathlib
import re
import resource
import shutil
import signal
import subprocess
import sys
import tempfile
import termios
import threading
import time
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).parents[1] / "jobs"))
from blobs import Blob, openssl  # noqa: E402
from content import ENTER, PPD_HEAD, TICKET, TRAILER, UEL  # noqa: E402

FILTER, COPYING_FILTER = map(os.path.abspath, sys.argv[1:3])

BOUND = 120  # seconds that a job may take
MEMORY = 1 << 20  # KiB that a job may take, a sanitizer's share included
PIPE = 64 * 1024

MODES = (False, True)  # passed through, or spooled first
PAGE_ENDS = (b"ep\n", b"endp\n", b"showpage\n")

# Two passwords, and a job's options in which they are stored under the development key.
PASSWORDS = [b"secure print " + bytes(range(48, 122)) * 2, b"accounting " + bytes(range(121, 47, -1)) * 2]
STORAGE_KEY, STORAGE_VECTOR = ("9506fae93dbae611bed59999a96219456ff11fccd978dcf76ddaaeab5fab9017",
                               "4e74bf9c07d4f6435856ac15ac5bada7")
STORED = " ".join(TICKET + ticket for ticket in (
    "PrintTypeTicketKey=2", "PrintTypeUserNameTicketKey=u", "JBAManageTypeListTicketKey=2", "JBAInfoListTicketKey=0",
    "JBAInfoSetListTicketKey=8", "JBAUserSettingRadioBtnTicket=1", "JBAUserIDListCtrlTicket=1",
    "JBAUserIDTextEditTicket=", *(f"{key}=" + base64.b64encode(openssl(
        "enc", "-aes-256-cbc", "-K", STORAGE_KEY, "-iv", STORAGE_VECTOR, data=password)).decode() for key, password in
        zip(("PrintTypePasswordTicketKey", "JBAUserPasswordTextEditTicket"), PASSWORDS))))


def pages(count, lines=40):
    """A document whose pages end in all three ways, and which goes on after the last page."""
    page = b"0 0 moveto 612 792 lineto stroke\n" * lines
    return (b"%!PS\n" + b"".join(b"bp\n" + page + PAGE_ENDS[n % 3] for n in range(count)) + b"%%Trailer\n" + page)


def page_end_lines(document):
    """Where each page end line begins and ends."""
    position = 0
    for line in document.splitlines(keepends=True):
        if line in PAGE_ENDS:
            yield position, position + len(line)
        position += len(line)


class Faults(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory(prefix="ovfaults.")))
        self.temporary = self.folder / "tmp"
        self.temporary.mkdir()
        self.ppds = [self.write("plain.ppd", PPD_HEAD), self.write("spooled.ppd", PPD_HEAD + b'*OVPSDecompMode: "1"\n')]

    def write(self, name, content):
        path = self.folder / name
        path.write_bytes(content)
        return path

    def start(self, *, file=None, options="", spooled=False, program=FILTER, copies="1", environment=(), **popen):
        """Starts a job; without a file its document comes through a pipe."""
        variables = {"PATH": "/usr/bin:/bin", "LANG": "C", "TMPDIR": str(self.temporary),
                     "PPD": str(self.ppds[spooled]), "UBSAN_OPTIONS": "print_stacktrace=1",
                     **{name: value for name, value in os.environ.items() if name in ("ASAN_OPTIONS", "TZ")},
                     **dict(environment)}
        arguments = [program, "1", "taro", "Report", copies, options] + ([str(file)] if file else [])
        self.messages = self.enterContext(tempfile.TemporaryFile())
        popen = {"stdin": subprocess.DEVNULL if file else subprocess.PIPE, "stdout": subprocess.PIPE, **popen}
        process = subprocess.Popen(arguments, env=variables, stderr=self.messages, bufsize=0, **popen)
        watchdog = threading.Timer(BOUND, process.kill)
        watchdog.start()
        self.addCleanup(watchdog.cancel)
        for stream in filter(None, (process.stdin, process.stdout)):
            self.addCleanup(stream.close)
        return process

    def end(self, process, status=0):
        """Waits for the end of a job and compares its exit status."""
        process.wait()
        self.messages.seek(0)
        text = self.messages.read()
        for finding in (b"Sanitizer", b"runtime error"):
            self.assertNotIn(finding, text, text.decode(errors="replace"))
        self.assertEqual(process.returncode, status, "negative: ended by a signal, or took too long")
        return text

    def received(self, process, size):
        """The first bytes of the output."""
        output = b""
        while len(output) < size:
            output += process.stdout.read(size - len(output))
        return output

    def cancel_when_waiting(self, process):
        self.settle(process)
        process.send_signal(signal.SIGTERM)
        self.settle(process)

    def run_job(self, document=b"", **settings):
        """Runs a whole job, its document from a file; returns its output."""
        process = self.start(file=self.write("document.ps", document), **settings)
        output = process.stdout.read()
        self.end(process)
        return output

    def assert_job(self, output, document):
        """The output is a whole job with this document; None: one that never came to it."""
        self.assertTrue(output.startswith(UEL + b"@PJL "), output[:200])
        self.assertIn(b"@PJL JOB MODE=PRINTER\r\n", output)
        self.assertTrue(output.endswith(TRAILER), output[-200:])
        _, enter, rest = output.partition(ENTER)
        if document is None:
            self.assertEqual(enter, b"")
        else:
            self.assertTrue(rest.removesuffix(TRAILER) == document, f"another document, ending {rest[-200:]}")

    def spool_files(self):
        return list(self.temporary.iterdir())

    def settle(self, process):
        """Waits until the filter has read all that it was sent, handles signals, and waits for more."""
        waiting = array.array("i", [1])
        end = time.monotonic() + BOUND
        while time.monotonic() < end:
            state = dict(line.split(":\t", 1) for line in
                         pathlib.Path(f"/proc/{process.pid}/status").read_text().splitlines() if ":\t" in line)
            handled = int(state["SigCgt"], 16) >> signal.SIGTERM - 1 & 1 and int(state["ShdPnd"], 16) == 0
            if process.stdin:
                fcntl.ioctl(process.stdin, termios.FIONREAD, waiting)
            else:
                waiting[0] = 0
            if handled and waiting[0] == 0 and state["State"].startswith("S"):
                return
            self.assertFalse(state["State"].startswith("Z"), "the filter has ended")
            time.sleep(0.005)
        self.fail("the filter doesn't come to rest")

    def test_reader_goes_away(self):
        document = self.write("document.ps", pages(2500))
        wholes = [self.run_job(document.read_bytes(), spooled=spooled) for spooled in MODES]
        header = wholes[0].index(ENTER) + len(ENTER)
        for offset, spooled in itertools.product((0, 1, header - 1, header, header + 1, 4096, PIPE - 1, PIPE, PIPE + 1,
                                                 len(wholes[0]) // 2, len(wholes[0]) - 3 * PIPE), MODES):
            with self.subTest(offset=offset, spooled=spooled):
                process = self.start(file=document, spooled=spooled)
                received = self.received(process, offset)
                process.stdout.close()
                self.end(process, 1)
                self.assertTrue(wholes[spooled].startswith(received))
                self.assertEqual(self.spool_files(), [])

    def block_signals(self):
        signal.pthread_sigmask(signal.SIG_BLOCK, {signal.SIGTERM, signal.SIGPIPE})

    def test_reader_goes_away_before_a_small_job(self):
        """All of it is written by the last flush."""
        for preexec, spooled in itertools.product((None, self.block_signals), MODES):
            with self.subTest(preexec=preexec, spooled=spooled):
                process = self.start(spooled=spooled, preexec_fn=preexec)
                process.stdout.close()
                process.stdin.write(b"ep\n")
                process.stdin.close()
                self.end(process, 1)

    def test_cancelled_where_the_parent_blocks_signals(self):
        process = self.start(preexec_fn=self.block_signals)
        self.settle(process)
        process.send_signal(signal.SIGTERM)
        process.stdin.write(b"%!PS\nep\nep\n")
        process.stdin.close()
        self.assert_job(process.stdout.read(), b"%!PS\n")
        self.end(process)

    def test_slow_pipes_and_signals(self):
        """SIGPIPE only leaves its mark in the exit status, SIGTERM waits for a page end: neither costs a byte."""
        document = b"0 0 moveto\n" * 20000

        def send(stream):
            for at in range(0, len(document), 1777):
                stream.write(document[at:at + 1777])
            stream.close()
        endings = ((None, 0), (signal.SIGTERM, 0), (signal.SIGPIPE, 1))
        for (number, status), spooled in itertools.product(endings, MODES):
            with self.subTest(signal=number, spooled=spooled):
                process = self.start(spooled=spooled)
                for stream in (process.stdin, process.stdout):
                    fcntl.fcntl(stream, fcntl.F_SETPIPE_SZ, 4096)
                self.settle(process)
                sender = threading.Thread(target=send, args=[process.stdin])
                sender.start()
                output = b""
                while piece := process.stdout.read(777):
                    output += piece
                    if number and len(output) % 7 == 0:
                        process.send_signal(number)
                sender.join()
                self.end(process, status)
                self.assert_job(output, document + b"\x04")

    def cancel_at(self, document, position, spooled, **settings):
        """The output, the spool files' contents and the messages of a job that is cancelled there."""
        # Into a file, so that the filter waits only for its input.
        output = self.folder / "output"
        with output.open("wb") as file:
            process = self.start(spooled=spooled, stdout=file, **settings)
        process.stdin.write(document[:position])
        self.cancel_when_waiting(process)
        try:
            process.stdin.write(document[position:])
        except BrokenPipeError:
            pass  # it has seen enough
        process.stdin.close()
        messages = self.end(process)
        left = [file.read_bytes() for file in self.spool_files()]
        for file in self.spool_files():
            file.unlink()
        return output.read_bytes(), left, messages

    def test_cancelled_at_page_edges(self):
        document = pages(90)
        ends = list(page_end_lines(document))
        edge = next(end for end in ends if end[1] > PIPE)
        positions = [0, 1, ends[0][0], ends[0][0] + 1, ends[0][1] - 1, ends[0][1], ends[1][0], ends[1][1] - 1,
                     ends[2][1], edge[0], edge[1] - 1, PIPE - 1, PIPE, PIPE + 1, ends[-1][1] - 1, ends[-1][1],
                     len(document)]
        for position, spooled in itertools.product(positions, MODES):
            with self.subTest(position=position, spooled=spooled):
                # A page ends with its line's end; the first to come after the signal is the last.
                begin = next((begin for begin, end in ends if end > position), None)
                output, left, _ = self.cancel_at(document, position, spooled)
                # Cancelled on its way in, a spooled job leaves its spool file; on its way out, it ends after a page.
                self.assertEqual(left, [document[:begin]] if spooled and begin is not None else [])
                if spooled:
                    self.assert_job(output, document[:ends[0][1]] if begin is None else None)
                else:
                    self.assert_job(output, document + b"\x04" if begin is None else document[:begin])

    def test_cancelled_between_the_mark_and_its_page_end(self):
        options = " ".join(f"{TICKET}WMARK{name}Ticket={value}" for name, value in (
            ("Name", "a"), ("Type", 0), ("OnlyFirst", 0), ("Text", "(DRAFT)"), ("Font", "A"), ("Angle", 0)))
        mark = (b"pgsave restore /pgsave save store gsave\n1.02 1.02 1.02 setrgbcolor\n/A -1 selectfont\n"
                b"-0.50 -0.50 moveto\n0 rotate\n(DRAFT) show\ngrestore\n")
        document = b"%!PS\nbp\nep\nbp\nep\n"
        sent = document[:8] + mark + b"ep\nbp\n" + mark
        self.assert_job(self.cancel_at(document, len(document) - 2, False, options=options)[0], sent)
        output, left, _ = self.cancel_at(document, len(document) - 2, True, options=options)
        self.assert_job(output, None)
        self.assertEqual(left, [sent])

    def test_cancelled_at_page_comments(self):
        """Every comment that a page ends at is an end of the job too; the pages before it are reported."""
        for ppd in self.ppds:
            ppd.write_bytes(ppd.read_bytes() + b'*OVPageLogMethod: "PageComments"\n')
        inner = b"%%BeginDocument: a\n%%Page: 1 1\n%%Trailer\n%%EndDocument\n"
        page = inner + b"0 0 moveto\n" * 40
        start = b"%!PS-Adobe-3.0\n" + inner
        document = start + b"".join(b"%%%%Page: %d %d\n" % (n, n) + page for n in range(1, 80)) + b"%%Trailer\nend\n"
        second, last, trailer = (document.rindex(line) for line in (b"%%Page: 2 ", b"%%Page: 79", b"%%Trailer"))
        # Where the signal comes, where the job ends (None: at the document's end) and how many pages were reported.
        signals = ((second - 5, second, 1), (last + 2, last, 78), (trailer + 9, trailer, 79),
                   (len(document) - 1, None, 79))
        for (position, end, logged), spooled in itertools.product(signals, MODES):
            with self.subTest(position=position, spooled=spooled):
                output, left, messages = self.cancel_at(document, position, spooled)
                self.assertEqual(messages, b"".join(b"PAGE: %d 1\n" % page for page in range(1, logged + 1)))
                self.assertEqual(left, [document[:end]] if spooled and end is not None else [])
                if spooled:
                    self.assert_job(output, start if end is None else None)
                else:
                    self.assert_job(output, document + b"\x04" if end is None else document[:end])
        # A page whose own end does not go out is not reported.
        shown = b"%!PS-Adobe-3.0\n%%Page: 1 1\nshowpage\n%%Page: 2 2\nshowpage\n"
        output, _, messages = self.cancel_at(shown, len(shown) - 3, False)
        self.assert_job(output, shown[:-len(b"showpage\n")])
        self.assertEqual(messages, b"PAGE: 1 1\n")
        # Cancelled on its way to the printer, in the midst of a picture: the page is over where the next one begins.
        picture = start + b"%%Page: 1 1\n" + inner.replace(b"%%Trailer\n", b"%%Page: 2 2\n0 0 moveto\n" * 4 * PIPE)
        process = self.start(file=self.write("document.ps", picture + b"%%Page: 2 2\n" + page * 99), spooled=True)
        output = process.stdout.read(3 * PIPE)
        self.cancel_when_waiting(process)
        output += process.stdout.read()
        self.end(process)
        self.assert_job(output, picture)

    def test_spooled_job_copy_has_the_document_once(self):
        options = f"{TICKET}WMARKNameTicket=a {TICKET}WMARKTypeTicket=0"
        output = self.run_job(b"%!PS\n%%EndPageSetup\n1\n%%BeginFeature: *Smoothing True\nshowpage\ntail",
                              options=options, spooled=True, program=COPYING_FILTER)
        copy, = (file for file in self.spool_files() if file.suffix == ".job")
        feature = b"@PJL SET RET=ON\n"
        header, _, rest = output.partition(ENTER)
        document = rest.removesuffix(TRAILER)
        self.assertEqual(document, b"%!PS\n%%EndPageSetup\nwqwbp\n1\n%%BeginFeature: *Smoothing True\nshowpage\nl\x04")
        self.assertTrue(header.endswith(feature))
        before, line, after = document.partition(b"%%BeginFeature")
        self.assertEqual(copy.read_bytes(),
                         header.removesuffix(feature) + before + feature + line + after + ENTER + TRAILER)

    def test_cancelled_while_the_printer_waits(self):
        document = pages(600)
        path = self.write("document.ps", document)
        for offset, spooled in itertools.product((1, 3000, PIPE, 5 * PIPE), MODES):
            with self.subTest(offset=offset, spooled=spooled):
                process = self.start(file=path, spooled=spooled)
                output = self.received(process, offset)
                self.cancel_when_waiting(process)
                output += process.stdout.read()
                self.end(process)
                sent = output.partition(ENTER)[2].removesuffix(TRAILER)
                self.assertIn(len(sent), [end[spooled] for end in page_end_lines(document)])
                self.assert_job(output, document[:len(sent)])
                self.assertLess(len(sent), len(document))
                self.assertEqual(self.spool_files(), [])

    def test_disk_full_under_the_files_of_a_job(self):
        document = pages(200)

        def limit():
            signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
            resource.setrlimit(resource.RLIMIT_FSIZE, (size, size))
        for size, spooled in itertools.product((0, 1, 100, 4096, len(document) - 1), MODES):
            with self.subTest(size=size, spooled=spooled):
                output = self.run_job(document, spooled=spooled, preexec_fn=limit,
                                      program=FILTER if spooled else COPYING_FILTER)
                self.assert_job(output, None if spooled else document + b"\x04")
                copies = self.spool_files()
                self.assertLessEqual(len(copies), not spooled)
                for copy in copies:
                    self.assertTrue(output.startswith(copy.read_bytes()))
                    copy.unlink()

    def test_disk_full_under_standard_output(self):
        with open("/dev/full", "wb") as full:
            self.end(self.start(file=self.write("document.ps", pages(200)), stdout=full))

    def test_no_temporary_directory(self):
        for path in (self.folder / "missing", self.write("file", b""), "", f"{self.folder}/missing" + "/x" * 2500):
            with self.subTest(path=str(path)[-20:]):
                settings = {"environment": {"TMPDIR": str(path)}, "cwd": self.folder}
                self.assert_job(self.run_job(b"ep\n", program=COPYING_FILTER, **settings), b"ep\n\x04")
                if path:
                    self.assert_job(self.run_job(b"ep\n", spooled=True, **settings), None)

    def test_ppds_that_are_none(self):
        attributes = b"".join(b'*OVFiller%06d: "%s"\n' % (number, b"value " * 40) for number in range(190_000))
        contents = (b"", os.urandom(100_000), b"\x1f\x8b\x08\0" + os.urandom(10_000), b"*" + b"x" * 50_000_000,
                    PPD_HEAD + attributes)
        for path in (self.folder, "", self.folder / "missing", *(self.write(f"{len(content)}.ppd", content)
                                                                 for content in contents)):
            with self.subTest(ppd=path):
                self.assert_job(self.run_job(b"ep\n", environment={"PPD": str(path)}), b"ep\n\x04")

    def test_closed_descriptors(self):
        """No file of the filter's takes their place: the output would go to the copy, the messages to the printer."""
        self.ppds[True].write_bytes(self.ppds[True].read_bytes() + b'*OVPageLogMethod: "PageComments"\n')
        document = b"%!PS-Adobe-3.0\n%%Page: 1 1\n" + pages(9)
        whole = [self.run_job(document, spooled=spooled) for spooled in MODES]
        for closed, spooled in itertools.product(((0,), (0, 2), (1,), (0, 1, 2)), MODES):
            with self.subTest(closed=closed, spooled=spooled):
                output = self.run_job(document, spooled=spooled, program=FILTER if spooled else COPYING_FILTER,
                                      preexec_fn=lambda: [os.close(fd) for fd in closed])
                self.assertEqual(output, b"" if 1 in closed else whole[spooled])
                for copy in self.spool_files():
                    self.assertEqual(copy.read_bytes(), whole[False])
                    copy.unlink()

    def test_long_options_and_counts_without_measure(self):
        longest = os.sysconf("SC_PAGESIZE") * 32 - 1
        items = [f"{TICKET}ZPIFCommandTicket_{n}=0,1,2,3 {TICKET}ZPIFCoverValueTicket_{n}=0,1,0,2" for n in range(2000)]
        calls = [(options, "1") for options in (
            "x" * longest, "a=" + "y" * longest, "'" * longest, "{" * longest, "/" * longest,
            " ".join(f"o{n}={n}" for n in range(longest // 5)),
            f"{TICKET}ZPIFCoverCountTicket=2000 " + " ".join(items),
            TICKET + "JBAUserPasswordTextEditTicket=" + "A" * longest,
            TICKET + "WMARKTextTicket=" + "/049" * (longest // 4))]
        tickets = ("ZPIFCoverCountTicket", "ZPIFInsertionCountTicket", "ZPIFExceptionCountTicket", "PrintTypeTicketKey",
                   "PrintTypeProductTypeTicketKey", "WMARKAngleTicket")
        settings = ("PMLayoutRows..n.", "PMCopies..n.", "PMLayoutColumns..n.")
        counted = [TICKET + name for name in tickets] + ["number-up", "orientation-requested", "copies"]
        counted += ["com.apple.print.PrintSettings." + name for name in settings]
        calls += [(" ".join(f"{name}={count}" for name in counted), count)
                  for count in ("2000000000", "2147483647", "-2147483648", "99999999999999999999")]
        for options, copies in calls:
            with self.subTest(options=options[:80], copies=copies):
                self.assert_job(self.run_job(b"ep\n", options=options[:longest], copies=copies), b"ep\n\x04")

    def plant(self, put):
        """Puts something in the place of every copy of the next minute."""
        now = time.time()
        for seconds in range(-1, 60):
            name = time.strftime("wq%Y%m%d%H%M%S.job", time.localtime(now + seconds))
            put(self.temporary / name)

    def test_planted_in_place_of_the_job_copy(self):
        victim = self.write("victim", b"precious")
        readers = []

        def fifo_with_reader(path):
            os.mkfifo(path)
            readers.append(os.open(path, os.O_RDONLY | os.O_NONBLOCK))

        def somebody_elses(path):
            path.touch()
            os.chown(path, 65534, -1)
        for put in (lambda path: path.symlink_to(victim), lambda path: path.symlink_to(self.folder / "new"),
                    lambda path: path.hardlink_to(victim), os.mkfifo, fifo_with_reader, os.mkdir,
                    *([somebody_elses] if os.geteuid() == 0 else [])):
            with self.subTest():
                self.plant(put)
                before = [path.lstat()[:7] for path in (victim, *self.spool_files())]  # all but the times
                self.assert_job(self.run_job(b"ep\n", program=COPYING_FILTER), b"ep\n\x04")
                self.assertEqual([path.lstat()[:7] for path in (victim, *self.spool_files())], before)
                self.assertFalse((self.folder / "new").exists())
                for reader in readers:
                    os.set_blocking(reader, False)
                    self.assertEqual(os.read(reader, 1), b"")
                    os.close(reader)
                readers.clear()
                for path in self.spool_files():
                    path.rmdir() if path.is_dir() and not path.is_symlink() else path.unlink()

    def test_job_copy_is_its_owners_until_it_is_finished(self):
        for older in (lambda path: None, lambda path: (path.touch(), path.chmod(0o676))):
            with self.subTest():
                self.plant(older)
                process = self.start(program=COPYING_FILTER)
                self.settle(process)
                modes = [path.stat().st_mode & 0o777 for path in self.spool_files()]
                self.assertEqual([mode for mode in modes if mode != 0o676], [0o600])
                process.stdin.close()
                self.assert_job(process.stdout.read(), b"\x04")
                self.end(process)
                self.assertEqual({path.stat().st_mode & 0o777 for path in self.spool_files()}, {0o676})

    def blobs(self, output):
        return [Blob(text) for text in re.findall(rb'(?:HOLDENCRYPTKEY="|@JOEP=)([^"]*)"', output)]

    def test_configuration_of_the_hosts_cryptography(self):
        """It can neither take an algorithm away nor the provider that has them."""
        for number, section in enumerate(("alg_section = a\n[a]\ndefault_properties = fips=yes",
                                          "providers = p\n[p]\nbase = b\n[b]\nactivate = 1")):
            path = self.write(f"{number}.cnf", f"openssl_conf = c\n[c]\n{section}\n".encode())
            with self.subTest(section=section):
                output = self.run_job(b"ep\n", options=STORED, environment={"OPENSSL_CONF": str(path)})
                self.assertEqual([blob.password for blob in self.blobs(output)], PASSWORDS)

    def test_each_blob_has_secrets_of_its_own(self):
        blobs = self.blobs(self.run_job(options=STORED) + self.run_job(options=STORED))
        self.assertEqual([blob.password for blob in blobs], PASSWORDS * 2)
        # Nor is a part of one used as another.
        pieces = [value[at:at + 16] for blob in blobs for value in (blob.secret, blob.salt, blob.key, blob.vector)
                  for at in range(0, len(value), 16)]
        self.assertEqual(len(set(pieces)), len(pieces))

    def test_memory_keeps_no_secret(self):
        settings = {"program": shutil.copy(FILTER, self.folder)}
        if os.geteuid() == 0:
            self.folder.chmod(0o755)
            settings["user"] = 65534
        process = self.start(options=STORED, **settings)
        self.settle(process)
        maps = pathlib.Path(f"/proc/{process.pid}/maps")
        if sys.platform == "linux":
            self.assertEqual(maps.stat().st_uid, 0)  # so that nobody of the same user may look
        if os.geteuid() != 0:
            self.skipTest("only root can look at a filter's memory")
        held = b""
        with open(f"/proc/{process.pid}/mem", "rb", 0) as memory:
            for region in re.findall(r"^(\w+)-(\w+) rw", maps.read_text(), re.M):
                begin, end = (int(address, 16) for address in region)
                if end - begin < MEMORY << 8:  # larger ones are a sanitizer's own
                    memory.seek(begin)
                    held += memory.read(end - begin)
        process.stdin.close()
        blobs = self.blobs(process.stdout.read())
        self.end(process)
        self.assertIn(STORED.encode(), held)
        self.assertEqual(len(blobs), 2)
        # Other things may lie over a part of it.
        secrets = [("storage key", bytes.fromhex(STORAGE_KEY))]
        secrets += [item for blob in blobs for item in vars(blob).items()]
        self.assertEqual([name for name, secret in secrets for at in range(0, len(secret) - 15, 8)
                          if secret[at:at + 16] in held], [])

    def test_no_core_file(self):
        process = self.start()
        self.settle(process)
        limits = pathlib.Path(f"/proc/{process.pid}/limits").read_text()
        self.assertRegex(limits, r"Max core file size +0 +0 ")
        process.stdin.close()
        self.end(process)


def tearDownModule():
    peak = resource.getrusage(resource.RUSAGE_CHILDREN).ru_maxrss
    assert peak < MEMORY, f"a job took {peak} KiB"


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0], *sys.argv[3:]])
