"""Ghostscript as the printer: the mark of a watermarked job is in the middle of its pages, and nothing else has changed.

usage: rendered_watermarks.py FILTER

The document brings a font whose glyphs are full rectangles, so that the mark must fill its turned box to the edges.
"""

import cmath
import math
import os
import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

FILTER = sys.argv[1]
PAPER_WIDTH, PAPER_HEIGHT = 180, 250  # small, for speed
BOX_WIDTH, BOX_HEIGHT = 100, 28       # five glyphs of 0.5 by 0.7 em at 40 points
COLOUR = (255, 127, 127)              # red at half its density
EDGE = 1.5                            # pixels on either side of the box's edge that may go either way
BLANK = (255, 255, 255)

DOCUMENT = """%!PS-Adobe-3.0
%%BeginProlog
/pgsave 0 def
/bp{/pgsave save def}bind def
/ep{pgsave restore showpage}bind def
/lines{0 0 0 setrgbcolor 10 20 250{0 exch moveto 250 0 rlineto stroke}for}bind def
/Block<</FontType 3/FontMatrix[.001 0 0 .001 0 0]/FontBBox[0 0 500 700]/Encoding StandardEncoding
/BuildChar{pop pop 500 0 0 0 500 700 setcachedevice 0 0 500 700 rectfill}>>definefont pop
%%EndProlog
%%BeginSetup
<</PageSize[WIDTH HEIGHT]>>setpagedevice
%%EndSetup
bp
%%EndPageSetup
lines
ep
bp
%%EndPageSetup
lines
ep
%%EOF
"""


def filtered(document, tickets):
    options = " ".join(f"com.orvane.dlg.printsettings.WMARK{key}Ticket={value}" for key, value in tickets.items())
    job = subprocess.run([FILTER, "1", "taro", "Report", "1", options], input=document.encode(), capture_output=True,
                         check=True, env={"PATH": os.defpath, "TMPDIR": tempfile.gettempdir(), "PPD": ""}).stdout
    return job.split(b"@PJL ENTER LANGUAGE=POSTSCRIPT\n", 1)[1].split(b"\x04", 1)[0]


def rendered(postscript):
    """The pages, each as rows of (r, g, b), the lowest row first; one pixel is one point."""
    with tempfile.TemporaryDirectory() as folder:
        subprocess.run(["gs", "-q", "-dSAFER", "-dBATCH", "-dNOPAUSE", "-sDEVICE=ppmraw", "-r72",
                        f"-sOutputFile={folder}/%d.ppm", "-"], input=postscript, check=True, timeout=300)
        return [page(path.read_bytes()) for path in sorted(Path(folder).iterdir())]


def page(ppm):
    fields = re.match(rb"P6\s(?:#.*\n)?(\d+) (\d+)\s255\s", ppm)
    width, height = int(fields[1]), int(fields[2])
    pixels = [tuple(ppm[at:at + 3]) for at in range(fields.end(), len(ppm), 3)]
    return [pixels[width * y:width * (y + 1)] for y in reversed(range(height))]


class RenderedWatermarks(unittest.TestCase):
    def check_mark(self, plain, marked, centre, angle):
        """The box about the centre is covered, and nothing else has changed."""
        turn = cmath.rect(1, -math.radians(angle))
        for y, (before, after) in enumerate(zip(plain, marked, strict=True)):
            for x, pixel in enumerate(after):
                place = (complex(x + 0.5, y + 0.5) - centre) * turn
                outside = max(abs(place.real) - BOX_WIDTH / 2, abs(place.imag) - BOX_HEIGHT / 2)
                if outside > EDGE and pixel != before[x]:
                    self.fail(f"changed at {x} {y}")
                if outside < -EDGE and pixel != COLOUR:
                    self.fail(f"no mark at {x} {y}")

    def test_mark_is_centred(self):
        for landscape, cases in [(False, [(1, 0, 0), (1, 30, 0), (3, 90, 0), (1, 135, 0), (1, 250, complex(25, -40))]),
                                 (True, [(2, 45, 0), (4, 300, 0)])]:
            width, height = (PAPER_HEIGHT, PAPER_WIDTH) if landscape else (PAPER_WIDTH, PAPER_HEIGHT)
            document = DOCUMENT.replace("WIDTH", str(width)).replace("HEIGHT", str(height))
            plain = rendered(filtered(document, {}))
            self.assertTrue(any(pixel != BLANK for row in plain[0] for pixel in row))
            for orientation, angle, offset in cases:
                with self.subTest(orientation=orientation, angle=angle):
                    first, second = rendered(filtered(document, {
                        "Name": "Mark", "Type": 0, "OnlyFirst": 1, "Text": "(ABCDE)", "Font": "Block", "FontSize": 40,
                        "ColorR": 1, "ColorG": 0, "ColorB": 0, "Density": 50, "Angle": angle, "Width": BOX_WIDTH,
                        "Height": BOX_HEIGHT, "Orientation": orientation, "PaperWidth": PAPER_WIDTH,
                        "PaperHeight": PAPER_HEIGHT, "hOffset": offset.real, "vOffset": offset.imag}))
                    self.check_mark(plain[0], first, complex(width / 2, height / 2) + offset, angle)
                    self.assertEqual(plain[1], second)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
