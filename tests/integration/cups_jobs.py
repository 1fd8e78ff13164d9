"""Jobs through real queues: lp, cupsd, pstops, the filter and the socket backend, to a printer that keeps the bytes.

usage: cups_jobs.py FILTER PPD-FOLDER DOCUMENT OUTPUT-FOLDER
Leaves office.job and production.job in the output folder for the tests that render them.
"""

import os
import re
import socket
import sys
import unittest

from private_cups import CupsJobs, wait_for

from content import ENTER, TICKET, TRAILER, UEL, line_of

PPDS, DOCUMENT, OUTPUT = sys.argv[2:5]
START = UEL + b"@PJL SET STRINGCODESET=UTF8\n@PJL JOB MODE=PRINTER\r\n"
SENDER = rb"@CNAM=%s @LUNA=taro @NLPP=N1 @JOAU=taro\r @ACNA=Monthly\x20report\r" % socket.gethostname().encode()


def case(queue):
    """Options of a job, its header, and lines of feature code, which pstops may list in any order."""
    path = os.path.join(os.path.dirname(__file__), "..", "data", "cups", queue + ".job")
    with open(path, "rb") as file:
        options, header, *features = file.read().replace(b"{sender}", SENDER).split(b"\n\n")
    options = [re.sub(r"^\.", TICKET, option) for option in options.decode().split()]
    lines, features = ([line_of(token) for token in text.split()] for text in (header, b"".join(features)))
    return options, START + b"".join(lines), features


class Jobs(CupsJobs):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        for queue in ("office", "production"):
            cls.cups.add_queue(queue, os.path.join(PPDS, queue + ".ppd"), cls.printer)

    def print(self, queue, document, options=(), meanwhile=None):
        """Prints the document and returns the job's bytes and its name."""
        return self.taken(lambda: self.cups.lp(queue, document, "Monthly report", options), meanwhile)

    def check_document(self, job, name):
        log = "\n".join(self.cups.log_of(name))
        header, enter, rest = job.partition(ENTER)
        self.assertTrue(enter, log)
        self.assertTrue(rest.startswith(b"%!PS-Adobe-3.0\n"))
        self.assertTrue(rest.endswith(b"\n%%EOF\n\x04" + TRAILER), rest[-60:])
        self.assertEqual(rest.split(b"\n").count(b"ep"), 4)
        self.assertIn("pstoorvane) exited with no errors", log)
        self.assertEqual(self.logged(name), [(page, 1) for page in (1, 2, 3, 4)])
        return header

    def test_jobs_have_their_whole_header(self):
        """In spooled mode the document's feature code is in there, too."""
        os.makedirs(OUTPUT, exist_ok=True)
        for queue in ("office", "production"):
            with self.subTest(queue):
                options, expected, features = case(queue)
                job, name = self.print(queue, DOCUMENT, options)
                with open(os.path.join(OUTPUT, queue + ".job"), "wb") as file:
                    file.write(job)
                header = self.check_document(job, name)
                self.assertEqual(header[:len(expected)], expected)
                self.assertCountEqual(header[len(expected):].splitlines(True), features)

    def test_cancelled_job_ends_and_has_the_pages_that_were_sent(self):
        # Far more than what fits between filter and printer, so that the job is cancelled while it is being sent.
        document = self.cups.path("long.ps")
        pages = 160
        with open(document, "w") as file:
            file.write(f"%!PS-Adobe-3.0\n%%Pages: {pages}\n%%EndComments\n%%BeginProlog\n/ep {{showpage}} bind def\n"
                       "%%EndProlog\n%%BeginSetup\n%%EndSetup\n")
            for page in range(1, pages + 1):
                file.write(f"%%Page: {page} {page}\n%%BeginPageSetup\n%%EndPageSetup\n")
                file.write(("% " + "filler " * 14 + "\n") * 1000 + "ep\n")
            file.write("%%Trailer\n%%EOF\n")
        os.chmod(document, 0o644)

        def cancel(name, index):
            wait_for(lambda: len(self.printer.jobs) > index and b"%%Page: 1 1" in self.printer.jobs[index], "pages")
            self.cups.run("cancel", name)
            self.printer.ready.set()

        self.addCleanup(self.printer.ready.set)
        for queue in ("office", "production"):
            with self.subTest(queue):
                self.printer.ready.clear()
                job, name = self.print(queue, document, meanwhile=cancel)
                self.assertTrue(job.endswith(TRAILER), job[-100:])
                log = "\n".join(self.cups.log_of(name))
                self.assertIn("Job canceled", log)
                self.assertIn("pstoorvane) exited with no errors", log)
                sent = job.split(b"\n").count(b"ep")
                self.assertLess(sent, pages * 3 // 4)
                if queue == "office":  # in spooled mode pages are reported before they are sent
                    self.assertEqual(self.logged(name), [(page, 1) for page in range(1, sent + 1)])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
