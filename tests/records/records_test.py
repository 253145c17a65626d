#!/usr/bin/env python3
"""Exact records of the real program, read back by readers that know nothing of it: every name, size and time as an
independent walk of the same tree sees it.

    tests/records/records_test.py SUITE PROGRAM [its first arguments]
"""
import csv
import hashlib
import json
import os
import shutil
import subprocess
import sys
import tempfile
import unittest
from collections import Counter
from datetime import date, datetime, timezone
from pathlib import Path

import jsonschema

import hostile
import sheet

PROGRAM = sys.argv[2:]
UNDER_WINE = len(PROGRAM) > 1
SCHEMA = Path(__file__).resolve().parent.parent.parent / 'docs/formats/jsonl.schema.json'
ENTRY_STYLES = {0: 'files', 1: 'subdirectories', 2: 'tree', 4: 'paths'}
FIELDS = ['path', 'name', 'type', 'size', 'modified', 'created', 'accessed', 'attributes']


def windows_path(path):
    return 'Z:' + str(path).replace('/', '\\')


def can_open(name):
    """Whether the system opens this name: a backslash separates everywhere, and Windows forbids a few characters more."""
    forbidden = b'\\' if not UNDER_WINE else b'\\"*<>?|' + bytes(range(32))
    return not any(byte in forbidden for byte in name)


def can_open_path(path, root):
    return all(can_open(name) for name in os.path.relpath(path, os.fsencode(root)).split(b'/'))


class RecordTest(unittest.TestCase):
    def setUp(self):
        self.work = Path(tempfile.mkdtemp(prefix='Records'))
        self.addCleanup(shutil.rmtree, self.work, ignore_errors=True)
        self.tree = self.work / 'Tree'

    def walk(self, style=4, depth=None):
        """The entries that a style lists, and the directories that cannot be opened. The tree leaves these out."""
        entries, closed = hostile.walk(self.tree, can_open, depth)
        return [entry for entry in entries if style != 2 or entry.text not in closed], closed

    def run_program(self, kind, *lines, directory=None, zone=None):
        """One run; returns its status and the file that it wrote. Without a directory when the lines name a path."""
        settings = self.work / 'set.fvf'
        settings.write_text('\r\n'.join(['[Folivant 3.5]', *lines, '']), encoding='utf-8-sig')
        output = self.work / f'record.{kind}'
        output.unlink(missing_ok=True)
        environment = {**os.environ, 'XDG_CONFIG_HOME': str(self.work)}
        if zone:
            environment['TZ'] = zone
        where = [] if any(line.startswith('Path=') for line in lines) else ['/d', windows_path(directory or self.tree)]
        done = subprocess.run([*PROGRAM, '/f', windows_path(settings), *where, '/k', kind, '/o', windows_path(output), '/g'],
                              capture_output=True, timeout=120, env=environment)
        self.errors = done.stderr.decode(errors='replace')
        return done.returncode, output

    def csv_rows(self, path):
        """Dictionaries, after a look at the bytes that a reader forgives."""
        content = path.read_bytes()
        self.assertTrue(content.startswith(b'\xef\xbb\xbf'))
        self.assertTrue(content.endswith(b'\r\n'))
        with open(path, encoding='utf-8-sig', newline='') as opened:
            rows = list(csv.reader(opened, strict=True))
        for row in rows:
            self.assertEqual(len(row), len(rows[0]), row)
        return rows[0], [dict(zip(rows[0], row)) for row in rows[1:]]

    def json_objects(self, path):
        """The first, those of rows, and the last; each is valid."""
        content = path.read_bytes()
        self.assertTrue(content.endswith(b'}\n'))
        self.assertNotIn(b'\r', content)
        schema = json.loads(SCHEMA.read_text())
        jsonschema.Draft202012Validator.check_schema(schema)
        validator = jsonschema.Draft202012Validator(schema)
        objects = [json.loads(line) for line in content.decode().split('\n')[:-1]]
        for line in objects:
            validator.validate(line)
        self.assertEqual((list(objects[0]), list(objects[-1])), (['listing'], ['complete']))
        return objects[0]['listing'], objects[1:-1], objects[-1]['complete']

    def jq(self, path, expression):
        done = subprocess.run(['jq', '-c', expression, path], capture_output=True, check=True, timeout=120)
        return [json.loads(line) for line in done.stdout.decode().split('\n')[:-1]]

    def sums(self, path):
        """Pairs of a path and its sum, as the tool's manual says how names are escaped."""
        found = []
        for line in path.read_bytes().decode().split('\n')[:-1]:
            escaped = line.startswith('\\')
            total, name = line[escaped:].split('  ', 1)
            if escaped:
                name = name.replace('\\n', '\n').replace('\\r', '\r').replace('\\\\', '\\')
            found.append((name, total))
        return found

    def same(self, found, expected):
        """The same, whatever the order."""
        found, expected = Counter(found), Counter(expected)
        self.assertEqual((sorted(found - expected), sorted(expected - found)), ([], []))
        self.assertTrue(expected, 'nothing was compared')


