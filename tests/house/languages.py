#!/usr/bin/env python3
"""Holds every language file against the numbers that the program uses: each text is there, placeholders and line breaks are
those of the English text, no two mnemonics of one window are the same, and texts whose place is narrow fit into it; French
marks have blanks that do not break, and every language has a flag. Which captions meet in one window is read from
the tables of the dialogs.

    tests/house/languages.py REPOSITORY
"""
import re
import sys
from pathlib import Path

ROOT = Path(sys.argv[1])
LANGUAGES = sorted(path.stem for path in (ROOT / 'lang').glob('*.ini'))
LONGEST = 299
# Characters that a listing leaves for a text: directory-view captions (on paper, less the blank before them), the size
# text of directories before its three blanks, units, column captions.
NARROW = {'FilesCaption': 8, 'DirectorySizeCaption': 9, 'TotalFilesCaption': 8, 'TotalSizeCaption': 9,
          'DirectorySizeText': 5, 'UnitBytes': 2, 'UnitKilobytes': 2, 'UnitMegabytes': 2, 'UnitGigabytes': 2,
          'UnitTerabytes': 2, 'SizeCaption': 8, 'DosNameCaption': 12, 'DateCaption': 16}
BREAKING = re.compile(r' [:;?!»]|« |\d %')


def numbers():
    names = dict(re.findall(r'^\s*(\w+) = (\d+),', (ROOT / 'src/ui/TextId.h').read_text(), re.M))
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
    """Each window, and each page together with the dialog around it: the names of the texts that stand in it."""
    for script in sorted((ROOT / 'src/res').glob('frm*.rc')):
        window = script.stem.removeprefix('frm')
        sources = [*ROOT.glob(f'src/*/{window}Controls.h'), *ROOT.glob(f'src/*/{script.stem}.cpp')]
        code = ''.join(source.read_text() for source in sources)
        captions = dict(re.findall(r'\{([\w +]+), TextId::(\w+)', code))
        dialogs = {}
        for name, body in re.findall(r'^(\w+) DIALOGEX(.*?)^END', script.read_text(), re.M | re.S):
            dialogs[name] = [text for control, text in captions.items()
                             if re.search(rf'\b{re.escape(control)}\b(?! \+)', body)]
        around = [text for name, texts in dialogs.items() if 'Page' not in name for text in texts]
        for name, found in dialogs.items():
            yield name, sorted(set(found + (around if 'Page' in name else [])))


def mnemonic(text):
    found = re.search(r'&([^&])', text.replace('&&', ''))
    return found[1].lower() if found else None


def complaints(language, used, english):
    own, problems = texts(language)
    yield from problems
    for key in ['Language', 'Flag']:
        if key not in own:
            yield f'{language}: no {key}'
    if not (ROOT / 'art' / f'flag-{own.get("Flag")}-{language}.svg').is_file():
        yield f'{language}: no drawing of its flag, art/flag-{own.get("Flag")}-{language}.svg'
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
        if language == 'french' and BREAKING.search(text):
            yield f'french: {number} ({name}) may break before or after a mark: {text}'
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
    return 1 if found or len(tables) < 12 or not all(names for _, names in tables) else 0


sys.exit(main())
