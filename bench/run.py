#!/usr/bin/env python3
"""Measures Folivant against the cost of merely looking at the same files.

Builds the host release and the Windows program, makes the trees in a scratch directory (removed at the end), runs
whole processes in alternating pairs with a warm cache, and prints tables of ratios: the median of the paired ratios.
With --write the tables replace those of the same title between the markers in docs/benchmarks.md, and README.md gets the
five figures of SUMMARY from there.
"""
import argparse
import os
import pathlib
import random
import re
import shutil
import statistics
import subprocess
import sys
import tempfile

HOUSE = pathlib.Path(__file__).resolve().parent.parent
WINDOWS_COMPILER = 'x86_64-w64-mingw32-g++-posix'
BEGIN, END = '<!-- benchmarks: begin -->', '<!-- benchmarks: end -->'
WIDE, FLAT = '300,000 files in 3,000 directories', '100,000 files in one directory'
ON_HOST, UNDER_WINE = 'On the host, whole process, against the floor', 'Under Wine, whole process, against the floor'
EXACT = (('csv', 'exact CSV'), ('json', 'JSON Lines'))
COLLECTING, OTHER_RUNS = 'Memory of the collecting styles, bytes', 'Under Wine, other runs'
# What the README shows: its own words, the title of a table, a row of it, and the unit of the first figure there.
SUMMARY = [(f'{WIDE}, host build', ON_HOST, WIDE, 'times the floor'),
           (f'{WIDE}, under Wine', UNDER_WINE, WIDE, 'times the floor'),
           (f'{FLAT}, host build', ON_HOST, FLAT, 'times the floor'),
           ('Start: an empty folder, under Wine', OTHER_RUNS, 'Empty folder against an empty program',
            'times a program that does nothing'),
           ('Memory of a tree-style listing', COLLECTING, 'Tree-style, per entry', 'bytes per entry')]


def build(scratch, windows):
    def run(*command):
        subprocess.run(command, cwd=HOUSE, check=True, stdout=subprocess.DEVNULL)
    run('cmake', '--preset', 'host-release')
    run('cmake', '--build', 'build/host-release', '--target', 'folivant-host')
    for name in ('floor', 'measure'):
        run('g++', '-std=c++20', '-O2', f'bench/{name}.cpp', '-o', scratch / name)
    if windows:
        run('cmake', '--preset', 'windows')
        run('cmake', '--build', 'build/windows', '--target', 'Folivant')
        program = scratch / 'program'  # for all of them: the loader looks for each library in the program's folder first
        program.mkdir()
        for file in (HOUSE / 'build/windows/Folivant.exe', *(HOUSE / 'build/windows').glob('*.ini')):
            shutil.copy(file, program)
        run(WINDOWS_COMPILER, '-std=c++20', '-O2', '-static', '-municode', 'bench/floor_windows.cpp', '-o',
            program / 'floor.exe')
        build_empty(scratch, run)


def compile_program(scratch, name, *sources):
    """A program with the core of the host build in it."""
    libraries = [HOUSE / f'build/host-release/src/libfolivant_{part}.a' for part in ('core', 'platform', 'core')]
    subprocess.run(['g++', '-std=c++20', '-O2', '-DNDEBUG', '-Isrc', '-Itests', *sources, *libraries, '-lcrypto',
                    '-o', scratch / name], cwd=HOUSE, check=True)


def build_empty(scratch, run):
    """A program that does nothing but links the libraries the program loads at its start: one function of each is
    referred to."""
    exe = HOUSE / 'build/windows/Folivant.exe'
    imports = subprocess.run(['x86_64-w64-mingw32-objdump', '-p', exe], capture_output=True, text=True,
                             check=True).stdout
    functions = []
    for section in imports.split('DLL Name: ')[1:]:
        found = re.search(r'^\s+[0-9a-f]+\s+\d+\s+(\w+)', section, re.M)
        if found and not section.lower().startswith(('msvcrt', 'kernel32', 'api-ms')):
            functions.append(found.group(1))
    source = scratch / 'empty.cpp'
    source.write_text('\n'.join(f'extern "C" __declspec(dllimport) void {name}();' for name in functions) +
                      '\nvoid (*volatile keep[])() = {' + ', '.join(functions) + '};\n'
                      'extern "C" int __stdcall WinMain(void*, void*, char*, int) { return keep[0] == nullptr; }\n')
    libraries = re.search(r'target_link_libraries\(folivant_platform PUBLIC (shell32[^)]*)\)',
                          (HOUSE / 'src/CMakeLists.txt').read_text()).group(1).split()
    run(WINDOWS_COMPILER, '-O2', '-static', '-mwindows', source, '-o', scratch / 'program/empty.exe',
        *[f'-l{name}' for name in libraries])
    return functions


