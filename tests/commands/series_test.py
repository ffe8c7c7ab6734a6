"""kavmap-series: every picture once, whatever is interrupted, fails or is elsewhere."""

import os
import pathlib
import random
import shutil
import signal
import subprocess
import time

import command

series = command.load("kavmap-series")
STAND_IN = pathlib.Path(os.environ["KAV_STAND_IN_DIRECTORY"])

SETTINGS = "Size=100\n[Compass]\nFontShow=0\n[Propagation]\nGrid=0\nDir={}\n"

# In place of ssh: the first word that is no option names the machine, the rest is what it shall do.
# It sets what every login sets: parallel asks for the shell there.
FAR = """#!/bin/sh
export SHELL=/bin/sh
while [ "${1#-}" != "$1" ]; do case $1 in -[lpSo]) shift ;; esac; shift; done
echo "$1" >>"$FAR_LOG"
shift
[ "$1" != -- ] || shift
exec sh -c "$*"
"""

# In place of kavmap: says what data directory it was given and what is in it.
WATCHER = """#!/bin/sh
while read -r line; do case $line in Dir=*) dir=${line#Dir=} ;; esac; done <"$2"
echo "$dir" >>"$WATCHED"
[ -e "$dir/busy" ] && exit 1
touch "$dir/busy" "$dir/run/mine" "$dir/areadata/default/kavdex.voa"
[ -L "$dir/coeffs" ] && [ -d "$dir/run" ] && [ ! -L "$dir/run" ] && [ ! -e "$dir/areadata/default/old" ] || exit 1
printf picture >"$6"
"""


