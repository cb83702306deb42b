"""What hosts write has the types that they expect; mypy reads this, and nobody runs it."""

import orvo


def host(panel: orvo.Members) -> None:
    panel.Mute[2] = True
    muted: bool = panel.Mute[2]
    panel.IdDevice = 7
    panel.DisegnaFormaDOnda(1, [128, 130])
    text: str = panel.TrimStr("x")
    panel.on_volume_change(lambda channel, volume: print(channel + volume, muted, text))
    panel.PowerOn = "on"  # type: ignore[assignment]
    panel.Mute["2"] = True  # type: ignore[index]
    panel.on_mute(lambda: None)  # type: ignore[misc, arg-type]


def serve() -> None:
    for panel in orvo.serve("/tmp/amplifier"):
        host(panel)
    with orvo.Window() as window:
        host(window)
