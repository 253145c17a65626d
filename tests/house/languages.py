#!/usr/bin/env python3
"""Holds every language file against the numbers that the program uses: each text is there, placeholders and line breaks are
those of the English text, no two mnemonics of one window are the same, and texts whose place is narrow fit into it. Which
captions meet in one window is read from the tables of the frm files.

    tests/house/languages.py REPOSITORY
"""
import re
import sys
from pathlib import Path

ROOT = Path(sys.argv[1])
LANGUAGES = ['english', 'dutch', 'german', 'french', 'spanish', 'italian', 'portuguese', 'polish', 'russian']
LONGEST = 299
# Characters that a listing leaves for a text: directory-view captions, the size text of directories before its three
# blanks, units, column captions.
NARROW = {'FilesCaption': 10, 'DirectorySizeCaption': 10, 'TotalFilesCaption': 10, 'TotalSizeCaption': 10,
          'DirectorySizeText': 5, 'UnitBytes': 2, 'UnitKilobytes': 2, 'UnitMegabytes': 2, 'UnitGigabytes': 2,
          'UnitTerabytes': 2, 'SizeCaption': 8, 'DosNameCaption': 12, 'DateCaption': 16}


def numbers():
    names = dict(re.findall(r'^\s*(\w+) = (\d+),', (ROOT / 'src/ui/Text.h').read_text(), re.M))
    return {name: int(number) for name, number in names.items()}


def texts(language):
    found, problems = {}, []
    for line in (ROOT / 'lang' / f'{language}.ini').read_text(encoding='utf-8').splitlines():
        entry = re.match(r'(\w+)=(.*)', line)
        if entry:
            if entry[1] in found:
                problems.append(f'{language}: {entry[1]} stands there twice')
            found[entry[1]] = entry[2]
    return found, problems


def windows():
    """Lists of message names that stand in one window or on one page of it."""
    for source in sorted(ROOT.glob('src/**/frm*.cpp')):
        code = source.read_text()
        common = ['Help'] if 'Text::Help' in code else []
        for table in re.findall(r'Binding<[^>]*> \w+\[\] = \{(.*?)\n\};', code, re.S):
            names = re.findall(r'Text::(\w+)', table)
            if names:
                yield f'{source.stem}', sorted(set(names + common))


def mnemonic(text):
    found = re.search(r'&([^&])', text.replace('&&', ''))
    return found[1].lower() if found else None


def complaints(language, used, english):
    own, problems = texts(language)
    yield from problems
    for key in ['Language', 'Flag']:
        if key not in own:
            yield f'{language}: no {key}'
    for name, number in used.items():
        text = own.get(str(number))
        if text is None:
            yield f'{language}: {number} ({name}) is missing'
            continue
        marks = r'%\d|\\n'
        if sorted(re.findall(marks, text)) != sorted(re.findall(marks, english[str(number)])):
            yield f'{language}: {number} ({name}) has other placeholders or line breaks than English'
        if not text.strip() or len(text) > NARROW.get(name, LONGEST):
            yield f'{language}: {number} ({name}) is empty or too long: {text}'
    for number in set(own) - {str(n) for n in used.values()} - {'Language', 'Flag'}:
        yield f'{language}: {number} is not used'
    for window, names in windows():
        seen = {}
        for name in names:
            key = mnemonic(own.get(str(used[name]), ''))
            if key and key in seen:
                yield f'{language}: {window}: "{key}" is the mnemonic of {seen[key]} and of {name}'
            seen[key] = name


def main():
    used = numbers()
    english, _ = texts('english')
    found = [c for language in LANGUAGES for c in complaints(language, used, english)]
    tables = list(windows())
    print('\n'.join(found) or f'{len(LANGUAGES)} languages, {len(used)} texts, {len(tables)} windows and pages.')
    return 1 if found or len(tables) < 8 else 0


sys.exit(main())
