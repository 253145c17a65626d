#!/usr/bin/env python3
"""Packs the finished Windows build and treats the packages as users do: silent installation, upgrade, the associations
that Explorer would use, removal, and the portable zip. Runs inside tests/env/with-wine.sh.

    tests/packaging/packaging_test.py BUILD_FOLDER [unittest arguments]
"""
import hashlib
import json
import os
import re
import shlex
import shutil
import subprocess
import sys
import tempfile
import time
import unittest
import xml.etree.ElementTree as ElementTree
import zipfile
from pathlib import Path

import jsonschema
import yaml

ROOT = Path(__file__).resolve().parents[2]
BUILD = Path(sys.argv[1]).resolve()
WINE = ROOT / 'tests/env/run-windows.sh'
PREFIX = Path(os.environ['WINEPREFIX'])
HOME = Path(os.environ['HOME'])
VERSION = re.search(r'project\(Folivant VERSION ([\d.]+)', (ROOT / 'CMakeLists.txt').read_text()).group(1)
SETUP = f'Folivant-{VERSION}-setup.exe'
PORTABLE = f'Folivant-{VERSION}-portable.zip'
UNINSTALL = r'Software\Microsoft\Windows\CurrentVersion\Uninstall\Folivant'
PATIENCE = 60

scratch = None
dist = None


def setUpModule():
    global scratch, dist
    scratch = Path(tempfile.mkdtemp(prefix='packaging.'))
    dist = pack(BUILD, 'dist')


def tearDownModule():
    shutil.rmtree(scratch)


def pack(build, name, *version, **environment):
    folder = scratch / name
    subprocess.run([ROOT / 'packaging/pack.sh', build, folder, *version], check=True, stdout=subprocess.DEVNULL,
                   env=os.environ | environment)
    return folder


def pack_for_plain_users():
    """The packages with an installer that takes who starts it for a plain user: see UserInfo.cpp."""
    builder = scratch / 'nsis'
    if not builder.exists():
        shutil.copytree('/usr/share/nsis', builder)
        subprocess.run(['x86_64-w64-mingw32-g++', '-shared', '-static', '-Os', ROOT / 'tests/packaging/UserInfo.cpp', '-o',
                        builder / 'Plugins/amd64-unicode/UserInfo.dll'], check=True)
    return pack(BUILD, 'for-plain-users', NSISDIR=str(builder))


def wait_until(done, what):
    end = time.monotonic() + PATIENCE
    while not done():
        if time.monotonic() > end:
            raise AssertionError(f'{what}: not within {PATIENCE} s')
        time.sleep(0.1)


def wine(*arguments, **options):
    return subprocess.run([WINE, *map(str, arguments)], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                          timeout=PATIENCE, **options)


def run_line(line):
    """Runs a command line as it stands, the way Explorer starts a registered command."""
    batch = scratch / 'line.bat'
    batch.write_bytes(b'@chcp 65001 >nul\r\n@' + line.encode('utf-8') + b'\r\n')
    return subprocess.Popen([WINE, 'cmd', '/c', windows(batch)], stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL)


def windows(path):
    return 'Z:' + str(path).replace('/', '\\')


def unix(path):
    drive, rest = path[0].lower(), path[2:].replace('\\', '/')
    return PREFIX / f'dosdevices/{drive}:' / rest.lstrip('/')


def registry(root):
    """Everything below a key as {key: {name: value}}, as the registry tool exports it."""
    file = scratch / 'export.reg'
    file.unlink(missing_ok=True)
    wine('reg', 'export', root, windows(file), '/y')
    keys, key = {}, None
    if not file.exists():
        return keys
    for line in file.read_text('utf-16').replace('\\\n  ', '').splitlines():
        if line.startswith('['):
            key = keys.setdefault(line[1:-1], {})
        elif match := re.match(r'(@|"(?:[^"\\]|\\.)*")="(.*)"$', line):
            name, value = (re.sub(r'\\(.)', r'\1', text) for text in match.groups())
            key[name.strip('"') if name != '@' else ''] = value
        elif match := re.match(r'"(.*)"=(.*)$', line):
            key[match.group(1)] = match.group(2)
    return keys


def value(key, name=''):
    found = registry(key)
    full = key.replace('HKCU', 'HKEY_CURRENT_USER').replace('HKLM', 'HKEY_LOCAL_MACHINE')
    return found.get(full, {}).get(name)


