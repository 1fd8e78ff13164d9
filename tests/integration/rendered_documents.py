"""Ghostscript as the printer: watermarks on documents of many producers, which the print system's own filters have laid
out. Every page is marked, and nothing else changes by a pixel, nor anything in the jobs that cups_jobs.py captured.

usage: rendered_documents.py FILTER PPD ORVANE-JOB DOCUMENT FOLDER-OF-ITS-JOBS [FOLDER]
With a last folder, the pages that were wrong are left there.
"""

import functools
import os
import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

from private_cups import without_collate

FILTER, PPD, TOOL, SAMPLE, JOBS, *KEEP = sys.argv[1:]
DPI = 20
MARK = {"Name": "a", "Type": 0, "OnlyFirst": 0, "Text": "(DRAFT)", "Font": "Helvetica-Bold", "FontSize": 90,
        "ColorR": 0.8, "ColorG": 0.2, "ColorB": 0.2, "Density": 100, "Angle": 45}
FIRST_ONLY = MARK | {"OnlyFirst": 1}
COLOUR = "0.8 0.2 0.2"  # no byte of it is 255, which is what blank pixels consist of
A4, LETTER, WIDE, TINY = (595, 842), (612, 792), (842, 595), (18, 18)

# Three pages for groff, of which every other producer makes its document.
SOURCE = b".ps 24\n.vs 30\nOne\n.bp\nTwo\n.bp\nThree\n"


def run(*command, data=b"", environment=None):
    return subprocess.run(list(map(str, command)), input=data, capture_output=True, check=True, timeout=300,
                          env=environment).stdout


def filtered(document, tickets, ppd):
    options = " ".join(f"com.orvane.dlg.printsettings.WMARK{key}Ticket={value}" for key, value in tickets.items())
    job = run(FILTER, 1, "taro", "Report", 1, options, data=document,
              environment={"PATH": os.defpath, "TMPDIR": tempfile.gettempdir(), "PPD": ppd})
    return job.split(b"@PJL ENTER LANGUAGE=POSTSCRIPT\n", 1)[1].rsplit(b"\x04", 1)[0]


# Runs each of the files as a printer does: what one does to the interpreter is undone before the next. After each comes
# a tiny page.
RUN_EACH = """%%!
/run_alone{/jobsave save def(r)file cvx stopped{handleerror}if clear cleardictstack false setglobal
userdict/jobsave get restore}bind def
[%s]{run_alone/jobsave save def<</PageSize[%d %d]>>setpagedevice showpage jobsave restore}forall
"""


def rendered(documents):
    """The pages of each document, by one Ghostscript: width, height and the bytes of their pixels."""
    with tempfile.TemporaryDirectory() as folder:
        files = [Path(folder, f"{number}.ps") for number in range(len(documents))]
        for file, document in zip(files, documents):
            file.write_bytes(document)
        jobs = RUN_EACH % ("".join(f"({file})" for file in files), *TINY)
        said = run("gs", "-q", "-dSAFER", f"--permit-file-read={folder}/*.ps", "-dBATCH", "-dNOPAUSE",
                   "-sDEVICE=ppmraw", f"-r{DPI}", f"-sOutputFile={folder}/%06d.ppm", "-", data=jobs.encode())
        pictures = [path.read_bytes() for path in sorted(Path(folder).glob("*.ppm"))]
    assert not said, said
    pages = [[]]
    for picture in pictures:
        head = re.match(rb"P6\s(?:#.*\n)?(\d+) (\d+)\s255\s", picture)
        width, height = int(head[1]), int(head[2])
        if width == TINY[0] * DPI // 72:
            pages.append([])
        else:
            pages[-1].append((width, height, picture[head.end():]))
    return dict(zip(documents, pages[:-1], strict=True))


def centred(size, show="(DRAFT)", font="/Helvetica-Bold findfont", place="36 mul exch 36 mul exch translate", angle=45):
    """A page with nothing but the mark, in PostScript of the test's own."""
    width, height = size
    return (f"%!\n<</PageSize[{width} {height}]>>setpagedevice {COLOUR} setrgbcolor {width / 72} {height / 72} {place} "
            f"{font} 90 scalefont setfont {angle} rotate {show} dup stringwidth pop -2 div -31.5 moveto show showpage")


