"""The main job in a real window: connect, record two shots, save, export, quit, reopen; then files and pictures.

test_mainjob.py PROGRAMS OUTPUT SCALE

VENTARO_PROGRAMS in the environment names another folder of programs. Ends with 77 if a tool that tools/real_window.sh
needs is not installed.
"""

import json
import os
import shutil
import subprocess
import sys
import unittest
from pathlib import Path

from plotpicture import Picture

TOOL = Path(__file__).parents[2] / "tools" / "real_window.sh"
SCRIPT = Path(__file__).parent / "mainjob.sh"
SKIPPED = 77
SCREEN = (1280, 800)  # logical pixels
SENSORS = 5
SHOTS = 2
SAMPLES = 12  # of each shot at least
NARROWEST_PLOT = 0.4  # of the screen's width
FEWEST_GRID_LINES = 6


class MainJob(unittest.TestCase):
    programs = output = Path()
    scale = 1.0

    @classmethod
    def setUpClass(cls):
        shutil.rmtree(cls.output, ignore_errors=True)
        cls.output.mkdir(parents=True)
        size = "x".join(map(str, SCREEN))
        options = ["--scale", str(cls.scale), "--size", size, "--programs", cls.programs, "--output", cls.output]
        run = subprocess.run([TOOL, *options, SCRIPT, cls.output], capture_output=True, text=True, check=False)
        if run.returncode == SKIPPED:
            print(run.stdout)
            sys.exit(SKIPPED)
        if run.returncode != 0:
            raise AssertionError(f"{run.stdout}{run.stderr}Pictures and messages are in {cls.output}")

    def dots(self, pixels):
        return round(pixels * self.scale)

    def plots_of(self, name, count):
        picture = Picture(self.output / name)
        plots = picture.plots(int(self.dots(SCREEN[0]) * NARROWEST_PLOT))
        self.assertIsNotNone(plots, f"{name}: a frame is not whole")
        self.assertEqual(len(plots), count, name)
        return picture, plots

    def test_project_holds_both_shots(self):
        project = json.loads((self.output / "job.vnt").read_text(encoding="utf-8"))
        lengths = [[len(shot) for shot in project[f"sensor {i}"]] for i in range(1, SENSORS + 1)]
        self.assertEqual([len(shots) for shots in lengths], [SHOTS] * SENSORS)
        self.assertGreaterEqual(min(map(min, lengths)), SAMPLES)
        self.assertEqual(lengths, [lengths[0]] * SENSORS)

    def test_csv_holds_both_shots(self):
        project = json.loads((self.output / "job.vnt").read_text(encoding="utf-8"))
        lines = (self.output / "job.csv").read_text(encoding="utf-8").splitlines()
        self.assertEqual(lines[0], "Dateiname: job.vnt")
        for sensor in range(1, SENSORS + 1):
            start = next(i for i, line in enumerate(lines) if line.startswith(f"Sensor {sensor}: "))
            for shot in range(SHOTS):
                head, *values = lines[start + 1 + shot].split(";")
                self.assertEqual(head, f"data {shot}")
                # as many digits as there are in the project
                self.assertEqual([float(value.replace(",", ".")) for value in values], project[f"sensor {sensor}"][shot])

    def test_window_fills_the_screen(self):
        picture = Picture(self.output / "recorded.png")
        self.assertEqual(picture.width, self.dots(SCREEN[0]))
        self.assertGreater(picture.height, self.dots(SCREEN[1] * 0.95))
        self.assertLess(picture.height, self.dots(SCREEN[1]))  # the window manager's title bar is above

    def test_question_is_whole(self):
        picture = Picture(self.output / "question.png")
        self.assertEqual((picture.width, picture.height > self.dots(600)), (self.dots(800), True))

    def test_every_line_of_the_plots_is_drawn(self):
        for name, count in (("recorded.png", SENSORS), ("reopened.png", SENSORS), ("job.png", 1)):
            picture, plots = self.plots_of(name, count)
            for row, plot in enumerate(plots):
                with self.subTest(name, row=row):
                    columns = picture.grid_columns(plot)
                    self.assertGreaterEqual(len(columns), FEWEST_GRID_LINES)
                    steps = [right - left for left, right in zip(columns, columns[1:])]
                    self.assertLessEqual(max(steps) - min(steps), self.scale, columns)
                    values = len(picture.value_labels(plot))
                    self.assertGreaterEqual(values, 2)
                    # one grid line for each value; the lowest value's is the time axis
                    self.assertIn(len(picture.grid_rows(plot)), (values - 1, values))

    def test_no_label_is_cut(self):
        for name, count in (("recorded.png", SENSORS), ("reopened.png", SENSORS), ("job.png", 1)):
            picture, plots = self.plots_of(name, count)
            for row, plot in enumerate(plots):
                with self.subTest(name, row=row):
                    first, last = picture.time_labels(plot) or self.fail("no time labels")
                    heights = [bottom - top for top, bottom in picture.value_labels(plot)]
                    self.assertGreaterEqual(last - first, min(heights), "the labels are lower than those of the values")
                    self.assertLess(last, plot.inside.bottom, "the labels reach into the frame")

    def test_reopened_project_looks_the_same(self):
        before, plots_before = self.plots_of("recorded.png", SENSORS)
        after, plots_after = self.plots_of("reopened.png", SENSORS)
        for row, (plot, reopened) in enumerate(zip(plots_before, plots_after)):
            self.assertEqual(before.rectangle(plot.inside), after.rectangle(reopened.inside), f"row {row}")

    def test_qt_has_nothing_to_complain(self):
        lines = (self.output / "ventaro.txt").read_text(encoding="utf-8", errors="replace").splitlines()
        # A window that is gone before an answer of the X server arrives is reported as an error of qt.qpa.xcb.
        others = [line for line in lines if line and not line.startswith(("ventaro.", "qt.qpa.xcb: "))]
        self.assertEqual(others, [])


if __name__ == "__main__":
    MainJob.programs = Path(os.environ.get("VENTARO_PROGRAMS") or sys.argv[1])
    MainJob.output = Path(sys.argv[2]).resolve()
    MainJob.scale = float(sys.argv[3])
    unittest.main(argv=sys.argv[:1])