def row_key(row):
    size = row['size']
    return row['path'], row['type'], None if size in ('', None) else int(size), row['modified']


class RoundTrips(RecordTest):
    """The tree of hostile names, in each style and kind."""

    def setUp(self):
        super().setUp()
        hostile.make(self.tree)
        with open(self.tree / 'sparse.iso', 'wb') as big:
            big.truncate(5_000_000_007)

    def expected(self, style):
        return self.walk(style, depth=0 if style == 0 else None)

    def test_csv(self):
        for style in ENTRY_STYLES:
            with self.subTest(style=style):
                entries, closed = self.expected(style)
                accessed = {entry.text: entry.accessed for entry in entries if not entry.directory}
                status, record = self.run_program('csv', f'Format={style}')
                self.assertEqual(status, 2 if closed else 0, self.errors)
                names, rows = self.csv_rows(record)
                self.assertEqual(names, FIELDS)
                self.same(map(row_key, rows), [entry.key() for entry in entries])
                self.assertEqual({row['path']: row['name'] for row in rows}, {entry.text: entry.name for entry in entries})
                self.assertEqual({row['path']: row['accessed'] for row in rows if row['type'] == 'file'}, accessed)
                hidden = [row['attributes'] for row in rows if row['name'] == '.hidden' and row['type'] == 'file']
                self.assertEqual(set(hidden), {'AH'})

    def test_json(self):
        for style, word in ENTRY_STYLES.items():
            with self.subTest(style=style):
                entries, closed = self.expected(style)
                before = datetime.now(timezone.utc)
                status, record = self.run_program('json', f'Format={style}')
                self.assertEqual(status, 2 if closed else 0, self.errors)
                listing, rows, complete = self.json_objects(record)
                self.same(map(row_key, rows), [entry.key() for entry in entries])
                self.assertEqual({row['path']: row['name'] for row in rows}, {entry.text: entry.name for entry in entries})
                self.assertEqual(listing['root'], hostile.text_of(os.fsencode(self.tree)))
                self.assertEqual((listing['style'], listing['depth']), (word, 0))
                start = datetime.fromisoformat(listing['start'][:26] + '+00:00')
                self.assertLess(abs((start - before).total_seconds()), 60)
                kinds = [entry.type for entry in entries]
                self.assertEqual([complete[count] for count in ('files', 'directories', 'links', 'bytes', 'more_bytes')],
                                 [kinds.count('file'), kinds.count('directory'), kinds.count('link'),
                                  sum(entry.size or 0 for entry in entries), False])
                self.assertEqual(Counter(unread['path'] for unread in complete['unread']), Counter(closed))

    def test_json_as_jq_reads_it(self):
        entries, _ = self.expected(4)
        _, record = self.run_program('json', 'Format=4')
        found = self.jq(record, 'select(.path) | [.path, .type, .size, .modified]')
        self.same(map(tuple, found), [entry.key() for entry in entries])
        self.assertEqual(self.jq(record, 'select(.complete) | .complete.bytes'), [sum(entry.size or 0 for entry in entries)])

    def test_a_list_of_paths(self):
        """In its order, as far as a list can name them: one line is one path."""
        entries = [entry for entry in self.expected(4)[0] if can_open_path(entry.path, self.tree)
                   and entry.text.isprintable() and '"' not in entry.text and '\ufffd' not in entry.text]
        if UNDER_WINE:  # which looks for it in the device of that name
            entries = [entry for entry in entries if '\\nul.txt\\' not in entry.text]
        self.assertGreater(len(entries), 50)
        paths = self.work / 'paths.lst'
        paths.write_text(''.join(f'"{entry.text}"\r\n' for entry in entries), encoding='utf-8-sig', newline='')
        for kind in ['csv', 'json']:
            status, record = self.run_program(kind, 'Format=6', f'Path={windows_path(paths)}')
            self.assertEqual(status, 0, self.errors)
            rows = self.csv_rows(record)[1] if kind == 'csv' else self.json_objects(record)[1]
            self.assertEqual([row_key(row) for row in rows], [entry.key() for entry in entries])

    def test_directory_view(self):
        entries, _ = self.expected(4)
        expected = []
        root = hostile.text_of(os.fsencode(self.tree))
        for directory in [root, *(entry.text for entry in entries if entry.directory)]:
            below = [entry for entry in entries if entry.text.startswith(directory + '\\') and not entry.directory]
            here = [entry for entry in below if entry.text == directory + '\\' + entry.name]
            expected.append((directory, len(here), sum(e.size for e in here), len(below), sum(e.size for e in below)))
        fields = ['path', 'files', 'size', 'total_files', 'total_size']
        _, record = self.run_program('csv', 'Format=3')
        names, rows = self.csv_rows(record)
        self.assertEqual(names, fields)
        self.same([(row['path'], *(int(row[field]) for field in fields[1:])) for row in rows], expected)
        _, record = self.run_program('json', 'Format=3')
        rows = self.json_objects(record)[1]
        self.same([tuple(row[field] for field in fields) for row in rows], expected)


