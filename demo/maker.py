# SPDX-License-Identifier: MIT
"""The site of the program's maker, with newer versions of the program. Nothing that it offers is signed."""
import datetime
import threading

from server import Answer

SETUP_BYTES = 14784921
YEAR = datetime.timedelta(days=366)

NEWER = [
    ("1.5.7", ["Songs in folders that cannot be read no longer stop a scan",
               "CRITICAL: a full disk can no longer cost a song"]),
    ("1.6.0", ["The list can be searched by artist and title", "Lyrics with several voices keep their order",
               "Found lyrics are written while the search goes on, so that a long list is finished sooner",
               "A proxy can be tried before it is used", "New translations: Dutch and Finnish"]),
]


def version_info(version, changes, date, address):
    lines = "".join(f"        - {change}\n" for change in changes)
    return (f"  <VersionInfo>\n    <current>{version}</current>\n    <url>{address}</url>\n    <changes>\n{lines}    </changes>\n"
            f"    <date>{date:%d/%m/%Y}</date>\n  </VersionInfo>\n")


class MakerSite:
    """Holds back what it knows until it is told to go on."""

    endpoints = ("Maker",)

    def __init__(self, running):
        self.running = running
        self.newer = NEWER
        self.may_tell = threading.Event()

    def answer(self, request):
        if request.path == "/versewell/Versewell.xml":
            self.may_tell.wait()
            return Answer(self.information(request.headers["Host"]).encode(), headers={"Content-Type": "application/xml"})
        return self.send_setup if request.path.endswith(".run") else Answer(status=404)

    def information(self, host):
        versions = [(self.running, []), *self.newer]
        dates = [datetime.date.today() - YEAR * (len(versions) - i) // 2 for i in range(len(versions))]
        infos = [version_info(version, changes, date, f"http://{host}/versewell-{version}.run")
                 for (version, changes), date in zip(versions, dates)]
        return f"<UpdateInfo>\n{''.join(infos)}</UpdateInfo>\n"

    def send_setup(self, handler):
        handler.send_response(200)
        handler.send_header("Content-Length", str(SETUP_BYTES))
        handler.end_headers()
        if handler.command != "HEAD":
            handler.wfile.write(bytes(SETUP_BYTES))
