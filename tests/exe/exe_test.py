#!/usr/bin/env python3
"""The real Folivant.exe and the native folivant-host on real trees: the same bytes, and what only a Unix file system can
set up (links, unreadable folders, a full disk, odd names, no display). Run inside tests/env/with-wine.sh.

    tests/exe/exe_test.py EXE HOST [unittest arguments]
"""
import os
import re
import shutil
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

EXE, HOST = (Path(p).resolve() for p in sys.argv[1:3])
RUN_WINDOWS = Path(__file__).resolve().parent.parent / 'env' / 'run-windows.sh'
STYLES = {'files': 0, 'subdirectories': 1, 'tree': 2, 'directories': 3, 'paths': 4}
KINDS = {'text': 't', 'tab': 'a', 'csv': 'c', 'html': 'h', 'xml': 'x'}
MEMORY = Path('/dev/shm')  # nobody else writes there, so that the free space of a tree in it stays what it is
SEVEN_IN_THE_MORNING = 981183900  # 2001-02-03 07:05 UTC


def windows_path(path):
    return 'Z:' + str(path).replace('/', '\\')


def shown_path(path):
    """As listings show it: a name all in one case gets a capital and small letters."""
    names = windows_path(path).split('\\')
    return '\\'.join(n.capitalize() if n in (n.lower(), n.upper()) else n for n in names)


class ExeTest(unittest.TestCase):
    def setUp(self):
        self.work = Path(tempfile.mkdtemp(prefix='exe'))
        self.addCleanup(shutil.rmtree, self.work, ignore_errors=True)
        self.tree = self.work / 'Tree'
        self.tree.mkdir()

    def file(self, name, size=0, when=SEVEN_IN_THE_MORNING):
        path = self.tree / name
        path.parent.mkdir(parents=True, exist_ok=True)
        with open(path, 'wb') as made:
            made.truncate(size)
        os.utime(path, (when, when))
        return path

    def filter_file(self, *lines):
        path = self.work / 'set.fvf'
        path.write_text('\r\n'.join(['[Folivant 3.5]', 'Header=Listing', *lines, '']))
        return path

    def command(self, *lines, output, kind='t', native=False, tree=None):
        """A /g run. Without a directory among the arguments when the filter file names one."""
        directory = ['/d', windows_path(tree or self.tree)]
        if tree is None and any(line.startswith('Path=') for line in lines):
            directory = []
        arguments = ['/f', windows_path(self.filter_file(*lines)), *directory, '/t', kind, '/o', windows_path(output), '/g']
        return [*([HOST] if native else [RUN_WINDOWS, EXE]), *arguments]

    def run_program(self, *lines, native=False, output=None, environment=None, **options):
        """One /g run; returns its status, what it said on stderr, and the listing (None when there is none)."""
        output = output or self.work / ('native.out' if native else 'exe.out')
        done = subprocess.run(self.command(*lines, output=output, native=native, **options), capture_output=True, timeout=120,
                              env=environment)
        listing = output.read_bytes() if output.is_file() else None
        return done.returncode, done.stderr, listing

    def paths(self, **options):
        """The lines of a full-path list, without the tree's own path."""
        status, errors, listing = self.run_program('Format=4', **options)
        self.assertEqual(status, 0, errors)
        start = len(windows_path(self.tree)) + 1
        return [line[start:] for line in listing.decode('cp1252').splitlines()]

    def comparable(self, listing):
        """All of it; without the free-space sentence where a busy disk may change it between two runs."""
        if self.tree.is_symlink():
            return listing
        return b'\r\n'.join(line for line in listing.split(b'\r\n') if b' free of ' not in line)