class Trees:
    """Files of many names, sizes and dates, the same in every run."""

    def __init__(self, scratch):
        self.scratch = scratch
        self.random = random.Random(20010203)

    def files(self, directory, count):
        os.makedirs(directory, exist_ok=True)
        handle = os.open(directory, os.O_RDONLY)
        for number in range(count):
            letters = ''.join(self.random.choices('abcdefghijklmnopqrstuvwxyz', k=self.random.randint(4, 14)))
            name = f'{letters}{number}.{self.random.choice(("txt", "cpp", "html", "jpeg", "md"))}'
            file = os.open(name, os.O_CREAT | os.O_WRONLY, 0o644, dir_fd=handle)
            os.ftruncate(file, self.random.choice((0, 777, 54_321, 9_876_543)))
            os.utime(file, (0, self.random.randint(300_000_000, 1_700_000_000)))
            os.close(file)
        os.close(handle)

    def wide(self, name, directories, per_directory):
        root = self.scratch / name
        for number in range(directories):
            self.files(root / f'group {number // 100}' / f'folder {number}', per_directory)
        return root

    def flat(self, count):
        root = self.scratch / f'flat{count}'
        self.files(root, count)
        return root

    def chain(self, depth):
        root = self.scratch / 'chain'
        self.files(root.joinpath(*['level'] * depth), 1)
        return root

    def filled(self, name, count, size):
        """Files with content that differs from one to the next."""
        root = self.scratch / name
        root.mkdir()
        block = self.random.randbytes(10_000_000)
        for number in range(count):
            with open(root / f'file {number}', 'wb') as file:
                file.write(number.to_bytes(8, 'little'))
                while file.tell() < size:
                    file.write(block[:size - file.tell()])
        return root

    def empty(self):
        root = self.scratch / 'empty'
        root.mkdir()
        return root


class Bench:
    def __init__(self, scratch, pairs):
        self.scratch, self.pairs, self.clock = scratch, pairs, 'wall'
        self.settings = scratch / 'settings'
        self.environment = dict(os.environ, XDG_CONFIG_HOME=str(self.settings), LANG='C.UTF-8', LC_ALL='C.UTF-8')

    def once(self, command, output=None):
        """Time in seconds and peak memory in kilobytes of one run."""
        for _ in range(3):
            with open(output or os.devnull, 'wb') as sink:
                done = subprocess.run([self.scratch / 'measure', *command], stdout=sink, stderr=subprocess.PIPE,
                                      env=self.environment, check=True, timeout=600)
            wall, cpu, peak, status = re.search(r'^measured (\S+) (\S+) (\d+) (-?\d+)$',
                                                done.stderr.decode(errors='replace'), re.M).groups()
            if status == '0':
                return float(wall if self.clock == 'wall' else cpu), int(peak)
            if command[0] != 'wine' or float(wall) > 0.02:  # one start of Wine in some thousand ends before the program
                break
        sys.exit(f'{command} failed: {done.stderr.decode(errors="replace")}')

    def ratio(self, first, second, pairs=None):
        """Median of the ratios of paired runs, in alternating order, after one run of each to warm the cache."""
        for command, output in (first, second):
            self.once(command, output)
        ratios = []
        for number in range(pairs or self.pairs):
            order = (first, second) if number % 2 == 0 else (second, first)
            times = {id(run): self.once(*run)[0] for run in order}
            ratios.append(times[id(first)] / times[id(second)])
        return statistics.median(ratios)

    def filter_file(self, name, **keys):
        path = self.scratch / f'{name}.fvf'
        lines = ['[Folivant 3.5]', 'Filter=1000', 'FilterName=*.*', *[f'{key}={value}' for key, value in keys.items()]]
        path.write_text('\r\n'.join(lines) + '\r\n')
        return path


def dos(path):
    return 'Z:' + str(path).replace('/', '\\')


