#!/usr/bin/env python3
"""Holds every manual in help/ against the English one and against its language file: the same elements, anchors, links,
pictures and code in the same places, every control (<b>) named as the windows name it, nothing left in English, and each
style, button, switch and placeholder of the program explained. French marks have blanks that do not break.

    tests/house/manuals.py REPOSITORY
"""
import re
import sys
from html.parser import HTMLParser
from pathlib import Path

ROOT = Path(sys.argv[1])
TAGS = {'english': 'en', 'dutch': 'nl', 'german': 'de', 'french': 'fr', 'spanish': 'es', 'italian': 'it',
        'portuguese': 'pt-PT', 'polish': 'pl', 'russian': 'ru'}
INLINE = {'b', 'code', 'a'}
EMPTY = {'meta', 'link', 'img'}
# Untranslated entries of the save dialog, and what each language calls the same.
COMMON = {'Folivant', 'CSV-file', 'XML file', 'OK'}
ENGLISH_WORDS = {'the', 'and', 'with', 'which', 'from', 'this', 'that', 'are'}
# What a manual must name: the texts of the main window, of the styles, of the options' switches and of the filter.
EXPLAINED = [*range(0, 16), 18, 19, 20, *range(24, 32), 34, 37, 38, 39, 42, 50, 52, 54, 55, 105, 106, 108, 109, 110, 135,
             144, *range(210, 217), 222, 223, 224, 225, 226, 228, 233, 234, 240, 241, 246, 251, 260, 261, 263, 265, 266,
             267, 268, 269, 272, 279, 280, 282, 283, 285, 287, 288]
EXPLAINED.remove(216)  # "between", which the pickers show
BREAKING = re.compile(r' [:;?!»]|« |\d %|\d \d')


class Block:
    """An element that starts a line, with the inline elements in it. Words may stand in another order elsewhere."""

    def __init__(self, tag):
        self.tag, self.text, self.controls, self.codes, self.links = tag, '', [], [], []


class Page(HTMLParser):
    def __init__(self, language):
        super().__init__()
        self.problems, self.blocks, self.ids, self.pictures, self.alts = [], [], [], [], []
        self.open, self.language, self.meta, self.styles = [], None, [], []
        self.name = language
        source = (ROOT / 'help' / f'{language}.html').read_bytes()
        try:
            self.feed(source.decode('utf-8'))
        except UnicodeDecodeError:
            self.problems.append('is not UTF-8')
        if self.open:
            self.problems.append(f'<{self.open[-1]}> stays open')

    def handle_starttag(self, tag, attributes):
        found = dict(attributes)
        if tag not in EMPTY:
            self.open.append(tag)
        if tag not in INLINE:
            self.blocks.append(Block(tag))
        if tag == 'html':
            self.language = found.get('lang')
        elif tag == 'meta':
            self.meta.append(found.get('charset') or found.get('name'))
        elif tag == 'link':
            self.styles.append(found.get('href'))
        elif tag == 'a':
            self.blocks[-1].links.append(found.get('href'))
        elif tag == 'img':
            self.pictures.append(found.get('src'))
            self.alts.append(found.get('alt') or '')
        elif tag in ('b', 'code'):
            (self.blocks[-1].controls if tag == 'b' else self.blocks[-1].codes).append('')
        if 'id' in found:
            self.ids.append(found['id'])

    def handle_endtag(self, tag):
        if not self.open or self.open.pop() != tag:
            self.problems.append(f'</{tag}> ends something else, near line {self.getpos()[0]}')

    def handle_data(self, data):
        if not self.blocks:
            return
        inside, block = self.open[-1] if self.open else '', self.blocks[-1]
        if inside == 'b':
            block.controls[-1] += data
        elif inside == 'code':
            block.codes[-1] += data
        elif inside != 'pre':
            block.text += data


def texts(language):
    """The numbered texts as a reader names them: without marks, colons and dots."""
    found = {}
    for line in (ROOT / 'lang' / f'{language}.ini').read_text(encoding='utf-8').splitlines():
        entry = re.match(r'(\d+)=(.*)', line)
        if entry:
            found[int(entry[1])] = re.sub(r'(\.\.\.|\s*:)$', '', entry[2].replace('&', ''))
    return found


def numbers_of(caption, own):
    return {number for number, text in own.items() if text == caption}


def same_controls(theirs, ours):
    """Whether each of `theirs` (sets of numbers) can be paired with one of `ours` that has a number in common."""
    if not theirs:
        return not ours
    return any(theirs[0] & each and same_controls(theirs[1:], ours[:i] + ours[i + 1:]) for i, each in enumerate(ours))


def of_the_file(page):
    """Complaints about one page by itself."""
    yield from page.problems
    if page.language != TAGS[page.name]:
        yield f'says that it is in "{page.language}", not "{TAGS[page.name]}"'
    if 'utf-8' not in page.meta:
        yield 'does not say that it is UTF-8'
    for style in page.styles:
        if not (ROOT / 'help' / style).is_file():
            yield f'{style} is missing'
    if len(set(page.ids)) != len(page.ids):
        yield 'has an anchor twice'
    for link in [link for block in page.blocks for link in block.links]:
        if not link.startswith('#') or link[1:] not in page.ids:
            yield f'the link {link} leads nowhere'
    folder = ROOT / 'help/pictures' / page.name
    for picture, alt in zip(page.pictures, page.alts):
        if not picture.startswith(f'pictures/{page.name}/') or not (ROOT / 'help' / picture).is_file():
            yield f'the picture {picture} is missing, or not of this language'
        if not alt:
            yield f'{picture} has no text for those who cannot see it'
    for file in sorted(folder.glob('*')):
        if f'pictures/{page.name}/{file.name}' not in page.pictures:
            yield f'{file.name} is shown nowhere'