class SameBytes(ExeTest):
    def make_tree(self):
        if MEMORY.is_dir() and os.access(MEMORY, os.W_OK):
            in_memory = tempfile.mkdtemp(prefix='Tree', dir=MEMORY)
            self.addCleanup(shutil.rmtree, in_memory, ignore_errors=True)
            self.tree.rmdir()
            self.tree.symlink_to(in_memory)  # Wine finds nothing by a path that begins with /dev
        for directory in ['', 'Alpha', 'Alpha/Deep', 'Beta', 'Beta/Deeper/Deepest', 'EMPTY']:
            (self.tree / directory).mkdir(parents=True, exist_ok=True)
            for number, size in enumerate([0, 1, 1023, 1024, 9999, 10000, 12345, 10241000]):
                if directory != 'EMPTY':
                    self.file(f'{directory}/{chr(97 + number)}File{number}.{["txt", "doc", "htm"][number % 3]}', size,
                              SEVEN_IN_THE_MORNING + number * 86000)
        for directory in sorted(self.tree.rglob('*'), reverse=True):
            if directory.is_dir():
                os.utime(directory, (SEVEN_IN_THE_MORNING, SEVEN_IN_THE_MORNING))

    def test_every_style_and_kind(self):
        self.make_tree()
        for style, code in STYLES.items():
            for kind, letter in KINDS.items():
                if kind == 'xml':  # holds the time of day: both runs must fall into one minute
                    while time.gmtime().tm_sec > 50:
                        time.sleep(1)
                with self.subTest(style=style, kind=kind):
                    lines = [f'Format={code}', 'FShow=10111', 'Filter=1001', 'Attr=22222']
                    native = self.run_program(*lines, kind=letter, native=True)
                    windows = self.run_program(*lines, kind=letter)
                    self.assertEqual(native[0], 0, native[1])
                    self.assertEqual(windows[0], 0, windows[1])
                    self.assertGreater(len(windows[2]), 100)
                    self.assertEqual(self.comparable(native[2]), self.comparable(windows[2]))

    def test_every_order(self):
        self.make_tree()
        for order in [1, 3, 4, 5]:  # 0 is the file system's own order, and 2 asks for its short names
            for ascending in ['True', 'False']:
                with self.subTest(order=order, ascending=ascending):
                    lines = ['Format=2', f'OrderBy={order}', f'OrderAZ={ascending}']
                    native = self.run_program(*lines, native=True)
                    windows = self.run_program(*lines)
                    self.assertEqual(self.comparable(native[2]), self.comparable(windows[2]))