class SeriesTest(command.CommandTest):
    def setUp(self):
        super().setUp()
        for part in ("areadata/default", "antennas", "coeffs", "database", "run"):
            (self.home / "voacap data" / part).mkdir(parents=True)
        self.write("voacap data/areadata/default/old", "")
        self.write("s.ini", SETTINGS.format(self.home / "voacap data"))
        (self.home / "tmp").mkdir()
        self.environment = {"PATH": f"{STAND_IN}:{os.environ['PATH']}", "TMPDIR": str(self.home / "tmp")}

    def series(self, *arguments, status=0, **environment):
        done = self.run_command("kavmap-series", "--out", "out", *arguments, "s.ini",
                                env={**self.environment, **environment})
        self.said = done.stderr
        self.assertEqual(done.returncode, status, done.stderr)
        self.assertEqual(list((self.home / "tmp").iterdir()), [])
        return done

    def start(self, *arguments):
        """As series(), in the background; programs in bin come first."""
        path = f"{self.home / 'bin'}:{self.environment['PATH']}"
        process = subprocess.Popen([command.BIN / "kavmap-series", "--out", "out", *arguments, "s.ini"], cwd=self.home,
                                   env={**os.environ, "HOME": str(self.home), **self.environment, "PATH": path},
                                   stderr=subprocess.PIPE, text=True)
        self.addCleanup(process.stderr.close)
        return process

    def pictures(self):
        return sorted(path.name for path in (self.home / "out").glob("*.png"))

    def script(self, name, text):
        self.write(name, text).chmod(0o755)
        return self.home / name

    def test_draws_every_picture(self):
        self.series("--year=2026", "--months=3,12", "--hours=0-1", "--bands=14,user", "--parameters=snr")
        self.assertEqual(self.pictures(), sorted(
            f"2026-{month}-15T{hour}_{band}_snr.png" for month in ("03", "12") for hour in ("00", "01")
            for band in ("14", "user")))
        self.assertEqual(self.said, "")

    def test_pictures_are_those_of_kavmap(self):
        self.series("--year=2026", "--months=3", "--day=20", "--hours=6", "--bands=21", "--parameters=muf")
        (self.home / "voacap data/areadata/default/old").unlink()
        self.write("one.ini", (self.home / "s.ini").read_text() + "Show=1\nFq=5\nParam=2\n")
        done = self.run_command("kavmap", "-s", "one.ini", "-t", "2026-03-20T06:00", "-r", "one.png",
                                env=self.environment)
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertEqual((self.home / "one.png").read_bytes(),
                         (self.home / "out/2026-03-20T06_21_muf.png").read_bytes())
        self.assertIn("Freqs    : 21.000", (self.home / "voacap data/areadata/default/kavdex.voa").read_text())

    def test_draws_greylines_without_voacapl(self):
        self.write("s.ini", "Size=100\n[Greyzone]\nShow=1\n")
        self.series("--months=6", "--hours=0,12")
        self.assertEqual(len(self.pictures()), 2)
        noon, midnight = ((self.home / "out" / name).read_bytes() for name in self.pictures())
        self.assertNotEqual(noon, midnight)

    def test_every_run_has_a_data_directory_of_its_own(self):
        watcher = self.script("watcher", WATCHER)
        self.series("--hours=0-9", "--bands=14", f"--kavmap={watcher}", "--jobs=4", WATCHED=str(self.home / "watched"))
        directories = (self.home / "watched").read_text().splitlines()
        self.assertEqual((len(directories), len(set(directories))), (10, 10))
        self.assertEqual(len(self.pictures()), 10)
        self.assertEqual(os.listdir(self.home / "voacap data/run"), [])

    def test_goes_on_where_it_was_interrupted(self):
        slow = self.script("slow", '#!/bin/sh\ncase $4 in *T0[0-2]*) ;; *) [ -e go ] || sleep 100 ;; esac\n'
                                   'echo "$4" >>ran\nprintf picture >"$6"\n')
        self.write("s.ini", "Size=100\n")
        arguments = ("--hours=0-6", "--jobs=4", f"--kavmap={slow}")
        process = self.start(*arguments)
        for _ in range(600):
            if (self.home / "out").is_dir() and len(self.pictures()) == 3:
                break
            time.sleep(0.1)
        process.send_signal(signal.SIGTERM)
        said = process.communicate(timeout=60)[1]
        self.assertEqual(process.returncode, 2)
        self.assertIn("kavmap-series: interrupted, 3 of 7 pictures are there; started again it goes on", said)
        (self.home / "go").touch()
        self.assertEqual(len((self.home / "ran").read_text().splitlines()), 3)
        for _ in range(1200):  # what was ended removes what it made
            if not list((self.home / "tmp").iterdir()):
                break
            time.sleep(0.1)
        self.series(*arguments)
        self.assertEqual(len(self.pictures()), 7)
        self.assertEqual(len((self.home / "ran").read_text().splitlines()), 7)

    def test_leaves_nothing_that_parallel_leaves(self):
        self.write("s.ini", "Size=100\n")
        # parallel calls itself for other ends, too.
        self.script("bin/parallel", '#!/bin/sh\nplace=$TMPDIR\nours=\nfor option; do case $option in '
                                    '--tmpdir=*) place=${option#*=} ;; --termseq=*) ours=yes ;; esac; done\n'
                                    '[ -z "$ours" ] || touch "$place/par_left.par" "$HOME/called"\n'
                                    'exec /usr/bin/parallel "$@"\n')
        self.series("--hours=0", PATH=f"{self.home / 'bin'}:{self.environment['PATH']}")
        self.assertTrue((self.home / "called").exists())

    def test_leaves_nothing_when_interrupted_while_it_makes_or_removes_its_directory(self):
        self.write("s.ini", "Size=100\n")
        self.script("bin/mktemp", '#!/bin/sh\nmade=$(/usr/bin/mktemp "$@"); echo "$made" >>began\nsleep 0.3; echo "$made"\n')
        self.script("bin/rm", '#!/bin/sh\nsleep 1.5; exec /bin/rm "$@"\n')
        process = self.start("--hours=0")
        while not (self.home / "began").exists():
            time.sleep(0.01)
        process.send_signal(signal.SIGTERM)
        process.wait()
        self.assertEqual(list((self.home / "tmp").iterdir()), [])

    def test_ends_what_parallel_leaves_behind_when_interrupted(self):
        self.write("s.ini", "Size=100\n")
        self.script("bin/parallel", '#!/bin/sh\n[ "$1" != --version ] || exec echo GNU parallel\n'
                                    'setsid sh -c \'echo $$ >left; sleep 1000 & wait\' &\nwait\n')
        process = self.start("--hours=0")
        left = self.home / "left"
        while not left.exists() or not left.read_text().endswith("\n"):
            time.sleep(0.01)
        process.send_signal(signal.SIGTERM)
        process.wait()
        self.assertRaises(ProcessLookupError, os.killpg, int(left.read_text()), 0)

    def test_ends_parallel_when_interrupted_while_it_is_started(self):
        self.write("s.ini", "Size=100\n")
        self.script("bin/parallel", '#!/bin/sh\n[ "$1" != --version ] || exec echo GNU parallel\n'
                                    'kill -TERM $PPID\necho $$ >>left\nexec sleep 1000\n')
        for _ in range(10):
            process = self.start("--hours=0")
            said = process.communicate(timeout=60)[1]
            self.assertEqual(process.returncode, 2, said)
            self.assertIn("kavmap-series: interrupted, 0 of 1 pictures are there", said)
        left = self.home / "left"
        for line in left.read_text().splitlines() if left.exists() else []:
            self.assertRaises(ProcessLookupError, os.kill, int(line), 0)

    def test_names_a_failed_picture_and_draws_the_others(self):
        failing = self.script("failing", '#!/bin/sh\n[ $4 = 2026-06-15T01:00 ] && { echo "kavmap: no ink" >&2; exit 2; }\n'
                                         'printf picture >"$6"\n')
        arguments = ("--year=2026", "--months=6", "--hours=0-2", f"--kavmap={failing}")
        self.series(*arguments, status=2)
        self.assertEqual(self.said, "kavmap-series: 2026-06-15T01.png: no ink\n")
        self.assertEqual(self.pictures(), ["2026-06-15T00.png", "2026-06-15T02.png"])
        failing.write_text('#!/bin/sh\necho "kavmap: warning: pale" >&2; printf picture >"$6"\n')
        self.series(*arguments)
        self.assertEqual(self.said, "kavmap-series: warning: pale (1 pictures)\n")

    def test_says_what_fails_in_voacapl(self):
        self.series("--hours=0", "--bands=14", status=2, KAV_STAND_IN="fails")
        self.assertRegex(self.said, r"T00_14\.png: Error calling VOACAP\n")
        self.assertEqual(self.pictures(), [])

    def test_draws_on_other_machines(self):
        far = self.script("far", FAR)
        kavmap = command.BIN / "kavmap"
        arguments = ("--hours=0-9", "--bands=14", "--jobs=1", f"--ssh={far}", f"--kavmap={kavmap}")
        self.write("machines", "1/one\n1/two\n")
        self.series(*arguments, "--sshloginfile=machines", FAR_LOG=str(self.home / "far.log"))
        self.assertEqual(len(self.pictures()), 10)
        self.assertLessEqual({"one", "two"}, set((self.home / "far.log").read_text().split()))
        here = {name: (self.home / "out" / name).read_bytes() for name in self.pictures()}
        shutil.rmtree(self.home / "out")
        self.series(*arguments[:3], "--sshlogin=:", f"--kavmap={kavmap}")
        self.assertEqual({name: (self.home / "out" / name).read_bytes() for name in self.pictures()}, here)

    def test_settings_may_be_as_long_as_they_can_travel(self):
        far = self.script("far", FAR)
        chance = random.Random(3)
        text = (self.home / "s.ini").read_text()
        text += "".join(f"# {chance.getrandbits(200):x} '\"$HOME` {{1}}\n" for _ in range(750))
        for length, status in ((20000, 0), (len(text), 1)):
            self.write("s.ini", text[:length])
            shutil.rmtree(self.home / "out", ignore_errors=True)
            self.series("--hours=0", "--bands=14", "--jobs=1", f"--ssh={far}", "--sshlogin=one",
                        f"--kavmap={command.BIN / 'kavmap'}", status=status, FAR_LOG="/dev/null")
            self.assertEqual(len(self.pictures()), 1 - status)
        self.assertIn("the settings are too long to travel", self.said)
        self.assertFalse((self.home / "out").exists())

    def test_makes_a_contact_sheet(self):
        self.write("s.ini", "Size=100\n")
        montage = self.script("bin/montage", '#!/bin/sh\nfor last; do :; done\necho "$@" >"$last"\n')
        self.series("--hours=0-1", "--sheet=sheet.png", PATH=f"{montage.parent}:{os.environ['PATH']}")
        self.assertRegex((self.home / "sheet.png").read_text(), "T00.png .*T01.png -tile 2x ")
        montage.write_text("#!/bin/sh\necho 'montage: no room' >&2; exit 1\n")
        self.series("--hours=0-1", "--sheet=other.png", status=2, PATH=f"{montage.parent}:{os.environ['PATH']}")
        self.assertEqual(self.said, "kavmap-series: no contact sheet: montage: no room\n")
        self.assertFalse((self.home / "other.png").exists())

    def test_refuses_another_series_in_its_directory(self):
        self.write("s.ini", "Size=100\n")
        self.series("--hours=0")
        self.write("s.ini", "Size=101\n")
        self.series("--hours=0-1", status=1)
        self.assertIn("out holds a series with other settings", self.said)
        self.assertEqual(len(self.pictures()), 1)

    def test_refuses_settings_that_are_none(self):
        for name, content, why in (("empty", b" \n", "it is empty"), ("binary", b"Size=1\0", "it is no text"),
                                   (".", None, "it is no file"), ("gone", None, "there is none"),
                                   ("huge", b"", "it is longer than 60000 bytes")):
            if content is not None:
                self.write(name, content)
            if name == "huge":
                os.truncate(self.home / name, 1 << 30)
            done = self.run_command("kavmap-series", "--out", "out", name)
            self.assertEqual((done.returncode, done.stderr), (1, f"kavmap-series: can't read {name}: {why}\n"))
        self.assertFalse((self.home / "out").exists())

    def test_refuses_wrong_use(self):
        for arguments in (["--hours=24"], ["--hours=5-3"], ["--hours=x"], ["--months=0"], ["--months=13"], ["--day=29"],
                          ["--bands=13"], ["--parameters=all"], ["--jobs=0"], ["--year=1800"], ["--year=x"],
                          ["--nonsense"], ["--bands=14", "--data=gone"]):
            self.series(*arguments, status=1)
            self.assertRegex(self.said, "^kavmap-series: ")
            self.assertFalse((self.home / "out").exists(), arguments)
        self.assertEqual(self.run_command("kavmap-series", "s.ini").returncode, 1)

    def test_refuses_a_directory_that_is_a_file(self):
        self.write("out", "")
        self.series("--hours=0", status=1)
        self.assertRegex(self.said, "can't write to out: ")

    def test_needs_gnu_parallel(self):
        self.script("bin/parallel", "#!/bin/sh\necho another\n")
        self.series("--hours=0", status=1, PATH=f"{self.home / 'bin'}:{os.environ['PATH']}")
        self.assertEqual(self.said, "kavmap-series: GNU parallel is not installed: its package is called parallel\n")


class ReadingTest(command.unittest.TestCase):
    def test_settings_are_read_as_kavmap_reads_them(self):
        text = "Dir=none\n[propagation]\nDir=/a\n[Other]\nDir=/b\n[Propagation]\ndir = /c d \n# Dir=/e\n"
        self.assertEqual(series.setting(text, "Propagation", "Dir"), "/c d")
        self.assertIsNone(series.setting(text, "Propagation", "Show"))
        self.assertEqual(series.setting('[Propagation]\nDir="/a\\\\b"\n', "Propagation", "Dir"), "/a\\b")

    def test_lists(self):
        self.assertEqual(series.numbers(0, 23)("0-2,23,1"), [0, 1, 2, 23])
        self.assertEqual(series.choices(series.BANDS)("14.0,USER,7"), ["14", "user", "7"])


if __name__ == "__main__":
    command.unittest.main()
