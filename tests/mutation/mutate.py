#!/usr/bin/python3
"""Changes src/ in one place at a time, runs the native tests over each change and tells which changes no test notices.

    tests/mutation/mutate.py [PATH ...] [--sample N] [--seed S] [-j N] [--recheck | --list | --report] [--write]

PATH is the beginning of a name below src/ ("scan", "output/Page"); without one everything portable is meant. What is
known of a file is kept in build/mutation and used as long as the file stays as it is; --recheck runs the survivors again,
after tests were added. --write puts the figures into docs/mutation.md. Needs the Debian package python3-clang.

Exit status 1 says that there are survivors that equivalent.tsv does not explain, or explanations of what is no more.
"""
import argparse
import collections
import concurrent.futures
import hashlib
import json
import os
import pathlib
import pickle
import random
import re
import shutil
import subprocess
import sys
import tempfile
import threading
import time

import schemata
from schemata import Key

HOUSE = pathlib.Path(__file__).resolve().parent.parent.parent
SCRATCH = HOUSE / 'build' / 'mutation'
TREE, BUILD, MADE = SCRATCH / 'tree', SCRATCH / 'build', SCRATCH / 'made'
PARSING = ['-x', 'c++', '-std=c++20', f'-I{HOUSE}/src', f'-I{MADE}', '-Wno-everything', '-Wno-c++11-narrowing']
HERE = pathlib.Path(__file__).resolve().parent
EQUIVALENT, PAGE = HERE / 'equivalent.tsv', HOUSE / 'docs' / 'mutation.md'
BEGIN, END = '<!-- mutants: begin -->', '<!-- mutants: end -->'
FOLDERS = ('app', 'base', 'output', 'platform', 'scan', 'shell', 'ui')
PROGRAMS = ('unit_tests', 'platform_tests')
# Folders and files that only Windows builds or that stand in for what is there, and data without code.
OUT_OF_SCOPE = re.compile(r'(app|platform|shell)/(win32|host)/|/frm')
NUMBERS_PER_FILE = 2000


def sources():
    found = [p for folder in FOLDERS for end in ('cpp', 'h') for p in (HOUSE / 'src' / folder).rglob(f'*.{end}')]
    names = sorted(str(p.relative_to(HOUSE / 'src')) for p in found)
    return [name for name in names if not OUT_OF_SCOPE.search(name)]


class Store:
    """A table in the scratch folder, by text keys."""

    def __init__(self, name):
        self.path = SCRATCH / name
        self.rows = json.loads(self.path.read_text()) if self.path.exists() else {}

    def save(self):
        text = json.dumps(self.rows, indent=0, ensure_ascii=False)
        new = self.path.with_suffix('.new')
        new.write_text(text)
        new.replace(self.path)


def key_text(key):
    return '\t'.join(str(part) for part in key)


def write_changed(path, data):
    """Leaves a file alone that is right already, or everything would be built anew."""
    if not path.exists() or path.read_bytes() != data:
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(data)


# The tree of mutants and its build


def parsed(name, arguments):
    """Parsing takes a second or so for each file: what was found is kept as long as file and finder stay as they are."""
    path = HOUSE / 'src' / name
    stamp = hashlib.sha256(path.read_bytes() + (HERE / 'schemata.py').read_bytes()).hexdigest()
    kept = SCRATCH / 'parsed' / name.replace('/', '-')
    if kept.exists():
        known, source = pickle.loads(kept.read_bytes())
        if known == stamp:
            return source
    source = schemata.Source(path, name, arguments)
    if source.errors:
        sys.exit(f'{name}: {source.errors[0]}')
    kept.parent.mkdir(exist_ok=True)
    kept.write_bytes(pickle.dumps((stamp, source)))
    return source


