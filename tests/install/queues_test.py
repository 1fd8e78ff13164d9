"""The PPDs of the sample queues: cupstestppd has nothing to say, CUPS takes every row, all texts are Japanese too, and what
is chosen for a watermark is drawn.

usage: queues_test.py FILTER CUPSTESTPPD DOCUMENT PPD...
"""

import os
import re
import subprocess
import sys
import unittest
from pathlib import Path

FILTER, CUPSTESTPPD, DOCUMENT, *PPDS = sys.argv[1:]
KEY = 40  # characters of option, dot and choice; with one more CUPS refuses the PPD
IPP = {"job-password", "job-account-id", "job-accounting-user-id"}
# Terms and sizes that are the same in Japanese.
SAME = re.compile(r"[\d., x+-]+( mm| in| pt| dpi| %)?|(JIS )?[AB]\d|\d+K( large)?|\d+K.* mm|SRA3|A4 cover, .*|sRGB|Adobe RGB"
                  r"|(Helvetica|Times|Courier)( Bold)?")

# What is chosen, and the tickets that it stands for: text, size, red, green, blue, strength, angle, font, first page only.
MARK = ["Text", "FontSize", "ColorR", "ColorG", "ColorB", "Density", "Angle", "Font", "OnlyFirst"]
MARKS = [
    ("OVWatermark=Draft", "(DRAFT) 72 0.3 0.3 0.3 40 45 Helvetica-Bold 0"),
    ("OVWatermark=Confidential OVMarkColor=Blue", "(CONFIDENTIAL) 72 0 0.2 0.8 40 45 Helvetica-Bold 0"),
    ("OVWatermark=Copy OVMarkColor=Green OVMarkPages=First", "(COPY) 72 0 0.5 0.2 40 45 Helvetica-Bold 1"),
    (r"OVWatermark=Custom.Für\ (2) OVMarkColor=Red OVMarkSize=Custom.50 OVMarkStrength=100 OVMarkAngle=315",
     r"(F\\374r\ \\0502\\051) 50 0.8 0 0 100 315 Helvetica-Bold 0"),
    ("OVWatermark=Custom.極秘 OVMarkFont=GothicBBB-Medium-90ms-RKSJ-H OVMarkAngle=30",
     r"(\\213\\311\\224\\351) 72 0.3 0.3 0.3 40 30 GothicBBB-Medium-90ms-RKSJ-H 0"),
]

# What a unit that is not installed, or a simple one, rules out.
FOLDED = "OVSignature (Left|Right)Sig(Fold|CenterStaple)"
RULED_OUT = {
    "OVFinisher None": f"OVStaple|OVOffset|OVPageOffset|OutputBin Finisher|{FOLDED}",
    "OVFinisher Stapler": f"OVStaple SaddleStaple|{FOLDED}",
    "OVHolePunch False": "OVPunch", "OVTrimmer False": "OVEdgeCut|OVThreeEdgeCut", "OVBinder False": "OVPBindPosition",
    "OVJobStorage False": "OVJobType (Delayed|Mailbox)|OVStorageBox",
}

# PWG 5100.1: the sides and corners in the order of their numbers
SIDES = ["left", "top", "right", "bottom"]
FINISHINGS = {
    **{f"{28 + i}/staple-dual-{side}": f"OVStaple {side.title()}Double" for i, side in enumerate(SIDES)},
    **{f"{74 + i}/punch-dual-{side}": f"OVPunch {side.title()}" for i, side in enumerate(SIDES)},
    "20/staple-top-left": "OVStaple UpperLeftSingle", "21/staple-bottom-left": "OVStaple LowerLeftSingle",
    "22/staple-top-right": "OVStaple UpperRightSingle", "23/staple-bottom-right": "OVStaple LowerRightSingle",
}


class Queue:
    def __init__(self, path):
        with open(path, encoding="utf-8") as file:
            self.text = file.read()
        self.options = {}
        for option in re.findall(r"^\*OpenUI \*(\w+)", self.text, re.M):
            choices = re.findall(rf"^\*{option} ([^/:]+)", self.text, re.M)
            custom = ["Custom"] if f"*Custom{option} True:" in self.text else []
            self.options[option] = choices + custom

    def has(self, option, choice):
        return choice in self.options.get(option, ())


