#!/usr/bin/env python3
"""HTML listings in a real browser, and XML listings in a real XML parser, as the real program writes them.

    tests/browser/browser_test.py SUITE PROGRAM [its first arguments]
"""
import os
import shutil
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree
from pathlib import Path

from webdriver import Browser

PROGRAM = sys.argv[2:]
DIRECTORIES = ['', 'Alpha', "Alpha/It's #1", 'Alpha/Second', "Alpha/It's #1/Deep down", 'Beta', 'Beta/Only']
FILES_PER_DIRECTORY = 40  # more than a window shows, so that a jump to a heading can be seen


def windows_path(path):
    return 'Z:' + str(path).replace('/', '\\')


def shown(name):
    """A name without mixed case begins with a capital in listings, and goes on in small letters."""
    return name if name not in (name.lower(), name.upper()) else name[:1].upper() + name[1:].lower()


class ListedTree(unittest.TestCase):
    """A tree of three levels below its start, made once, and a listing of it per test."""

    @classmethod
    def setUpClass(cls):
        cls.work = Path(tempfile.mkdtemp(prefix='Listed'))
        cls.addClassCleanup(shutil.rmtree, cls.work, ignore_errors=True)
        cls.tree = cls.work / 'Start'
        for directory in DIRECTORIES:
            (cls.tree / directory).mkdir(parents=True)
            for number in range(FILES_PER_DIRECTORY):
                (cls.tree / directory / f'File{number}.txt').touch()

    def shown_path(self, path):
        """As listings show it: the names above the start directory re-cased, those below it as they are on disk."""
        start = '\\'.join(shown(name) for name in windows_path(self.tree).split('\\'))
        return '\\'.join([start, *path.relative_to(self.tree).parts])

    def list_as(self, kind, style):
        settings = self.work / 'set.fvf'
        settings.write_text(f'[Folivant 3.5]\r\nFormat={style}\r\nFilter=0000\r\nHeader=Listing\r\nFShow=10110\r\n')
        listing = self.work / f'listing{style}.{kind}ml'
        done = subprocess.run([*PROGRAM, '/f', windows_path(settings), '/d', windows_path(self.tree), '/t', kind[0],
                               '/o', windows_path(listing), '/g'], capture_output=True, timeout=120,
                              env={**os.environ, 'XDG_CONFIG_HOME': str(self.work)})
        self.assertEqual(done.returncode, 0, done.stderr)
        return listing


class Html(ListedTree):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.browser = Browser()
        cls.addClassCleanup(cls.browser.close)

    def headings(self):
        return self.browser.run('return [...document.querySelectorAll("h4")].map(h => h.textContent)')

    def path_in(self, heading):
        """The path, which follows the language's word for it."""
        return heading[heading.index(' Z:\\') + 1:]

    def listed_paths(self):
        return sorted(self.shown_path(self.tree / directory) for directory in DIRECTORIES)

    def test_every_directory_has_a_table(self):
        self.browser.open(self.list_as('ht', 1))
        self.assertEqual(sorted(self.path_in(heading) for heading in self.headings()), self.listed_paths())
        tables = self.browser.run('''return [...document.querySelectorAll("table")].map(table => ({
            captions: [...table.rows[0].cells].map(cell => cell.tagName + " " + cell.innerText.trim()),
            widths: [...table.rows].map(row => row.cells.length),
            shown: table.getBoundingClientRect().height > 100}))''')
        self.assertEqual(len(tables), len(DIRECTORIES))
        for table in tables:
            self.assertEqual(table['captions'], ['TH Name', 'TH Size', 'TH Date'])
            self.assertEqual(set(table['widths']), {3})
            self.assertGreater(len(table['widths']), FILES_PER_DIRECTORY)
            self.assertTrue(table['shown'])

    def test_every_link_lands_on_its_own_heading(self):
        listing = self.list_as('ht', 1)
        self.browser.open(listing)
        links = self.browser.run('''return [...document.querySelectorAll("a[href]")].map(a => {
            let before = null;
            for (const heading of document.querySelectorAll("h4"))
                if (heading.compareDocumentPosition(a) & Node.DOCUMENT_POSITION_FOLLOWING) before = heading;
            return [before.textContent, a.textContent.trim()]})''')
        targets = [self.path_in(heading) + '\\' + name for heading, name in links]
        self.assertEqual(sorted([self.shown_path(self.tree), *targets]), self.listed_paths())
        for index, target in enumerate(targets):
            with self.subTest(target=target):
                self.browser.open(listing)
                self.browser.run('scrollTo(0, 0)')
                self.browser.click(index, 'a[href]')
                scrolled, heading, near_top = self.browser.run('''
                    const first = [...document.querySelectorAll("h4")].find(h => h.getBoundingClientRect().top > -1);
                    return [scrollY, first.textContent, first.getBoundingClientRect().top < 50]''')
                self.assertGreater(scrolled, 0)
                self.assertEqual(self.path_in(heading), target)
                self.assertTrue(near_top)

    def test_tree_and_directory_view_are_one_table(self):
        for style, rows in [(2, 1 + len(DIRECTORIES) * (FILES_PER_DIRECTORY + 1) - 1), (3, 1 + len(DIRECTORIES))]:
            with self.subTest(style=style):
                self.browser.open(self.list_as('ht', style))
                self.assertEqual(self.browser.run(
                    'return [...document.querySelectorAll("table")].map(table => table.rows.length)'), [rows])

    def test_plain_directories_hold_no_links(self):
        self.browser.open(self.list_as('ht', 0))
        self.assertEqual(self.browser.run('return document.querySelectorAll("a[href]").length'), 0)