class Mutants:
    """Every mutant of every source, written into a copy of the tree and built."""

    def __init__(self, jobs):
        self.jobs = jobs
        self.numbers, self.dropped = Store('numbers.json'), Store('dropped.json')
        self.sources = {}
        self.by_number = {}

    def prepare(self):
        self.copy_tree()
        self.find()
        for name in self.sources:
            self.write(name)
        subprocess.run(['cmake', '-S', TREE, '-B', BUILD, '-G', 'Ninja', '-DCMAKE_BUILD_TYPE=Release',
                        f'-DCMAKE_CXX_FLAGS=-w -Wno-narrowing -D_GLIBCXX_ASSERTIONS -include {TREE}/tests/mutation/Mutant.h',
                        '-DCMAKE_CXX_FLAGS_RELEASE=-O1'], check=True, stdout=subprocess.DEVNULL)
        self.build()

    def copy_tree(self):
        listed = subprocess.run(['git', '-C', HOUSE, 'ls-files', '-z', '--cached', '--others', '--exclude-standard'],
                                check=True, capture_output=True).stdout.decode().split('\0')
        wanted = {name for name in listed if name.startswith(('src/', 'tests/', 'cmake/', 'lang/', 'CMakeLists.txt'))
                  and (HOUSE / name).is_file()}
        mine = {'src/' + name for name in sources()}
        for name in sorted(wanted - mine):
            write_changed(TREE / name, (HOUSE / name).read_bytes())
            shutil.copymode(HOUSE / name, TREE / name)
        for path in [p for p in TREE.rglob('*') if p.is_file()]:
            if str(path.relative_to(TREE)) not in wanted:
                path.unlink()

    def find(self):
        # What the build makes of it; the number does not matter here.
        version = (HOUSE / 'src/res/Version.h.in').read_text().replace('@PROJECT_VERSION@', '0')
        write_changed(MADE / 'res/Version.h', version.encode())
        for name in sources():
            source = parsed(name, PARSING)
            first = self.numbers.rows.setdefault(name, NUMBERS_PER_FILE * len(self.numbers.rows))
            for number, mutant in enumerate(source.mutants):
                mutant.number = first + number
                self.by_number[mutant.number] = mutant
            assert len(source.mutants) <= NUMBERS_PER_FILE
            self.sources[name] = source
        self.numbers.save()

    def write(self, name):
        """Without the mutants that do not compile. Clang tells of most; the others show in the build."""
        source, path = self.sources[name], TREE / 'src' / name
        arguments = [*PARSING, '-include', str(HERE / 'Mutant.h')]
        if path.exists() and source.written(self.gone(source))[0] == path.read_bytes():
            return
        while True:
            text, spans = source.written(self.gone(source))
            errors = schemata.errors_of(HOUSE / 'src' / name, text, arguments)
            if not errors:
                break
            if not self.drop(source, text, spans, errors):
                sys.exit(f'{name} does not compile with its mutants: {errors[0][1]}')
        write_changed(path, text)

    def gone(self, source):
        return {m.key for m in source.mutants if key_text(m.key) in self.dropped.rows}

    def drop(self, source, text, spans, errors):
        """The mutants around the errors, and those in the values of constants that the errors name."""
        dropped = len(self.dropped.rows)
        for offset, message in errors:
            mutants = schemata.culprits(text, spans, offset) if offset is not None else []
            for name in re.findall(r"['‘](?:\w+::)*(\w+)['’]", message):
                mutants = mutants + [m for m in source.mutants if m.constant == name]
            for mutant in mutants:
                self.dropped.rows.setdefault(key_text(mutant.key), message)
        self.dropped.save()
        return len(self.dropped.rows) > dropped

    def build(self):
        command = ['nice', 'cmake', '--build', BUILD, '-j', str(self.jobs), '--target', *PROGRAMS, '--', '-k', '0']
        while True:
            made = subprocess.run(command, capture_output=True, text=True)
            if made.returncode == 0:
                return
            errors = collections.defaultdict(set)
            for path, line, column, message in re.findall(r'^([^\s:]+):(\d+):(\d+): (?:error|note): (.*)$', made.stdout, re.M):
                path = pathlib.Path(path) if os.path.isabs(path) else BUILD / path
                name = os.path.relpath(path.resolve(), TREE / 'src')
                errors[name].add((int(line), int(column), message))
            found = False
            for name, source in self.sources.items():
                text, spans = source.written(self.gone(source))
                lines = text.split(b'\n')
                places = [(sum(len(before) + 1 for before in lines[:line - 1]) + column - 1 if where == name else None, message)
                          for where, all_errors in errors.items() for line, column, message in all_errors]
                if self.drop(source, text, spans, places):
                    found = True
                    self.write(name)
            if not found and not self.refreeze(errors):
                sys.exit('The mutants do not build:\n' + made.stdout[-4000:] + made.stderr)

    def refreeze(self, names):
        """The last resort: no constant that these files mention is a variable any more."""
        words = set()
        for name in names:
            if (TREE / 'src' / name).is_file():
                words.update(re.findall(r'\w+', (TREE / 'src' / name).read_text()))
        dropped = len(self.dropped.rows)
        for name, source in self.sources.items():
            if name not in names:
                for mutant in source.mutants:
                    if mutant.constant in words:
                        self.dropped.rows.setdefault(key_text(mutant.key), 'the constant is needed')
                self.write(name)
        self.dropped.save()
        return len(self.dropped.rows) > dropped

    def all(self):
        return [m for source in self.sources.values() for m in source.mutants
                if key_text(m.key) not in self.dropped.rows]