class Queues(unittest.TestCase):
    maxDiff = None

    def each(self):
        for path in PPDS:
            with self.subTest(path):
                yield Queue(path)

    def test_nothing_to_say_about_them(self):
        said = subprocess.run([CUPSTESTPPD, "-W", "filters", *PPDS], capture_output=True, text=True).stdout.splitlines()
        # Before it is installed, the filter is missing.
        said = [line for line in said if line and not re.search("Missing cupsFilter file .*pstoorvane", line)]
        self.assertEqual(said, [f"{path}: PASS" for path in PPDS])

    def test_names_that_are_there(self):
        for queue in self.each():
            rows = re.findall(r"^\*OVTicket ([^:]+):", queue.text, re.M)
            self.assertGreater(len(rows), 20)
            for row in rows:
                option, dot, choice = row.partition(".")
                self.assertLessEqual(len(row), KEY)
                self.assertTrue(queue.has(option, choice) if dot else option in {*IPP, *queue.options}, row)
            named = re.findall(r"^\*(?:cupsIPPFinishings|APPrinterPreset) [^:]+:.*?\"\*(\w+) (\w+)", queue.text, re.M)
            named += re.findall(r"\*(\w+) (\w+)(?= \*|$)", "\n".join(re.findall("^.UIConstraints:(.*)", queue.text, re.M)), re.M)
            self.assertGreater(len(named), 10)
            self.assertEqual([(option, choice) for option, choice in named if not queue.has(option, choice)], [])

    def test_installed_units_matter(self):
        for queue in self.each():
            units = re.search(r"^\*OpenGroup: InstallableOptions.*?^\*CloseGroup", queue.text, re.M | re.S)[0]
            ruled_out = re.findall(r"^\*UIConstraints: \*(\w+ \w+) \*(.+?) ?$", queue.text, re.M)
            chosen = [f"{option} {choice}".strip() for option in queue.options for choice in ["", *queue.options[option]]]
            for unit in re.findall(r"^\*OpenUI \*(\w+)", units, re.M):
                *less, whole = queue.options[unit]
                self.assertIn(f"*Default{unit}: {whole}\n", queue.text)
                for state in (f"{unit} {choice}" for choice in less):
                    self.assertCountEqual([what for by, what in ruled_out if by == state],
                                          [what for what in chosen if re.fullmatch(RULED_OUT[state], what)], state)

    def test_names_mean_what_they_say(self):
        for queue in self.each():
            finishings = dict(re.findall(r'^\*cupsIPPFinishings ([^:]+): "\*(\w+ \w+)"', queue.text, re.M))
            self.assertLessEqual(FINISHINGS.items(), finishings.items())
            codes = re.findall(r'^\*OV\w+ (?!None)(\w+?)(?:Sheets)?/.*: "[/(]?(\w+)\)?/Custom/', queue.text, re.M)
            self.assertEqual([(choice, code) for choice, code in codes if choice != code], [])
            self.assertGreater(len(codes), 10)
            self.assertEqual(queue.has("OVColorMode", "Black"),
                             bool(re.search(r'^\*APPrinterPreset Monochrome/.*"\s*\*OVColorMode Black ', queue.text, re.M)))
            pin = re.search(r'\*cupsJobPassword: "(1+)"', queue.text)[1]
            self.assertIn(f"*ParamCustomOVHoldPIN PIN/PIN: 1 passcode 4 {len(pin)}\n", queue.text)

    def test_secrets_stay_out_of_the_document(self):
        """What is typed belongs to the section JCLSetup, for which no code is written."""
        for queue in self.each():
            self.assertNotIn("JCLBegin", queue.text)
            for option in re.findall(r"^\*Custom(\w+) True:", queue.text, re.M):
                self.assertIn(f"*OrderDependency: 10 JCLSetup *{option}\n", queue.text)
                self.assertEqual(len(re.findall(rf"^\*ParamCustom{option} ", queue.text, re.M)), 1)

    def test_japanese_texts(self):
        for queue in self.each():
            texts = re.findall(r"^\*ja\.(?:Translation |ParamCustom)?(OV\w+|[A-Z]\w+)(?: ([^/:]+))?/([^:]*):", queue.text, re.M)
            seen = {(option, choice) for option, choice, _ in texts}
            for option, choices in queue.options.items():
                if option in ("PageRegion",):
                    continue
                for choice in ["", *choices]:
                    if choice != "Custom":
                        self.assertIn((option, choice), seen)
            english = [text for option, choice, text in texts if option in queue.options and choice in
                       ["", *queue.options[option]] and text.isascii() and not SAME.fullmatch(text.replace("<3A>", "."))]
            self.assertEqual(english, [])

    def test_every_japanese_text_is_used(self):
        """A choice that got lost leaves its translation."""
        texts = "".join(Queue(path).text for path in PPDS).replace("<3A>", ":")
        texts += "/Options installed\n"  # of a group for which ppdc has an English text of its own
        with open(Path(__file__).parents[2] / "ppd/ja.po", encoding="utf-8") as file:
            english = re.findall(r'^msgid "(.+)"$', file.read(), re.M)
        self.assertEqual([text for text in english if not re.search(f"/{re.escape(text)}[:\n]", texts)], [])

    def test_watermarks(self):
        def job(ppd, options):
            done = subprocess.run([FILTER, "1", "taro", "Report", "1", options, DOCUMENT], capture_output=True, check=True,
                                  env={**os.environ, "PPD": ppd})
            return done.stdout.split(b"\n")

        for ppd in PPDS:
            plain = job(ppd, "OVWatermark=None OVMarkColor=Red OVMarkSize=36")
            for chosen, meaning in MARKS:
                with self.subTest(ppd, chosen=chosen):
                    values = re.findall(r"(?:\\ |\S)+", meaning)
                    tickets = " ".join(f"com.orvane.dlg.printsettings.WMARK{name}Ticket={value}"
                                       for name, value in zip(MARK, values, strict=True))
                    marked = job(ppd, chosen)
                    self.assertEqual(marked, job(ppd, f"{chosen} {tickets}"))
                    self.assertGreater(len(marked), len(plain) + 10)
                    self.assertIn(b"1 dict dup/EndPage 4 -1 roll put setpagedevice", marked)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
