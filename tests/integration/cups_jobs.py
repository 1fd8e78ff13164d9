"""Jobs through real queues: lp, cupsd, pstops, the filter and the socket backend, to a printer that keeps the bytes.

usage: cups_jobs.py FILTER PPD-FOLDER DOCUMENT OUTPUT-FOLDER
Leaves office.job and production.job in the output folder for the tests that render them.
"""

import os
import socket
import sys
import unittest

from private_cups import CupsJobs, wait_for

from content import line_of

PPDS, DOCUMENT, OUTPUT = sys.argv[2:5]
TICKET = "com.orvane.dlg.printsettings."
ENTER = b"@PJL ENTER LANGUAGE=POSTSCRIPT\n"
TRAILER = b"\x1b%-12345X@PJL EOJ\n"



def header(tokens):
    """The header of tokens as in the job cases; {sender} is who sent the job and the pages of a sheet, as cupsd says."""
    sender = rb"@CNAM={host} @LUNA=taro @NLPP=N1 @JOAU=taro\r @ACNA=Monthly\x20report\r".replace(
        b"{host}", socket.gethostname().encode())
    tokens = tokens.replace(b"{sender}", sender).split()
    lines = b"".join(map(line_of, tokens)).decode()
    return "\x1b%-12345X@PJL SET STRINGCODESET=UTF8\n@PJL JOB MODE=PRINTER\r\n" + lines


OFFICE_OPTIONS = ["sides=two-sided-long-edge", "OVStaple=LeftDouble", "OVSignature=None", "OVTonerSaver=true",
                  TICKET + "PrintTypeTicketKey=3", TICKET + "PrintTypeUserNameTicketKey=/116/97/114/111",
                  TICKET + "DocumentNameTypeTicketKey=1", TICKET + "TabMarginSwitchTicket=1",
                  TICKET + "TabMarginMMShiftTicket=12"]
OFFICE_HEADER = header(rb"""HOLD=PROOF USERNAME="taro"\r JOBNAME="Monthly\x20report"\r {sender}
@TABS=12 @DIND=PORTRAIT @DIBB=OFF @DIBK=OFF ECONOMODE=ON REDUCTIONRATE=0 @LWAD=0 RENDERMODE=COLOR
:VERSION=1.3.0 :BEGIN :PDLTYPE=PDL[POSTSCRIPT]:VERSION[3] :JOBTYPE=PRINT :DUPLEXTYPE=DUPLEX :COLORMODE=COLOR :NUP=1
:STAPLE=ON :PUNCH=OFF :BOOKLETTYPE=TYPE[NOBOOKLET] :END""")

PRODUCTION_OPTIONS = ["OVOutputMode=600x600", "OVHalftone=Fineness", "OVSetTrapMode=True", "OVTonerSaver=Mode1",
                      "OVColorDensityCyanLow=-3", "OVColorDensityBlackHigh=+2", "OVPBindPosition=BindRight",
                      "OVPBindTrimming=1EdgeCut", "OVPBindPageSize=A4", "OVPBindCutPositionFore=10mm"]
PRODUCTION_HEADER = header(rb"""{sender}
@PBRE=RIGHT @MSDA=ROTLEFPORT @PBTC=FACE @PBBP=A4 @PBTP=CUSTOM @PBTW=2000 @PBTH=2970 @ISXO=50 @ISXT=-50
@PBAW=0 @PBAH=0 @PBAB=0 @PBAT=0 @PBAF=0 @PBAX=0 @PBAY=0 @PBAV=0 @PBCP=A3 @PBCQ=OFF @PBCC=WHITE @PBCT=AUTO @PBCI=OFF
@DIND=PORTRAIT @DIBB=OFF @DIBK=OFF ECONOMODE=MODE1 REDUCTIONRATE=0 RENDERMODE=COLOR""")
# What the document's feature code becomes. pstops may list the features in any order.
PRODUCTION_FEATURES = b"".join(map(line_of, rb"""RESOLUTION=600 BITSPERPIXEL=1 @DRDM=RASTER
@TSCR=64 @GSCR=64 @ISCR=64 @TTRC=64 @GTRC=64 @ITRC=64 @TCPR=1 @GCPR=1 @ICPR=1 @GRGU=OFF @DDPM=AUTO @BSPM=OFF @SBKP=OFF
@TRAP=ON ECONOMODE=MODE1 RET=OFF @PSBR=0 @RGBG=22 @RGBP=SRGB @AJCL=0 @AJCM=3 @AJCH=3 @AJML=3 @AJMM=3 @AJMH=3 @AJYL=3
@AJYM=3 @AJYH=3 @AJKL=3 @AJKM=3 @AJKH=5""".split())).decode()


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
        return header.decode()

    def keep(self, name, job):
        os.makedirs(OUTPUT, exist_ok=True)
        with open(os.path.join(OUTPUT, name), "wb") as file:
            file.write(job)

    def test_office_job_has_its_whole_header(self):
        job, name = self.print("office", DOCUMENT, OFFICE_OPTIONS)
        self.keep("office.job", job)
        self.assertEqual(self.check_document(job, name), OFFICE_HEADER)

    def test_production_job_has_its_feature_code_in_the_header(self):
        job, name = self.print("production", DOCUMENT, PRODUCTION_OPTIONS)
        self.keep("production.job", job)
        header = self.check_document(job, name)
        self.assertEqual(header[:len(PRODUCTION_HEADER)], PRODUCTION_HEADER)
        self.assertCountEqual(header[len(PRODUCTION_HEADER):].splitlines(), PRODUCTION_FEATURES.splitlines())

    def test_cancelled_job_ends_and_has_the_pages_that_were_sent(self):
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
