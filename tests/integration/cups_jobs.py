"""Jobs through real queues: lp, cupsd, pstops, the filter and the socket backend, to a printer that keeps the bytes.

usage: cups_jobs.py FILTER PPD-FOLDER DOCUMENT OUTPUT-FOLDER
Leaves office.job and production.job in the output folder for the tests that render them.
"""

import os
import socket
import sys
import unittest

from private_cups import PrivateCups, Printer, wait_for

FILTER, PPDS, DOCUMENT, OUTPUT = sys.argv[1:5]
TICKET = "com.orvane.dlg.printsettings."
ENTER = b"@PJL ENTER LANGUAGE=POSTSCRIPT\n"
TRAILER = b"\x1b%-12345X@PJL EOJ\n"

# Who sent the job, and how many pages a sheet has, which cupsd always says.
ACCOUNTING = f"""@PJL SET JOBATTR="@CNAM={socket.gethostname()}"
@PJL SET JOBATTR="@LUNA=taro"
@PJL SET JOBATTR="@NLPP=N1"
@PJL SET JOBATTR="@JOAU=taro"\r
@PJL SET JOBATTR="@ACNA=Monthly report"\r
"""

OFFICE_OPTIONS = ["sides=two-sided-long-edge", "OVStaple=LeftDouble", "OVSignature=None", "OVTonerSaver=true",
                  TICKET + "PrintTypeTicketKey=3", TICKET + "PrintTypeUserNameTicketKey=/116/97/114/111",
                  TICKET + "DocumentNameTypeTicketKey=1", TICKET + "TabMarginSwitchTicket=1",
                  TICKET + "TabMarginMMShiftTicket=12"]
OFFICE_HEADER = """\x1b%-12345X@PJL SET STRINGCODESET=UTF8
@PJL JOB MODE=PRINTER\r
@PJL SET HOLD=PROOF
@PJL SET USERNAME="taro"\r
@PJL SET JOBNAME="Monthly report"\r
""" + ACCOUNTING + """@PJL SET JOBATTR="@TABS=12"
@PJL SET JOBATTR="@DIND=PORTRAIT"
@PJL SET JOBATTR="@DIBB=OFF"
@PJL SET JOBATTR="@DIBK=OFF"
@PJL SET ECONOMODE=ON
@PJL SET REDUCTIONRATE=0
@PJL SET JOBATTR="@LWAD=0"
@PJL SET RENDERMODE=COLOR
@PJL COMMENT PRINTJOBINFO VERSION=1.3.0
@PJL COMMENT PRINTJOBINFO BEGIN
@PJL COMMENT PRINTJOBINFO PDLTYPE=PDL[POSTSCRIPT]:VERSION[3]
@PJL COMMENT PRINTJOBINFO JOBTYPE=PRINT
@PJL COMMENT PRINTJOBINFO DUPLEXTYPE=DUPLEX
@PJL COMMENT PRINTJOBINFO COLORMODE=COLOR
@PJL COMMENT PRINTJOBINFO NUP=1
@PJL COMMENT PRINTJOBINFO STAPLE=ON
@PJL COMMENT PRINTJOBINFO PUNCH=OFF
@PJL COMMENT PRINTJOBINFO BOOKLETTYPE=TYPE[NOBOOKLET]
@PJL COMMENT PRINTJOBINFO END
"""

PRODUCTION_OPTIONS = ["OVOutputMode=600x600", "OVHalftone=Fineness", "OVSetTrapMode=True", "OVTonerSaver=Mode1",
                      "OVColorDensityCyanLow=-3", "OVColorDensityBlackHigh=+2", "OVPBindPosition=BindRight",
                      "OVPBindTrimming=1EdgeCut", "OVPBindPageSize=A4", "OVPBindCutPositionFore=10mm"]
