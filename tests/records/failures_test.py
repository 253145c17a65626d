#!/usr/bin/env python3
"""Exact records of what cannot be read, changes meanwhile or cannot be written: natively, where a file system can be
made to do so.

    tests/records/failures_test.py HOST
"""
import csv
import hashlib
import json
import os
import resource
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

HOST = Path(sys.argv[1]).resolve()
HUGE = 3_000_000_000  # bytes: seconds of hashing
NOBODY = 65534


def windows_path(path):
    return 'Z:' + str(path).replace('/', '\\')


class FailureTest(unittest.TestCase):
    def setUp(self):
        self.work = Path(tempfile.mkdtemp(prefix='Failures', dir='/tmp'))
        self.addCleanup(shutil.rmtree, self.work, ignore_errors=True)
        self.tree = self.work / 'Tree'
        self.tree.mkdir()
        self.program = HOST

    def file(self, name, content=b'abc', size=None):
        path = self.tree / name
        path.parent.mkdir(parents=True, exist_ok=True)
        with open(path, 'wb') as made:
            made.write(content)
            if size is not None:
                made.truncate(size)
        return path

    def command(self, kind, output=None, style=4, sums=True):
        settings = self.work / 'set.fvf'
        settings.write_text(f'[Folivant 3.5]\r\nFormat={style}\r\nRecordSha256={sums}\r\n')
        self.output = output or self.work / f'record.{kind}'
        return [self.program, '/f', windows_path(settings), '/d', windows_path(self.tree), '/k', kind,
                '/o', windows_path(self.output), '/g']

    def start(self, kind, **options):
        return subprocess.Popen(self.command(kind, **options), stdout=subprocess.DEVNULL, stderr=subprocess.PIPE,
                                env={**os.environ, 'XDG_CONFIG_HOME': str(self.work)})

    def run_program(self, kind, **options):
        with self.start(kind, **options) as run:
            self.errors = run.communicate(timeout=120)[1].decode()
        return run.returncode

    def json_lines(self):
        return [json.loads(line) for line in self.output.read_text().splitlines()]

    def csv_rows(self):
        with open(self.output, encoding='utf-8-sig', newline='') as record:
            return {row['name']: row for row in csv.DictReader(record, strict=True)}


class WithoutRights(FailureTest):
    """As a user who may not read everything."""

    def setUp(self):
        super().setUp()
        self.file('Open.txt')
        self.file('Secret.txt').chmod(0)
        self.file('Closed/Inside.txt')
        (self.tree / 'Closed').chmod(0)
        self.addCleanup((self.tree / 'Closed').chmod, 0o755)
        program = self.work / 'program'
        program.mkdir()
        for file in (HOST, *HOST.parent.glob('english.ini')):
            shutil.copy(file, program)
        self.work.chmod(0o777)
        self.program = program / HOST.name

    def command(self, *arguments, **options):
        command = super().command(*arguments, **options)
        if os.getuid() != 0:
            return command
        return ['setpriv', f'--reuid={NOBODY}', f'--regid={NOBODY}', '--clear-groups', *command]

    def test_json_names_both_with_the_reason(self):
        for style in (1, 4):
            with self.subTest(style=style):
                self.assertEqual(self.run_program('json', style=style), 2, self.errors)
                _, *rows, last = self.json_lines()
                sums = {row['name']: row['sha256'] for row in rows}
                self.assertEqual(sums, {'Closed': None, 'Secret.txt': None, 'Open.txt': hashlib.sha256(b'abc').hexdigest()})
                self.assertEqual({row['name']: row['size'] for row in rows}, {'Closed': None, 'Secret.txt': 3, 'Open.txt': 3})
                root = windows_path(self.tree)
                unread = sorted(last['complete']['unread'], key=lambda one: one['path'])
                self.assertEqual(unread, [{'path': f'{root}\\{name}', 'code': 13, 'reason': 'Permission denied'}
                                          for name in ('Closed', 'Secret.txt')])

    def test_csv_leaves_the_field_empty(self):
        self.assertEqual(self.run_program('csv'), 2, self.errors)
        self.assertEqual({name: row['sha256'] for name, row in self.csv_rows().items()},
                         {'Closed': '', 'Secret.txt': '', 'Open.txt': hashlib.sha256(b'abc').hexdigest()})

    def test_the_list_of_sums_leaves_the_line_out(self):
        self.assertEqual(self.run_program('sha256'), 2, self.errors)
        self.assertEqual(self.output.read_text(), f'{hashlib.sha256(b"abc").hexdigest()}  Open.txt\n')
        self.assertEqual(subprocess.run(['sha256sum', '--check', '--strict', '--quiet', self.output], cwd=self.tree).returncode, 0)

    def test_nothing_is_opened_for_what_is_not_asked(self):
        (self.tree / 'Closed').chmod(0o755)
        self.assertEqual(self.run_program('json', sums=False), 0, self.errors)
        self.assertEqual(self.json_lines()[-1]['complete']['unread'], [])


