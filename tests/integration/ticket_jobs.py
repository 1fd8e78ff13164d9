"""Jobs through queues whose PPD says what its choices mean, against the same jobs with the tickets themselves.

usage: ticket_jobs.py FILTER FILTER-THAT-KEEPS-A-COPY ORVANE-JOB PPD-FOLDER DOCUMENT
"""

import os
import re
import shlex
import signal
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

from private_cups import CupsJobs, wait_for

from blobs import Blob
from content import ENTER, PPD_HEAD, TICKET

COPYING_FILTER, TOOL, PPDS, DOCUMENT = sys.argv[2:6]

PIN = "48150623"

# Options of an office queue's PPD: a PIN, a text, a choice that holds the job; what IPP attributes they stand for.
OPTIONS = r"""
*cupsJobPassword: "11111111"
*cupsJobAccountId: True
*cupsJobAccountingUserId: True
*cupsIPPFinishings 28/staple-dual-left: "*OVStaple LeftDouble"
*APPrinterPreset monochrome/Black and white: "
  *OVColorMode Black
  com.apple.print.preset.graphicsType General
  com.apple.print.preset.quality mid
  com.apple.print.preset.output-mode monochrome"
*End
*OpenUI *OVTestPIN/PIN: PickOne
*OrderDependency: 10 JCLSetup *OVTestPIN
*DefaultOVTestPIN: None
*OVTestPIN None/None: ""
*JCLCloseUI: *OVTestPIN
*CustomOVTestPIN True: ""
*ParamCustomOVTestPIN PIN/PIN: 1 passcode 4 8
*OpenUI *OVTestText/Text: PickOne
*OrderDependency: 10 JCLSetup *OVTestText
*DefaultOVTestText: None
*OVTestText None/None: ""
*OVTestText Draft/Draft: ""
*JCLCloseUI: *OVTestText
*CustomOVTestText True: ""
*ParamCustomOVTestText Text/Text: 1 string 1 40
*OpenUI *OVTestHold/Hold: PickOne
*OrderDependency: 10 AnySetup *OVTestHold
*DefaultOVTestHold: None
*OVTestHold None/None: ""
*OVTestHold Proof/Proof: ""
*CloseUI: *OVTestHold
"""
# What the rows of the queue under test say of them.
ROWS = r"""
*OVSendDefaults: True
*OVTicket OVTestPIN.Custom: ".PrintTypeTicketKey=2 .PrintTypeUserNameTicketKey={user}"
*OVTicket OVTestPIN.Custom: ".PrintTypePasswordTicketKey={password}"
*OVTicket job-password: ".PrintTypeTicketKey=2 .PrintTypeUserNameTicketKey={user}"
*OVTicket job-password: ".PrintTypePasswordTicketKey={password}"
*OVTicket OVTestHold.Proof: ".PrintTypeTicketKey=3 .PrintTypeUserNameTicketKey={user}"
*OVTicket OVTestText.Draft: ".WMARKTextTicket=(Draft)"
*OVTicket OVTestText.Custom: ".WMARKTextTicket={ps}"
*OVTicket OVTestText.None: ".WMARKTypeTicket=1"
*OVTicket OVTestText: ".WMARKNameTicket={} .WMARKTypeTicket=0 .WMARKFontTicket=Courier"
*OVTicket Duplex.None: "sides=one-sided"
*OVTicket Duplex.DuplexNoTumble: "sides=two-sided-long-edge"
*OVTicket Duplex.DuplexTumble: "sides=two-sided-short-edge"
*OVTicket job-account-id: ".JBAManageTypeListTicketKey=2 .JBAUserSettingRadioBtnTicket=1 .JBAUserIDListCtrlTicket=1"
*OVTicket job-account-id: ".JBAAccountIDTextEditTicket={}"
*OVTicket job-accounting-user-id: ".JBAManageTypeListTicketKey=2 .JBAUserSettingRadioBtnTicket=1"
*OVTicket job-accounting-user-id: ".JBAUserIDListCtrlTicket=2 .JBAUserIDTextEditTicket={}"
"""

