"""A private print server for tests: its own CUPS, below one scratch folder, whose queues write PDF files.

Nothing of the machine's own printing is touched. A queue's jobs land in its folder as NAME-ID.pdf with NAME-ID.job
beside it, which holds what came with the job.
"""

import os
import pathlib
import shutil
import socket
import string
import subprocess
import tempfile
import time

HERE = pathlib.Path(__file__).resolve().parent
SHEETS = {"A4": (595, 842), "Letter": (612, 792), "A5": (420, 595), "Legal": (612, 1008)}

BACKEND = """#!/bin/sh
# Called with: job user title copies options [file]
[ $# -eq 0 ] && { echo 'direct filedrop "Unknown" "File drop"'; exit 0; }
folder=${DEVICE_URI#filedrop:}
base="$folder/$PRINTER-$1"
printf 'title=%s\\ncopies=%s\\noptions=%s\\n' "$3" "$4" "$5" > "$base.job"
if [ $# -ge 6 ]; then cat "$6"; else cat; fi > "$base.part" && mv "$base.part" "$base.pdf"
"""

SERVER_FILES = """ServerRoot {root}/etc
ServerBin {root}/bin
DataDir /usr/share/cups
CacheDir {root}/cache
StateDir {root}/run
RequestRoot {root}/spool
TempDir {root}/spool/tmp
AccessLog {root}/log/access
ErrorLog {root}/log/error
PageLog {root}/log/page
FileDevice yes
SystemGroup root lpadmin
Sandboxing relaxed
"""

SERVER_SETTINGS = """Listen {root}/run/cups.sock
Listen 127.0.0.1:{port}
Browsing Off
WebInterface No
DefaultAuthType None
PreserveJobFiles Yes
PreserveJobHistory Yes
LogLevel warn
MaxLogSize 0
<Location />
  Order allow,deny
  Allow all
</Location>
<Location /admin>
  Order allow,deny
  Allow all
</Location>
<Policy default>
  <Limit All>
    Order allow,deny
    Allow all
  </Limit>
</Policy>
"""


def ppd(borders):
    """The test printer's description. `borders` are the unprintable left, bottom, right and top bands in points."""
    left, bottom, right, top = borders

    def lines(keyword, value):
        return "\n".join(f'*{keyword} {name}: "{value(*size)}"' for name, size in SHEETS.items())

    def sheet(width, height):
        return f"<</PageSize[{width} {height}]/ImagingBBox null>>setpagedevice"

    return string.Template((HERE / "queue.ppd.in").read_text()).substitute(
        PageSizes=lines("PageSize", sheet),
        PageRegions=lines("PageRegion", sheet),
        ImageableAreas=lines("ImageableArea", lambda w, h: f"{left} {bottom} {w - right} {h - top}"),
        PaperDimensions=lines("PaperDimension", lambda w, h: f"{w} {h}"))


def free_port():
    with socket.socket() as probe:
        probe.bind(("127.0.0.1", 0))
        return probe.getsockname()[1]


class PrintServer:
    """One private server. `queues` maps a queue's name to its borders (see ppd); the first becomes the default."""

    def __init__(self, queues):
        # The filters run as another user, who may not be let into the folder that TMPDIR names.
        self.root = pathlib.Path(tempfile.mkdtemp(prefix="folivant-print.", dir="/tmp"))
        self.root.chmod(0o755)
        self.port = free_port()
        self.address = f"127.0.0.1:{self.port}"
        self.environment = dict(os.environ, CUPS_SERVER=self.address)
        self._make_folders()
        self._start()
        for name, borders in queues.items():
            self._add_queue(name, borders)
        if queues:
            self.run("lpadmin", "-d", next(iter(queues)))

    def _make_folders(self):
        for name in ("etc/ppd", "etc/ssl", "spool/tmp", "cache", "run/certs", "log", "bin/backend", "out"):
            (self.root / name).mkdir(parents=True, exist_ok=True)
        for name in ("filter", "driver", "daemon", "cgi-bin", "monitor", "notifier"):
            (self.root / "bin" / name).symlink_to(f"/usr/lib/cups/{name}")
        backend = self.root / "bin/backend/filedrop"
        backend.write_text(BACKEND)
        backend.chmod(0o700)
        names = {"root": self.root, "port": self.port}
        (self.root / "etc/cups-files.conf").write_text(SERVER_FILES.format(**names))
        (self.root / "etc/cupsd.conf").write_text(SERVER_SETTINGS.format(**names))

    def _start(self):
        with open(self.root / "log/out", "wb") as log:
            self.process = subprocess.Popen(
                ["/usr/sbin/cupsd", "-f", "-c", self.root / "etc/cupsd.conf", "-s", self.root / "etc/cups-files.conf"],
                stdin=subprocess.DEVNULL, stdout=log, stderr=log)
        for _ in range(100):
            if subprocess.run(["lpstat", "-r"], env=self.environment, stdout=subprocess.PIPE,
                              stderr=subprocess.DEVNULL, check=False).stdout.startswith(b"scheduler is running"):
                return
            time.sleep(0.05)
        raise RuntimeError("the print server does not answer: " + (self.root / "log/error").read_text())

    def _add_queue(self, name, borders):
        description = self.root / f"{name}.ppd"
        description.write_text(ppd(borders))
        folder = self.folder(name)
        folder.mkdir()
        self.run("lpadmin", "-p", name, "-E", "-v", f"filedrop:{folder}", "-P", str(description))

    def folder(self, queue):
        return self.root / "out" / queue

    def run(self, *command):
        return subprocess.run(command, env=self.environment, check=True, stdin=subprocess.DEVNULL,
                              stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, timeout=60).stdout

    def wait_until_idle(self, seconds=180):
        """Until every job that was accepted has been printed or held."""
        deadline = time.monotonic() + seconds
        while self.run("lpstat", "-o").strip():
            if time.monotonic() > deadline:
                raise TimeoutError("jobs are still waiting: " + self.run("lpstat", "-o"))
            time.sleep(0.05)

    def documents(self, queue):
        """The printed PDF files, oldest first."""
        self.wait_until_idle()
        return sorted(self.folder(queue).glob("*.pdf"), key=lambda path: int(path.stem.rsplit("-", 1)[1]))

    def kill(self):
        self.process.kill()
        self.process.wait(timeout=20)

    def stop(self):
        self.process.terminate()
        self.process.wait(timeout=20)

    def remove(self):
        self.stop()
        shutil.rmtree(self.root, ignore_errors=True)
