"""A headless Chromium, driven through ChromeDriver with nothing but the standard library."""
import json
import re
import shutil
import subprocess
import tempfile
import urllib.error
import urllib.request

FLAGS = ['--headless', '--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run', '--disable-dev-shm-usage',
         '--disable-background-networking', '--disable-component-update', '--disable-sync', '--window-size=800,600']


class Browser:
    def __init__(self):
        self.profile = tempfile.mkdtemp(prefix='browser')
        self.driver = subprocess.Popen(['chromedriver', '--port=0'], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                                       text=True)
        self.address = f'http://127.0.0.1:{self._port()}'
        options = {'binary': shutil.which('chromium'), 'args': [*FLAGS, f'--user-data-dir={self.profile}']}
        session = self._post('/session', {'capabilities': {'alwaysMatch': {'goog:chromeOptions': options}}})
        self.session = '/session/' + session['sessionId']

    def _port(self):
        for line in self.driver.stdout:
            if found := re.search(r'started successfully on port (\d+)', line):
                return found[1]
        raise RuntimeError('chromedriver did not start')

    def _post(self, path, body):
        request = urllib.request.Request(self.address + path, json.dumps(body).encode(),
                                         {'Content-Type': 'application/json'})
        try:
            with urllib.request.urlopen(request, timeout=60) as answer:
                return json.load(answer)['value']
        except urllib.error.HTTPError as error:
            raise RuntimeError(error.read().decode()) from error

    def open(self, path):
        self._post(self.session + '/url', {'url': path.as_uri()})

    def run(self, script, *arguments):
        """The value that the body of a JavaScript function returns."""
        return self._post(self.session + '/execute/sync', {'script': script, 'args': list(arguments)})

    def click(self, index, selector):
        """A real click, with the mouse, on the element at that index among those that the selector finds."""
        elements = self._post(self.session + '/elements', {'using': 'css selector', 'value': selector})
        element = list(elements[index].values())[0]
        self._post(f'{self.session}/element/{element}/click', {})

    def close(self):
        try:
            request = urllib.request.Request(self.address + self.session, method='DELETE')
            urllib.request.urlopen(request, timeout=60).close()
        finally:
            self.driver.terminate()
            self.driver.wait(timeout=30)
            self.driver.stdout.close()
            shutil.rmtree(self.profile, ignore_errors=True)