# What the office queue's defaults are, for the queue without rows; a job's own options come after them.
DEFAULTS = ["OVStaple=None", "OVPunch=None", "OVNumPunchHoles=2Holes", "OVSignature=None", "OVSigVol=None",
            "OVTonerSaver=false", "OVTonerReductionRate=Percent0", "OVLineWeightAdjustment=Normal", "OVColorMode=Color",
            "sides=one-sided", TICKET + "WMARKTypeTicket=1"]

HELD = ".PrintTypeTicketKey=2 .PrintTypeUserNameTicketKey=taro .PrintTypePasswordTicketKey={stored}"
PROOF = ".PrintTypeTicketKey=3 .PrintTypeUserNameTicketKey=taro"
ACCOUNT = ".JBAManageTypeListTicketKey=2 .JBAUserSettingRadioBtnTicket=1 .JBAUserIDListCtrlTicket="
MARK = " .WMARKNameTicket=x .WMARKTypeTicket=0 .WMARKFontTicket=Courier"

# Options of lp, and IPP attributes (type, name, value), with what the queue without rows takes for the same.
LP = (
    ("", ""),
    (f"OVTestPIN=Custom.{PIN}", HELD),
    (f"OVTestPIN={PIN} OVTestHold=Proof", HELD),
    ("OVTestHold=Proof", PROOF),
    ("OVTestText=Draft OVTonerSaver=Mode1", "OVTonerSaver=Mode1 .WMARKTextTicket=(Draft)" + MARK),
    ("OVTestText=Custom.Für-(Yamada)", r"'.WMARKTextTicket=(F\\374r-\\050Yamada\\051)'" + MARK),
    ("sides=two-sided-short-edge", "sides=two-sided-short-edge"),
    ("Duplex=DuplexNoTumble", "sides=two-sided-long-edge"),
    (f"OVStaple=LeftDouble {TICKET}TabMarginSwitchTicket=0", "OVStaple=LeftDouble .TabMarginSwitchTicket=0"),
)
IPP = (
    ("keyword sides two-sided-long-edge", "sides=two-sided-long-edge"),
    ("enum finishings 28", "OVStaple=LeftDouble"),
    ("keyword media iso_a3_297x420mm", "media=A3"),
    ("keyword print-color-mode monochrome", "OVColorMode=Black"),
    ('name job-account-id "KST 7"', ACCOUNT + """1 ".JBAAccountIDTextEditTicket='KST 7'" """),
    ("name job-accounting-user-id yamada", ACCOUNT + "2 .JBAUserIDTextEditTicket=yamada"),
    (f'octetString job-password "{PIN}"', HELD),
)
INHOUSE = """OVTonerSaver=Mode2 sides=two-sided-short-edge ".WMARKTextTicket='(In house)'" """ + MARK
# Commands that set a queue's defaults, one after the other.
SET = (
    ("lpadmin -p set -o OVTonerSaver=Mode2 -o Duplex=DuplexTumble -o OVTestText=\"'Custom.In house'\"",
     INHOUSE),
    ("lpoptions -p set -o OVTestHold=Proof", f"{INHOUSE} {PROOF}"),
)
PRINT_JOB = """{{
OPERATION Print-Job
GROUP operation-attributes-tag
ATTR charset attributes-charset utf-8
ATTR naturalLanguage attributes-natural-language en
ATTR uri printer-uri $uri
ATTR name requesting-user-name taro
ATTR name job-name "Monthly report"
{operation}
GROUP job-attributes-tag
ATTR integer number-up 1
{job}
FILE {document}
STATUS successful-ok
DISPLAY job-id
}}
"""


