import os
import pathlib
import socket
import subprocess
import tempfile
import threading
import time
import unittest

import orvo

LONG = 30


class ManagerTest(unittest.TestCase):
    """Against the program itself."""

    def setUp(self):
        directory = tempfile.TemporaryDirectory()
        self.addCleanup(directory.cleanup)
        home = pathlib.Path(directory.name)
        path = home / "amplifier"
        # A program that has ended left it there.
        with socket.socket(socket.AF_UNIX) as left_over:
            left_over.bind(str(path))
        environment = {**os.environ, "HOME": str(home), "XDG_RUNTIME_DIR": str(home)}
        for name in ("XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"):
            environment.pop(name, None)
        manager = subprocess.Popen(
            [os.environ["ORVO_MANAGER"], "--link", str(path)], env=environment
        )
        self.addCleanup(manager.wait)
        self.addCleanup(manager.kill)
        self.manager = manager
        self.panel = orvo.LinkedPanel(path, timeout=LONG)
        self.addCleanup(self.panel.close)

    def test_members_are_those_of_a_panel_in_this_program(self):
        panel = self.panel
        panel.Connected = True
        panel.Mute[2] = True
        self.assertEqual([False, True], [panel.Mute[1], panel.Mute[2]])
        panel.IdDevice = 98.5  # half to even
        self.assertEqual(98, panel.IdDevice)
        text = 'Zoë "\\ \n\t\x1b \U0001f50a \ud800'
        self.assertEqual(text, panel.TrimStr(text + "\0more"))
        panel.DisegnaFormaDOnda(1, range(1, 200))
        for number, call in {
            13: lambda: panel.VNPower.__setitem__(1, -5),
            6: lambda: setattr(panel, "IdDevice", 1 << 40),
            394: lambda: panel.Connected,
        }.items():
            with self.assertRaises(orvo.Error) as raised:
                call()
            self.assertEqual(number, raised.exception.number)

    def test_the_end_of_the_link_is_told(self):
        self.manager.kill()
        self.assertFalse(self.panel.process(LONG))
        with self.assertRaises(ConnectionResetError):
            self.panel.PowerOn = True


class ScriptedTest(unittest.TestCase):
    """Against what a program may say, at any moment."""

    def setUp(self):
        ours, self.theirs = socket.socketpair()
        self.panel = orvo.LinkedPanel._over(ours)
        self.addCleanup(self.theirs.close)
        self.addCleanup(self.panel.close)

    def say(self, *lines):
        self.theirs.sendall("".join(line + "\n" for line in lines).encode())

    def test_events_wait_until_they_are_processed(self):
        heard = []
        self.panel.on_mute(heard.append)
        self.say("event Mute 3", "  ok", "= -1", 'event GeneralInformations 1 "a b" "" "\\u00E9"')
        self.assertIs(True, self.panel.PowerOn)
        self.assertEqual([], heard)
        self.panel.on_general_informations(lambda *told: heard.append(told))
        self.assertTrue(self.panel.process())
        self.assertTrue(self.panel.process())
        self.assertEqual([3, (1, "a b", "", "é")], heard)

    def test_a_handler_may_call_cancel_and_close(self):
        heard = []

        def close(channel):
            self.say("event Mute 4", "ok")
            self.panel.Mute[channel] = True
            other.cancel()
            self.panel.close()

        self.panel.on_mute(close)
        other = self.panel.on_mute(heard.append)
        self.say("event Mute 2")
        self.assertFalse(self.panel.process(LONG))
        self.assertEqual([], heard)
        self.assertEqual(b"invoke 0x68030001 let 2 true\n", self.theirs.recv(100))

    def test_an_exception_of_a_handler_comes_out(self):
        self.panel.on_mute(lambda channel: 1 // 0)
        self.say("event Mute 1", "event Mute 2")
        for _ in range(2):
            with self.assertRaises(ZeroDivisionError):
                self.panel.process(LONG)

    def test_waiting_has_an_end(self):
        self.assertTrue(self.panel.process(0.01))

    def test_what_is_not_understood_is_an_error(self):
        self.say("? there is no such thing")
        with self.assertRaises(orvo.Error) as raised:
            self.panel.ClearTest()
        self.assertEqual("there is no such thing", raised.exception.description)


class ServeTest(unittest.TestCase):
    def test_each_program_that_connects_gets_its_panel(self):
        with tempfile.TemporaryDirectory() as directory:
            path = pathlib.Path(directory) / "amplifier"

            def connect():
                for channel in (1, 2):
                    with socket.socket(socket.AF_UNIX) as program:
                        while program.connect_ex(str(path)) != 0:
                            time.sleep(0.01)
                        program.sendall(f"event Mute {channel}\n".encode())

            program = threading.Thread(target=connect)
            program.start()
            heard = []
            panels = orvo.serve(path)
            for panel in panels:
                panel.on_mute(heard.append)
                panel.run()
                if len(heard) == 2:
                    break
            panels.close()
            program.join()
            self.assertEqual([1, 2], heard)
            self.assertFalse(path.exists())