class OddTrees(ExeTest):
    def test_link_to_an_ancestor_is_listed_but_not_entered(self):
        self.file('Real/Inside.txt')
        (self.tree / 'Real' / 'Back').symlink_to(self.tree)
        for native in [False, True]:
            with self.subTest(native=native):
                status, errors, listing = self.run_program('Format=2', 'FShow=10000', native=native)
                self.assertEqual(status, 0, errors)
                rows = [line.rstrip() for line in listing.decode().splitlines()]
                self.assertIn('   Back', rows)
                self.assertEqual(rows.count('   Inside.txt'), 1)
                self.assertEqual(rows.count('Real'), 1)

    def test_other_links_are_entered(self):
        (self.work / 'Elsewhere').mkdir()
        (self.work / 'Elsewhere' / 'Far.txt').touch()
        (self.tree / 'Link').symlink_to(self.work / 'Elsewhere')
        for native in [False, True]:
            with self.subTest(native=native):
                self.assertIn('Link\\Far.txt', self.paths(native=native))

    def test_two_links_that_lead_into_each_other(self):
        (self.tree / 'One').mkdir()
        (self.tree / 'Two').mkdir()
        (self.tree / 'One' / 'ToTwo').symlink_to(self.tree / 'Two')
        (self.tree / 'Two' / 'ToOne').symlink_to(self.tree / 'One')
        self.file('Two/End.txt')
        for native in [False, True]:
            with self.subTest(native=native):
                self.assertIn('One\\ToTwo\\End.txt', self.paths(native=native))

    def test_broken_link_is_not_seen(self):
        (self.tree / 'Nowhere').symlink_to(self.tree / 'Missing')
        self.file('Here.txt')
        for native in [False, True]:
            with self.subTest(native=native):
                self.assertEqual(self.paths(native=native), ['Here.txt'])

    def test_paths_longer_than_260_characters(self):
        names = ['D%02d' % number + 'x' * 40 for number in range(12)]
        self.file('/'.join(names) + '/Bottom.txt')
        for native in [False, True]:
            with self.subTest(native=native):
                self.assertEqual(self.paths(native=native)[-1], '\\'.join(names) + '\\Bottom.txt')

    def test_four_hundred_directories_in_each_other(self):
        self.file('d/' * 400 + 'Bottom.txt')
        for native in [False, True]:
            with self.subTest(native=native):
                self.assertEqual(self.paths(native=native)[-1], 'd\\' * 400 + 'Bottom.txt')

    def test_names_that_the_code_page_cannot_hold(self):
        self.file('Caf\u00e9.txt')
        self.file('\u0416.txt')
        self.file('Nul\U0001F600.txt')
        os.close(os.open(os.fsencode(self.tree) + b'/Bad\xff.txt', os.O_CREAT | os.O_WRONLY))
        for native in [False, True]:
            with self.subTest(native=native):
                status, errors, listing = self.run_program('Format=4', native=native)
                self.assertEqual(status, 0, errors)
                lines = listing.splitlines()
                self.assertEqual(len(lines), 4)
                self.assertTrue(any(line.endswith(b'Caf\xe9.txt') for line in lines))
                self.assertTrue(any(line.endswith(b'\\?.txt') for line in lines))

    def test_dot_files_are_hidden_and_unwritable_ones_read_only(self):
        self.file('.secret')
        self.file('Plain.txt')
        self.file('Fixed.txt').chmod(0o444)
        for native in [False, True]:
            with self.subTest(native=native):
                status, errors, listing = self.run_program('Format=0', 'FShow=10001', native=native)
                self.assertEqual(status, 0, errors)
                rows = {line.split()[0]: line[-5:] for line in listing.decode().splitlines() if line.endswith((' ', 'h'))
                        and '.' in line[:60]}
                self.assertEqual(rows['.secret'], ' a  h')
                self.assertEqual(rows['Plain.txt'], ' a   ')
                self.assertEqual(rows['Fixed.txt'], ' ar  ')


class StartDirectories(ExeTest):
    def test_dots_are_resolved(self):
        self.file('Data/Here.txt')
        self.file('Script/Run.bat')
        for native in [False, True]:
            with self.subTest(native=native):
                names = self.paths(native=native, tree=f'{self.tree}/Script/./../Data')
                self.assertEqual(names, ['Data\\Here.txt'])

    def test_a_slash_in_a_filter_file_separates_like_a_backslash(self):
        self.file('here.txt')
        self.file('data/sub/here.txt')
        for path in [f'Z:{self.tree}/data/sub', f'{windows_path(self.tree)}\\data/sub']:
            for native in [False, True]:
                with self.subTest(path=path, native=native):
                    status, errors, listing = self.run_program('Format=4', f'Path={path}', native=native)
                    self.assertEqual((status, listing), (0, windows_path(self.tree).encode() + b'\\data\\sub\\Here.txt\r\n'), errors)

    def test_a_share_that_is_not_there_gives_status_2(self):
        for native in [False, True]:
            with self.subTest(native=native):
                output = self.work / f'{native}.txt'
                command = self.command('Format=4', output=output, native=native)
                command[command.index('/d') + 1] = '\\\\nobody.invalid\\share'
                self.assertEqual(subprocess.run(command, capture_output=True, timeout=120).returncode, 2)
                self.assertEqual(output.read_bytes(), b'')