def over(page, mark):
    """The page with the mark over it: the mark's bytes where they are not blank."""
    width, height, pixels = page
    assert (width, height) == mark[:2]
    blank = int.from_bytes(mark[2].translate(bytes(255) + b"\xff"))
    both = int.from_bytes(pixels) & blank | int.from_bytes(mark[2]) & ~blank
    return width, height, both.to_bytes(len(pixels))


class RenderedDocuments(unittest.TestCase):
    def check(self, *rows):
        """A row is a label, a document, the sizes of its pages, None for those that are not marked, and, where they are
        others: tickets, the mark of a page of a size, PPD. But for the marks, the pages are the document's."""
        defaults = (MARK, centred, PPD)
        jobs = []
        for label, document, sizes, *others in rows:
            tickets, mark, ppd = (*others, *defaults[len(others):])
            marks = [size and mark(size).encode() for size in sizes]
            jobs.append((label, filtered(document, {}, ppd), filtered(document, tickets, ppd), marks))
        pages = rendered(list(dict.fromkeys(
            document for _, plain, marked, marks in jobs for document in (plain, marked, *filter(None, marks)))))
        for label, plain, marked, marks in jobs:
            with self.subTest(label):
                expected = [over(page, pages[mark][0]) if mark else page
                            for page, mark in zip(pages[plain], marks, strict=True)]
                wrong = [n for n, pair in enumerate(zip(pages[marked], expected, strict=True), 1) if len(set(pair)) > 1]
                for n in wrong if KEEP else []:
                    width, height, pixels = pages[marked][n - 1]
                    Path(KEEP[0], f"{label}-{n}.ppm").write_bytes(b"P6 %d %d 255\n" % (width, height) + pixels)
                self.assertEqual(wrong, [], "pages")

    def test_captured_jobs_have_the_pages_of_their_document(self):
        with tempfile.NamedTemporaryFile() as file:
            documents = [Path(SAMPLE).read_bytes()]
            for queue in ("office", "production"):
                self.assertIn(b": a whole job", run(TOOL, "show", "--postscript", file.name, f"{JOBS}/{queue}.job"))
                documents.append(Path(file.name).read_bytes())
        expected, *captured = rendered(documents).values()
        self.assertEqual([pages == expected for pages in captured], [True] * 2)
        for width, height, pixels in expected:
            self.assertEqual((width, height), tuple(round(points * DPI / 72) for points in A4))
            self.assertGreater(len(pixels) - pixels.count(b"\xff"), 400)  # has ink
        self.assertEqual(len(expected), 4)

    def laid_out(self, document, kind, *options, ppd=PPD):
        with tempfile.NamedTemporaryFile() as file:
            file.write(document)
            file.flush()
            os.chmod(file.name, 0o644)
            arguments = [word for option in options for word in ("-o", option)]
            return run("cupsfilter", "-p", ppd, "-m", "application/vnd.cups-postscript", "-e", "-i",
                       f"application/{kind}", *arguments, file.name)

    @functools.cached_property
    def producers(self):
        """What each of them makes of the source: kind, renderer option, document."""
        groff = run("groff", "-Tps", "-P-pa4", data=SOURCE)
        with tempfile.TemporaryDirectory() as folder:
            path = Path(folder, "document.pdf")
            run("gs", "-q", "-dBATCH", "-dNOPAUSE", "-sDEVICE=pdfwrite", "-sPAPERSIZE=a4", "-o", path, "-", data=groff)
            pdf = path.read_bytes()
            own = {"groff": groff, "pdftops": run("pdftops", path, "-"),
                   "pdftocairo": run("pdftocairo", "-ps", path, "-"),
                   "ps2write": run("gs", "-q", "-dBATCH", "-dNOPAUSE", "-sDEVICE=ps2write", "-o", "-", path)}
        return ([(name, "postscript", "pdftops-renderer=gs", document) for name, document in own.items()] +
                [(f"PDF by {renderer}", "pdf", f"pdftops-renderer={renderer}", pdf)
                 for renderer in ("gs", "pdftops", "pdftocairo")])

    def test_every_producer(self):
        up = {"groff": (1, 2, 4), "PDF by gs": (1, 4)}  # pages of a sheet; pstops puts them there, and pdftopdf
        self.check(*((f"{name}, {n} on a sheet", self.laid_out(document, kind, renderer, f"number-up={n}"),
                      [A4] * -(-3 // n)) for name, kind, renderer, document in self.producers
                     for n in up.get(name, (1,))))

    def test_copies_and_both_sides(self):
        """Collated copies of three pages on both sides, in reversed order: the fourth side is blank."""
        reverse = ("copies=2", "Collate=True", "sides=two-sided-long-edge", "outputorder=reverse")
        groff = self.producers[0][3]
        with tempfile.NamedTemporaryFile() as ppd:
            laid_out = self.laid_out(groff, "postscript", *reverse, ppd=without_collate(PPD, ppd.name))
        self.check(("every page", laid_out, [None, A4, A4, A4] * 2),
                   ("the first page", laid_out, [None, A4] + [None] * 6, FIRST_ONLY),
                   ("two copies", self.laid_out(groff, "postscript", "copies=2"), [A4] * 6))

    def test_documents_of_any_kind(self):
        """What documents do to the page device, the graphics state, the stacks and the names around the procedure."""
        lines = "/l{0 0 0 setrgbcolor 10 20 900{0 exch moveto 900 0 rlineto stroke}for}def\n"
        paper = "<</PageSize[595 842]>>setpagedevice\n"
        page = "l showpage\n"
        wide, letter = (f"<</PageSize[{size}]>>setpagedevice {page}" for size in ("842 595", "612 792"))
        every_other = ("<</EndPage{exch 2 mod 1 eq exch 2 ne and dup{gsave 0 0 1 setrgbcolor 50 50 90 90 rectfill "
                       "grestore}if}>>setpagedevice\n")
        names = "save restore put stopped mark array roll bind findfont setfont show moveto rotate"
        redefined = "".join(f"/{name}{{1 (redefined) ne}}def\n" for name in names.split())
        rows = []
        for label, setup, pages, expected in (
                ("sizes", paper, [page, wide, letter, page], [A4, WIDE, LETTER, LETTER]),
                ("matrix", paper + ".5 .5 scale 30 rotate 40 setlinewidth[30 20]0 setdash 1 setmiterlimit\n",
                 ["0 0 moveto 300 300 lineto 600 0 lineto stroke showpage\n", page], [A4] * 2),
                ("colour", paper + "/DeviceCMYK setcolorspace 1 0 0 0 setcolor 2 setlinejoin 1 setlinecap\n",
                 ["40 setlinewidth 90 90 moveto 300 300 lineto 500 100 lineto stroke showpage\n"], [A4]),
                ("own EndPage", paper + every_other, [page] * 5, [A4] * 2),
                ("deactivation", paper + "/out false def<</EndPage{exch pop 2 eq{out}{true}ifelse}>>setpagedevice\n",
                 ["l/out true def<</PageSize[612 792]>>setpagedevice/out false def\n", page], [None, LETTER]),
                ("copypage", paper, ["l copypage 300 300 90 90 rectfill showpage\n"], [A4] * 2),
                ("save", paper, ["save l showpage restore\n", "/s save def l showpage s restore\n"], [A4] * 2),
                ("global", paper + "true setglobal\n", [page] * 2 + ["currentglobal{l}if showpage\n"], [A4] * 3),
                ("state", paper, ["l 0 0 9 9 rectclip 2 2 scale 45 rotate showpage\n", page], [A4] * 2),
                ("stacks", paper + "1 2 (abc) 20 dict begin\n",
                 [page, "5 dict begin l showpage end\n",
                  "count 3 eq{l}if countdictstack 4 eq{9 9 90 90 rectfill}if showpage\n"], [A4] * 3),
                ("names", paper + redefined, ["9 9 90 90 rectfill showpage\n"], [A4]),
                ("no name left", paper + "/before userdict length FontDirectory length add def\n",
                 ["showpage\n", "userdict length FontDirectory length add before sub 0 ne{l}if showpage\n"], [A4] * 2)):
            body = "".join(f"%%Page: {n} {n}\n{text}" for n, text in enumerate(pages, 1))
            rows += [(label, f"%!PS-Adobe-3.0\n%%EndComments\n{lines}%%BeginSetup\n{setup}%%EndSetup\n{body}%%Trailer\n"
                      .encode(), expected),
                     (f"{label}, only the first page", f"%!PS-Adobe-3.0\n{lines}{setup}%%EndSetup\n{body}".encode(),
                      [None if any(expected[:n]) else size for n, size in enumerate(expected)], FIRST_ONLY)]
        self.check(("no comments", f"%!\r\n% \r\n{lines}{paper}{page}{wide}".encode(), [A4, WIDE]), *rows)

    def test_fonts_and_failures(self):
        """Accents, Shift-JIS for composite fonts, a font that fails: the page is there, and all that follows it."""
        def document(font):
            return (f"%!PS-Adobe-3.0\n{font}/l{{9 9 90 90 rectfill}}def\n<</PageSize[595 842]>>setpagedevice\n"
                    "%%EndSetup\n%%Page: 1 1\n3 l showpage\n"
                    "%%Page: 2 2\n3 eq countdictstack 3 eq and{l}if showpage\n").encode()
        latin = ("/Times-Roman findfont dup length dict copy dup/FID undef dup/Encoding ISOLatin1Encoding put/L exch "
                 "definefont")
        composite = ("/F<</FontType 0/FMapType 2/FontMatrix[1 0 0 1 0 0]/Encoding[0 1]/FDepVector[/Times-Roman "
                     "findfont/Symbol findfont]>>definefont pop\n")
        failing = ("/F<</FontType 3/FontMatrix[.001 0 0 .001 0 0]/FontBBox[0 0 9 9]/Encoding StandardEncoding"
                   "/BuildChar{gsave 9 dict begin 9 dict begin 1 2 3 undefinedname}>>definefont pop\n")
        accents = (("(caf\\\\351)", "(caf\\351)"), ("(\u00c4rger)", "(\\304rger)"), ("/40/195/137/41", "(\\311)"))
        # Shift-JIS A1 would be one byte of kana in a font of one byte; 00 41 01 42 are codes of two fonts.
        self.check(*((f"accents {text}", document(""), [A4] * 2, MARK | {"Text": text, "Font": "Times-Roman"},
                      functools.partial(centred, show=shown, font=latin)) for text, shown in accents),
                   ("composite", document(composite), [A4] * 2, MARK | {"Text": "(\\\\000A\\\\001aé)", "Font": "F"},
                    lambda size: composite + centred(size, "(\\000A\\001a)", "/F findfont")),
                   ("failure", document(failing), [None] * 2, MARK | {"Font": "F"}))

    def test_geometry_of_the_job(self):
        """Paper, box and offsets of the tickets place the mark, also at page markers, for which no attribute asks."""
        markers = "/pgsave 0 def/bp{/pgsave save def}bind def/ep{pgsave restore showpage}bind def\n%%EndProlog\n"
        lines = "10 20 900{0 exch moveto 900 0 rlineto stroke}for\n"
        rows = []
        for orientation, angle, across, up in ((1, 0, 20, -30), (1, 30, 0, 0), (3, 90, 0, 0), (1, 135, 0, 0),
                                               (1, 250, 25, -40), (2, 45, 0, 0), (4, 300, 0, 0)):
            size = A4 if orientation % 2 else WIDE
            geometry = MARK | {"Orientation": orientation, "PaperWidth": A4[0], "PaperHeight": A4[1], "Width": 280,
                               "Height": 63, "hOffset": across, "vOffset": up, "Angle": angle}
            paper = f"<</PageSize[{size[0]} {size[1]}]>>setpagedevice\n"
            page = f"%%Page: 1 1\nbp\n%%EndPageSetup\n{lines}ep\n"
            document = f"%!PS-Adobe-3.0\n%%BeginProlog\n{markers}{paper}%%EndSetup\n{page}{page}".encode()
            by_the_printer = [] if angle else [(PPD, {}), (PPD, {"Width": -1}), (PPD, {"Height": -1})]
            for ppd, box in (("", {"OnlyFirst": 1}), *by_the_printer):
                left = "dup stringwidth pop -2 div" if box.get("Width") else "-140"
                mark = (f"%!\n{paper}{COLOUR} setrgbcolor /Helvetica-Bold 90 selectfont {size[0] / 2 + across} "
                        f"{size[1] / 2 + up} translate {angle} rotate (DRAFT) {left} -31.5 moveto show showpage")
                rows.append((f"orientation {orientation}, {angle} degrees, {box}, {'printer' if ppd else 'markers'}",
                             document, [size, None if "OnlyFirst" in box else size], geometry | box,
                             lambda _, mark=mark: mark, ppd))
        self.check(*rows)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
