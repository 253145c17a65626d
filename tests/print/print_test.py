#!/usr/bin/env python3
"""Real print jobs of the real Folivant.exe: a private print server with queues that write PDF files, whose texts and
positions are read back. Run inside tests/env/with-wine.sh.

    tests/print/print_test.py EXE ANSWER WINDOWS [unittest arguments]

ANSWER is the program that reads and answers message boxes (answer.cpp), WINDOWS the one that drives the program's
windows where printers show (windows_test.cpp).

Positions are points from the upper left corner of the sheet, worked out for A4 at 300 dots per inch in the font that
stands in for Courier New: in 10 points a character is 25 dots wide and a line 48 dots high. The sheet has 2479 by 3508
dots; the margins of 20, 20, 15 and 20 mm (left, right, top, bottom) are 236.22, 236.22, 177.17 and 236.22 dots.
"""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import time
import unittest

from print_server import PrintServer

EXE, ANSWER, WINDOWS = (pathlib.Path(name).resolve() for name in sys.argv[1:4])
TESTS = pathlib.Path(__file__).resolve().parent.parent
RUN_WINDOWS = TESTS / "env" / "run-windows.sh"
SCALED = TESTS / "desktop" / "scaled.sh"
STORE = r"HKCU\Software\Folivant 3.0\Settings"
WRITTEN = 981183900  # 2001-02-03 07:05 UTC

POINTS = 72 / 300
LEFT = 236.22 * POINTS
# Lines are 2479 - 2 x 236.22 = 2006.56 dots wide. With all five columns: attributes 5 x 25 before the right end, the
# date 18 x 25 before them, sizes end 2 x 25 before it, the MS-DOS name 22 x 25 before that.
ATTRIBUTES = LEFT + 1881.56 * POINTS
DATE = LEFT + 1431.56 * POINTS
SIZE_END = LEFT + 1381.56 * POINTS
DOS_NAME = LEFT + 831.56 * POINTS
# The directory view: a size takes 10 x 25, a count 9 x 25.
TOTAL_SIZE_END = LEFT + 2006.56 * POINTS
TOTAL_FILES_END = LEFT + 1756.56 * POINTS
DIRECTORY_SIZE_END = LEFT + 1531.56 * POINTS
FILES_END = LEFT + 1281.56 * POINTS
# File lists: date 16 x 25, size two blanks before it; a size takes 13 x 25, so names get a third of 1231.56 - 236.22;
# the folder column begins two blanks after them, counted from the margin, and that margin is counted once more.
FOUND_DATE = LEFT + 1606.56 * POINTS
FOUND_SIZE_END = LEFT + 1556.56 * POINTS
FOUND_FOLDER = LEFT + (50 + 236.22 + 331.78) * POINTS
# A line of text is 48 dots high.
LINE = 48 * POINTS
# A blank and the two characters of a unit.
UNIT = 3 * 6
NEAR = 0.6  # points: positions are whole dots

server = None


def setUpModule():
    global server
    server = PrintServer({"Plain": (0, 0, 0, 0), "Borders": (18, 24, 30, 36), "Refusing": (0, 0, 0, 0)})
    server.run("cupsreject", "Refusing")


def tearDownModule():
    server.remove()


def windows_path(path):
    return "Z:" + str(path).replace("/", "\\")


class Word:
    def __init__(self, match):
        self.left, self.top, self.right, self.bottom = (float(number) for number in match.groups()[:4])
        text = match.group(5).replace("&lt;", "<").replace("&gt;", ">").replace("&amp;", "&")
        self.text = text.replace("\xad", "-")  # in the substitute font both hyphens are one glyph

    def __repr__(self):
        return f"{self.text}@{self.left:.1f},{self.top:.1f}"


