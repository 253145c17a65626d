"""A CSV file as a spreadsheet opens it: converted by LibreOffice without a window, read back from what it saved."""
import os
import re
import signal
import subprocess
import zipfile
import xml.etree.ElementTree as ElementTree

SPACE = '{http://schemas.openxmlformats.org/spreadsheetml/2006/main}'
# What the import window proposes after a double click: comma, quote, UTF-8 (76; the mark at the file's beginning says so).
AS_OPENED = 'CSV:44,34,76,1'


def all_text(columns):
    """The same with each column set to "Text", as that window offers."""
    return f'{AS_OPENED},{"/".join(f"{column}/2" for column in range(1, columns + 1))}'


def convert(csv_file, folder, options):
    """The cells of each row: text as str, numbers as float, truth values as bool, formulas as ('=', text, value)."""
    environment = {**os.environ, 'LC_ALL': 'C.UTF-8', 'HOME': str(folder)}
    environment.pop('DISPLAY', None)
    profile = (folder / 'profile').as_uri()
    command = ['soffice', f'-env:UserInstallation={profile}', '--headless', f'--infilter={options}', '--convert-to', 'xlsx',
               '--outdir', folder, csv_file]
    with subprocess.Popen(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, env=environment,
                          start_new_session=True) as run:
        try:
            said, _ = run.communicate(timeout=120)
        except subprocess.TimeoutExpired:
            os.killpg(run.pid, signal.SIGKILL)  # the program is a child of the script that was started
            raise
    book = folder / (csv_file.stem + '.xlsx')
    if run.returncode != 0 or not book.is_file():
        raise AssertionError(said.decode(errors='replace'))
    with zipfile.ZipFile(book) as opened:
        texts = [plain(item) for item in ElementTree.fromstring(opened.read('xl/sharedStrings.xml'))]
        sheet = ElementTree.fromstring(opened.read('xl/worksheets/sheet1.xml'))
    book.unlink()
    return [row_of(row, texts) for row in sheet.iter(SPACE + 'row')]


def plain(item):
    """The text of an element, in which control characters are spelled "_x0001_"."""
    text = ''.join(part.text or '' for part in item.iter(SPACE + 't'))
    return re.sub('_x([0-9A-Fa-f]{4})_', lambda found: chr(int(found.group(1), 16)), text)


# How each type of cell is read.
READ = {'s': lambda value, texts: texts[int(value)], 'str': lambda value, _: value, 'b': lambda value, _: value == '1',
        'n': lambda value, _: float(value)}


def row_of(row, texts):
    cells = []
    for cell in row.iter(SPACE + 'c'):
        value, formula, kind = cell.findtext(SPACE + 'v'), cell.findtext(SPACE + 'f'), cell.get('t', 'n')
        letters = re.match('[A-Z]+', cell.get('r')).group()
        column = 0
        for letter in letters:
            column = 26 * column + ord(letter) - ord('A') + 1
        cells += [''] * (column - len(cells))
        if value is None:
            continue
        shown = READ[kind](value, texts)
        cells[column - 1] = shown if formula is None else ('=', formula, shown)
    return cells