def listing(program, tree, output, kind='t', filter_file=None):
    """A command-line run; without a filter file of its own in style 1, ordered by name. A kind is a letter or a word."""
    chosen = filter_file or output.with_name('usual.fvf')
    return [*program, '/f', dos(chosen), '/d', dos(tree), '/t' if len(kind) == 1 else '/k', kind, '/o', dos(output), '/g']


def table(title, head, rows):
    lines = [f'### {title}', '', '| ' + ' | '.join(head) + ' |', '|' + ' --- |' * len(head)]
    lines += ['| ' + ' | '.join(str(cell) for cell in row) + ' |' for row in rows] + ['']
    print('\n'.join(lines), flush=True)  # as they come: a run takes a while
    return lines


def on_host(bench, trees):
    host = [HOUSE / 'build/host-release/folivant-host']
    out = bench.scratch / 'list.out'
    others = {'bfs -printf': lambda t: ['bfs', t, '-printf', '%p %s %t\n'],
              'find -printf': lambda t: ['find', t, '-printf', '%p %s %t\n'],
              'tree -sD': lambda t: ['tree', '-sD', t],
              'ls -lR': lambda t: ['ls', '-lR', t]}
    others = {name: command for name, command in others.items() if shutil.which(name.split()[0])}
    rows = []
    for name, tree in trees.items():
        floor = ([bench.scratch / 'floor', tree], None)
        row = [name, f'{bench.ratio((listing(host, tree, out), None), floor):.2f}']
        for command in others.values():
            row.append(f'{bench.ratio((command(tree), out), floor, max(3, bench.pairs // 3)):.2f}')
        rows.append(row)
    lines = table(ON_HOST, ['Tree', 'Folivant', *others], rows)

    tree = trees[WIDE]
    rows = []
    for kind, name in (('h', 'HTML'), ('x', 'XML'), ('a', 'tab-delimited'), ('c', 'CSV')):
        ratio = bench.ratio((listing(host, tree, out, kind), None), (listing(host, tree, out), None))
        rows.append([name, f'{ratio:.2f}'])
    return lines + table('Other kinds of file against text, on the host', ['Kind', 'Ratio'], rows)


def records(bench, tree):
    """Exact records on both systems; Wine has been started."""
    out = bench.scratch / 'list.out'
    programs = ([HOUSE / 'build/host-release/folivant-host'], ['wine', bench.scratch / 'program/Folivant.exe'])
    rows = []
    for kind, name in EXACT:
        ratios = [bench.ratio((listing(program, tree, out, kind), None), (listing(program, tree, out), None))
                  for program in programs]
        rows.append([name, *(f'{ratio:.2f}' for ratio in ratios)])
    return table(f'Exact records against text, {WIDE}', ['Kind', 'On the host', 'Under Wine'], rows)


def choices(bench, tree, flat):
    """What may be switched on, against the same without it, on both systems; Wine has been started."""
    out = bench.scratch / 'list.out'
    natural = bench.filter_file('natural', OrderBy=1, OrderAZ='True', Format=1, NaturalOrder='True')
    programs = ([HOUSE / 'build/host-release/folivant-host'], ['wine', bench.scratch / 'program/Folivant.exe'])

    def logged(program):
        return [*listing(program, tree, out), '/l', dos(bench.scratch / 'log.txt'), '/q']
    rows = [[f'natural order, {FLAT}', lambda p: listing(p, flat, out, filter_file=natural), lambda p: listing(p, flat, out)],
            [f'a log, {WIDE}', logged, lambda p: listing(p, tree, out)]]
    rows = [[name, *(f'{bench.ratio((chosen(p), None), (usual(p), None)):.2f}' for p in programs)]
            for name, chosen, usual in rows]
    return table('What choices cost, against the same run without', ['Choice', 'On the host', 'Under Wine'], rows)


def hashing(bench, make, scale):
    """Sums of the same files, all of them in the cache; of more than one, so that neither side waits for a disk."""
    host = [HOUSE / 'build/host-release/folivant-host']
    out = bench.scratch / 'list.out'
    rows = []
    for name, count, size in (('20 files of 50 MB', 20, 50_000_000), ('20,000 files of 20 kB', 20_000, 20_000)):
        tree = make.filled(f'filled {size}', max(1, int(count * scale)), size)
        tool = (['sh', '-c', f'cd "{tree}" && find . -type f -exec sha256sum {{}} +'], out)
        rows.append([name, f'{bench.ratio(tool, (listing(host, tree, out, "sha256"), None)):.2f}'])
        shutil.rmtree(tree)
    lines = table('Throughput of a SHA-256 list, on the host', ['Files', 'Times that of sha256sum'], rows)
    return lines + cancel_within_a_file(bench, make, max(1_000_000, int(1_000_000_000 * scale)))


