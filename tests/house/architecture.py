#!/usr/bin/env python3
"""docs/pictures/architecture.svg draws the folders of src/ as floors of a house, with the number of includes from each to
those below. It is drawn from the includes themselves; without --write it is only compared. The order of the floors is that
of tests/house/floors.py.

    tests/house/architecture.py REPOSITORY [--write]
"""
import ast
import re
import sys
from collections import Counter
from pathlib import Path

ROOT = Path(sys.argv[1])
PICTURE = ROOT / 'docs/pictures/architecture.svg'

WHAT = {
    'app': 'start-up, command line, main window, settings: joins everything',
    'output': 'a writer for each kind, pages, columns',
    'shell': 'Find windows, lists of paths',
    'scan': 'the run: walks, filter, order, records, listing events',
    'ui': 'texts of the language, values as text, the base of all dialogs',
    'base': 'helpers for paths, numbers, dates; general settings',
    'platform': 'what the program asks of the system: headers, with a body each in win32/, host/ and tests/fakes/',
    'res': 'numbers of controls, dialog templates, pictures',
}
FILLS = ['#f7d9c4', '#faedcb', '#c9e4de', '#c6def1', '#dbcdf0', '#f2c6de', '#e4e4e0']

WIDTH, MARGIN, FLOOR, LOW_FLOOR, GAP, PILL, ROOF = 860, 20, 80, 42, 6, 23, 92


def floors():
    """The list of floors.py, from the top down."""
    tree = ast.parse((ROOT / 'tests/house/floors.py').read_text())
    return next(ast.literal_eval(node.value) for node in tree.body
                if isinstance(node, ast.Assign) and node.targets[0].id == 'FLOORS')


def includes():
    """How many includes lead from one folder of src/ to another."""
    counts = Counter()
    for path in sorted((ROOT / 'src').rglob('*')):
        if path.suffix in ('.h', '.cpp'):
            own = path.relative_to(ROOT / 'src').parts[0]
            for other in re.findall(r'^\s*#include\s+"(\w+)/', path.read_text(encoding='utf-8'), re.M):
                if other != own:
                    counts[own, other] += 1
    return counts


def text(x, y, content, size, extra=''):
    return f'<text x="{x}" y="{y}" font-size="{size}"{extra}>{content}</text>'


def room(x, y, width, height, fill, folder, below):
    """One folder: its name, what it is for, and a pill for each folder that it includes from."""
    yield f'<rect x="{x}" y="{y}" width="{width}" height="{height}" rx="3" fill="{fill}" stroke="#54504a"/>'
    yield text(x + 14, y + 26, f'<tspan font-weight="bold">{folder}/</tspan> <tspan font-size="13">{WHAT[folder]}</tspan>', 18)
    at = x + 14
    for other, count in below:
        label = f'{other} {count}'
        pill = 22 + int(7.4 * len(label))
        yield (f'<rect x="{at}" y="{y + height - PILL - 12}" width="{pill}" height="{PILL}" rx="{PILL / 2}" fill="#fffdf8" '
               'stroke="#8d877d"/>')
        yield text(at + pill / 2, y + height - 19, f'↓ {label}', 12.5, ' text-anchor="middle"')
        at += pill + 8


def picture():
    house, counts = floors(), includes()
    order = [folder for floor in house for folder in floor]
    depth = {folder: level for level, floor in enumerate(house) for folder in floor}
    up = sum(count for (own, other), count in counts.items() if depth[other] <= depth[own])
    rooms, top = [], ROOF
    for floor, fill in zip(house, FILLS, strict=True):
        width = (WIDTH - 2 * MARGIN - GAP * (len(floor) - 1)) // len(floor)
        height = FLOOR if any(own in floor for own, _ in counts) else LOW_FLOOR
        for place, folder in enumerate(floor):
            below = [(other, counts[folder, other]) for other in order if counts[folder, other]]
            rooms += room(MARGIN + place * (width + GAP), top, width, height, fill, folder, below)
        top += height + GAP
    lines = [f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {WIDTH} {top + 32}" width="{WIDTH}" height="{top + 32}" '
             'font-family="Segoe UI, DejaVu Sans, Arial, sans-serif" fill="#26231f">',
             '<!-- Made by tests/house/architecture.py from the includes of src/. -->',
             '<title>The folders of src/ as floors of a house, and the includes between them</title>',
             f'<rect x="{WIDTH - 200}" y="10" width="42" height="60" fill="#9c5b45" stroke="#54504a"/>',
             f'<polygon points="{WIDTH / 2:g},4 {WIDTH - 4},{ROOF - GAP} 4,{ROOF - GAP}" fill="#b9694f" stroke="#54504a"/>',
             text(WIDTH / 2, ROOF - 28, 'Folivant.exe', 21, ' text-anchor="middle" fill="#ffffff" font-weight="bold"'),
             *rooms,
             f'<rect x="0" y="{top - 2}" width="{WIDTH}" height="34" fill="#6b7f5b"/>',
             text(WIDTH / 2, top + 20, f'↓ counts the includes that lead to a folder below; {up or "none"} lead up', 13,
                  ' text-anchor="middle" fill="#ffffff"'), '</svg>']
    return '\n'.join(lines) + '\n', sum(counts.values())


def main():
    drawn, count = picture()
    if '--write' in sys.argv:
        PICTURE.write_text(drawn, encoding='utf-8')
    stale = not PICTURE.exists() or PICTURE.read_text(encoding='utf-8') != drawn
    print(f'{PICTURE.name} is not what the sources say: run tests/house/architecture.py . --write' if stale
          else f'{count} includes between the floors.')
    return 1 if stale or not count else 0


sys.exit(main())