def of_french_marks(page):
    for text in [text for block in page.blocks for text in (block.text, *block.controls)] + page.alts:
        if BREAKING.search(text):
            yield f'"{text.strip()[:60]}" may break before or after a mark'


def of_the_controls(page, own):
    named = set()
    for control in [control for block in page.blocks for control in block.controls]:
        numbers = numbers_of(control, own)
        named |= numbers
        if not numbers:
            yield f'no window says "{control}"'
    for number in EXPLAINED:
        if number not in named:
            yield f'does not name "{own[number]}" ({number})'


def against_english(page, own, english, captions):
    if [b.tag for b in page.blocks] != [b.tag for b in english.blocks]:
        at = next((i for i, (a, b) in enumerate(zip(page.blocks, english.blocks)) if a.tag != b.tag), -1)
        yield f'has other elements than English, from "{page.blocks[at].text.strip()[:40]}"'
        return
    if page.ids != english.ids:
        yield 'has other anchors than English'
    names = [Path(picture).name for picture in page.pictures]
    if names != [Path(picture).name for picture in english.pictures]:
        yield 'has other pictures than English'
    if set(page.alts) & set(english.alts):
        yield 'describes a picture in English'
    for block, other in zip(page.blocks, english.blocks):
        where = (block.text.strip() or ' '.join(block.controls + block.codes))[:40]
        if sorted(block.codes) != sorted(other.codes) or sorted(block.links) != sorted(other.links):
            yield f'"{where}": other code or links than English'
        if not same_controls([numbers_of(c, captions) for c in other.controls],
                             [numbers_of(c, own) for c in block.controls]):
            yield f'"{where}": other controls than English: {block.controls} for {other.controls}'


def in_english(page, own, english, captions):
    foreign = {caption for number, caption in captions.items()
               if re.match(r'[A-Z][a-z]{2}', caption) and own.get(number) != caption} - set(own.values()) - COMMON
    for block, other in zip(page.blocks, english.blocks):
        text = ' '.join(block.text.split())
        words = re.findall(r"[^\W\d_]+(?:[-'][^\W\d_]+)*", text)
        left = ENGLISH_WORDS & {word.lower() for word in words} or {caption for caption in foreign
                                              if re.search(rf'\b{re.escape(caption)}\b', text)} - COMMON
        if text not in COMMON and (left or len(words) > 1 and text == ' '.join(other.text.split())):
            yield f'"{text[:60]}" is English: {", ".join(sorted(left)) or "all of it"}'


def of_the_program(english):
    """What the program understands, each in the English manual's code."""
    codes = {code for block in english.blocks for code in block.codes}
    line = (ROOT / 'src/app/CommandLine.cpp').read_text()
    start = (ROOT / 'src/app/StartUp.cpp').read_text()
    switches = set(re.findall(r'L"(/\w+)"', line + start))
    rows = re.findall(r"""\{OutputKind::\w+, L"[\w-]+", L'(\w|\\0)', L"(\w*)",""",
                      (ROOT / 'src/output/OutputKinds.cpp').read_text())
    letters = {letter for letter, _ in rows} - {'\\0'}
    words = {word for _, word in rows} - {''}
    expanded = (ROOT / 'src/output/DriverServices.cpp').read_text()
    placeholders = set(re.findall(r'L"(%\w)', expanded))
    if len(switches) < 7 or len(letters) < 6 or len(words) < 3 or len(placeholders) < 7:
        yield f'the sources do not show what there is to explain: {switches} {letters} {words} {placeholders}'
    for code in sorted((switches | letters | words | placeholders) - codes):
        yield f'does not explain {code}'


def main():
    found = []
    captions, english = texts('english'), Page('english')
    for language in TAGS:
        if not (ROOT / 'help' / f'{language}.html').is_file():
            found.append(f'{language}: there is no manual')
            continue
        own, page = texts(language), Page(language)
        complaints = [*of_the_file(page)]
        if page.blocks:
            complaints += of_the_controls(page, own)
        if language == 'english':
            complaints += of_the_program(page)
        elif page.blocks:
            complaints += [*against_english(page, own, english, captions), *in_english(page, own, english, captions)]
        if language == 'french':
            complaints += of_french_marks(page)
        found += [f'{language}: {complaint}' for complaint in complaints]
    languages = {path.stem for path in (ROOT / 'lang').glob('*.ini')}
    found += [f'{name}: no manual for this language, or a manual for none' for name in languages ^ set(TAGS)]
    controls = sum(len(block.controls) for block in english.blocks)
    print('\n'.join(found) or f'{len(TAGS)} manuals, {len(english.blocks)} elements and {controls} controls in each.')
    return 1 if found or controls < 60 else 0


sys.exit(main())