class Choices(RecordTest):
    """Filter, order and depth; and nothing at all."""

    def setUp(self):
        super().setUp()
        hostile.make(self.tree)

    def rows(self, *lines, **options):
        """What both kinds say, which is the same."""
        status, record = self.run_program('csv', *lines, **options)
        self.assertIn(status, (0, 2), self.errors)
        rows = [row_key(row) for row in self.csv_rows(record)[1]]
        status, record = self.run_program('json', *lines, **options)
        self.listing, objects, self.complete = self.json_objects(record)
        self.assertEqual([row_key(row) for row in objects], rows)
        return rows

    def all(self, depth=None, style=4):
        return self.walk(style, depth)[0]

    def test_names(self):
        rows = self.rows('Format=4', 'Filter=1000', 'FilterName=*.txt,-plain*')
        self.same(rows, [entry.key() for entry in self.all()
                         if entry.name.lower().endswith('.txt') and not entry.name.startswith('plain')])
        self.assertEqual(self.listing['filter'], {'name': '*.txt,-plain*'})

    def test_sizes(self):
        for number, size in enumerate([1023, 1024, 1025]):
            hostile.Maker(self.tree).file(b'size%d' % number, size=size)
        rows = self.rows('Format=4', 'Filter=0100', 'FilterSizeMin=True', 'FilterSize=1')
        self.same(rows, [entry.key() for entry in self.all() if (entry.size or 0) >= 1024])
        self.assertEqual(self.listing['filter'], {'minimum_size': 1024})

    def test_a_date_filter_shifts_no_time(self):
        for zone in ['WST8', 'EST-5:30']:
            with self.subTest(zone=zone):
                rows = self.rows('Format=4', 'Filter=0010', 'FilterDateMin=1990/01/01', 'FilterDateMax=2029/12/31',
                                 zone=zone)
                # Each file's time is years away from the next one's, so that a day more or less decides about none.
                self.same(rows, [entry.key() for entry in self.all() if '1990' <= entry.modified[:4] <= '2029'])
                self.assertEqual(self.listing['filter'], {'modified_from': '1990-01-01', 'modified_to': '2029-12-31'})

    def test_hidden_entries(self):
        rows = self.rows('Format=4', 'Filter=0001', 'Attr=22122')
        self.same(rows, [entry.key() for entry in self.all() if entry.name.startswith('.')])
        self.assertEqual(self.listing['filter'], {'attributes': {'hidden': True}})

    def test_depth(self):
        for depth in [1, 3]:
            for style in [1, 2, 4]:
                with self.subTest(depth=depth, style=style):
                    rows = self.rows(f'Format={style}', f'SubLevel={depth}')
                    self.same(rows, [entry.key() for entry in self.all(depth, style)])
                    self.assertEqual(self.listing['depth'], depth)

    def test_order(self):
        for order, word, key in [(3, 'size', lambda row: row[2] or 0), (4, 'modified', lambda row: row[3])]:
            for ascending in [True, False]:
                with self.subTest(order=word, ascending=ascending):
                    rows = self.rows('Format=0', f'OrderBy={order}', f'OrderAZ={ascending}')
                    self.same(rows, [entry.key() for entry in self.all(0)])
                    for directories in [True, False]:  # these stand together
                        keys = [key(row) for row in rows if (row[1] != 'file') == directories]
                        self.assertEqual(keys, sorted(keys, reverse=not ascending))
                    self.assertEqual(self.listing['order'], {'by': word, 'ascending': ascending})

    def test_an_empty_listing(self):
        empty = self.work / 'Nothing'
        empty.mkdir()
        for lines, directory in [([], empty), (['Filter=1000', 'FilterName=no such name'], self.tree / 'Empty directory')]:
            for style in ENTRY_STYLES:
                with self.subTest(style=style, directory=directory):
                    self.assertEqual(self.rows(f'Format={style}', *lines, directory=directory), [])
                    self.assertEqual(self.complete, {'files': 0, 'directories': 0, 'links': 0, 'bytes': 0, 'more_bytes': False,
                                                     'unread': []})
                    names = ','.join(FIELDS).encode()
                    self.assertEqual((self.work / 'record.csv').read_bytes(), b'\xef\xbb\xbf' + names + b'\r\n')
                    status, record = self.run_program('sha256', f'Format={style}', *lines, directory=directory)
                    self.assertEqual((status, record.read_bytes()), (0, b''))

    def test_a_filter_that_admits_nothing(self):
        self.assertEqual(self.rows('Format=4', 'Filter=1000', 'FilterName=no such name'), [])


