"""The front panel of a four-channel power amplifier.

    import orvo

    with orvo.Window() as panel:

        def toggle(channel: int) -> None:
            panel.Mute[channel] = not panel.Mute[channel]

        panel.on_mute(toggle)
        panel.PowerOn = True
        panel.run()

`Panel` has no window and a clock that only `advance` moves, `Window` is on the screen, and a
`LinkedPanel` is in another program, such as `marvane-manager --link PATH`. All have the same
members and events, see `Members`. All calls come from the thread that made the panel.
"""

from ._core import Error, Indexed, Subscription
from ._link import LinkedPanel, serve
from ._members import Members
from ._panel import Deed, Panel, Ports, Window

__all__ = [
    "Deed",
    "Error",
    "Indexed",
    "LinkedPanel",
    "Members",
    "Panel",
    "Ports",
    "Subscription",
    "Window",
    "serve",
]
