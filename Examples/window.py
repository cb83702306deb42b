"""A host in Python: it answers what a person in front of the panel asks for."""

import orvo

with orvo.Window() as panel:

    def toggle(channel: int) -> None:
        panel.Mute[channel] = not panel.Mute[channel]

    def set_volume(channel: int, volume: int) -> None:
        panel.Volume[channel] = volume
        panel.AggiugiTesto(f"Channel {channel}: {volume} dB")

    panel.on_mute(toggle)
    panel.on_volume_change(set_volume)
    panel.Connected = True
    panel.run()
