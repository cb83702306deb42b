import contextlib
import os
import re
import sys
import threading
import unittest

import orvo
from orvo import Deed


class PanelTest(unittest.TestCase):
    def setUp(self):
        self.panel = orvo.Panel()
        self.addCleanup(self.panel.close)

    @contextlib.contextmanager
    def error(self, number):
        with self.assertRaises(orvo.Error) as raised:
            yield
        self.assertEqual(number, raised.exception.number)

    def click(self, widget):
        self.panel.perform(Deed.CLICK, widget)

    def test_properties_and_methods_are_the_members(self):
        panel = self.panel
        panel.Mute[2] = True
        panel.PowerOn = True
        panel.IdDevice = 99
        self.assertEqual([False, True], [panel.Mute[1], panel.Mute[2]])
        self.assertIs(True, panel.PowerOn)
        self.assertEqual(99, panel.IdDevice)
        self.assertEqual("Zoë", panel.TrimStr("Zoë\0 and more"))
        self.assertEqual("", panel.TrimStr(""))
        panel.DisegnaFormaDOnda(1, range(1, 200))
        self.assertIn("PASS", type(panel).chkTest.__doc__)

    def test_errors_have_their_numbers(self):
        cases = {
            "negative": (13, lambda panel: panel.VNPower.__setitem__(1, -5)),
            "beyond an Integer": (6, lambda panel: setattr(panel, "IdDevice", 40000)),
            "beyond a Long": (6, lambda panel: setattr(panel, "IdDevice", 1 << 40)),
            "no sample": (6, lambda panel: panel.DisegnaFormaDOnda(1, [1 << 15])),
            "write-only": (394, lambda panel: panel.Connected),
            "read-only": (383, lambda panel: panel.VolumeSliderButtonDown.__setitem__(1, True)),
            "no such row": (340, lambda panel: panel.chkTest[9]),
            "no such widget": (1102, lambda panel: panel.perform(Deed.CLICK, "Command99")),
        }
        for label, (number, call) in cases.items():
            with self.subTest(label), self.error(number):
                call(self.panel)

    def test_events_reach_their_handlers_while_these_are_subscribed(self):
        heard = []
        first = self.panel.on_mute(lambda channel: heard.append(("first", channel)))
        self.panel.on_mute(lambda channel: heard.append(("second", channel)))
        self.panel.on_volume_change(lambda *change: heard.append(change))
        self.click("Command12")
        first.cancel()
        first.cancel()
        self.click("Command12")
        self.panel.perform(Deed.SLIDE, "ZelvinSlider1", 10)
        self.assertEqual([("first", 1), ("second", 1), ("second", 1), (1, 10)], heard)

    def test_time_passes_when_it_is_said(self):
        heard = []
        self.panel.perform(Deed.SLIDE, "ZelvinSlider3", 40)
        self.panel.on_set_temp(lambda *temperature: heard.append(temperature))
        self.panel.advance(3000)
        self.assertEqual([(1, 40)] * 2, heard)

    def test_an_exception_of_a_handler_is_told_and_the_next_one_runs(self):
        told, heard = [], []
        before, sys.unraisablehook = sys.unraisablehook, lambda failure: told.append(
            failure.exc_type
        )
        self.addCleanup(setattr, sys, "unraisablehook", before)
        self.panel.on_mute(lambda channel: 1 // 0)
        self.panel.on_mute(heard.append)
        self.click("Command12")
        self.assertEqual(([ZeroDivisionError], [1]), (told, heard))

    def test_a_handler_may_call_the_panel_and_close_it(self):
        heard = []

        def close(channel):
            self.panel.Mute[channel] = True
            heard.append(self.panel.Mute[channel])
            self.panel.close()

        self.panel.on_mute(close)
        self.panel.on_mute(heard.append)
        self.click("Command12")
        self.assertEqual([True], heard)
        with self.error(1101):
            self.panel.PowerOn = True

    def test_another_thread_is_refused(self):
        numbers = []

        def call():
            try:
                self.panel.PowerOn = True
            except orvo.Error as error:
                numbers.append(error.number)

        thread = threading.Thread(target=call)
        thread.start()
        thread.join()
        self.assertEqual([1001], numbers)

    def test_enumerations_are_those_of_the_header(self):
        with open(os.environ["ORVO_HEADER"], encoding="utf-8") as header:
            text = header.read()
        for name, ours in {"deed": Deed, "ports": orvo.Ports}.items():
            body = re.search(rf"enum orvo_{name} \{{(.*?)\}}", text, re.DOTALL)[1]
            theirs = re.findall(r"^\s*ORVO_(?:PORTS_)?(\w+)", body, re.MULTILINE)
            self.assertEqual(theirs, [one.name for one in ours])
