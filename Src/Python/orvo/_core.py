"""What panels have in common, wherever they are."""

from __future__ import annotations

import array
import enum
from abc import ABC, abstractmethod
from collections.abc import Callable, Sequence
from typing import Any, Generic, TypeVar, Union

Value = Union[None, bool, int, float, str]
Argument = Union[bool, int, float, str, Sequence[int]]
Result = TypeVar("Result", bound=Union[bool, int, float, str])
Handler = Callable[..., object]


class Error(Exception):
    """A run-time error of the panel, by its number: 13 is a type mismatch."""

    def __init__(self, number: int, description: str) -> None:
        super().__init__(f"{number} {description}")
        self.number = number
        self.description = description


class Kind(enum.IntEnum):
    METHOD = 0
    GET = 1
    LET = 2


class Subscription:
    """Has a handler told of an event until it is cancelled, or the panel is closed."""

    def __init__(self, handler: Handler, cancel: Callable[[], None]) -> None:
        self._handler = handler
        self._cancel: Callable[[], None] | None = cancel

    @property
    def is_active(self) -> bool:
        return self._cancel is not None

    def cancel(self) -> None:
        """Also from within the handler. A second time does nothing."""
        if self._cancel is not None:
            self._cancel()
            self._cancel = None


def samples(numbers: Sequence[int]) -> array.array[int]:
    """The numbers as Integers; error 6 for one that is none."""
    try:
        return array.array("h", numbers)
    except OverflowError:
        raise Error(6, "Overflow") from None


class Core(ABC):
    """Calls members and hears events by their ids."""

    @abstractmethod
    def _invoke(self, member: int, kind: Kind, arguments: tuple[Argument, ...]) -> Value: ...

    @abstractmethod
    def _on(self, event: int, handler: Handler) -> Subscription: ...

    def _do(self, member: int, *arguments: Argument) -> None:
        self._invoke(member, Kind.METHOD, arguments)

    def _call(self, member: int, result: Callable[[Any], Result], *arguments: Argument) -> Result:
        return result(self._invoke(member, Kind.METHOD, arguments))

    def _get(self, member: int, result: Callable[[Any], Result], *index: int) -> Result:
        return result(self._invoke(member, Kind.GET, index))

    def _let(self, member: int, *index_and_value: Argument) -> None:
        self._invoke(member, Kind.LET, index_and_value)


class Indexed(Generic[Result]):
    """A property with an index: `panel.Mute[2] = True`."""

    def __init__(self, core: Core, member: int, result: Callable[[Any], Result]) -> None:
        self._core = core
        self._member = member
        self._result: Callable[[Any], Result] = result

    def __getitem__(self, index: int) -> Result:
        return self._core._get(self._member, self._result, index)

    def __setitem__(self, index: int, value: Result) -> None:
        self._core._let(self._member, index, value)
