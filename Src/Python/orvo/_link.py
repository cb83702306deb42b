"""Panels in other programs, over a local socket, in panel script."""

from __future__ import annotations

import collections
import contextlib
import errno
import pathlib
import re
import socket
import time
from collections.abc import Iterator

from ._core import Argument, Error, Handler, Kind, Subscription, Value, samples
from ._members import EVENT_IDS, Members

_NOT_UNDERSTOOD = 1102
_WORDS = {Kind.METHOD: "call", Kind.GET: "get", Kind.LET: "let"}
_ESCAPES = {'"': '\\"', "\\": "\\\\", "\n": "\\n", "\t": "\\t"}
_WORD = re.compile(r'"((?:[^"\\]|\\.)*)"|(\S+)')


def _quoted(text: str) -> str:
    """Control characters, and halves of a character without the other, have no form of their own."""
    hidden = re.compile(r'["\\\x00-\x1f\x7f-\x9f\u2028\u2029\ud800-\udfff]')
    escaped = hidden.sub(lambda m: _ESCAPES.get(m[0], f"\\u{ord(m[0]):04X}"), text)
    return f'"{escaped}"'


def _unescaped(text: str) -> str:
    plain = {"n": "\n", "t": "\t"}

    def one(match: re.Match[str]) -> str:
        code = match[1]
        return chr(int(code[1:], 16)) if len(code) > 1 else plain.get(code, code)

    units = re.sub(r"\\(u[0-9A-Fa-f]{4}|.)", one, text)
    return units.encode("utf-16", "surrogatepass").decode("utf-16", "surrogatepass")


def _written(value: Argument) -> str:
    if isinstance(value, bool):
        return "true" if value else "false"
    if isinstance(value, int) and -0x80000000 <= value <= 0x7FFFFFFF:
        return str(value)
    if isinstance(value, (int, float)):
        return _quoted(str(value))  # the language has no such numbers; the panel converts it
    if isinstance(value, str):
        return _quoted(value)
    return "1:[" + " ".join(map(str, samples(value))) + "]"


def _read(words: str) -> list[Value]:
    return [
        _unescaped(match[1]) if match[1] is not None else int(match[2])
        for match in _WORD.finditer(words)
    ]


class LinkedPanel(Members):
    """A panel at the other end of a link: waits until a program, such as `marvane-manager --link
    PATH`, connects to the local socket that this makes at the path.

    The panel's events are told to handlers by `process` and `run` only, one after the other, and an
    exception that a handler lets escape comes out of these. A link that ends is a
    ConnectionResetError for whatever is called from then on.
    """

    def __init__(self, path: str | pathlib.Path, timeout: float | None = None) -> None:
        """`timeout` in seconds; without one it waits for ever. TimeoutError."""
        with _listening(path) as listener:
            listener.settimeout(timeout)
            self._start(listener.accept()[0])

    @classmethod
    def _over(cls, connection: socket.socket) -> LinkedPanel:
        panel = cls.__new__(cls)
        panel._start(connection)
        return panel

    def _start(self, connection: socket.socket) -> None:
        self._connection = connection
        self._unread = b""
        self._raised: collections.deque[tuple[int, list[Value]]] = collections.deque()
        self._heard: dict[int, list[Subscription]] = {}

    def close(self) -> None:
        """Ends the link: the panel shows that. Also from within a handler."""
        self._connection.close()
        self._raised.clear()
        for subscriptions in tuple(self._heard.values()):
            for heard in tuple(subscriptions):
                heard.cancel()

    def __enter__(self) -> LinkedPanel:
        return self

    def __exit__(self, *_: object) -> None:
        self.close()

    def process(self, timeout: float = 0) -> bool:
        """Tells the handlers of the events that have come, and waits for them for so many seconds
        at most. False when the link has ended."""
        try:
            while not self._raised:
                line = self._line(time.monotonic() + timeout)
                if line is None:
                    return True
                self._note(line)
        except ConnectionResetError:
            return False
        while self._raised:
            event, arguments = self._raised.popleft()
            for heard in tuple(self._heard.get(event, ())):
                if heard.is_active:
                    heard._handler(*arguments)
        return self._connection.fileno() >= 0

    def run(self) -> None:
        """Tells the handlers of all events until the link ends."""
        while self.process(1):
            pass

    def _invoke(self, member: int, kind: Kind, arguments: tuple[Argument, ...]) -> Value:
        words = " ".join(map(_written, arguments))
        self._send(f"invoke 0x{member:08X} {_WORDS[kind]} {words}\n")
        while True:
            line = self._line(None) or ""
            answer, _, rest = line.partition(" ")
            if answer == "ok":
                return None
            if answer == "=":
                return _read(rest)[0]
            if answer == "!":
                number, _, description = rest.partition(" ")
                raise Error(int(number), description)
            if answer == "?":
                raise Error(_NOT_UNDERSTOOD, rest)
            self._note(line)

    def _on(self, event: int, handler: Handler) -> Subscription:
        heard = Subscription(handler, lambda: self._heard[event].remove(heard))
        self._heard.setdefault(event, []).append(heard)
        return heard

    def _note(self, line: str) -> None:
        word, _, rest = line.partition(" ")
        if word == "event":
            name, _, arguments = rest.partition(" ")
            self._raised.append((EVENT_IDS[name], _read(arguments)))

    def _send(self, line: str) -> None:
        try:
            self._connection.settimeout(None)
            self._connection.sendall(line.encode())
        except OSError as failure:
            raise ConnectionResetError("the link has ended") from failure

    def _line(self, deadline: float | None) -> str | None:
        """None when there is none by then."""
        while b"\n" not in self._unread:
            try:
                left = None if deadline is None else max(deadline - time.monotonic(), 0)
                self._connection.settimeout(left)
                piece = self._connection.recv(65536)
            except (BlockingIOError, TimeoutError, socket.timeout):
                return None
            except OSError as failure:
                raise ConnectionResetError("the link has ended") from failure
            if not piece:
                raise ConnectionResetError("the link has ended")
            self._unread += piece
        line, _, self._unread = self._unread.partition(b"\n")
        return line.decode()


@contextlib.contextmanager
def _listening(path: str | pathlib.Path) -> Iterator[socket.socket]:
    with socket.socket(socket.AF_UNIX) as listener:
        try:
            listener.bind(str(path))
        except OSError as failure:
            if failure.errno != errno.EADDRINUSE or not _is_left_over(path):
                raise
            pathlib.Path(path).unlink()
            listener.bind(str(path))
        try:
            listener.listen()
            yield listener
        finally:
            pathlib.Path(path).unlink(missing_ok=True)


def _is_left_over(path: str | pathlib.Path) -> bool:
    """Whether it is the socket of a program that has ended."""
    with socket.socket(socket.AF_UNIX) as other:
        return pathlib.Path(path).is_socket() and other.connect_ex(str(path)) != 0


def serve(path: str | pathlib.Path) -> Iterator[LinkedPanel]:
    """A panel for each program that connects to a local socket at the path, one after the other;
    each is closed before the next."""
    with _listening(path) as listener:
        while True:
            with LinkedPanel._over(listener.accept()[0]) as panel:
                yield panel