class PathLists(ExeTest):
    def rows(self, content, native):
        """Status, and name and folder of each row of the listing of a path-list file with these bytes."""
        path = self.work / 'paths.lst'
        path.write_bytes(content)
        status, _, listing = self.run_program('Format=6', f'Path={windows_path(path)}', kind='c', native=native)
        lines = (listing or b'').decode('cp1252').splitlines()
        return status, [tuple(line.split(';')[:2]) for line in lines if shown_path(self.tree) in line]

    def check(self, content, expected):
        for native in [False, True]:
            with self.subTest(native=native):
                self.assertEqual(self.rows(content, native), (0, [(name, shown_path(self.tree)) for name in expected]))

    def test_blank_lines_yield_no_rows(self):
        tree = windows_path(self.tree)
        self.file('One.txt')
        self.file('Two.txt')
        self.check(f'\r\n{tree}\\One.txt\r\n   \r\n{tree}\\Two.txt\r\n\r\n'.encode(), ['One.txt', 'Two.txt'])

    def test_utf16_with_a_byte_order_mark(self):
        tree = windows_path(self.tree)
        self.file('Caf\u00e9.txt')
        self.file('Two.txt')
        text = f'\ufeff{tree}\\Caf\u00e9.txt\r\n{tree}\\Two.txt'
        self.check(text.encode('utf-16-le'), ['Caf\u00e9.txt', 'Two.txt'])

    def test_the_ansi_code_page_without_a_mark(self):
        self.file('Caf\u00e9.txt')
        self.check(f'{windows_path(self.tree)}\\Caf\u00e9.txt\n'.encode('cp1252'), ['Caf\u00e9.txt'])

    def test_a_slash_separates_like_a_backslash(self):
        tree = windows_path(self.tree)
        self.file('f.txt', 1)
        self.file('data/sub/f.txt', 22)
        folder = shown_path(self.tree / 'data' / 'sub')
        for line in [f'{tree}\\data/sub/f.txt', f'{tree}/data\\sub/f.txt', str(self.tree / 'data/sub/f.txt')]:
            for native in [False, True]:
                with self.subTest(line=line, native=native):
                    full = line if ':' in line else 'Z:' + line
                    self.assertEqual(self.rows(full.encode(), native), (0, [('F.txt', folder)]))

    def test_every_other_encoding(self):
        tree = windows_path(self.tree)
        self.file('Caf\u00e9.txt')
        self.file('Two.txt')
        text = f'{tree}\\Caf\u00e9.txt\r\n{tree}\\Two.txt'
        for content in [text.encode(), text.encode('utf-8-sig'), ('\ufeff' + text).encode('utf-16-be')]:
            with self.subTest(content=content[:4]):
                self.check(content, ['Caf\u00e9.txt', 'Two.txt'])

    def test_a_list_of_many_pieces(self):
        tree = windows_path(self.tree)
        names = [f'{"x" * (number % 60)}\u0416{number}.txt' for number in range(40)]
        for name in names:
            self.file(name)
        lines = ''.join(f'{tree}\\{name}\r\n' for name in names * 50)
        listed = ['?'.join(name.split('\u0416')) for name in names * 50]  # listings are in the ANSI code page
        for encoding in ['utf-8', 'utf-16']:
            content = lines.encode(encoding)
            self.assertGreater(len(content), 2 * 65536)
            for native in [False, True]:
                with self.subTest(encoding=encoding, native=native):
                    status, rows = self.rows(content, native)
                    self.assertEqual((status, [name.lower() for name, _ in rows]), (0, listed))

    def test_quotes_tabs_and_blanks_around_a_line(self):
        tree = windows_path(self.tree)
        self.file('One.txt')
        self.file('Two.txt')
        self.file('Odd ')
        lines = f'"{tree}\\One.txt"\r\n\t {tree}\\Two.txt \t\r\n \t"{tree}\\Odd "\t'
        self.check(lines.encode(), ['One.txt', 'Two.txt', 'Odd'])  # a row's name loses its outer blanks

    def test_an_empty_list(self):
        for content in [b'', b'\r\n \r\n\t', b'""']:
            self.check(content, [])

    def test_a_list_without_a_full_path_ends_the_run_with_status_1(self):
        for content in ['One.txt', str(self.tree).encode('utf-16-le').decode('latin-1')]:
            with self.subTest(content=content):
                path = self.work / 'paths.lst'
                path.write_bytes(content.encode('latin-1'))
                status, errors, _ = self.run_program('Format=6', f'Path={windows_path(path)}', native=True)
                self.assertEqual(status, 1)
                self.assertIn(b'No listing was made', errors)
                self.assertIn(windows_path(path).encode(), errors)

    def test_a_missing_file_or_an_endless_line_ends_the_run_with_status_1(self):
        for name in ['Gone.txt', 'x' * 40000]:
            with self.subTest(length=len(name)):
                status, _ = self.rows(f'{windows_path(self.tree)}\\{name}\r\n'.encode(), native=True)
                self.assertEqual(status, 1)