class Changes(FailureTest):
    """A file that changes after it was listed. The run is stopped inside a huge file, at a place that the system tells."""

    def setUp(self):
        super().setUp()
        self.first = self.file('A first.bin', content=b'beginning', size=HUGE)
        self.file('Second.txt', content=b'second')

    def stop_inside(self, run, path):
        """Stops the run while it reads the file; returns how many bytes it has read of it."""
        links = Path(f'/proc/{run.pid}/fd')
        deadline = time.monotonic() + 60
        while time.monotonic() < deadline:
            self.assertIsNone(run.poll(), 'the run ended first')
            for link in links.iterdir():
                try:
                    if os.readlink(link) != str(path) or self.position(run, link.name) < 10_000_000:
                        continue
                except FileNotFoundError:
                    continue
                os.kill(run.pid, signal.SIGSTOP)
                while Path(f'/proc/{run.pid}/stat').read_text().rsplit(')', 1)[1].split()[0] != 'T':
                    time.sleep(0.001)
                read = self.position(run, link.name)
                self.assertLess(read, HUGE)
                return read
        self.fail('the file was never read')

    def position(self, run, descriptor):
        return int(Path(f'/proc/{run.pid}/fdinfo/{descriptor}').read_text().split('pos:', 1)[1].split()[0])

    def sum_of(self, size):
        content = hashlib.sha256(b'beginning')
        zeros = bytes(1 << 20)
        for left in range(size - 9, 0, -len(zeros)):
            content.update(zeros[:min(left, len(zeros))])
        return content.hexdigest()

    def end(self, run):
        os.kill(run.pid, signal.SIGCONT)
        self.errors = run.communicate(timeout=120)[1].decode()
        return run.returncode

    def test_what_is_left_of_a_file_that_shrinks_is_summed(self):
        with self.start('json') as run:
            read = self.stop_inside(run, self.first)
            os.truncate(self.first, read + 1_234_567)
            self.assertEqual(self.end(run), 0, self.errors)
        rows = {row.get('name'): row for row in self.json_lines()}
        self.assertEqual(rows['A first.bin']['sha256'], self.sum_of(read + 1_234_567))
        self.assertEqual(rows['A first.bin']['size'], HUGE)
        self.assertEqual(rows['Second.txt']['sha256'], hashlib.sha256(b'second').hexdigest())
        self.assertEqual(self.json_lines()[-1]['complete']['unread'], [])

    def test_what_was_read_of_a_file_that_shrinks_below_it_is_summed(self):
        with self.start('sha256') as run:
            read = self.stop_inside(run, self.first)
            os.truncate(self.first, 1_000)
            self.assertEqual(self.end(run), 0, self.errors)
        self.assertEqual(self.output.read_text().splitlines()[0], f'{self.sum_of(read)}  A first.bin')

    def test_a_file_that_grows_is_summed_to_its_new_end(self):
        with self.start('sha256') as run:
            self.stop_inside(run, self.first)
            os.truncate(self.first, HUGE + 77)
            self.assertEqual(self.end(run), 0, self.errors)
        self.assertEqual(self.output.read_text().splitlines()[0], f'{self.sum_of(HUGE + 77)}  A first.bin')

    def test_a_file_that_is_gone_by_its_turn_is_named(self):
        with self.start('json') as run:
            self.stop_inside(run, self.first)
            os.truncate(self.first, 0)
            (self.tree / 'Second.txt').unlink()
            self.assertEqual(self.end(run), 2, self.errors)
        *_, row, last = self.json_lines()
        self.assertEqual((row['name'], row['size'], row['sha256']), ('Second.txt', 6, None))
        self.assertEqual(last['complete']['unread'], [{'path': windows_path(self.tree / 'Second.txt'), 'code': 2,
                                                       'reason': 'No such file or directory'}])

    def test_a_file_that_is_deleted_while_it_is_read_is_read_to_its_end(self):
        with self.start('sha256') as run:
            read = self.stop_inside(run, self.first)
            os.truncate(self.first, read)
            self.first.unlink()
            self.assertEqual(self.end(run), 0, self.errors)
        self.assertEqual(self.output.read_text().splitlines()[0], f'{self.sum_of(read)}  A first.bin')

    def test_a_record_that_was_killed_says_nothing_of_its_end(self):
        for sign in (signal.SIGTERM, signal.SIGKILL):
            for kind in ('json', 'csv', 'sha256'):
                with self.subTest(sign=sign, kind=kind), self.start(kind) as run:
                    self.stop_inside(run, self.first)
                    run.send_signal(sign)
                    os.kill(run.pid, signal.SIGCONT)
                    run.communicate(timeout=60)
                    self.assertEqual(run.returncode, -sign)
                    written = self.output.read_bytes() if self.output.exists() else b''
                    self.assertNotIn(b'"complete"', written)
                    self.assertNotIn(b'Second.txt', written)


class NoRoom(FailureTest):
    def setUp(self):
        super().setUp()
        for number in range(2000):
            self.file(f'File {number}.txt')

    def test_a_full_disk(self):
        for kind in ('json', 'csv', 'sha256'):
            with self.subTest(kind=kind):
                full = self.work / f'full.{kind}'
                full.symlink_to('/dev/full')
                self.assertEqual(self.run_program(kind, output=full), 1)
                self.assertIn(f'\\full.{kind}', self.errors)
                self.assertIn('No space left on device', self.errors)
                self.assertIn('(28)', self.errors)

    def test_a_record_that_breaks_off_has_no_last_line(self):
        """The file may have a hundred thousand bytes; the record needs more."""
        def limit():
            signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
            resource.setrlimit(resource.RLIMIT_FSIZE, (100_000, 100_000))

        done = subprocess.run(self.command('json'), capture_output=True, timeout=120, preexec_fn=limit,
                              env={**os.environ, 'XDG_CONFIG_HOME': str(self.work)})
        self.assertEqual(done.returncode, 1)
        self.assertIn(b'record.json', done.stderr)
        written = self.output.read_bytes()
        self.assertLessEqual(len(written), 100_000)
        self.assertTrue(written.startswith(b'{"listing":'))
        self.assertNotIn(b'"complete"', written)


if __name__ == '__main__':
    unittest.main(argv=[sys.argv[0]], verbosity=2)