def cancel_within_a_file(bench, make, size):
    """One huge file that has to come from the disk, then again from the cache."""
    compile_program(bench.scratch, 'hashing', 'bench/hashing.cpp')
    file = make.filled('huge', 1, size) / 'file 0'
    with open(file, 'rb') as opened:
        os.fsync(opened.fileno())
        os.posix_fadvise(opened.fileno(), 0, 0, os.POSIX_FADV_DONTNEED)
    rows = []
    for source in ('from the disk', 'from the cache'):
        done = subprocess.run([bench.scratch / 'hashing', file], capture_output=True, text=True, check=True)
        longest, whole = re.search(r'longest (\S+) ms of (\S+) s', done.stdout).groups()
        rows.append([f'{size / 1e9:.1f} GB {source}', f'{longest} ms', f'{whole} s'])
    shutil.rmtree(file.parent)
    return table('One file that is summed, on the host', ['File', 'Longest wait of Cancel', 'Whole'], rows)


def orders(bench, small, large):
    host = [HOUSE / 'build/host-release/folivant-host']
    out = bench.scratch / 'list.out'
    rows = []
    for code, name in enumerate(('none', 'name', 'MS-DOS name', 'size', 'date', 'extension')):
        row = [name]
        for ascending in ('True', 'False'):
            chosen = bench.filter_file(f'order{code}{ascending}', OrderBy=code, OrderAZ=ascending, Format=1)
            first, second = ((listing(host, tree, out, filter_file=chosen), None) for tree in (large, small))
            row.append(f'{bench.ratio(first, second, max(3, bench.pairs // 2)):.2f}')
        rows.append(row)
    return table('200,000 files in one directory against 100,000', ['Order', 'A to Z', 'Z to A'], rows)


def memory(bench, few, many, nodes):
    """Peaks of the host program. `few` and `many` hold 100 files in each directory, `nodes` one in each; all are pairs
    of a tree and its number of directories."""
    host = [HOUSE / 'build/host-release/folivant-host']
    out = bench.scratch / 'list.out'

    def peak(tree, style, kind='t'):
        chosen = bench.filter_file(f'style{style}', OrderBy=1, OrderAZ='True', Format=style)
        return statistics.median(bench.once(listing(host, tree, out, kind, chosen))[1] for _ in range(3))

    def growth(less, more, style):
        """Bytes for each further directory."""
        return (peak(more[0], style) - peak(less[0], style)) * 1024 / (more[1] - less[1])
    rows = []
    for kind, kind_name in (('t', 'text'), *EXACT):
        for style, name in ((0, 'No subdirectories'), (1, 'Include subdirectories'), (4, 'Full-path list')):
            rows.append([name, kind_name, f'{peak(few[0], style, kind):,} kB', f'{peak(many[0], style, kind):,} kB'])
    lines = table('Peak memory, streaming styles',
                  ['Style', 'Kind', f'{few[1]:,} directories', f'{many[1]:,} directories'], rows)
    lines += made_up_memory(bench)
    rows = [['Tree-style, per entry', f'{growth(few, many, 2) / 100:.0f}'],
            ['Directory view, per directory', f'{growth(*nodes, 3):.0f}']]
    return lines + table(COLLECTING, ['Style', 'Bytes'], rows)


def made_up_memory(bench):
    """Of rows that are on no disk, so that a million of them take no walk."""
    compile_program(bench.scratch, 'made_up', 'tests/records/made_up.cpp')
    rows = []
    for kind, name in EXACT:
        peaks = [bench.once([bench.scratch / 'made_up', kind, dos(bench.scratch / 'many.out'), str(count)])[1]
                 for count in (10_000, 1_000_000)]
        rows.append([name, *(f'{peak:,} kB' for peak in peaks)])
    (bench.scratch / 'many.out').unlink()
    return table('Peak memory, made-up entries', ['Kind', '10,000 entries', '1,000,000 entries'], rows)