def install(folder, *switches, **options):
    setup = next(p.name for p in folder.iterdir() if p.name.endswith('-setup.exe'))
    return wine(folder / setup, '/S', *switches, **options)


def rights(what):
    return {'env': os.environ | {'FOLIVANT_RIGHTS': what}}


def uninstall(place, *switches, **options):
    done = wine(place / 'Uninstall.exe', '/S', *switches, **options)
    wait_until(lambda: not place.exists(), 'the uninstaller is done')
    time.sleep(1)  # its copy in the temporary folder goes on for a moment
    return done


def user_folder():
    return next(p for p in (PREFIX / 'drive_c/users').iterdir() if (p / 'AppData').exists() and p.name != 'Public')


def user_place():
    return user_folder() / 'AppData/Local/Programs/Folivant'


def listing_of(place, data, output):
    """A command-line run of the program in `place`; returns its exit status."""
    filters = scratch / 'paths.fvf'
    filters.write_bytes(b'[Folivant 3.5]\r\nFormat=4\r\n')
    return wine(place / 'Folivant.exe', '/f', windows(filters), '/d', windows(data), '/t', 't', '/o', windows(output),
                '/g').returncode


class Package(unittest.TestCase):
    """What is packed, before anybody installs it."""

    def test_same_bytes_each_time(self):
        time.sleep(2.1)  # zip files count in steps of two seconds
        again = pack(BUILD, 'again')
        self.assertEqual((dist / 'SHA256SUMS').read_bytes(), (again / 'SHA256SUMS').read_bytes())

    def test_sums_are_those_of_the_files(self):
        lines = (dist / 'SHA256SUMS').read_text().splitlines()
        self.assertEqual([SETUP, PORTABLE], [line.split()[1] for line in lines])
        for line in lines:
            total, name = line.split()
            self.assertEqual(hashlib.sha256((dist / name).read_bytes()).hexdigest(), total)

    def test_program_carries_the_version_and_no_time(self):
        program = zipfile.ZipFile(dist / PORTABLE).read(f'Folivant-{VERSION}/Folivant.exe')
        self.assertIn('FileVersion\0'.encode('utf-16-le'), program)
        self.assertIn(f'{VERSION}\0'.encode('utf-16-le'), program)
        header = int.from_bytes(program[0x3C:0x40], 'little')
        self.assertEqual(0, int.from_bytes(program[header + 8:header + 12], 'little'))

    def test_zip_holds_program_languages_and_manual(self):
        names = set(zipfile.ZipFile(dist / PORTABLE).namelist())
        for path in (ROOT / 'lang').glob('*.ini'):
            self.assertIn(f'Folivant-{VERSION}/{path.name}', names)
        for path in (ROOT / 'help').glob('*.html'):
            self.assertIn(f'Folivant-{VERSION}/help/{path.name}', names)

    def expect_valid(self, document, kind):
        """What a published schema asks of the fields that are used here, and no field besides."""
        rules = json.loads((ROOT / 'tests/packaging/manifest_rules.json').read_text())
        schema = {'$schema': 'https://json-schema.org/draft/2020-12/schema', '$defs': rules['$defs'], **rules[kind]}
        errors = [error.message for error in jsonschema.Draft202012Validator(schema).iter_errors(document)]
        self.assertEqual([], errors, kind)

    def test_winget_manifests_follow_their_schema(self):
        identifier = 'Folivant.Folivant'
        kinds = {f'{identifier}.yaml': 'version', f'{identifier}.installer.yaml': 'installer',
                 f'{identifier}.locale.en-US.yaml': 'defaultLocale'}
        # As plain texts: this reader would make a date object of a date.
        loaded = {p.name: yaml.load(p.read_text(), yaml.BaseLoader) for p in (dist / 'manifests/winget').iterdir()}
        self.assertEqual(set(kinds), set(loaded))
        for name, manifest in loaded.items():
            self.expect_valid(manifest, 'winget-' + kinds[name])
            self.assertEqual(identifier, manifest['PackageIdentifier'])
            self.assertEqual(VERSION, manifest['PackageVersion'])
        installer = loaded[f'{identifier}.installer.yaml']
        self.assertEqual(['user', 'machine'], [each['Scope'] for each in installer['Installers']])
        for each in installer['Installers']:
            self.assertEqual('x64', each['Architecture'])
            self.assertTrue(each['InstallerUrl'].endswith('/' + SETUP))
            self.assertEqual(hashlib.sha256((dist / SETUP).read_bytes()).hexdigest(), each['InstallerSha256'])

    def test_scoop_and_chocolatey_manifests_follow_their_schemas(self):
        scoop = json.loads((dist / 'manifests/scoop/folivant.json').read_text())
        self.expect_valid(scoop, 'scoop')
        self.assertEqual(VERSION, scoop['version'])
        self.assertEqual(hashlib.sha256((dist / PORTABLE).read_bytes()).hexdigest(), scoop['architecture']['64bit']['hash'])
        self.assertEqual(f'Folivant-{VERSION}', scoop['extract_dir'])
        space = '{http://schemas.microsoft.com/packaging/2015/06/nuspec.xsd}'
        metadata = ElementTree.parse(dist / 'manifests/chocolatey/folivant.nuspec').getroot().find(space + 'metadata')
        self.expect_valid({field.tag.removeprefix(space): field.text for field in metadata}, 'nuspec-metadata')
        self.assertEqual(VERSION, metadata.find(space + 'version').text)
        script = (dist / 'manifests/chocolatey/tools/chocolateyinstall.ps1').read_text()
        self.assertIn(hashlib.sha256((dist / SETUP).read_bytes()).hexdigest(), script)

    def test_no_manifest_keeps_a_name_to_be_filled(self):
        for path in (dist / 'manifests').rglob('*.*'):
            self.assertNotRegex(path.read_text(), '@[A-Z0-9_]+@', path.name)

    def test_manifests_hold_any_text(self):
        texts = {'PUBLISHER': 'Jones & Söhne, "Inc." #1: <O\'Neil>', 'IDENTIFIER': 'Folivant.Folivant', 'LICENSE': 'yes',
                 'HOMEPAGE': 'https://folivant.example/?a=1&b=2', 'DOWNLOADS': "https://folivant.example/o'neil/a&b,c|d",
                 'SUMMARY': '@VERSION@ | \\1, "tabs" & more', 'DESCRIPTION': '- It lists: C:\\new\\table, {x}'}
        conf = scratch / 'package.conf'
        conf.write_text(''.join(f'{name}={shlex.quote(text)}\n' for name, text in texts.items()))
        manifests = pack(BUILD, 'any-text', PACKAGE_CONF=str(conf)) / 'manifests'
        winget = yaml.safe_load((manifests / 'winget/Folivant.Folivant.locale.en-US.yaml').read_text())
        self.assertEqual([texts[name] for name in ('PUBLISHER', 'LICENSE', 'HOMEPAGE', 'SUMMARY', 'DESCRIPTION')],
                         [winget[name] for name in ('Publisher', 'License', 'PackageUrl', 'ShortDescription', 'Description')])
        installer = yaml.safe_load((manifests / 'winget/Folivant.Folivant.installer.yaml').read_text())
        self.assertEqual(f"{texts['DOWNLOADS']}/{SETUP}", installer['Installers'][0]['InstallerUrl'])
        scoop = json.loads((manifests / 'scoop/folivant.json').read_text())
        self.assertEqual([texts[name] for name in ('SUMMARY', 'HOMEPAGE', 'LICENSE')],
                         [scoop[name] for name in ('description', 'homepage', 'license')])
        self.assertEqual(f"{texts['DOWNLOADS']}/{PORTABLE}", scoop['architecture']['64bit']['url'])
        space = '{http://schemas.microsoft.com/packaging/2015/06/nuspec.xsd}'
        metadata = ElementTree.parse(manifests / 'chocolatey/folivant.nuspec').getroot().find(space + 'metadata')
        self.assertEqual([texts[name] for name in ('PUBLISHER', 'HOMEPAGE', 'SUMMARY', 'DESCRIPTION')],
                         [metadata.find(space + name).text for name in ('authors', 'projectUrl', 'summary', 'description')])
        script = (manifests / 'chocolatey/tools/chocolateyinstall.ps1').read_text()
        self.assertIn(f"-Url64bit 'https://folivant.example/o''neil/a&b,c|d/{SETUP}' -Checksum64", script)

    def test_zip_runs_from_a_folder_with_blanks_and_letters_beyond_ascii(self):
        place = scratch / 'Übung mit Ж blanks'
        zipfile.ZipFile(dist / PORTABLE).extractall(place)
        data = scratch / 'Data'
        data.mkdir(exist_ok=True)
        (data / 'One.txt').write_text('1')
        output = place / 'list.txt'
        self.assertEqual(0, listing_of(place / f'Folivant-{VERSION}', data, output))
        self.assertTrue(output.read_bytes().endswith(b'\\Data\\One.txt\r\n'), output.read_bytes())


