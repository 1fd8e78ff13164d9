"""Jobs through queues whose PPD says what its choices mean, against the same jobs with the tickets themselves.

usage: ticket_jobs.py FILTER FILTER-THAT-KEEPS-A-COPY ORVANE-JOB PPD-FOLDER TEST-DATA DOCUMENT
"""

import os
import re
import signal
import subprocess
import sys
import tempfile
import unittest

from private_cups import CupsJobs, wait_for

from blobs import Blob

COPYING_FILTER, TOOL, PPDS, DATA, DOCUMENT = sys.argv[2:7]

TICKET = "com.orvane.dlg.printsettings."
PIN = "48150623"

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
ROWS = r"""
*OVSendDefaults: True
*OVTicket OVTestPIN.Custom: ".PrintTypeTicketKey=2 .PrintTypeUserNameTicketKey={user} .PrintTypePasswordTicketKey={password}"
*OVTicket job-password: ".PrintTypeTicketKey=2 .PrintTypeUserNameTicketKey={user} .PrintTypePasswordTicketKey={password}"
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

HELD = ["PrintTypeTicketKey=2", "PrintTypeUserNameTicketKey=taro", "PrintTypePasswordTicketKey={stored}"]
ACCOUNT = ["JBAManageTypeListTicketKey=2", "JBAUserSettingRadioBtnTicket=1", "JBAUserIDListCtrlTicket=1",
           "JBAAccountIDTextEditTicket='KST 7'"]
MARK = ["WMARKNameTicket=x", "WMARKTypeTicket=0", "WMARKFontTicket=Courier"]


def mark(text):
    return [f"WMARKTextTicket={text}", *MARK]


class Jobs(CupsJobs):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        with open(os.path.join(PPDS, "office.ppd"), encoding="utf-8") as file:
            ppd = "".join(line for line in file if not line.startswith(("*OVTicket", "*OVSendDefaults", "*cupsJob")))
        for queue, rows in (("rows", ROWS), ("set", ROWS), ("plain", "")):
            path = cls.cups.path(queue + ".ppd")
            with open(path, "w", encoding="utf-8") as file:
                file.write(ppd + OPTIONS + rows)
            cls.cups.add_queue(queue, path, cls.printer)

    def taken(self, submit):
        """What the printer takes of a job: its header with the blobs opened, and its document."""
        job, _ = super().taken(submit)
        self.assertNotIn(PIN.encode(), job)
        header, _, document = job.partition(b"@PJL ENTER LANGUAGE=POSTSCRIPT\n")
        header = re.sub(rb'(KEY=")([^"]{492})"', lambda blob: blob[1] + b"{" + Blob(blob[2]).password + b'}"', header)
        return header.split(b"\n"), document.split(b"\n")

    def lp(self, queue, *options):
        return self.taken(lambda: self.cups.lp(queue, DOCUMENT, "Monthly report", options))

    def check(self, taken, explicit):
        """Compares with a job on the queue without rows. Its document may name more features, of options that the job
        with rows left to their defaults."""
        explicit = [option.format(stored=self.stored(PIN)) for option in explicit]
        header, document = self.lp("plain", *DEFAULTS, *explicit)
        self.assertEqual(taken[0], header)
        shown = [[line for line in lines if line.endswith((b" show", b" selectfont"))]
                 for lines in (taken[1], document)]
        self.assertEqual(*shown)

    def stored(self, password):
        return subprocess.run([TOOL, "password"], input=password, capture_output=True, text=True,
                              check=True).stdout.strip()

    def tickets(self, *tickets):
        return [TICKET + ticket for ticket in tickets]

    def test_lp(self):
        for options, explicit in (
                ([], []),
                ([f"OVTestPIN=Custom.{PIN}"], self.tickets(*HELD)),
                ([f"OVTestPIN={PIN}", "OVTestHold=Proof"], self.tickets(*HELD)),
                (["OVTestHold=Proof"], self.tickets("PrintTypeTicketKey=3", "PrintTypeUserNameTicketKey=taro")),
                (["OVTestText=Draft", "OVTonerSaver=Mode1"], ["OVTonerSaver=Mode1", *self.tickets(*mark("(Draft)"))]),
                (["OVTestText=Custom.Für-(Yamada)"], self.tickets(*mark(r"(F\\374r-\\050Yamada\\051)"))),
                (["sides=two-sided-short-edge"], ["sides=two-sided-short-edge"]),
                (["Duplex=DuplexNoTumble"], ["sides=two-sided-long-edge"]),
                (["OVStaple=LeftDouble", TICKET + "TabMarginSwitchTicket=0"],
                 ["OVStaple=LeftDouble", *self.tickets("TabMarginSwitchTicket=0")])):
            with self.subTest(options):
                self.check(self.lp("rows", *options), explicit)

    def test_attributes_of_ipp(self):
        for attributes, explicit in (
                ("ATTR keyword sides two-sided-long-edge", ["sides=two-sided-long-edge"]),
                ("ATTR enum finishings 28", ["OVStaple=LeftDouble"]),
                ("ATTR keyword media iso_a3_297x420mm", ["media=A3"]),
                ("ATTR keyword print-color-mode monochrome", ["OVColorMode=Black"]),
                ('ATTR name job-account-id "KST 7"', self.tickets(*ACCOUNT)),
                ("ATTR name job-accounting-user-id yamada",
                 self.tickets(*ACCOUNT[:2], "JBAUserIDListCtrlTicket=2", "JBAUserIDTextEditTicket=yamada")),
                (f'ATTR octetString job-password "{PIN}"', self.tickets(*HELD))):
            with self.subTest(attributes):
                self.check(self.taken(lambda: self.ipp("rows", attributes)), explicit)

    def ipp(self, queue, attributes):
        path = self.cups.path("job.test")
        operation = "GROUP operation-attributes-tag\n"
        if "job-password" in attributes:
            operation += attributes + "\nATTR keyword job-password-encryption none\n"
            attributes = ""
        with open(path, "w", encoding="utf-8") as file:
            file.write(f"""{{
OPERATION Print-Job
GROUP operation-attributes-tag
ATTR charset attributes-charset utf-8
ATTR naturalLanguage attributes-natural-language en
ATTR uri printer-uri $uri
ATTR name requesting-user-name taro
ATTR name job-name "Monthly report"
{operation.split(chr(10), 1)[1]}
GROUP job-attributes-tag
ATTR integer number-up 1
{attributes}
FILE {DOCUMENT}
STATUS successful-ok
DISPLAY job-id
}}
""")
        host = self.cups.path("cups.sock").replace("/", "%2F")
        reply = self.cups.run("ipptool", "-tv", f"ipp://{host}/printers/{queue}", path)
        return f"{queue}-{re.search(r'job-id .*= ([0-9]+)', reply)[1]}"

    def test_defaults(self):
        for command, explicit in (
                (["lpadmin", "-p", "set", "-o", "OVTonerSaver=Mode2", "-o", "Duplex=DuplexTumble", "-o",
                  "OVTestText='Custom.In house'"], ["OVTonerSaver=Mode2", "sides=two-sided-short-edge",
                                                  *self.tickets(*mark(r"'(In house)'"))]),
                (["lpoptions", "-p", "set", "-o", "OVTestHold=Proof"],
                 ["OVTonerSaver=Mode2", "sides=two-sided-short-edge", *self.tickets(
                     *mark(r"'(In house)'"), "PrintTypeTicketKey=3", "PrintTypeUserNameTicketKey=taro")])):
            self.cups.run(*command)
            with self.subTest(command):
                self.check(self.lp("set"), explicit)


class Secrets(unittest.TestCase):
    def test_stand_nowhere_in_clear(self):
        with tempfile.TemporaryDirectory() as folder:
            ppd = os.path.join(folder, "queue.ppd")
            with open(ppd, "w", encoding="utf-8") as file:
                file.write('*PPD-Adobe: "4.3"\n*FormatVersion: "4.3"\n*FileVersion: "1.0"\n*LanguageVersion: English\n'
                           '*LanguageEncoding: ISOLatin1\n*OVPSDecompMode: "1"\n' + OPTIONS + ROWS)
            job = subprocess.Popen(
                [COPYING_FILTER, "1", "taro", "Report", "1", f"OVTestPIN={PIN} job-password={PIN}"], stdin=subprocess.PIPE,
                stdout=subprocess.PIPE, stderr=subprocess.PIPE, env={"PPD": ppd, "TMPDIR": folder, "PATH": "/usr/bin:/bin"})
            # A job that is cancelled leaves its spool file, so that it can be looked at.
            job.stdin.write(b"%!PS\nep\n")
            job.stdin.flush()
            messages = bytearray()
            wait_for(lambda: messages.extend(os.read(job.stderr.fileno(), 4096)) or b"PAGE:" in messages, "the first page")
            job.send_signal(signal.SIGTERM)
            job.stdin.write(b"ep\n" * 100)
            output, rest = job.communicate()
            messages += rest
            os.remove(ppd)
            files = [os.path.join(folder, name) for name in os.listdir(folder)]
            self.assertEqual(len(files), 2, files)  # the job copy and the spool file
            texts = [open(name, "rb").read() for name in files]
        self.assertIn(b"HOLDENCRYPTKEY", output)
        self.assertTrue(all(texts))
        for text in (output, messages, *texts):
            self.assertNotIn(PIN.encode(), text)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
