"""A browser without a display, driven over the pipe of its DevTools. Needs chromium-headless-shell."""
import base64
import json
import os
import select
import shutil
import subprocess
import tempfile
import time
import zlib

PROGRAM = "chromium-headless-shell"
SWITCHES = ["--headless", "--no-sandbox", "--disable-gpu", "--no-first-run", "--disable-background-networking", "--disable-component-update",
            "--disable-sync", "--disable-extensions", "--hide-scrollbars", "--mute-audio", "--remote-debugging-pipe",
            # Nothing may be asked of a network: every host is one that does not exist.
            "--host-resolver-rules=MAP * ~NOTFOUND"]
# What the keys of a keyboard say, as DevTools want to be told: code, and the number of the key.
KEYS = {"ArrowLeft": 37, "ArrowUp": 38, "ArrowRight": 39, "ArrowDown": 40, "Enter": 13, "Escape": 27, "Tab": 9, "Home": 36, "End": 35}


class Browser:
    """With one page and a profile of its own; both are gone at the end of a `with`."""

    def __init__(self, address, width=1280, height=900, dark=False):
        self.profile = tempfile.mkdtemp(prefix="pages-")
        ours_in, theirs_out = os.pipe()
        theirs_in, ours_out = os.pipe()
        # The browser reads commands from 3 and answers on 4.
        command = ["bash", "-c", f'exec "$@" 3<&{theirs_in} 4>&{theirs_out}', "-", PROGRAM, *SWITCHES, f"--user-data-dir={self.profile}",
                   f"--window-size={width},{height}", "about:blank"]
        self.process = subprocess.Popen(command, pass_fds=(theirs_in, theirs_out), stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(theirs_in)
        os.close(theirs_out)
        self.input, self.output = ours_in, ours_out
        self.received = b""
        self.number = 0
        self.session = None
        self.events = []
        target = self.wait_for(lambda: next((info for info in self.send("Target.getTargets")["targetInfos"] if info["type"] == "page"), None))
        self.session = self.send("Target.attachToTarget", targetId=target["targetId"], flatten=True)["sessionId"]
        for domain in ["Page", "Runtime", "Network", "Accessibility", "Log"]:
            self.send(f"{domain}.enable")
        self.appear(dark)
        self.resize(width, height)
        self.open(address)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        os.close(self.output)
        os.close(self.input)
        self.process.terminate()
        try:
            self.process.wait(timeout=5)
        except subprocess.TimeoutExpired:
            self.process.kill()
            self.process.wait()
        shutil.rmtree(self.profile, ignore_errors=True)

    def send(self, method, **params):
        self.number += 1
        message = {"id": self.number, "method": method, "params": params}
        if self.session:
            message["sessionId"] = self.session
        os.write(self.output, json.dumps(message).encode() + b"\0")
        while True:
            answer = self.receive()
            if answer.get("id") == self.number:
                if "error" in answer:
                    raise RuntimeError(f"{method}: {answer['error']['message']}")
                return answer["result"]
            self.events.append(answer)

    def receive(self, timeout_s=20):
        while b"\0" not in self.received:
            if not select.select([self.input], [], [], timeout_s)[0]:
                raise TimeoutError("the browser does not answer")
            chunk = os.read(self.input, 1 << 16)
            if not chunk:
                raise RuntimeError("the browser has ended")
            self.received += chunk
        message, self.received = self.received.split(b"\0", 1)
        return json.loads(message)

    def wait_for(self, condition, timeout_s=20):
        end = time.monotonic() + timeout_s
        while True:
            value = condition()
            if value:
                return value
            if time.monotonic() > end:
                raise TimeoutError("this does not come to be")
            time.sleep(0.02)

    def open(self, address):
        self.send("Page.navigate", url=address)
        self.wait_for(lambda: self.evaluate("document.readyState === 'complete' && location.href !== 'about:blank'"))

    def evaluate(self, expression):
        answer = self.send("Runtime.evaluate", expression=expression, awaitPromise=True, returnByValue=True)
        if "exceptionDetails" in answer:
            details = answer["exceptionDetails"]
            raise RuntimeError(details.get("exception", {}).get("description", details["text"]))
        return answer["result"].get("value")

    def resize(self, width, height):
        self.send("Emulation.setDeviceMetricsOverride", width=width, height=height, deviceScaleFactor=1, mobile=False)

    def appear(self, dark):
        self.send("Emulation.setEmulatedMedia", features=[{"name": "prefers-color-scheme", "value": "dark" if dark else "light"}])

    def key(self, key, count=1):
        """Presses a key: one of KEYS, or a character."""
        number = KEYS.get(key) or ord(key.upper())
        code = key if key in KEYS else {" ": "Space", "/": "Slash"}.get(key, f"Digit{key}" if key.isdigit() else f"Key{key.upper()}")
        text = {"text": "\r"} if key == "Enter" else {"text": key} if key not in KEYS else {}
        for _ in range(count):
            self.send("Input.dispatchKeyEvent", type="keyDown", key=key, code=code, windowsVirtualKeyCode=number, **text)
            self.send("Input.dispatchKeyEvent", type="keyUp", key=key, code=code, windowsVirtualKeyCode=number)

    def mouse(self, kind, x, y):
        self.send("Input.dispatchMouseEvent", type=kind, x=x, y=y, button="left", buttons=0 if kind == "mouseReleased" else 1, clickCount=1)

    def screenshot(self, file):
        with open(file, "wb") as stream:
            stream.write(base64.b64decode(self.send("Page.captureScreenshot", format="png")["data"]))

    def colour(self, x, y):
        """Red, green and blue of a pixel on the page."""
        clip = {"x": int(x), "y": int(y), "width": 1, "height": 1, "scale": 1}
        png = base64.b64decode(self.send("Page.captureScreenshot", format="png", clip=clip)["data"])
        at, pixels = 8, b""
        while at < len(png):
            length, kind = int.from_bytes(png[at:at + 4], "big"), png[at + 4:at + 8]
            pixels += png[at + 8:at + 8 + length] if kind == b"IDAT" else b""
            at += length + 12
        # Of a single pixel, every filter is none.
        return tuple(zlib.decompress(pixels)[1:4])

    def complaints(self):
        """What the page has thrown or logged as an error, and what it has asked of a network."""
        found = []
        for event in self.events:
            params = event.get("params", {})
            if event.get("method") == "Runtime.exceptionThrown":
                found.append(params["exceptionDetails"].get("exception", {}).get("description", "exception"))
            elif event.get("method") == "Log.entryAdded" and params["entry"]["level"] == "error":
                found.append(params["entry"]["text"] + " " + params["entry"].get("url", ""))
            elif event.get("method") == "Network.requestWillBeSent" and not params["request"]["url"].startswith(("file:", "data:", "about:")):
                found.append("asked for " + params["request"]["url"])
        return found