PRODUCTION_HEADER = """\x1b%-12345X@PJL SET STRINGCODESET=UTF8
@PJL JOB MODE=PRINTER\r
""" + ACCOUNTING + """@PJL SET JOBATTR="@PBRE=RIGHT"
@PJL SET JOBATTR="@MSDA=ROTLEFPORT"
@PJL SET JOBATTR="@PBTC=FACE"
@PJL SET JOBATTR="@PBBP=A4"
@PJL SET JOBATTR="@PBTP=CUSTOM"
@PJL SET JOBATTR="@PBTW=2000"
@PJL SET JOBATTR="@PBTH=2970"
@PJL SET JOBATTR="@ISXO=50"
@PJL SET JOBATTR="@ISXT=-50"
@PJL SET JOBATTR="@PBAW=0"
@PJL SET JOBATTR="@PBAH=0"
@PJL SET JOBATTR="@PBAB=0"
@PJL SET JOBATTR="@PBAT=0"
@PJL SET JOBATTR="@PBAF=0"
@PJL SET JOBATTR="@PBAX=0"
@PJL SET JOBATTR="@PBAY=0"
@PJL SET JOBATTR="@PBAV=0"
@PJL SET JOBATTR="@PBCP=A3"
@PJL SET JOBATTR="@PBCQ=OFF"
@PJL SET JOBATTR="@PBCC=WHITE"
@PJL SET JOBATTR="@PBCT=AUTO"
@PJL SET JOBATTR="@PBCI=OFF"
@PJL SET JOBATTR="@DIND=PORTRAIT"
@PJL SET JOBATTR="@DIBB=OFF"
@PJL SET JOBATTR="@DIBK=OFF"
@PJL SET ECONOMODE=MODE1
@PJL SET REDUCTIONRATE=0
@PJL SET RENDERMODE=COLOR
"""
# What the document's feature code becomes. pstops may list the features in any order.
PRODUCTION_FEATURES = """@PJL SET RESOLUTION=600
@PJL SET BITSPERPIXEL=1
@PJL SET JOBATTR="@DRDM=RASTER"
@PJL SET JOBATTR="@TSCR=64"
@PJL SET JOBATTR="@GSCR=64"
@PJL SET JOBATTR="@ISCR=64"
@PJL SET JOBATTR="@TTRC=64"
@PJL SET JOBATTR="@GTRC=64"
@PJL SET JOBATTR="@ITRC=64"
@PJL SET JOBATTR="@TCPR=1"
@PJL SET JOBATTR="@GCPR=1"
@PJL SET JOBATTR="@ICPR=1"
@PJL SET JOBATTR="@GRGU=OFF"
@PJL SET JOBATTR="@DDPM=AUTO"
@PJL SET JOBATTR="@BSPM=OFF"
@PJL SET JOBATTR="@SBKP=OFF"
@PJL SET JOBATTR="@TRAP=ON"
@PJL SET ECONOMODE=MODE1
@PJL SET RET=OFF
@PJL SET JOBATTR="@PSBR=0"
@PJL SET JOBATTR="@RGBG=22"
@PJL SET JOBATTR="@RGBP=SRGB"
@PJL SET JOBATTR="@AJCL=0"
@PJL SET JOBATTR="@AJCM=3"
@PJL SET JOBATTR="@AJCH=3"
@PJL SET JOBATTR="@AJML=3"
@PJL SET JOBATTR="@AJMM=3"
@PJL SET JOBATTR="@AJMH=3"
@PJL SET JOBATTR="@AJYL=3"
@PJL SET JOBATTR="@AJYM=3"
@PJL SET JOBATTR="@AJYH=3"
@PJL SET JOBATTR="@AJKL=3"
@PJL SET JOBATTR="@AJKM=3"
@PJL SET JOBATTR="@AJKH=5"
"""


class Jobs(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.printer = Printer()
        cls.cups = cls.enterClassContext(PrivateCups(FILTER))
        for queue in ("office", "production"):
            cls.cups.add_queue(queue, os.path.join(PPDS, queue + ".ppd"), cls.printer)

    def print(self, queue, document, options=(), meanwhile=None):
        """Prints the document and returns the job's bytes and what was logged about it."""
        index = len(self.printer.jobs)
        name = self.cups.lp(queue, document, "Monthly report", options)
        try:
            if meanwhile:
                meanwhile(name, index)
            wait_for(lambda: self.printer.ended > index, f"the last byte of {name}")
            self.cups.wait_done(name)
        except TimeoutError as error:
            self.fail("\n".join([str(error), *self.cups.log_of(name)]))
        return bytes(self.printer.jobs[index]), "\n".join(self.cups.log_of(name))

    def check_document(self, job, log):
        header, enter, rest = job.partition(ENTER)
        self.assertTrue(enter, log)
        self.assertEqual(rest[-len(TRAILER):], TRAILER)
        document = rest[:-len(TRAILER)]
        self.assertTrue(document.startswith(b"%!PS-Adobe-3.0\n"))
        self.assertTrue(document.endswith(b"\n%%EOF\n\x04"), document[-40:])
        self.assertEqual(document.split(b"\n").count(b"ep"), 4)
        self.assertIn("pstoorvane) exited with no errors", log)
        self.assertEqual([f"PAGE: {page} 1" in log for page in (1, 2, 3, 4, 5)], [True] * 4 + [False], log)
        return header.decode()

    def keep(self, name, job):
        os.makedirs(OUTPUT, exist_ok=True)
        with open(os.path.join(OUTPUT, name), "wb") as file:
            file.write(job)

    def test_office_job_has_its_whole_header(self):
        job, log = self.print("office", DOCUMENT, OFFICE_OPTIONS)
        self.keep("office.job", job)
        self.assertEqual(self.check_document(job, log), OFFICE_HEADER)

    def test_production_job_has_its_feature_code_in_the_header(self):
        job, log = self.print("production", DOCUMENT, PRODUCTION_OPTIONS)
        self.keep("production.job", job)
        header = self.check_document(job, log)
        self.assertEqual(header[:len(PRODUCTION_HEADER)], PRODUCTION_HEADER)
        features = header[len(PRODUCTION_HEADER):].splitlines()
        self.assertCountEqual(features, PRODUCTION_FEATURES.splitlines())

    def test_cancelled_job_still_ends(self):
        # Far more than what fits between the filter and the printer, so that the job is cancelled while it is being sent.
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
            wait_for(lambda: len(self.printer.jobs) > index and ENTER in self.printer.jobs[index], f"pages of {name}")
            self.cups.run("cancel", name)
            self.printer.ready.set()

        self.addCleanup(self.printer.ready.set)
        for queue in ("office", "production"):
            with self.subTest(queue):
                self.printer.ready.clear()
                job, log = self.print(queue, document, meanwhile=cancel)
                self.assertTrue(job.endswith(TRAILER), job[-100:])
                self.assertLess(len(job), os.path.getsize(document) * 3 // 4)
                self.assertIn("Job canceled", log)
                self.assertIn("pstoorvane) exited with no errors", log)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