class Xml(ListedTree):
    def parsed(self, style):
        root = ElementTree.parse(self.list_as('x', style)).getroot()
        self.assertEqual(root.tag, 'xml')
        self.assertEqual([child.tag for child in root][:2], ['generator', 'options'])
        return root

    def names_below(self, path):
        return sorted(child.name for child in path.iterdir())

    def check_nesting(self, element, path):
        """The element's directory and file children are those of the directory, all the way down."""
        listed = {child.findtext('name'): child for child in element if child.tag in ('directory', 'file')}
        self.assertEqual(sorted(listed), self.names_below(path))
        for name, child in listed.items():
            self.assertEqual(child.tag, 'directory' if (path / name).is_dir() else 'file')
            if child.tag == 'directory':
                self.check_nesting(child, path / name)

    def test_a_tree_nests_as_its_directories_do(self):
        [start] = self.parsed(2).findall('directory')
        self.assertEqual(start.findtext('name'), self.shown_path(self.tree))
        self.check_nesting(start, self.tree)

    def test_a_directory_view_nests_as_its_directories_do(self):
        [start] = self.parsed(3).findall('directory')

        def check(element, path):
            self.assertEqual(element.findtext('name'), self.shown_path(path))
            self.assertEqual(element.findtext('files'), str(FILES_PER_DIRECTORY))
            below = sorted(child for child in path.iterdir() if child.is_dir())
            children = sorted(element.findall('directory'), key=lambda child: child.findtext('name'))
            self.assertEqual(len(children), len(below))
            for child, directory in zip(children, below):
                check(child, directory)

        check(start, self.tree)

    def test_included_subdirectories_stand_side_by_side(self):
        listed = {directory.findtext('name'): directory for directory in self.parsed(1).findall('directory')}
        expected = {self.shown_path(self.tree / d): self.tree / d for d in DIRECTORIES}
        self.assertEqual(sorted(listed), sorted(expected))
        for name, directory in listed.items():
            files = sorted(file.findtext('name') for file in directory.findall('file'))
            self.assertEqual(files, self.names_below(expected[name]))
            self.assertIn('files, ', directory.findtext('summary'))

    def test_a_full_path_list_holds_every_path(self):
        paths = [f.text for f in self.parsed(4).iter('fullpath')]
        self.assertEqual(sorted(paths), sorted(self.shown_path(p) for p in self.tree.rglob('*')))


if __name__ == '__main__':
    unittest.main(argv=[sys.argv[0], sys.argv[1]], verbosity=2)