class Installation(unittest.TestCase):
    def tearDown(self):
        for place in (user_place(), PREFIX / 'drive_c/Program Files/Folivant'):
            if place.exists():
                uninstall(place, '/DeleteSettings')

    def expect_no_trace(self, settings=False):
        for root in ('HKCU\\Software', 'HKLM\\Software'):
            for key, values in registry(root).items():
                if settings and 'Folivant 3.0' in key:
                    continue
                text = key + repr(values)
                for word in ('Folivant', '.s2f', '.fvf'):
                    self.assertNotIn(word.lower(), text.lower())
        left = [str(p) for top in (PREFIX / 'drive_c', HOME) for p in top.rglob('*') if 'folivant' in p.name.lower()]
        self.assertEqual([], left)

    def open_window(self, line):
        """Starts the line, which opens the program's window; returns the process and the window."""
        started = run_line(line)
        window = []

        def shown():
            window[:] = subprocess.run(['xdotool', 'search', '--onlyvisible', '--name', '^Folivant$'], text=True,
                                       stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout.split()
            return bool(window)

        wait_until(shown, 'the main window')
        return started, window[0]

    def close_window(self, started, window):
        def closed():
            # Keys go to the window that has the focus, which on a busy machine may not be this one yet.
            subprocess.run(['timeout', '5', 'xdotool', 'windowactivate', '--sync', window, 'key', '--clearmodifiers',
                            'alt+F4'], stderr=subprocess.DEVNULL)
            try:
                return started.wait(3) is not None
            except subprocess.TimeoutExpired:
                return False

        wait_until(closed, 'the end of the program')

    def opened_path(self, line):
        """Starts the line, closes the window that comes, and returns the folder that the program then remembers: None when
        it was given a list of files, which it does not keep."""
        wine('reg', 'delete', r'HKCU\Software\Folivant 3.0', '/f')
        self.close_window(*self.open_window(line))
        wait_until(lambda: value(r'HKCU\Software\Folivant 3.0\Settings', 'TextWidth') is not None, 'the settings')
        time.sleep(1)  # the rest of them
        return value(r'HKCU\Software\Folivant 3.0\Settings', 'Path')

    def test_for_the_current_user_and_away_again(self):
        self.assertEqual(0, install(dist).returncode)
        place = user_place()
        packed = {name.split('/', 1)[1] for name in zipfile.ZipFile(dist / PORTABLE).namelist()}
        there = {str(p.relative_to(place)) for p in place.rglob('*') if p.is_file()}
        self.assertEqual(packed | {'Uninstall.exe', 'files.lst'}, there)
        entry = registry('HKCU\\' + UNINSTALL)['HKEY_CURRENT_USER\\' + UNINSTALL]
        self.assertEqual('Folivant', entry['DisplayName'])
        self.assertEqual(VERSION, entry['DisplayVersion'])
        self.assertEqual(place.resolve(), unix(entry['InstallLocation']).resolve())
        self.assertTrue(entry['QuietUninstallString'].endswith('Uninstall.exe" /S'))
        self.assertEqual({}, registry('HKLM\\' + UNINSTALL), 'nothing for other users')
        self.assertEqual('{86C86720-42A0-1069-A2E8-08002B30309D}',
                         value(r'HKCU\Software\Classes\Folivant.SendTo\shellex\DropHandler'))
        self.assertIsNone(value(r'HKCU\Software\Classes\Directory\shell\Folivant'))
        self.assertTrue(any(user_folder().rglob('Start Menu/Programs/Folivant.lnk')))
        data = scratch / 'Data'
        data.mkdir(exist_ok=True)
        (data / 'One.txt').write_text('1')
        self.assertEqual(0, listing_of(place, data, scratch / 'installed.txt'))
        self.assertTrue(any(user_folder().rglob('SendTo/Folivant.s2f')), 'made by the first start')
        uninstall(place, '/DeleteSettings')
        self.expect_no_trace()

    def test_for_all_users_with_the_folder_entry(self):
        install(dist, '/AllUsers', '/FolderEntry')
        place = PREFIX / 'drive_c/Program Files/Folivant'
        self.assertTrue((place / 'Folivant.exe').exists())
        self.assertEqual(VERSION, value('HKLM\\' + UNINSTALL, 'DisplayVersion'))
        self.assertEqual({}, registry('HKCU\\' + UNINSTALL))
        self.assertEqual(r'"C:\Program Files\Folivant\Folivant.exe" "%1"',
                         value(r'HKLM\Software\Classes\Directory\shell\Folivant\command'))
        # The system's own look-up of the association; Wine knows those of all users alone.
        filters = PREFIX / 'drive_c/my set.fvf'
        filters.write_bytes(b'[Folivant 3.5]\r\nPath=C:\\windows\r\n')
        self.assertEqual('c:\\windows', self.opened_path(r'start "" "C:\my set.fvf"').lower())
        uninstall(place, '/DeleteSettings')
        self.expect_no_trace()

    def test_upgrade_keeps_settings_and_choices_and_removes_old_files(self):
        older = scratch / 'older-build'
        older.mkdir()
        for path in [BUILD / 'Folivant.exe', *BUILD.glob('*.ini')]:
            shutil.copy(path, older)
        (older / 'klingon.ini').write_text('[Messages]\r\n')
        (older / 'help/old').mkdir(parents=True)
        (older / 'help/old/page.html').write_text('old')
        install(pack(older, 'older', '3.9.9'), '/FolderEntry')
        place = user_place()
        self.assertEqual('3.9.9', value('HKCU\\' + UNINSTALL, 'DisplayVersion'))
        self.assertTrue((place / 'klingon.ini').exists())
        (place / 'mine.ini').write_text('[Messages]\r\n')
        wine('reg', 'add', r'HKCU\Software\Folivant 3.0\Settings', '/v', 'TextViewer', '/d', 'mine.exe', '/f')
        install(dist)
        self.assertEqual(VERSION, value('HKCU\\' + UNINSTALL, 'DisplayVersion'))
        self.assertEqual('mine.exe', value(r'HKCU\Software\Folivant 3.0\Settings', 'TextViewer'))
        self.assertFalse((place / 'klingon.ini').exists())
        self.assertFalse((place / 'help/old').exists())
        self.assertTrue((place / 'mine.ini').exists(), "the user's own file")
        self.assertIsNotNone(value(r'HKCU\Software\Classes\Directory\shell\Folivant\command'), 'chosen before')
        (place / 'mine.ini').unlink()
        uninstall(place)
        self.expect_no_trace(settings=True)
        self.assertEqual('mine.exe', value(r'HKCU\Software\Folivant 3.0\Settings', 'TextViewer'), 'kept unless asked')
        wine('reg', 'delete', r'HKCU\Software\Folivant 3.0', '/f')

    def test_associations_start_the_program_with_folder_file_and_filter(self):
        install(dist, '/FolderEntry')
        folder = PREFIX / 'drive_c/My Data'
        folder.mkdir(exist_ok=True)
        (folder / 'paths.txt').write_text('C:\\My Data\\paths.txt\r\n')
        filters = folder / 'my set.fvf'
        filters.write_bytes(b'[Folivant 3.5]\r\nPath=C:\\windows\r\n')
        classes = 'HKCU\\Software\\Classes\\'

        def command(name):
            return value(classes + name + r'\shell\open\command')

        sent = command(value(classes + '.s2f'))
        self.assertEqual('c:\\my data', self.opened_path(sent.replace('%2', '"C:\\My Data"')).lower())
        self.assertEqual('c:\\my data', self.opened_path(sent.replace('%2', 'C:\\My Data')).lower(), 'quotes dropped')
        self.assertIsNone(self.opened_path(sent.replace('%2', '"C:\\My Data\\paths.txt"')))
        filter_set = command(value(classes + '.fvf'))
        self.assertEqual('c:\\windows', self.opened_path(filter_set.replace('%1', r'C:\My Data\my set.fvf')).lower())
        entry = value(classes + r'Directory\shell\Folivant\command')
        self.assertEqual('c:\\my data', self.opened_path(entry.replace('%1', 'C:\\My Data')).lower())

    def test_a_folder_of_the_users_choice(self):
        run_line(windows(dist / SETUP) + r' /S /D=C:\My Tools\Fo li').wait(PATIENCE)
        place = PREFIX / 'drive_c/My Tools/Fo li'
        wait_until(lambda: (place / 'Uninstall.exe').exists(), 'the installation')
        time.sleep(1)
        install(dist)
        self.assertFalse(user_place().exists(), 'an upgrade goes where the program is')
        uninstall(place, '/DeleteSettings')
        (PREFIX / 'drive_c/My Tools').rmdir()
        self.expect_no_trace()

    def test_a_running_program_stops_installation_and_removal(self):
        install(pack(BUILD, 'version-3.9.8', '3.9.8'))
        place = user_place()
        before = {p.relative_to(place): p.read_bytes() for p in place.rglob('*') if p.is_file()}

        def expect_all_there():
            self.assertEqual(before, {p.relative_to(place): p.read_bytes() for p in place.rglob('*') if p.is_file()})
            self.assertEqual('3.9.8', value('HKCU\\' + UNINSTALL, 'DisplayVersion'))
            self.assertIsNotNone(value(r'HKCU\Software\Classes\Folivant.SendTo\shell\open\command'))

        running = self.open_window(f'"{windows(place)}\\Folivant.exe"')
        self.assertEqual(2, install(dist).returncode)
        expect_all_there()
        folder = value('HKCU\\' + UNINSTALL, 'InstallLocation')
        self.assertEqual(2, wine(place / 'Uninstall.exe', '/S', '_?=' + folder).returncode)
        expect_all_there()
        self.close_window(*running)
        self.assertEqual(0, install(dist).returncode)
        self.assertEqual(0, wine(place / 'Uninstall.exe', '/S', '/DeleteSettings', '_?=' + folder).returncode)
        self.assertEqual(['Uninstall.exe'], [p.name for p in place.iterdir()], 'which cannot delete itself that way')
        shutil.rmtree(place)
        self.expect_no_trace()

    def test_becomes_administrator_with_all_switches(self):
        packed = pack_for_plain_users()
        tools = PREFIX / 'drive_c/All Tools'
        place = tools / 'Fo li'
        given = r'/D=C:\All Tools\Fo li'.split(' ')  # put together again without quotes
        self.assertEqual(0, install(packed, '/AllUsers', '/FolderEntry', *given, **rights('granted')).returncode)
        self.assertTrue((place / 'files.lst').exists(), 'waited for the end')
        self.assertEqual(r'C:\All Tools\Fo li', value('HKLM\\' + UNINSTALL, 'InstallLocation'))
        self.assertIsNotNone(value(r'HKLM\Software\Classes\Directory\shell\Folivant\command'))
        self.assertFalse((PREFIX / 'drive_c/Program Files/Folivant').exists())
        running = self.open_window(r'"C:\All Tools\Fo li\Folivant.exe"')
        self.assertEqual(2, install(packed, **rights('granted')).returncode, "the administrator's status")
        in_place = r'_?=C:\All Tools\Fo li'.split(' ')
        self.assertEqual(2, wine(place / 'Uninstall.exe', '/S', *in_place, **rights('granted')).returncode)
        self.close_window(*running)
        wait_until(lambda: value(r'HKCU\Software\Folivant 3.0\Settings', 'TextWidth') is not None, 'the settings')
        time.sleep(1)
        uninstall(place, '/DeleteSettings', **rights('granted'))
        tools.rmdir()
        self.expect_no_trace()

    def test_without_an_administrator_nothing_changes(self):
        packed = pack_for_plain_users()
        place = PREFIX / 'drive_c/Program Files/Folivant'
        for kind in ('useless', 'refused'):
            with self.subTest(kind):
                self.assertEqual(1, install(packed, '/AllUsers', **rights(kind)).returncode)
                self.assertFalse(place.exists())
                self.assertEqual({}, registry('HKLM\\' + UNINSTALL))
        install(packed, '/AllUsers', **rights('granted'))
        in_place = r'_?=C:\Program Files\Folivant'.split(' ')
        for kind in ('useless', 'refused'):
            with self.subTest('uninstaller, ' + kind):
                self.assertEqual(1, wine(place / 'Uninstall.exe', '/S', *in_place, **rights(kind)).returncode)
                self.assertTrue((place / 'Folivant.exe').exists())
        uninstall(place, '/DeleteSettings', **rights('granted'))
        self.expect_no_trace()


if __name__ == '__main__':
    unittest.main(argv=[sys.argv[0], *sys.argv[2:]])
