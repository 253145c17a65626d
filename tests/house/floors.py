#!/usr/bin/env python3
"""Holds the floors of the house: a file includes headers of its own folder and of the folders below it, <windows.h> and its
kin come in through the platform seam and the frm files alone, and every header compiles by itself.

    tests/house/floors.py SOURCE_FOLDER [COMPILER]
"""
import re
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

# From the top down. Two folders of one floor do not include each other; the numbers of controls and pictures in res are
# everybody's.
FLOORS = [['app'], ['output', 'shell'], ['scan'], ['ui'], ['base'], ['platform'], ['res']]
HEIGHT = {folder: -depth for depth, folders in enumerate(FLOORS) for folder in folders}
SYSTEM_HEADER = re.compile(r'<(windows|winsock2?|commctrl|commdlg|shlobj|shellapi|shobjidl|winspool|mmsystem|ole2|unistd|sys/)[^>]*>')


def folder_of(path):
    return path.split('/')[0]


def complaints_about(source, path):
    own_folder = folder_of(path)
    if own_folder not in HEIGHT:
        yield f'{path}: its folder is on no floor'
        return
    for number, line in enumerate((source / path).read_text().splitlines(), 1):
        included = re.match(r'\s*#include\s+(?:"([^"]+)"|(<[^>]+>))', line)
        if not included:
            continue
        own, system = included.groups()
        if own and (source / own).exists():
            folder = folder_of(own)
            if folder != own_folder and HEIGHT.get(folder, 1) >= HEIGHT[own_folder]:
                yield f'{path}:{number}: includes {own}, which is not below it'
        if system and SYSTEM_HEADER.match(system) and not re.match(r'(platform|app)/(win32|host)/|.*/frm', path):
            yield f'{path}:{number}: {system} outside the seam'


def compile_alone(source, path, compiler):
    done = subprocess.run([compiler, '-std=c++20', '-fsyntax-only', '-x', 'c++', '-I', source, '-'],
                          input=f'#include "{path}"\n', text=True, capture_output=True)
    return [] if done.returncode == 0 else [f'{path}: does not compile alone\n{done.stderr}']


def main():
    source = Path(sys.argv[1])
    paths = sorted(str(p.relative_to(source)) for p in source.rglob('*') if p.suffix in ('.h', '.cpp'))
    complaints = [c for path in paths for c in complaints_about(source, path)]
    if len(sys.argv) > 2:
        headers = [p for p in paths if p.endswith('.h') and not re.match(r'(platform|app)/win32/|.*/frm', p)]
        with ThreadPoolExecutor() as pool:
            for found in pool.map(lambda path: compile_alone(source, path, sys.argv[2]), headers):
                complaints += found
    print('\n'.join(complaints) or f'{len(paths)} files keep to their floors.')
    return 1 if complaints or not paths else 0


sys.exit(main())
