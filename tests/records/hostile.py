"""A tree of names that break listings, as far as a Unix file system can hold them, and what an independent walk of it
sees: the system's own calls, through Python, and no code of ours."""
import os
from datetime import datetime, timedelta

NAMES = [b'plain.txt', b'UPPER CASE.TXT', b'a,b', b'a;b', b'q"uote', b'"', b'new\nline', b'cr\rhere', b'crlf\r\nhere',
         b'tab\there', b'\ttab first', b'=1+1', b'+1', b'-1', b'@x', b"it's", b"'first", b' blank first', b'blank last ',
         b' ', b'dot.', b'dots...', b'dot. ', b'\x01\x1b\x1f\x7f', b'back\\slash', b'.hidden', b'st*r?<>|', b'co:lon',
         b'nul.txt', b'CON', b'123', b'007', b'1e5', b'1,5', b'2026-01-02', b'12:30', b'TRUE', b'_x0041_', b'%41', b'&amp;',
         b'x' * 255, *(name.encode() for name in [
             '\u00e9', 'e\u0301', '\u0416\u65e5\u672c', '\U0001f600.txt', '\U0001f600' * 63, '\ufeffmark', '\ufffd', '\uffff',
             '\u00a0no break\u00a0', '\u2028line\u2029', '\u0085next', '\u202etxt.exe', '\U0010ffff'])]
# Names that are no UTF-8, and what they read as.
BROKEN = {b'bad\xff': 'bad\ufffd', b'half\xed\xa0\x80': 'half\ufffd\ufffd', b'cut\xf0\x9f\x98': 'cut\ufffd'}
DEEP = [b'D%02d' % number + b'x' * 40 for number in range(12)]  # a path beyond 260 characters
TICKS = 10_000_000


def text_of(path):
    """A path of bytes as Folivant spells it."""
    names = [BROKEN.get(name) or name.decode() for name in path.split(b'/')]
    return 'Z:' + '\\'.join(names)


def time_text(nanoseconds):
    ticks = nanoseconds // 100
    whole = datetime(1970, 1, 1) + timedelta(seconds=ticks // TICKS)
    return f'{whole:%Y-%m-%dT%H:%M:%S}.{ticks % TICKS:07}Z'


class Maker:
    """Makes files of different sizes and times, down to the digit of 100 ns, the same in every run."""

    def __init__(self, root):
        self.root, self.count = os.fsencode(root), 0
        os.makedirs(self.root, exist_ok=True)

    def file(self, name, content=None, size=None):
        path = os.path.join(self.root, name)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        self.count += 1
        with open(path, 'wb') as made:
            made.write(b'%d\n' % self.count * self.count if content is None else content)
            if size is not None:
                made.truncate(size)
        # Seven years between two of them, from 1930 on; 89 ns are less than what is told.
        seconds = -1_250_000_000 + self.count * 47_000_017
        os.utime(path, ns=(seconds * 10**9 + 123_456_789, seconds * 10**9 + 1000 * self.count + 700 + 89))
        return path

    def directory(self, name):
        os.makedirs(os.path.join(self.root, name), exist_ok=True)

    def link(self, name, target):
        os.symlink(os.path.join(self.root, target), os.path.join(self.root, name))

    def date_directories(self):
        for directory, _, _ in os.walk(self.root, topdown=False):
            self.count += 1
            os.utime(directory, ns=(0, (1_500_000_000 + self.count) * 10**9 + self.count * 100))


def make(root, broken=True, separators=True):
    """All of it. Without `broken` every name is UTF-8, without `separators` no name holds a backslash: such names stand
    for no path that could be opened."""
    maker = Maker(root)
    for name in [*NAMES, *(BROKEN if broken else ())]:
        if separators or b'\\' not in name:
            maker.file(name)
            maker.file(b'Directories/' + name + b'/Inside.txt')
    maker.file(b'empty', content=b'')
    maker.file(b'/'.join(DEEP) + b'/Bottom.txt')
    maker.directory(b'Empty directory')
    maker.link(b'link to file', b'plain.txt')
    maker.link(b'link to directory', DEEP[0])
    maker.link(b'Directories/link to ancestor', b'')
    maker.link(b'link to nothing', b'missing')
    maker.date_directories()


class Entry:
    def __init__(self, path, status, link, level):
        self.path, self.text = path, text_of(path)
        self.name = self.text[len(text_of(os.path.dirname(path))) + 1:]
        self.directory = os.path.isdir(path)
        self.size = None if self.directory else status.st_size
        self.modified = time_text(status.st_mtime_ns)
        self.accessed = time_text(status.st_atime_ns)
        self.type = 'link' if self.directory and link else 'directory' if self.directory else 'file'
        self.level = level

    def key(self):
        return self.text, self.type, self.size, self.modified


def walk(root, can_open=lambda name: True, depth=None):
    """What is below `root`, directories first entered when their turn comes. A link that leads nowhere is not seen, one
    that leads to a directory above it is not entered, and neither is a directory that `can_open` refuses; those are
    handed back as well."""
    closed = []

    def below(directory, above, level):
        for name in os.listdir(directory):
            path = os.path.join(directory, name)
            try:
                status = os.stat(path)
            except FileNotFoundError:
                continue
            entry = Entry(path, status, os.path.islink(path), level)
            yield entry
            identity = (status.st_dev, status.st_ino)
            if entry.directory and identity not in above and (depth is None or level < depth):
                if can_open(name):
                    yield from below(path, {*above, identity}, level + 1)
                else:
                    closed.append(entry.text)

    root = os.fsencode(root)
    above = set()
    parts = root.split(b'/')
    for end in range(1, len(parts) + 1):
        status = os.stat(b'/'.join(parts[:end]) or b'/')
        above.add((status.st_dev, status.st_ino))
    return list(below(root, above, 0)), closed