class Sums(RecordTest):
    def check(self, root):
        return subprocess.run(['sha256sum', '--check', '--strict', self.work / 'record.sha256'], cwd=root, capture_output=True,
                              timeout=120, env={**os.environ, 'LC_ALL': 'C.UTF-8'})

    def files(self, closed=()):
        """Path from the start directory and sum of each file that can be opened."""
        found = []
        for entry in self.walk()[0]:
            if not entry.directory and can_open_path(entry.path, self.tree):
                name = entry.text[len(windows_path(self.tree)) + 1:].replace('\\', '/')
                found.append((name, hashlib.sha256(Path(os.fsdecode(entry.path)).read_bytes()).hexdigest()))
        return found

    def test_the_tool_finds_every_file_unchanged(self):
        hostile.make(self.tree, broken=False, separators=False)
        for style in ENTRY_STYLES:
            with self.subTest(style=style):
                status, record = self.run_program('sha256', f'Format={style}')
                self.assertEqual(status, 2 if UNDER_WINE else 0, self.errors)
                done = self.check(self.tree)
                self.assertEqual(done.returncode, 0, done.stderr)
                files = [name for name, _ in self.files() if style != 0 or '/' not in name]
                self.assertEqual(len(done.stdout.split(b'\n')[:-1]), len(files))
                self.assertTrue(all(line.endswith(b': OK') for line in done.stdout.split(b'\n')[:-1]))
        changed = self.tree / 'plain.txt'
        changed.write_bytes(changed.read_bytes()[::-1] + b'x')
        self.assertIn(b'\nplain.txt: FAILED\n', b'\n' + self.check(self.tree).stdout)

    def test_every_sum_is_that_of_the_bytes(self):
        hostile.make(self.tree)
        status, record = self.run_program('sha256', 'Format=4')
        self.assertEqual(status, 2, self.errors)  # a backslash in a name stands for no path
        self.same(self.sums(record), self.files())

    def test_a_file_that_cannot_be_opened_has_an_empty_field_and_is_named(self):
        hostile.make(self.tree)
        entries, closed = self.walk()
        files = [entry for entry in entries if not entry.directory]
        opened = [entry.text for entry in files if can_open_path(entry.path, self.tree)]
        refused = [entry.text for entry in files if entry.text not in opened]
        status, record = self.run_program('csv', 'Format=4', 'RecordSha256=True', 'RecordLinks=True')
        self.assertEqual(status, 2, self.errors)
        rows = self.csv_rows(record)[1]
        self.same([row['path'] for row in rows if row['sha256']], opened)
        self.same([row['path'] for row in rows if row['type'] == 'file' and not row['sha256']], refused)
        self.assertEqual({row['links'] for row in rows if row['sha256']}, {'1'})
        status, record = self.run_program('json', 'Format=4', 'RecordSha256=True')
        self.assertEqual(status, 2, self.errors)
        _, rows, complete = self.json_objects(record)
        self.same([row['path'] for row in rows if row['sha256']], opened)
        self.same([unread['path'] for unread in complete['unread']], refused + closed)
        for unread in complete['unread']:
            self.assertGreater(unread['code'], 0)
            self.assertGreater(len(unread['reason']), 5)