# Tests and what they reach


class Tests:
    """Each test, how long it takes and which mutants it comes to. Each is run alone: what one computes once, the next
    would not come to any more."""

    def __init__(self, jobs):
        self.jobs = jobs
        self.seconds, self.reaching = {}, collections.defaultdict(list)

    def look(self, mutants):
        stamp = hashlib.sha256()
        for program in PROGRAMS:
            stamp.update((BUILD / program).read_bytes())
        reached = Store('reached.json')
        if reached.rows.get('stamp') != stamp.hexdigest():
            tests = [(program, test) for program in PROGRAMS for test in listed_tests(BUILD / program)]
            with concurrent.futures.ThreadPoolExecutor(self.jobs) as pool:
                looked = list(pool.map(self.look_at, tests))
            reached.rows = {'stamp': stamp.hexdigest(),
                            'tests': {f'{p} {t}': found for (p, t), found in zip(tests, looked) if found}}
            reached.save()
        start = min(seconds for seconds, _ in reached.rows['tests'].values())  # of the process, without the test
        for test, (seconds, numbers) in reached.rows['tests'].items():
            self.seconds[test] = seconds - start + 0.002
            for number in numbers:
                self.reaching[number].append(test)
        for tests in self.reaching.values():
            tests.sort(key=self.seconds.get)

    @staticmethod
    def look_at(test):
        program, name = test
        with tempfile.NamedTemporaryFile(prefix='reached') as file:
            run = run_tests(program, [name], 600, FOLIVANT_REACHED=file.name)
            if run.status != 0:
                sys.stderr.write(f'{name} fails without any mutant and is left out.\n{run.output[-1500:]}\n')
                return None
            return run.seconds, [int(number) for number in file.read().split()]


def listed_tests(program):
    out = subprocess.run([program, '--gtest_list_tests'], check=True, capture_output=True, text=True).stdout
    suite, tests = '', []
    for line in out.splitlines():
        word = line.split('#')[0].strip()
        if line.startswith(' '):
            tests.append(suite + word)
        elif word.endswith('.'):
            suite = word
    return [test for test in tests if 'DISABLED_' not in test]


Run = collections.namedtuple('Run', 'status output seconds')