def under_wine(bench, trees, empty):
    exe = ['wine', bench.scratch / 'program/Folivant.exe']
    out = bench.scratch / 'list.out'
    rows = []
    for name, tree in trees.items():
        floor = (['wine', bench.scratch / 'program/floor.exe', dos(tree)], None)
        rows.append([name, f'{bench.ratio((listing(exe, tree, out), None), floor):.2f}'])
    lines = table(UNDER_WINE, ['Tree', 'Folivant.exe'], rows)
    tree = next(iter(trees.values()))
    rows = []
    for kind, name in (('h', 'HTML'), ('x', 'XML')):
        rows.append([f'{name} against text', f'{bench.ratio((listing(exe, tree, out, kind), None), (listing(exe, tree, out), None)):.2f}'])
    rows.append(['Empty folder against an empty program',
                 f'{bench.ratio((listing(exe, empty, out), None), (["wine", bench.scratch / "program/empty.exe"], None), 15 * bench.pairs):.2f}'])
    return lines + table(OTHER_RUNS, ['Run', 'Ratio'], rows)


def interpreter(bench, trees):
    """The command interpreter's listing; one pair, because it takes minutes. It needs more than twice as long for twice as
    large a directory, and dies in the chain."""
    rows = []
    for name, tree in list(trees.items())[:2]:
        floor = (['wine', bench.scratch / 'program/floor.exe', dos(tree)], None)
        listing_ = (['wine', 'cmd', '/c', 'dir', '/s', dos(tree)], bench.scratch / 'list.out')
        rows.append([name, f'{bench.ratio(listing_, floor, 1):.1f}'])
    return table('Under Wine, the command interpreter against the floor', ['Tree', 'cmd /c dir /s'], rows)


def window(bench, tree, empty, filter_file):
    """The main window on a display of its own; its program compares by itself."""
    for command in (['cmake', '--preset', 'windows'], ['cmake', '--build', 'build/windows', '--target', 'window_bench']):
        subprocess.run(command, cwd=HOUSE, check=True, stdout=subprocess.DEVNULL)
    done = subprocess.run(['tests/env/with-wine.sh', 'wine', 'build/windows/window_bench.exe', dos(filter_file), dos(tree),
                           dos(empty), str(bench.pairs)], cwd=HOUSE, capture_output=True, text=True, check=True,
                          stdin=subprocess.DEVNULL)
    ratio = re.search(r'window (\S+) times', done.stdout).group(1)
    median, longest, count = re.search(r'median (\d+) longest (\d+) ms of (\d+)', done.stdout).groups()
    return table(f'The main window, {WIDE}', ['', ''],
                 [['Run from the window against the same with /g', ratio],
                  ['From Cancel to its question, median', f'{median} ms'],
                  [f'From Cancel to its question, longest of {count}', f'{longest} ms']])


def pages(scratch):
    """The page writer on a printer in memory; its program compares by itself."""
    compile_program(scratch, 'writers', 'bench/writers.cpp', 'tests/fakes/RecordingSurface.cpp')
    done = subprocess.run([scratch / 'writers', scratch / 'text.out'], capture_output=True, text=True, check=True)
    ratio = re.search(r'pages (\S+) times', done.stdout).group(1)
    return table('100,000 entries drawn on pages against written as text, without the walk', ['Writer', 'Ratio'],
                 [['Pages in memory', ratio]])


def start_wine(bench):
    """A prefix of its own with a server that stays; returns what ends it."""
    prefix = bench.scratch / 'prefix'
    home = bench.scratch / 'home'
    home.mkdir()
    bench.environment.update(WINEPREFIX=str(prefix), WINEDEBUG='-all', HOME=str(home),
                             WINEDLLOVERRIDES='winedbg.exe=d;winemenubuilder.exe=d')
    bench.environment.pop('DISPLAY', None)
    quiet = dict(stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, env=bench.environment)
    subprocess.run(['wine', 'wineboot', '-i'], check=True, timeout=300, **quiet)
    subprocess.run(['/usr/lib/wine/wineserver64', '-w'], timeout=300, **quiet)
    subprocess.run(['/usr/lib/wine/wineserver64', '-p'], **quiet)
    subprocess.run(['wine', 'wineboot'], timeout=300, **quiet)
    return lambda: subprocess.run(['/usr/lib/wine/wineserver64', '-k'], **quiet)