class Sheets(RecordTest):
    # What a spreadsheet makes of a name that reads like something else; days are counted from 1899-12-30.
    TAKEN_FOR = {'=1+1': ('=', '1+1', 2.0), '+1': 1.0, '-1': -1.0, '123': 123.0, '007': 7.0, '1e5': 100000.0, 'TRUE': True,
                 '2026-01-02': float((date(2026, 1, 2) - date(1899, 12, 30)).days), '12:30': 12.5 / 24}

    def setUp(self):
        super().setUp()
        hostile.make(self.tree)
        with open(self.tree / 'sparse.iso', 'wb') as big:
            big.truncate(5_000_000_007)

    def rows(self, *lines):
        _, self.record = self.run_program('csv', 'Format=4', *lines)
        names, rows = self.csv_rows(self.record)
        return [names, *([row[name] for name in names] for row in rows)]

    def shown(self, text):
        """A cell has one kind of line break, which is a line feed."""
        return text.replace('\r\n', '\n').replace('\r', '\n')

    def compare(self, cells, expected):
        self.assertEqual(len(cells), len(expected))
        for found, wanted in zip(cells, expected):
            self.assertEqual(len(found), len(wanted), wanted)
            for cell, value in zip(found, wanted):
                if isinstance(value, float):
                    self.assertIsInstance(cell, float)
                    self.assertAlmostEqual(cell, value, places=12)
                else:
                    self.assertEqual((type(cell), cell), (type(value), value), wanted)

    def trimmed(self, row):
        """Nothing is saved of empty cells at the end of a row."""
        while row and row[-1] == '':
            row.pop()
        return row

    def test_as_a_double_click_opens_it(self):
        header, *rows = self.rows()
        expected = [header]
        for path, name, kind, size, *others in rows:
            expected.append(self.trimmed([self.shown(path), self.TAKEN_FOR.get(name, self.shown(name)), kind,
                                          float(size) if size else '', *others]))
        cells = sheet.convert(self.record, self.work, sheet.AS_OPENED)
        self.compare([self.trimmed(row) for row in cells], expected)
        self.assertIn(5_000_000_007.0, [row[3] for row in cells])

    def test_with_every_column_as_text(self):
        rows = self.rows()
        cells = sheet.convert(self.record, self.work, sheet.all_text(len(rows[0])))
        self.compare([self.trimmed(row) for row in cells], [self.trimmed([self.shown(value) for value in row]) for row in rows])

    def test_an_apostrophe_keeps_formulas_from_being_any(self):
        header, *rows = self.rows('CsvApostrophe=True')
        names = [row[1] for row in rows]
        self.assertIn("'=1+1", names)
        self.assertIn("'\ttab first", names)
        cells = sheet.convert(self.record, self.work, sheet.AS_OPENED)
        self.assertEqual([cell for row in cells for cell in row if isinstance(cell, tuple)], [])
        found = {row[0]: row[1] for row in cells}
        for name in ['=1+1', '+1', '-1', '@x']:
            self.assertEqual(found[f'{windows_path(self.tree)}\\{name}'].lstrip("'"), name)