class Document:
    """A PDF that arrived: its pages as words with their places, and what came with the job."""

    WORD = re.compile(r'<word xMin="([-.\d]+)" yMin="([-.\d]+)" xMax="([-.\d]+)" yMax="([-.\d]+)">(.*?)</word>')

    def __init__(self, path):
        self.path = path
        self.job = dict(line.split("=", 1) for line in path.with_suffix(".job").read_text().splitlines())
        self.options = self.job["options"].split()
        text = subprocess.run(["pdftotext", "-bbox", path, "-"], check=True, stdout=subprocess.PIPE, text=True).stdout
        self.pages = [[Word(word) for word in self.WORD.finditer(page)] for page in text.split("<page ")[1:]]

    def lines(self, page=1):
        """The texts of a page's lines from top to bottom; words of a line stand within half a line."""
        lines = []
        for word in sorted(self.pages[page - 1], key=lambda word: (word.top, word.left)):
            if lines and abs(word.top - lines[-1][0].top) < LINE / 2:
                lines[-1].append(word)
            else:
                lines.append([word])
        return [" ".join(word.text for word in sorted(line, key=lambda word: word.left)) for line in lines]

    def all_lines(self):
        return [line for page in range(1, len(self.pages) + 1) for line in self.lines(page)]

    def words(self, text, page=1):
        return [word for word in self.pages[page - 1] if word.text == text]

    def postscript(self):
        """What the program's driver handed to the print server."""
        number = int(self.path.stem.rsplit("-", 1)[1])
        return (server.root / f"spool/d{number:05}-001").read_bytes()