def put_between_markers(path, make):
    """Replaces what stands between the markers by what `make` makes of it."""
    before, rest = path.read_text().split(BEGIN, 1)
    old, after = rest.split(END, 1)
    path.write_text(f'{before}{BEGIN}\n{make(old)}{END}{after}')


def write(text):
    """The tables of this run into docs/benchmarks.md, and the summary of all that stands there into README.md."""
    page = HOUSE / 'docs/benchmarks.md'
    put_between_markers(page, lambda old: ''.join((sections(old) | sections(text)).values()))
    tables = sections(page.read_text().split(BEGIN, 1)[1].split(END, 1)[0])
    put_between_markers(HOUSE / 'README.md', lambda _: summary(tables))


def summary(tables):
    lines = ['| What | Cost |', '| --- | --- |']
    for words, title, row, unit in SUMMARY:
        figure = re.search(rf'^\| {re.escape(row)} \| (\S+) \|', tables[title], re.M).group(1)
        lines.append(f'| {words} | {figure} {unit} |')
    return '\n'.join(lines) + '\n'


def sections(text):
    """The tables by their titles."""
    return {part.split('\n', 1)[0]: f'### {part.rstrip()}\n\n' for part in re.split('^### ', text, flags=re.M)[1:]}


PARTS = ('pages', 'host', 'records', 'choices', 'hashing', 'orders', 'memory', 'wine', 'window')

def main():
    options = argparse.ArgumentParser(description=__doc__)
    options.add_argument('--pairs', type=int, default=9)
    options.add_argument('--only', choices=(*PARTS, 'interpreter'), action='append',
                         help='may be repeated; without it all but the interpreter, which takes minutes')
    options.add_argument('--clock', choices=('wall', 'cpu'), default='wall',
                         help='cpu for a busy machine; under Wine the server\'s share is not in it')
    options.add_argument('--scale', type=float, default=1.0, help='share of the trees, for trying the script')
    options.add_argument('--write', action='store_true')
    options.add_argument('--summary', action='store_true',
                         help="measure nothing; only make the README's table of what docs/benchmarks.md says")
    chosen = options.parse_args()
    if chosen.summary:
        return write('')
    parts = chosen.only or PARTS
    with tempfile.TemporaryDirectory(prefix='folivant-bench-') as name:
        scratch = pathlib.Path(name)
        build(scratch, not {'records', 'choices', 'wine', 'window', 'interpreter'}.isdisjoint(parts))
        bench = Bench(scratch, chosen.pairs)
        bench.clock = chosen.clock
        bench.filter_file('usual', OrderBy=1, OrderAZ='True', Format=1)
        lines = pages(scratch) if 'pages' in parts else []
        if set(parts) != {'pages'}:
            lines += measure(bench, Trees(scratch), parts, chosen.scale)
    text = '\n'.join(lines)
    if chosen.write:
        write(text)


def measure(bench, make, parts, scale):
    many = max(1, int(3000 * scale))
    trees = {WIDE: make.wide('wide', many, 100)}
    few = make.wide('few', max(1, many // 10), 100)
    large = max(2, int(200_000 * scale))
    trees[FLAT] = small_flat = make.flat(large // 2)
    trees['200,000 files in one directory'] = large_flat = make.flat(large)
    trees['chain of 300 directories'] = make.chain(300)
    empty = make.empty()
    lines = []
    if 'host' in parts:
        lines += on_host(bench, trees)
    if 'hashing' in parts:
        lines += hashing(bench, make, scale)
    if 'orders' in parts:
        lines += orders(bench, small_flat, large_flat)
    if 'memory' in parts:
        nodes = [(make.wide(f'nodes {count}', count, 1), count) for count in (many, 10 * many)]
        lines += memory(bench, (few, max(1, many // 10)), (trees[WIDE], many), nodes)
    if not {'records', 'choices', 'wine', 'interpreter'}.isdisjoint(parts):
        end_wine = start_wine(bench)
        try:
            lines += records(bench, trees[WIDE]) if 'records' in parts else []
            lines += choices(bench, trees[WIDE], small_flat) if 'choices' in parts else []
            lines += under_wine(bench, trees, empty) if 'wine' in parts else []
            lines += interpreter(bench, trees) if 'interpreter' in parts else []
        finally:
            end_wine()
    if 'window' in parts:
        lines += window(bench, trees[WIDE], empty, bench.scratch / 'usual.fvf')
    return lines


if __name__ == '__main__':
    main()