class Failures(ExeTest):
    def setUp(self):
        super().setUp()
        self.file('A.txt')

    def test_unreadable_directory_gives_status_2_and_the_rest(self):
        self.file('Closed/Hidden.txt')
        (self.tree / 'Closed').chmod(0)
        self.addCleanup((self.tree / 'Closed').chmod, 0o755)
        nobody = ['setpriv', '--reuid=65534', '--regid=65534', '--clear-groups']
        self.work.chmod(0o777)
        shared = Path(tempfile.mkdtemp(prefix='nobody', dir='/tmp'))
        self.addCleanup(shutil.rmtree, shared, ignore_errors=True)
        shutil.copytree(HOST.parent, shared / 'program', ignore=lambda folder, names: [
            n for n in names if n not in ('folivant-host', 'english.ini')])
        shared.chmod(0o777)
        shutil.copytree(self.tree, shared / 'Tree', ignore=shutil.ignore_patterns('Closed'))
        (shared / 'Tree' / 'Closed').mkdir()
        (shared / 'Tree' / 'Closed').chmod(0)
        self.addCleanup((shared / 'Tree' / 'Closed').chmod, 0o755)
        (shared / 'set.fvf').write_text('[Folivant 3.5]\r\nFormat=4\r\n')
        (shared / 'set.fvf').chmod(0o644)
        done = subprocess.run([*nobody, shared / 'program' / 'folivant-host', '/f', windows_path(shared / 'set.fvf'), '/d',
                               windows_path(shared / 'Tree'), '/t', 't', '/o', windows_path(shared / 'list.txt'), '/g'],
                              capture_output=True, env={**os.environ, 'HOME': str(shared)}, timeout=60)
        self.assertEqual(done.returncode, 2, done.stderr)
        self.assertEqual([line.rsplit(b'\\', 1)[1] for line in (shared / 'list.txt').read_bytes().splitlines()],
                         [b'Closed', b'A.txt'])

    def test_full_disk_natively(self):
        for number in range(300):
            self.file(f'File{number:03}.txt')
        (self.work / 'full.txt').symlink_to('/dev/full')
        status, errors, _ = self.run_program('Format=4', native=True, output=self.work / 'full.txt')
        self.assertEqual(status, 1)
        self.assertIn(b'\\full.txt', errors)
        self.assertIn(b'No space left on device', errors)
        self.assertIn(b'(28)', errors)

    def test_output_file_that_cannot_be_created_natively(self):
        status, errors, listing = self.run_program('Format=4', native=True, output=self.work / 'No' / 'list.txt')
        self.assertEqual(status, 1)
        self.assertIn(b'\\No\\list.txt', errors)
        self.assertIn(b'(2)', errors)
        self.assertIsNone(listing)

    def test_vanished_start_directory_gives_status_2(self):
        lines = [f'Path={windows_path(self.work / "Gone")}', 'Format=4']
        for native in [False, True]:
            with self.subTest(native=native):
                status, _, listing = self.run_program(*lines, native=native, tree=self.work / 'Gone')
                self.assertEqual(status, 2)
                self.assertEqual(listing, b'')

    def test_directory_that_vanishes_during_the_run_gives_status_2_and_the_rest(self):
        for native in [False, True]:
            with self.subTest(native=native):
                for number in range(2500):
                    self.file(f'Folder{number:04}/File.txt')
                self.file('Zone/Inner/Lost.txt')
                output = self.work / f'{native}.txt'
                run = subprocess.Popen(self.command('Format=4', output=output, native=native), stderr=subprocess.DEVNULL)
                # The first lines are on disk: the tree itself has been read, its last directory not yet.
                while not (output.is_file() and output.stat().st_size > 0):
                    self.assertIsNone(run.poll(), 'the run ended before it wrote anything')
                    time.sleep(0.001)
                shutil.rmtree(self.tree / 'Zone')
                self.assertEqual(run.wait(timeout=120), 2)
                names = [line.rsplit('\\', 1)[1] for line in output.read_text('cp1252').splitlines()]
                self.assertEqual(names.count('File.txt'), 2500)
                self.assertIn('Zone', names)
                self.assertNotIn('Lost.txt', names)

    def test_a_run_loads_none_of_the_libraries_of_the_windows(self):
        status, log, _ = self.run_program('Format=4', environment={**os.environ, 'WINEDEBUG': '+loaddll'})
        self.assertEqual(status, 0, log)
        loaded = {name.lower() for name in re.findall(r'Loaded L"[^"]*\\([^"\\]+)"', log.decode(errors='replace'))}
        self.assertIn('kernel32.dll', loaded)
        self.assertFalse(loaded & {'comctl32.dll', 'comdlg32.dll', 'ole32.dll', 'uxtheme.dll', 'winmm.dll', 'winspool.drv'})

    def test_no_display_is_needed(self):
        environment = {name: value for name, value in os.environ.items() if name != 'DISPLAY'}
        status, errors, listing = self.run_program('Format=4', environment=environment)
        self.assertEqual(status, 0, errors)
        self.assertTrue(listing.endswith(b'\\A.txt\r\n'))


