#!/usr/bin/env python3
"""Holds the pages for developers against the house: every link leads to a file and an anchor, every path in backticks is
there, and every name of the program that docs/architecture.md and CONTRIBUTING.md put in backticks stands in the sources.

    tests/house/pages.py REPOSITORY
"""
import re
import sys
from pathlib import Path

ROOT = Path(sys.argv[1]).resolve()
PAGES = [ROOT / 'README.md', ROOT / 'CONTRIBUTING.md', ROOT / 'CHANGELOG.md', *sorted((ROOT / 'docs').rglob('*.md'))]
NAMING = {'docs/architecture.md', 'CONTRIBUTING.md'}
FOLDERS = {path.name for path in ROOT.iterdir() if path.is_dir()} - {'build', 'dist'}
MADE = {'build', 'dist'}


def anchors(page):
    """As the pages of a repository are shown: a heading in small letters, with hyphens for blanks."""
    titles = re.findall(r'^#+ (.*)$', page.read_text(encoding='utf-8'), re.M)
    return {re.sub(r'[^\w\- ]', '', title.lower()).replace(' ', '-') for title in titles}


def of_the_links(page, text):
    for target in re.findall(r'\]\(([^)\s]+)\)', text):
        if re.match(r'\w+:', target):
            continue
        name, _, anchor = target.partition('#')
        file = (page.parent / name).resolve() if name else page
        if not file.exists():
            yield f'{target} leads nowhere'
        elif anchor and file.suffix == '.md' and anchor not in anchors(file):
            yield f'{target}: no such heading'


def spellings(code):
    """"a/{b,c}.h" as a/b.h and a/c.h."""
    choice = re.search(r'\{([\w,.]+)\}', code)
    return [code.replace(choice[0], each) for each in choice[1].split(',')] if choice else [code]


def of_the_paths(codes):
    for code in codes:
        for path in spellings(code):
            name = path.removeprefix('./')
            if re.fullmatch(r'[\w.\-]+(/[\w.\-*]*)+', name) and name.split('/')[0] in FOLDERS - MADE and 'NAME' not in name:
                if not any(ROOT.glob(name.rstrip('/'))):
                    yield f'there is no {path}'


def of_the_names(codes, words, files):
    for code in codes:
        name = code.removesuffix('()')
        if re.fullmatch(r'[A-Za-z]\w*[a-z]\w*(::\w+)*', name) and re.search(r'[A-Z]', name) and 'NAME' not in name:
            if not set(name.split('::')) <= words and name not in files:
                yield f'{name} stands nowhere in the sources'


def main():
    sources = [path for folder in ('src', 'tests', 'cmake', 'packaging', 'lang') for path in (ROOT / folder).rglob('*')
               if path.suffix in ('.h', '.cpp', '.rc', '.cmake', '.txt', '.nsi', '.nsh', '.py', '.ini')
               and not path.is_relative_to(ROOT / 'tests/listings/')]
    words = {word for path in sources for word in re.findall(r'\w+', path.read_text(encoding='utf-8', errors='replace'))}
    files = {path.stem for path in sources}
    found, checked = [], 0
    for page in PAGES:
        name = page.relative_to(ROOT).as_posix()
        text = re.sub(r'^    .*$', '', page.read_text(encoding='utf-8'), flags=re.M)
        codes = re.findall(r'`([^`\n]+)`', text)
        checked += len(codes)
        complaints = [*of_the_links(page, text), *of_the_paths(codes)]
        complaints += of_the_names(codes, words, files) if name in NAMING else []
        found += [f'{name}: {complaint}' for complaint in complaints]
    print('\n'.join(found) or f'{len(PAGES)} pages, {checked} names and paths in them.')
    return 1 if found or checked < 200 else 0


sys.exit(main())
