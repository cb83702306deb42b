"""Panels in this program."""

from __future__ import annotations

import contextlib
import ctypes
import enum
from collections.abc import Callable
from ctypes import byref, c_uint32, c_void_p
from typing import Any, TypeVar

from ._core import Argument, Error, Handler, Kind, Subscription, Value
from ._library import ErrorHandler, EventHandler, Library, Options, library
from ._members import Members

Self = TypeVar("Self", bound="Panel")


class Ports(enum.IntEnum):
    """What a panel is given of the machine, for `GetAvailablePorts`."""

    NONE = 0
    DEVICES = 1  # this machine's devices; it never waits
    SERVERS = 2  # print servers as well


class Deed(enum.IntEnum):
    """What a person does to a widget."""

    CLICK = 0
    ACTIVATE = 1
    KEY = 2
    PICK = 3
    SLIDE = 4
    HOLD = 5
    DROP = 6
    TAB = 7


class _Heard(Subscription):
    """Known to the library by its address, it is kept by its panel."""

    def __init__(self, library: Library, handler: Handler, cancel: Callable[[], None]) -> None:
        super().__init__(handler, cancel)
        self.library = library
        self.number = c_uint32()


def _at(address: int) -> Any:
    return ctypes.cast(address, ctypes.py_object).value


# What they let escape goes to sys.unraisablehook. They outlive every panel: one may be closed, and
# a subscription cancelled, while it is told.
def _tell(user: int, event: int, arguments: int, count: int) -> None:
    heard: _Heard = _at(user)
    heard._handler(*heard.library.values(arguments, count))


def _tell_error(user: int, number: int, text: bytes) -> None:
    panel: Panel = _at(user)
    if panel._error_handler is not None:
        panel._error_handler(Error(number, text.decode()))


_raise = EventHandler(_tell)
_fail = ErrorHandler(_tell_error)
_NOBODY = ErrorHandler(0)


class Panel(Members):
    """A panel without a window, whose clock only `advance` moves.

    A handler may call the panel, and close it. An exception that it lets escape goes to
    `sys.unraisablehook`, which prints it, and the panel goes on.
    """

    _name = "orvo-c"
    _create = "orvo_create"

    def __init__(self, ports: Ports = Ports.NONE) -> None:
        self._panel = c_void_p()
        self._heard: set[_Heard] = set()
        self._error_handler: Callable[[Error], object] | None = None
        self._library = library(self._name)
        options = Options()
        options.ports = ports
        self._library.call(self._create, byref(options), byref(self._panel))

    def close(self) -> None:
        """Ends the panel and its subscriptions, also from within a handler. Whatever is called
        afterwards ends with error 1101."""
        self._library.call("orvo_destroy", self._panel)
        self._panel = c_void_p()
        for heard in self._heard:
            heard._cancel = None
        self._heard.clear()

    def __enter__(self: Self) -> Self:
        return self

    def __exit__(self, *_: object) -> None:
        self.close()

    def __del__(self) -> None:
        # Without a library there is nothing to end, nor is there from another thread.
        with contextlib.suppress(Error, AttributeError):
            self.close()

    def advance(self, milliseconds: int) -> None:
        """Lets time pass: every timer that comes due ticks, in order."""
        self._library.call("orvo_advance", self._panel, milliseconds)

    def perform(self, deed: Deed, widget: str, number: int = 0, text: str = "") -> None:
        """What a person does to the widget of this name in the layout, for a host's tests. `number`
        is a character's code, a slider's position or a tab, `text` the item that is picked."""
        self._library.call(
            "orvo_perform", self._panel, deed, widget.encode(), number, text.encode()
        )

    def on_error(self, handler: Callable[[Error], object] | None) -> None:
        """Who is told of an error that nobody waits for; without one it goes to standard error."""
        told = _fail if handler is not None else _NOBODY
        self._library.call("orvo_on_error", self._panel, told, id(self))
        self._error_handler = handler

    def _invoke(self, member: int, kind: Kind, arguments: tuple[Argument, ...]) -> Value:
        return self._library.invoke(self._panel, member, kind, arguments)

    def _on(self, event: int, handler: Handler) -> Subscription:
        heard = _Heard(self._library, handler, lambda: self._cancel(heard))
        address, number = id(heard), byref(heard.number)
        self._library.call("orvo_subscribe", self._panel, event, _raise, address, number)
        self._heard.add(heard)
        return heard

    def _cancel(self, heard: _Heard) -> None:
        self._library.call("orvo_unsubscribe", self._panel, heard.number)
        self._heard.remove(heard)


class Window(Panel):
    """A panel in a window, which is not shown yet. The real clock moves it while events are
    processed."""

    _name = "orvo-c-widgets"
    _create = "orvo_window_create"

    def show(self) -> None:
        self._library.call("orvo_window_show", self._panel)

    def set_title(self, title: str) -> None:
        self._library.call("orvo_window_set_title", self._panel, title.encode())

    def set_zoom(self, zoom: float) -> None:
        """1 is the layout's own size, 709 x 460 pixels; it goes from 0.5 to 8."""
        self._library.call("orvo_window_set_zoom", self._panel, zoom)

    def process(self, milliseconds: int = 50) -> bool:
        """Processes the program's events, and waits for them as long at most. Whether the window is
        shown afterwards."""
        self._library.functions.orvo_process_events(milliseconds)
        return bool(self._library.functions.orvo_window_is_shown(self._panel))

    def run(self) -> None:
        """Shows the window until a person or a handler closes it."""
        self.show()
        while self.process():
            pass