class Unattended(ExeTest):
    """What scripts rely on: the run ends, its status is true, and the log says what went wrong."""

    def setUp(self):
        super().setUp()
        self.file('A.txt')
        self.log = self.work / 'log.txt'

    def start(self, *switches, native=False, filter_file=None, environment=None):
        """A /g run with a log; its status, its messages on standard error, and the log's events with their values."""
        program = [HOST] if native else [RUN_WINDOWS, EXE]
        begun = time.monotonic()
        done = subprocess.run([*program, '/f', windows_path(filter_file or self.filter_file('Format=4')), *map(str, switches),
                               '/l', windows_path(self.log), '/g'], capture_output=True, timeout=60, env=environment)
        self.took = time.monotonic() - begun
        lines = self.log.read_bytes().decode('utf-8').split('\r\n')
        self.assertEqual(lines.pop(), '', 'the last line has its end')
        events = [line.split('\t') for line in lines]
        for event in events:
            self.assertRegex(event[0], r'^\d{4}-\d\d-\d\dT\d\d:\d\d:\d\dZ$')
        self.assertEqual(events[-1][1:], ['end', f'status={done.returncode}'])
        return done.returncode, done.stderr.decode('utf-8', 'replace'), [event[1:] for event in events]

    def assert_told(self, result, status, *parts):
        """The status, and one message with these parts, in the log and on standard error."""
        self.assertEqual(result[0], status, result)
        messages = [event[1] for event in result[2] if event[0] == 'message']
        self.assertEqual(len(messages), 1, result)
        for part in parts:
            self.assertIn(part, messages[0])
            self.assertIn(part, result[1])

    def both(self):
        for native in [False, True]:
            with self.subTest(native=native):
                yield native

    def test_the_log_of_a_run(self):
        for native in self.both():
            out = self.work / f'{native}.out'
            status, errors, events = self.start('/d', windows_path(self.tree), '/o', windows_path(out), '/q', '/t', 't', native=native)
            self.assertEqual(status, 0, errors)
            self.assertEqual([event[0] for event in events], ['start', 'listing', 'counts', 'output', 'end'])
            self.assertEqual(events[1][1:], [windows_path(self.tree), 'style=4', 'depth=0', 'order=1', 'filter=*.*'])
            self.assertEqual(events[2][1:], ['files=1', 'directories=1', 'bytes=0', 'unread=0'])
            self.assertEqual(events[3][1:], [windows_path(out), f'bytes={out.stat().st_size}'])

    def test_quiet_runs_end_and_say_why(self):
        for native in self.both():
            out = ['/d', windows_path(self.tree), '/o', windows_path(self.work / 'list.txt'), '/q', '/t']
            self.assert_told(self.start(*out, 't', native=native, filter_file=self.work / 'none.fvf'), 1, 'Filter file not found.')
            self.assert_told(self.start(*out, 'z', native=native), 1, 'Unknown output type.')
            self.assert_told(self.start('/q', '/t', 't', native=native), 1, '/o')
            self.assert_told(self.start('/q', '/t', 't', '/o', windows_path(self.work / 'no' / 'list.txt'), native=native), 1,
                             windows_path(self.work / 'no' / 'list.txt'))
            self.assert_told(self.start('/q', '/t', 'p', '/d', windows_path(self.tree), native=native), 1, 'printer')
            self.assertFalse((self.work / 'list.txt').exists())

    def test_a_directory_that_is_not_there(self):
        for native in self.both():
            gone, out = windows_path(self.work / 'gone'), self.work / 'list.txt'
            arguments = ['/d', gone, '/o', windows_path(out), '/t', 't']
            self.assert_told(self.start(*arguments, '/q', native=native), 1, gone)
            self.assertFalse(out.exists())
            status, _, events = self.start(*arguments, native=native)
            self.assertEqual(status, 3)
            self.assertNotEqual(events[1][1], gone)
            self.assertTrue(out.exists())
            out.unlink()

    def test_a_full_disk(self):
        (self.work / 'full.txt').symlink_to('/dev/full')
        for number in range(300):
            self.file(f'File{number:03}.txt')
        for native in self.both():
            self.assert_told(self.start('/d', windows_path(self.tree), '/o', windows_path(self.work / 'full.txt'), '/q', '/t', 't',
                                        native=native), 1, windows_path(self.work / 'full.txt'))

    def test_without_a_display_no_box_is_waited_for(self):
        environment = {name: value for name, value in os.environ.items() if name != 'DISPLAY'}
        for switches in [['/t', 't'], ['/t', 'z'], ['/t', 'p', '/d', windows_path(self.tree)]]:
            with self.subTest(switches=switches):
                self.assert_told(self.start(*switches, environment=environment), 1)

    def test_a_log_that_cannot_be_written(self):
        for native in self.both():
            command = [*([HOST] if native else [RUN_WINDOWS, EXE]), '/f', windows_path(self.filter_file('Format=4')), '/d',
                       windows_path(self.tree), '/t', 't', '/o', windows_path(self.work / 'list.txt'), '/l',
                       windows_path(self.work / 'no' / 'log.txt'), '/q', '/g']
            done = subprocess.run(command, capture_output=True, timeout=60)
            self.assertEqual(done.returncode, 1)
            self.assertIn(windows_path(self.work / 'no' / 'log.txt'), done.stderr.decode())
            self.assertFalse((self.work / 'list.txt').exists())

    def test_a_log_is_continued(self):
        out = ['/d', windows_path(self.tree), '/o', windows_path(self.work / 'list.txt'), '/t', 't', '/q', '/g', '/l']
        for native in self.both():
            self.log.unlink(missing_ok=True)
            for count in [1, 2]:
                subprocess.run([*([HOST] if native else [RUN_WINDOWS, EXE]), '/f', windows_path(self.filter_file('Format=4')), *out,
                                '+' + windows_path(self.log)], timeout=60)
                self.assertEqual(self.log.read_text().count('\tend\tstatus=0'), count)

    def test_left_out_directories_and_natural_order(self):
        for name in ['file2', 'file10', 'node_modules/x', 'Sub/node_modules/y', 'Sub10/z', 'Sub2/z']:
            self.file(name)
        lines = ['Format=4', 'Filter=1000', 'FilterName=*.*,-node_modules\\', 'NaturalOrder=True']
        for native in self.both():
            status, errors, listing = self.run_program(*lines, native=native)
            self.assertEqual(status, 0, errors)
            start = len(windows_path(self.tree)) + 1
            self.assertEqual([line[start:] for line in listing.decode().splitlines()],
                             ['Sub', 'Sub2', 'Sub10', 'A.txt', 'File2', 'File10', 'Sub2\\Z', 'Sub10\\Z'])

    def test_links_that_are_not_followed(self):
        self.file('Real/Inside.txt')
        (self.tree / 'Link').symlink_to(self.tree / 'Real')
        for native in self.both():
            for lines, entered in [([], 2), (['FollowLinks=False'], 1)]:
                status, errors, listing = self.run_program('Format=4', *lines, native=native)
                self.assertEqual(status, 0, errors)
                self.assertEqual(listing.count(b'Inside.txt'), entered)
                self.assertEqual(listing.count(b'\\Link\r\n'), 1)

    def test_a_killed_run_leaves_a_readable_log_and_its_settings(self):
        for number in range(400):
            self.file(f'Folder{number:03}/File.txt')
        settings = self.work / 'config' / 'Folivant 3.0' / 'settings.ini'
        settings.parent.mkdir(parents=True)
        settings.write_bytes(b'[Settings]\r\nTextWidth=100\r\n')
        environment = {**os.environ, 'XDG_CONFIG_HOME': str(self.work / 'config')}
        output = self.work / 'list.txt'
        for native in self.both():
            # Without the script that tries a Windows program again: what is killed must be the program.
            command = [*([HOST] if native else ['wine', EXE]), '/f', windows_path(self.filter_file('Format=2')), '/d',
                       windows_path(self.tree), '/t', 't', '/o', windows_path(output), '/l', windows_path(self.log), '/q', '/g']
            quiet = {'env': environment, 'stderr': subprocess.DEVNULL}
            begun = time.monotonic()
            self.assertEqual(subprocess.run(command, timeout=60, **quiet).returncode, 0)
            whole, listing = time.monotonic() - begun, self.comparable(output.read_bytes())
            unfinished = 0
            for moment in range(100):
                self.log.unlink(missing_ok=True)
                run = subprocess.Popen(command, **quiet)
                time.sleep(whole * moment / 100)
                run.kill()
                run.wait()
                text = self.log.read_bytes() if self.log.exists() else b''
                self.assertTrue(text == b'' or text.endswith(b'\r\n'), text)
                for line in text.decode('utf-8').splitlines():
                    self.assertRegex(line, r'^\d{4}-\d\d-\d\dT\d\d:\d\d:\d\dZ\t(start|listing|counts|output|end)\t')
                unfinished += b'\tstart\t' in text and b'\tend\t' not in text
                self.assertEqual(settings.read_bytes(), b'[Settings]\r\nTextWidth=100\r\n')
            self.assertGreater(unfinished, 0, 'some were killed between their first line and their last')
            self.assertEqual(subprocess.run(command, timeout=60, **quiet).returncode, 0)
            self.assertEqual(self.comparable(output.read_bytes()), listing, 'with the same settings')


if __name__ == '__main__':
    unittest.main(argv=[sys.argv[0], *sys.argv[3:]], verbosity=2)