class Many(RecordTest):
    """A million made-up entries, of which no disk knows. PROGRAM is made_up.cpp, and these are its rules."""

    COUNT = 1_000_000
    NAMES = ['Document {}.txt', '\u0416\u65e5\u672c {}', 'comma, "quote" {}', 'first half \ud83d {}', 'second half {}\ude00',
             'both \U0001f600 {}', 'line\r\nbreak\t{}', '=1+{} ']
    FIRST_TIME = 100_000_000_000_000_000 - 116_444_736_000_000_000  # in units of 100 ns since 1970

    def write(self, kind):
        path = self.work / f'many.{kind}'
        done = subprocess.run([*PROGRAM, kind, windows_path(path), str(self.COUNT)], capture_output=True, timeout=240)
        self.assertEqual(done.returncode, 0, done.stderr)
        return path

    def entry(self, number):
        name = self.NAMES[number % 8].format(number)
        return (f'Z:\\Made up\\Folder {number // 1000}\\{name}', name, number * 1_000_003,
                hostile.time_text((self.FIRST_TIME + number * 123_456_789_123) * 100))

    def test_csv(self):
        with open(self.write('csv'), encoding='utf-8-sig', newline='') as record:
            rows = csv.reader(record, strict=True)
            self.assertEqual(next(rows), FIELDS)
            number = -1
            for number, row in enumerate(rows):
                path, name, size, modified = self.entry(number)
                if number % 8 in (3, 4):  # half of a pair that stands alone
                    path, name = (text.replace('\ud83d', '\ufffd').replace('\ude00', '\ufffd') for text in (path, name))
                if row != [path, name, 'file', str(size), modified, '', '', 'A']:
                    self.fail(f'{number}: {row}')
        self.assertEqual(number + 1, self.COUNT)

    def test_json(self):
        path = self.write('json')
        with open(path, encoding='utf-8', newline='\n') as record:
            self.assertEqual(json.loads(next(record))['listing']['root'], 'Z:\\Made up')
            for number in range(self.COUNT):
                path, name, size, modified = self.entry(number)
                row = json.loads(next(record))
                if row != {'path': path, 'name': name, 'type': 'file', 'size': size, 'modified': modified, 'created': None,
                           'accessed': None, 'attributes': 'A'}:
                    self.fail(f'{number}: {row}')
            self.assertEqual(json.loads(next(record))['complete'],
                             {'files': self.COUNT, 'directories': 0, 'links': 0, 'more_bytes': False, 'unread': [],
                              'bytes': 1_000_003 * (self.COUNT - 1) * self.COUNT // 2})
            self.assertEqual(record.read(), '')


if __name__ == '__main__':
    unittest.main(argv=[sys.argv[0], sys.argv[1]], verbosity=2)
