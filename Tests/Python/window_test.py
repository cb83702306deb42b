import unittest

import orvo


class WindowTest(unittest.TestCase):
    def test_runs_until_it_is_closed(self):
        heard = []
        with orvo.Window() as panel:
            panel.set_title("Hall")
            panel.set_zoom(0.5)
            panel.perform(orvo.Deed.SLIDE, "ZelvinSlider3", 40)

            def close(pair, temperature):
                heard.append(temperature)
                panel.close()

            panel.on_set_temp(close)
            panel.run()
        self.assertEqual([40], heard)