class PrintTest(unittest.TestCase):
    def setUp(self):
        # A path that always fits a line: listings shorten longer ones.
        self.work = pathlib.Path(tempfile.mkdtemp(prefix="print", dir="/tmp"))
        self.addCleanup(shutil.rmtree, self.work, ignore_errors=True)
        self.tree = self.work / "Tree"
        self.tree.mkdir()
        self.environment = server.environment

    def file(self, name, size=0):
        path = self.tree / name
        path.parent.mkdir(parents=True, exist_ok=True)
        with open(path, "wb") as made:
            made.truncate(size)
        os.utime(path, (WRITTEN, WRITTEN))
        return path

    def files(self, count):
        for number in range(count):
            self.file(f"File{number:05}.txt", 2048)

    def filter_file(self, *lines):
        path = self.work / "set.fvf"
        defaults = ["Header=Head %n", "Footer=Foot %n", "FShow=11111"]
        path.write_text("\r\n".join(["[Folivant 3.5]", *lines, *defaults, ""]))
        return path

    def store(self, **values):
        subprocess.run(["wine", "reg", "delete", STORE, "/f"], stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                       stderr=subprocess.DEVNULL, timeout=60, check=False)
        for key, value in values.items():
            subprocess.run(["wine", "reg", "add", STORE, "/v", key, "/d", str(value), "/f"], stdin=subprocess.DEVNULL,
                           stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=60, check=True)

    def command(self, *lines, directory=None):
        return [RUN_WINDOWS, EXE, "/f", windows_path(self.filter_file(*lines)), "/d",
                windows_path(directory or self.tree), "/t", "p", "/g"]

    def start(self, *lines, directory=None):
        process = subprocess.Popen(self.command(*lines, directory=directory), env=self.environment,
                                   stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.addCleanup(process.wait, timeout=60)
        return process

    def print(self, *lines, queue="Plain", directory=None, **settings):
        """One /g run to a printer that goes well; returns the one document that it left."""
        self.store(PrinterName=queue, **settings)
        before = server.documents(queue)
        done = subprocess.run(self.command(*lines, directory=directory), env=self.environment,
                              stdin=subprocess.DEVNULL, capture_output=True, timeout=240, check=False)
        self.assertEqual(done.returncode, 0, done.stderr)
        new = [path for path in server.documents(queue) if path not in before]
        self.assertEqual(len(new), 1, "one run is one document")
        return Document(new[0])

    def answer_box(self, seconds=60):
        """Waits for the program's message box, presses its button and returns its text."""
        done = subprocess.run([RUN_WINDOWS, ANSWER, "Folivant", str(seconds)], stdin=subprocess.DEVNULL,
                              capture_output=True, timeout=seconds + 30, check=False)
        self.assertEqual(done.returncode, 0, "no message box came")
        return done.stdout.decode("utf-8").replace("\r", "")

    def place(self, document, text, page=1, index=0):
        words = document.words(text, page)
        self.assertGreater(len(words), index, f"{text} is not on the page: {document.lines(page)}")
        return words[index]

    def near(self, value, expected, what=""):
        self.assertAlmostEqual(value, expected, delta=NEAR, msg=what)


class Pages(PrintTest):
    def check_columns(self, document):
        """A name, its columns and the captions above them."""
        self.near(self.place(document, "File00000.txt").left, LEFT)
        self.near(self.place(document, "2,048").right, SIZE_END - UNIT, "a blank and the unit follow")
        self.near(self.place(document, "2001/02/03").left, DATE)
        self.near(self.place(document, "Directory").left, LEFT)
        self.near(self.place(document, "Name").left, LEFT)
        self.near(self.place(document, "MS-DOS").left, DOS_NAME)
        self.near(self.place(document, "Size").right, SIZE_END - 3 * 6, "three blanks short of the size end")
        self.near(self.place(document, "Attr").left, ATTRIBUTES)

    def test_pages_have_header_footer_captions_and_columns(self):
        self.files(120)
        document = self.print("Format=0")
        self.check_columns(document)
        # 177.17 + 38 + 2 x 48 = 311.2 dots down stand the captions, the first line at 359.2, with the heading the first
        # entry at 599.2. No line begins below 3508 - 236.22 - 4 x 48 = 3079.8: 52 entries on page 1, 57 on the others.
        self.assertEqual(len(document.pages), 3)
        entries = [sum(word.text.startswith("File0") for word in page) for page in document.pages]
        self.assertEqual(entries, [52, 57, 11])
        for number in (1, 2, 3):
            lines = document.lines(number)
            self.assertEqual(lines[0], f"Head {number}")
            self.assertEqual(lines[1], "Name MS-DOS name Size Date Attr")
            self.assertEqual(lines[-1], f"Foot {number}")

    def test_header_and_footer_are_centred_at_the_margins(self):
        self.file("a.txt")
        document = self.print("Format=0")
        head, foot = self.place(document, "Head"), self.place(document, "Foot")
        one = [word for word in document.words("1") if word.left > head.right]
        # "Head 1" is six characters of 4.8 points.
        self.near(head.left, 594.96 / 2 - 6 * 4.8 / 2, "half the sheet less half the text")
        self.near(foot.left, head.left)
        self.near(min(word.right for word in one), head.left + 6 * 4.8)
        self.assertLess(abs(head.top - 177.17 * POINTS), 3, "the text's own upper bearing stays above it")
        self.near(foot.top - head.top, (3508 - 236.22 - 48 - 177.17) * POINTS)

    def test_every_placeholder_is_filled(self):
        self.file("a.txt")
        document = self.print("Format=0", "Header=%p,%l,%f", "Footer=(%g) %d %t page %n", "Filter=1000",
                              "FilterName=*.txt")
        lines = document.lines()
        # Path names that are all capitals or all small are re-cased; this one is long, so its words are joined again.
        self.assertTrue(lines[0].lower().replace(" ", "").startswith(windows_path(self.tree).lower()), lines[0])
        self.assertTrue(lines[0].endswith(",*.txt"), lines[0])
        self.assertRegex(lines[-1], r"^\(\*\.txt\) \d{4}/\d\d/\d\d \d\d:\d\d page 1$")

    def test_borders_that_cannot_be_printed_on_move_nothing_on_the_sheet(self):
        self.files(3)
        plain = self.print("Format=0")
        bordered = self.print("Format=0", queue="Borders")
        self.check_columns(bordered)
        for text in ("Directory", "File00000.txt", "Foot"):
            self.near(self.place(bordered, text).top, self.place(plain, text).top, text)
        # Only what is centred is centred in the printable area: (18 + 595 - 30) / 2 instead of 595 / 2.
        self.near(self.place(bordered, "Head").left, self.place(plain, "Head").left - 6)

    def test_header_and_footer_have_four_fifths_of_the_font_or_their_own(self):
        self.file("a.txt")
        document = self.print("Format=0", "Header=Headline", "Footer=x")
        self.near(self.place(document, "Headline").right - self.place(document, "Headline").left, 8 * 4.8)
        document = self.print("Format=0", "Header=Headline", "Footer=x", "Font80HF=False", "FontNameHF=Courier New",
                              "FontSizeHF=20")
        self.near(self.place(document, "Headline").right - self.place(document, "Headline").left, 8 * 12)

    def test_margins_may_be_inches(self):
        self.file("One.TXT")
        document = self.print("Format=0", "MarginLeft=1", "MarginTop=1", "MarginRight=1", "MarginBottom=1", Inches="True")
        self.near(self.place(document, "One.TXT").left, 72)

    def test_names_too_wide_for_their_column_are_shortened(self):
        self.file("a" * 20 + "B" * 20 + ".txt")
        document = self.print("Format=0")
        # The column is 831.56 - 2 x 25 = 781.56 dots wide: 31 characters, 24 of the name, "..." and ".txt".
        word = self.place(document, "a" * 20 + "BBBB....txt")
        self.near(word.left, LEFT)
        self.assertLess(word.right, DOS_NAME - 12)

    def test_headings_keep_the_end_of_the_directorys_name(self):
        # Bold letters are as wide as others, so 2006.56 dots hold 80 characters. Beside the dots of a name that alone is
        # too long they hold 77 of it, and beside "Directory of " and "...\\" with a name of 54 they hold 9 of its path.
        long, short = "n" * 150 + "-End", "m" * 50 + "-End"
        for name in (long, short):
            self.file(f"{name}/a.txt")
        document = self.print("Format=1")
        headings = [line for line in document.all_lines() if line.endswith("-End")]
        start = "Z:\\Tmp\\Print"[:9]
        self.assertEqual(headings, [f"Directory of {start}...\\{short}", "..." + "n" * 73 + "-End"])
        right = max(word.right for page in document.pages for word in page if word.text.endswith("-End"))
        # In the document a letter is 25.2 dots wide: 42 dots of font height, of which the measure leaves the fraction out.
        self.near(right, LEFT + 80 * 25.2 * POINTS)

    def test_ten_thousand_entries_fill_176_pages(self):
        self.files(10_000)
        document = self.print("Format=0")
        # 52 on the first page and 57 on each other one: 1 + 9948 / 57 rounded up.
        self.assertEqual(len(document.pages), 176)
        self.assertEqual(document.lines(176)[-1], "Foot 176")
        names = [word.text for page in document.pages for word in page if word.text.startswith("File")]
        self.assertEqual(names, [f"File{number:05}.txt" for number in range(10_000)])

    def test_other_letters_are_printed(self):
        self.file("Größe Żółć Жук.txt")
        document = self.print("Format=0")
        self.assertIn("Größe Żółć Жук.txt", " ".join(document.lines()))


class Styles(PrintTest):
    def setUp(self):
        super().setUp()
        self.file("One.txt", 1024)
        self.file("Sub/Two.txt", 2048)
        self.file("Sub/Deep/Three.txt", 9999)

    def body(self, document):
        """The lines between the captions under the header and the footer."""
        return document.lines()[2:-1]

    def test_no_subdirectories(self):
        document = self.print("Format=0", "FShow=10100")
        body = self.body(document)
        self.assertTrue(body[0].startswith("Directory of Z:\\"), body)
        self.assertEqual(body[1:4], ["Name Size", "Sub <DIR>", "One.txt 1,024 b"])
        self.assertEqual(body[4], "2 files, 1,024 b")
        self.assertRegex(body[5], r" free of .*\.$")
        self.assertEqual(len(body), 6)

    def test_include_subdirectories(self):
        document = self.print("Format=1", "FShow=10100")
        body = self.body(document)
        headings = [line for line in body if line.startswith("Directory of ")]
        self.assertEqual(len(headings), 3)
        self.assertTrue(headings[1].endswith("\\Tree\\Sub") and headings[2].endswith("\\Tree\\Sub\\Deep"), headings)
        for line in ("One.txt 1,024 b", "Two.txt 2,048 b", "Three.txt 9,999 b", "1 file, 9,999 b"):
            self.assertIn(line, body)
        self.assertTrue(body[-2].endswith(" kb") or body[-2].endswith(" b"), "the totals: " + body[-2])
        self.assertRegex(body[-1], r" free of .*\.$")
        # The summary stands 20 twips to the right of everything else.
        summary = [word for word in document.pages[0] if word.text == "file," or word.text == "files,"][0]
        count = [word for word in document.pages[0] if abs(word.top - summary.top) < 1][0]
        self.near(count.left, LEFT + 1)

    def test_tree_style(self):
        document = self.print("Format=2", "FShow=10000")
        body = self.body(document)
        self.assertTrue(body[0].startswith("Directory of Z:\\"))
        self.assertEqual(body[2:7], ["One.txt", "Sub", "Two.txt", "Deep", "Three.txt"])
        self.near(self.place(document, "Deep").left, LEFT + 3 * 6)
        self.near(self.place(document, "Three.txt").left, LEFT + 6 * 6)
        self.near(self.place(document, "Two.txt").left, LEFT + 3 * 6)

    def test_directory_view(self):
        document = self.print("Format=3", "TShow=1111")
        captions = document.lines()[1]
        self.assertTrue(captions.startswith("Directory Files Size"), captions)
        body = self.body(document)
        self.assertEqual(body[1].split()[:1], ["Sub"])
        self.assertEqual(body[2].split()[:1], ["Deep"])
        deep = [word for word in document.pages[0] if abs(word.top - self.place(document, "Deep").top) < 1]
        self.near(self.place(document, "Deep").left, LEFT + 6 * 6)
        # "1", "9,999 b " twice: files, size, total files, total size.
        self.assertEqual([word.text for word in sorted(deep, key=lambda word: word.left)],
                         ["Deep", "1", "9,999", "b", "1", "9,999", "b"])
        ends = [word.right for word in sorted(deep, key=lambda word: word.left) if word.text != "b"][1:]
        for end, expected in zip(ends, (FILES_END, DIRECTORY_SIZE_END - UNIT, TOTAL_FILES_END, TOTAL_SIZE_END - UNIT)):
            self.near(end, expected)

    def test_directory_view_captions_that_fill_their_columns_stay_whole(self):
        # "T. files" and the blank before it are the nine characters of its column. In these sizes (17 and 32 dots to a
        # character) twips say so only to the last digit of a fraction.
        for points in (7, 13):
            document = self.print("Format=3", "TShow=1111", f"FontSize={points}")
            self.assertEqual(document.lines()[1], "Directory Files Size T. files T. size")

    def test_full_path_list(self):
        document = self.print("Format=4")
        lines = document.lines()
        self.assertEqual(lines[0], "Head 1")
        self.assertEqual(lines[-1], "Foot 1")
        self.assertEqual(len(lines), 2 + 5, "five entries, no captions, no totals")
        self.assertTrue(any(line.endswith("\\Sub\\Deep\\Three.txt") for line in lines), lines)

    def test_path_list_file(self):
        paths = [self.tree / "One.txt", self.tree / "Sub/Deep/Three.txt"]
        listed = self.work / "paths.txt"
        listed.write_text("".join(windows_path(path) + "\r\n" for path in paths))
        self.store(PrinterName="Plain")
        before = server.documents("Plain")
        # A file argument opens the window; a command line with /g cannot ask for this style, so a stored style does.
        done = subprocess.run(self.command("Format=6", f"Path={windows_path(listed)}")[:4] + ["/t", "p", "/g"],
                              env=self.environment, stdin=subprocess.DEVNULL, capture_output=True, timeout=120,
                              check=False)
        self.assertEqual(done.returncode, 0, done.stderr)
        document = Document([path for path in server.documents("Plain") if path not in before][0])
        three = self.place(document, "Three.txt")
        self.near(three.left, LEFT)
        row = [word for word in document.pages[0] if abs(word.top - three.top) < 1]
        self.near(sorted(row, key=lambda word: word.left)[1].left, FOUND_FOLDER, "the margin counts twice")
        self.near(self.place(document, "9,999").right, FOUND_SIZE_END - UNIT)
        self.near([word for word in row if word.text.startswith("2001")][0].left, FOUND_DATE)


class Jobs(PrintTest):
    def test_the_job_carries_copies_sides_quality_and_source(self):
        self.file("a.txt")
        document = self.print("Format=0", PrinterCopies=3, PrinterDuplex=2, PrinterQuality=-4, PrinterPaperBin=2)
        self.assertEqual(document.job["copies"], "3")
        self.assertIn("collate", document.options, "one copy after the other")
        self.assertIn("sides=two-sided-long-edge", document.options)
        self.assertIn("Duplex=DuplexNoTumble", document.options)
        postscript = document.postscript()
        self.assertIn(b"%%BeginFeature: *InputSlot Lower", postscript)
        self.assertIn(b"72 600 div", postscript, "high quality is the finest resolution")

    def test_the_job_of_plain_settings_is_plain(self):
        self.file("a.txt")
        document = self.print("Format=0")
        self.assertEqual(document.job["copies"], "1")
        self.assertIn("sides=one-sided", document.options)
        postscript = document.postscript()
        self.assertNotIn(b"*InputSlot", postscript)
        self.assertIn(b"72 300 div", postscript)

    def test_horizontal_duplex_turns_on_the_short_edge(self):
        self.file("a.txt")
        self.assertIn("sides=two-sided-short-edge", self.print("Format=0", PrinterDuplex=3).options)

    def test_the_job_is_named_after_what_it_lists(self):
        self.file("a.txt")
        title = self.print("Format=0").job["title"]
        # Names all in small letters are re-cased.
        self.assertEqual(title.lower(), "folivant - " + windows_path(self.tree).lower())

    def test_landscape_turns_the_page(self):
        self.files(60)
        document = self.print("Format=0", "Portrait=False")
        self.assertIn(b"%%Orientation: Landscape", document.postscript())
        # The sheet stays upright and its text runs from the bottom to the top. 2479 dots of height leave room for
        # entries from 599.2 to 2479 - 236.22 - 192 = 2050.8: 31; then 36.
        entries = [sum(word.text.startswith("File0") for word in page) for page in document.pages]
        self.assertEqual(entries[:2], [31, 29])
        first = self.place(document, "File00000.txt")
        self.assertGreater(first.bottom - first.top, 4 * (first.right - first.left))
        self.near(842 - first.bottom, LEFT, "lines begin at the left margin, which is now below")

    def test_a_filter_file_whose_destination_is_the_printer_prints_without_an_output_type(self):
        self.file("a.txt")
        self.store(PrinterName="Plain")
        before = server.documents("Plain")
        command = [word for word in self.command("Format=0", "OutputTo=0") if word not in ("/t", "p")]
        done = subprocess.run(command, env=self.environment, stdin=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                              timeout=120, check=False)
        self.assertEqual(done.returncode, 0)
        new = [path for path in server.documents("Plain") if path not in before]
        self.assertEqual(len(new), 1)
        self.assertIn("a.txt", " ".join(Document(new[0]).lines()))

    def test_both_queues_get_their_own_jobs(self):
        self.file("a.txt")
        before = len(server.documents("Plain"))
        self.print("Format=0", queue="Borders")
        self.assertEqual(len(server.documents("Plain")), before)

    def test_no_stored_printer_is_the_default_printer(self):
        self.file("a.txt")
        self.store()
        before = len(server.documents("Plain"))
        done = subprocess.run(self.command("Format=0"), env=self.environment, stdin=subprocess.DEVNULL,
                              stderr=subprocess.DEVNULL, timeout=120, check=False)
        self.assertEqual(done.returncode, 0)
        self.assertEqual(len(server.documents("Plain")), before + 1)


class Failures(PrintTest):
    def test_a_printer_that_is_gone_is_named(self):
        self.file("a.txt")
        self.store(PrinterName="Gone")
        process = self.start("Format=0")
        text = self.answer_box()
        self.assertRegex(text, r'^Cannot print on "Gone": .+ \(1801\)$')
        self.assertEqual(process.wait(timeout=60), 1)

    def test_a_job_that_is_refused_is_reported(self):
        self.file("a.txt")
        self.store(PrinterName="Refusing")
        process = self.start("Format=0")
        self.assertRegex(self.answer_box(), r'^Cannot print on "Refusing": .+ \(\d+\)$')
        self.assertEqual(process.wait(timeout=60), 1)
        self.assertEqual(server.documents("Refusing"), [])

    def test_a_stopped_queue_takes_the_job_and_prints_it_later(self):
        self.file("a.txt")
        self.store(PrinterName="Borders")
        before = len(server.documents("Borders"))
        server.run("cupsdisable", "Borders")
        try:
            done = subprocess.run(self.command("Format=0"), env=self.environment, stdin=subprocess.DEVNULL,
                                  stderr=subprocess.DEVNULL, timeout=120, check=False)
            self.assertEqual(done.returncode, 0)
            self.assertIn("Borders-", server.run("lpstat", "-o", "Borders"))
        finally:
            server.run("cupsenable", "Borders")
        self.assertEqual(len(server.documents("Borders")), before + 1)

    def test_a_print_server_that_dies_in_the_middle_is_reported(self):
        self.files(3_000)
        own = PrintServer({"Dying": (0, 0, 0, 0)})
        self.addCleanup(own.remove)
        self.environment = own.environment
        self.store(PrinterName="Dying")
        process = self.start("Format=0")
        time.sleep(1.5)  # its pages take longer
        self.assertIsNone(process.poll(), "the run is over already")
        own.kill()
        self.assertRegex(self.answer_box(), r'^Cannot print on "Dying": .+ \(\d+\)$')
        self.assertEqual(process.wait(timeout=60), 1)

    def check_refused(self, message, *lines, **settings):
        """A run that is refused with this message leaves nothing in the queue."""
        self.file("a.txt")
        self.store(PrinterName="Plain", **settings)
        jobs = server.run("lpstat", "-W", "all", "-o", "Plain")
        process = self.start(*lines)
        self.assertEqual(self.answer_box(), message)
        self.assertEqual(process.wait(timeout=60), 1)
        self.assertEqual(server.run("lpstat", "-W", "all", "-o", "Plain"), jobs)

    def test_margins_that_leave_no_room_are_refused(self):
        self.check_refused("The margins leave no room for the listing on the page "
                           "(Left: 20; Top: 15; Right: 20; Bottom: 20 in).", "Format=0", Inches="True")
        # A letter and dots are 100 dots wide, and 2479 - 236.22 - 182.5 x 11.811 are 87.
        self.check_refused("The margins leave no room for the listing on the page "
                           "(Left: 20; Top: 15; Right: 182.5; Bottom: 20 mm).", "Format=4", "MarginRight=182.5")

    def test_fonts_that_fit_on_no_page_are_refused(self):
        self.check_refused("The listing cannot be printed in this font size (Courier New, 0).", "Format=0", "FontSize=0")
        self.check_refused("The listing cannot be printed in this font size (Arial, 2000000000).", "Format=3",
                           "Font80HF=False", "FontNameHF=Arial", "FontSizeHF=2000000000")

    def test_without_any_printer_a_message_says_so(self):
        self.file("a.txt")
        self.environment = dict(server.environment, CUPS_SERVER="127.0.0.1:1")
        self.store()
        process = self.start("Format=0")
        self.assertEqual(self.answer_box(), "No printer is installed.")
        self.assertEqual(process.wait(timeout=60), 1)


class Windows(PrintTest):
    def check(self, tests, runner=(RUN_WINDOWS,), **environment):
        environment = server.environment | {"FOLIVANT_JOBS": windows_path(server.root / "out")} | environment
        done = subprocess.run([*runner, WINDOWS, f"--gtest_filter={tests}"], env=environment,
                              stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=600,
                              check=False)
        output = done.stdout.decode("utf-8", "replace")
        self.assertEqual(done.returncode, 0, output)
        self.assertNotIn("Running 0 tests", output)

    def test_windows_where_printers_show(self):
        self.check("Printers.*")

    def test_the_printer_dialog_on_a_screen_of_200_percent(self):
        self.check("Printers.EveryLanguageFitsIntoTheDialog", (SCALED, "192"))

    def test_margins_that_a_printer_cannot_do(self):
        self.check("SmallMargins.*")

    def test_settings_that_leave_no_room(self):
        self.check("NoRoom.*")

    def test_windows_of_a_system_without_printers(self):
        self.check("NoPrinters.*", CUPS_SERVER="127.0.0.1:1")


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0], *sys.argv[4:]], verbosity=2)