class Jobs(CupsJobs):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        office = Path(PPDS, "office.ppd").read_text("utf-8")
        ppd = re.sub(r"^\*(OVTicket|OVSendDefaults|cupsJob).*\n", "", office, flags=re.M)
        for queue, rows in (("rows", ROWS), ("set", ROWS), ("plain", "")):
            path = Path(cls.cups.path(queue + ".ppd"))
            path.write_text(ppd + OPTIONS + rows, "utf-8")
            cls.cups.add_queue(queue, path, cls.printer)
        cls.stored = subprocess.run([TOOL, "password"], input=PIN, capture_output=True, text=True).stdout.strip()

    def taken(self, submit):
        """What the printer takes of a job: its header with the blobs opened, and the lines that draw its mark."""
        job, _ = super().taken(submit)
        self.assertNotIn(PIN.encode(), job)
        header, _, document = job.partition(ENTER)
        header = re.sub(rb'(KEY=")([^"]{492})"', lambda blob: blob[1] + b"{" + Blob(blob[2]).password + b'}"', header)
        return header.split(b"\n"), re.findall(rb".* (?:show|selectfont)\n", document)

    def lp(self, queue, options):
        return self.taken(lambda: self.cups.lp(queue, DOCUMENT, "Monthly report", options))

    def check(self, what, taken, explicit):
        """Compares with a job on the queue without rows."""
        options = [re.sub(r"^\.", TICKET, option) for option in shlex.split(explicit.format(stored=self.stored))]
        with self.subTest(what):
            self.assertEqual(taken, self.lp("plain", DEFAULTS + options))

    def ipp(self, attribute):
        is_password = "job-password" in attribute
        operation = f"ATTR {attribute}\nATTR keyword job-password-encryption none" if is_password else ""
        path = Path(self.cups.path("job.test"))
        job = "" if is_password else f"ATTR {attribute}"
        path.write_text(PRINT_JOB.format(operation=operation, job=job, document=DOCUMENT))
        host = self.cups.path("cups.sock").replace("/", "%2F")
        reply = self.cups.run("ipptool", "-tv", f"ipp://{host}/printers/rows", str(path))
        return f"rows-{re.search(r'job-id .*= ([0-9]+)', reply)[1]}"

    def test_jobs_are_those_of_the_tickets(self):
        for options, explicit in LP:
            self.check(options, self.lp("rows", options.split()), explicit)
        for attribute, explicit in IPP:
            self.check(attribute, self.taken(lambda: self.ipp(attribute)), explicit)
        for command, explicit in SET:
            self.cups.run(*shlex.split(command))
            self.check(command, self.lp("set", []), explicit)

    def test_tool_finds_the_PPD_of_a_queue(self):
        with tempfile.TemporaryDirectory() as folder:
            said = self.cups.run("env", f"TMPDIR={folder}", TOOL, "options", "rows", "OVTestHold=Proof")
            self.assertRegex(said, "  HOLD=PROOF +a sample is printed")
            self.assertEqual(os.listdir(folder), [])

    def test_secrets_stand_nowhere_in_clear(self):
        with tempfile.TemporaryDirectory() as folder:
            ppd = Path(self.cups.path("secrets.ppd"))
            ppd.write_text(PPD_HEAD.decode() + '*OVPSDecompMode: "1"\n' + OPTIONS + ROWS)
            job = subprocess.Popen(
                [COPYING_FILTER, "1", "taro", "Report", "1", f"OVTestPIN={PIN} job-password={PIN}"],
                stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                env={"PPD": str(ppd), "TMPDIR": folder, "PATH": "/usr/bin:/bin"})
            # A job that is cancelled leaves its spool file, so that it can be looked at.
            job.stdin.write(b"%!PS\nep\n")
            job.stdin.flush()
            messages = bytearray()
            wait_for(lambda: messages.extend(os.read(job.stderr.fileno(), 4096)) or b"PAGE:" in messages, "a page")
            job.send_signal(signal.SIGTERM)
            job.stdin.write(b"ep\n" * 100)
            output, rest = job.communicate()
            texts = [path.read_bytes() for path in Path(folder).iterdir()]  # the job copy and the spool file
        self.assertEqual((len(texts), all(texts)), (2, True))
        self.assertIn(b"HOLDENCRYPTKEY", output)
        for text in (output, messages + rest, *texts):
            self.assertNotIn(PIN.encode(), text)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