def run_tests(program, tests, seconds, **environment):
    """What came of it, and the processor time it took. It ends after so many seconds of that, and in any case after two
    minutes; endless loops often take memory."""
    command = ['nice', 'prlimit', f'--cpu={seconds}', '--as=4000000000', '--core=0', '--fsize=20000000000', BUILD / program,
               '--gtest_fail_fast', '--gtest_brief=1', '--gtest_color=no', '--gtest_filter=' + ':'.join(tests)]
    with tempfile.TemporaryDirectory(prefix='mutant') as folder, tempfile.TemporaryFile() as output:
        process = subprocess.Popen(command, stdout=output, stderr=output, stdin=subprocess.DEVNULL, cwd=folder,
                                   env={**os.environ, 'TMPDIR': folder, **environment})
        alarm = threading.Timer(120, process.kill)
        alarm.start()
        _, status, used = os.wait4(process.pid, 0)
        alarm.cancel()
        process.returncode = os.waitstatus_to_exitcode(status)
        output.seek(0)
        return Run(process.returncode, output.read().decode(errors='replace'), used.ru_utime + used.ru_stime)


class Runner:
    """Runs mutants against the tests that come to them, those that killed their neighbours and the fast ones first."""

    def __init__(self, tests):
        self.tests = tests
        self.killers = collections.defaultdict(collections.Counter)
        self.lock = threading.Lock()

    def verdict(self, mutant):
        """How it was killed, or nothing."""
        left = list(self.tests.reaching.get(mutant.number, ()))
        with self.lock:
            proven = [test for test, _ in self.killers[mutant.key.file].most_common(40) if test in set(left)][:4]
        order = proven + [test for test in left if test not in set(proven)]
        for program in PROGRAMS:
            names = [test.split(' ', 1)[1] for test in order if test.startswith(program + ' ')]
            for some in self.portions(program, names):
                if killed := self.run(mutant, program, some):
                    return killed
        return None

    def portions(self, program, names):
        """A first one of few tests, which most mutants do not outlive, and then so many that an endless loop is soon seen."""
        some, seconds = [], 0
        for name in names:
            some.append(name)
            seconds += self.tests.seconds[f'{program} {name}']
            if seconds > 1 or (len(some) == 8 and name == names[7]):
                yield some
                some, seconds = [], 0
        if some:
            yield some

    def run(self, mutant, program, names):
        expected = sum(self.tests.seconds[f'{program} {name}'] for name in names)
        run = run_tests(program, names, 2 + round(5 * expected), FOLIVANT_MUTANT=str(mutant.number))
        if run.status == 0:
            return None
        failed = re.search(r'^\[  FAILED  \] ([^\s,]+)', run.output, re.M)
        if failed:
            with self.lock:
                self.killers[mutant.key.file][f'{program} {failed.group(1)}'] += 1
            return failed.group(1)
        return 'time' if run.status in (-24, -9) else 'crash'


# Equivalent mutants and the report


def read_equivalent():
    rows = {}
    for number, line in enumerate(EQUIVALENT.read_text().splitlines() if EQUIVALENT.exists() else []):
        if line and not line.startswith('#'):
            parts = line.split('\t')
            if len(parts) != 6 or not parts[5].strip():
                sys.exit(f'{EQUIVALENT.name}:{number + 1}: not file, function, line, change, ordinal and reason')
            rows[Key(*parts[:4], int(parts[4]))] = parts[5]
    return rows


def report(mutants, results, equivalent, write):
    counts = collections.defaultdict(collections.Counter)
    survivors, gone = [], set(equivalent)
    for mutant in mutants.all():
        folder = mutant.key.file.split('/')[0]
        result = results.rows.get(key_text(mutant.key))
        gone.discard(mutant.key)
        counts[folder]['all'] += 1
        if result is None:
            counts[folder]['not run'] += 1
        elif result['killed']:
            counts[folder]['killed'] += 1
            if mutant.key in equivalent:
                print('Killed, though listed as equivalent:', key_text(mutant.key))
        elif mutant.key in equivalent:
            counts[folder]['equivalent'] += 1
        else:
            counts[folder]['survived'] += 1
            survivors.append(mutant)
    for mutant in survivors:
        reached = results.rows[key_text(mutant.key)]['reached']
        print('Survived:' if reached else 'Not reached:', key_text(mutant.key))
    for key in sorted(gone):
        print('Listed as equivalent, but gone:', key_text(key))
    table = figures(counts, len(mutants.dropped.rows))
    print(table, end='')
    if write:
        text = PAGE.read_text()
        begin, end = text.index(BEGIN) + len(BEGIN), text.index(END)
        PAGE.write_text(f'{text[:begin]}\n{table}{text[end:]}')
    return 1 if survivors or gone else 0


def figures(counts, dropped):
    columns = ('all', 'killed', 'equivalent', 'survived', 'not run')
    total = sum((counts[folder] for folder in counts), collections.Counter())
    lines = ['| Folder | Mutants | Killed | Equivalent | Survived | Not run |', '| --- | --- | --- | --- | --- | --- |']
    for name, row in [(f'`src/{folder}`', counts[folder]) for folder in sorted(counts)] + [('all', total)]:
        lines.append(f'| {name} | ' + ' | '.join(f'{row[column]:,}' for column in columns) + ' |')
    return '\n'.join(lines) + f'\n\nBesides, {dropped:,} mutants do not compile.\n'


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument('paths', nargs='*', metavar='PATH', default=[''])
    parser.add_argument('--sample', type=int, help='run so many only, chosen at random')
    parser.add_argument('--seed', type=int, default=1)
    parser.add_argument('-j', '--jobs', type=int, default=max(1, (os.cpu_count() or 2) - 1))
    parser.add_argument('--skip', default='$^', help='leave out files that match this regular expression')
    parser.add_argument('--recheck', action='store_true', help='run survivors again')
    parser.add_argument('--list', action='store_true', help='list the mutants and run none')
    parser.add_argument('--report', action='store_true', help='report what is known and run none')
    parser.add_argument('--write', action='store_true', help='put the figures into docs/mutation.md')
    options = parser.parse_args()

    SCRATCH.mkdir(parents=True, exist_ok=True)
    mutants = Mutants(options.jobs)
    if options.list or options.report:
        mutants.find()
    else:
        mutants.prepare()
    chosen = [m for m in mutants.all() if m.key.file.startswith(tuple(options.paths))
              and not re.search(options.skip, m.key.file)]
    if options.list:
        for mutant in chosen:
            print(mutant.number, key_text(mutant.key), sep='\t')
        return 0
    results = Store('results.json')
    forget_changed(results, mutants)
    equivalent = read_equivalent()
    if not options.report:
        run_all(chosen, results, equivalent, mutants, options)
    return report(mutants, results, equivalent, options.write)


def forget_changed(results, mutants):
    """Results hold for a file as it was."""
    hashes = {name: hashlib.sha256(source.bytes).hexdigest()[:16] for name, source in mutants.sources.items()}
    for key, result in list(results.rows.items()):
        if hashes.get(key.split('\t')[0]) != result['source']:
            del results.rows[key]
    mutants.hashes = hashes


def run_all(chosen, results, equivalent, mutants, options):
    tests = Tests(options.jobs)
    tests.look(mutants)
    runner = Runner(tests)
    random.Random(options.seed).shuffle(chosen)
    wanted = []
    for mutant in chosen[:options.sample]:
        known = results.rows.get(key_text(mutant.key))
        if known is None or (options.recheck and not known['killed'] and mutant.key not in equivalent):
            wanted.append(mutant)
    done, saved = 0, time.monotonic()
    with concurrent.futures.ThreadPoolExecutor(options.jobs) as pool:
        running = {pool.submit(runner.verdict, mutant): mutant for mutant in wanted}
        try:
            for ended in concurrent.futures.as_completed(running):
                mutant = running[ended]
                results.rows[key_text(mutant.key)] = {'killed': ended.result(), 'source': mutants.hashes[mutant.key.file],
                                                      'reached': len(tests.reaching.get(mutant.number, ()))}
                done += 1
                if time.monotonic() - saved > 30:
                    saved = time.monotonic()
                    results.save()
                    print(f'{done} of {len(wanted)}', file=sys.stderr)
        finally:
            pool.shutdown(cancel_futures=True)
            results.save()


if __name__ == '__main__':
    sys.exit(main())
