"""Help, manual page and completion of every command tell of the same options."""

import os
import pathlib
import re
import subprocess

import command

SOURCE = pathlib.Path(os.environ["KAV_SOURCE"])
COMMANDS = sorted(page.stem for page in (SOURCE / "docs").glob("*.1"))



class OptionsTest(command.CommandTest):
    def help(self, name):
        done = self.run_command(name, "--help")
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        return done.stdout

    def options(self, name):
        """Short and long names, as the help begins its lines with them."""
        return set(re.findall(r"-[-a-z]+", "\n".join(re.findall(r"^ +(-[-a-z]+(?:, --[-a-z]+)?)", self.help(name), re.M))))

    def takes(self, name):
        """What each long option takes by the help; nothing for some."""
        return dict(re.findall(r"^ .*?(--[-a-z]+)(?: ([A-Z]+(?:\[[:A-Z]+\])?))?(?=\s)", self.help(name), re.M))

    def manual(self, name):
        text = (SOURCE / "docs" / f"{name}.1").read_text().replace("\\-", "-")
        return re.findall(r"^\.TP\n\.BR? (-.*)$", text.split(".SH OPTIONS")[1].split(".SH")[0], re.M)

    def test_there_are_commands(self):
        self.assertIn("kavmap", COMMANDS)
        self.assertIn("kavmap-adif", COMMANDS)

    def test_manual_and_help_tell_of_the_same_options(self):
        for name in COMMANDS:
            in_manual = set(re.findall(r"(?<![a-z])--?[a-z][-a-z]*", " ".join(self.manual(name))))
            self.assertEqual(in_manual, self.options(name), name)
            self.assertGreater(len(in_manual), 4)

    def test_manual_and_help_tell_of_the_same_arguments(self):
        for name in COMMANDS:
            in_manual = {}
            for line in self.manual(name):
                argument = re.search(r"\\fI(.*)", line)
                in_manual[re.search(r"--[-a-z]+", line)[0]] = re.sub(r"\\f.|\"$", "", argument[1]) if argument else ""
            self.assertEqual(in_manual, self.takes(name), name)

    def test_bash_completes_every_option(self):
        for name in COMMANDS:
            self.assertEqual(set(self.completed(name, "-")), self.options(name), name)
            self.assertEqual(self.completed(name, "--hel"), ["--help"])

    def test_bash_completes_what_options_take(self):
        for file in ("a.ini", "b.png", "c.log", "d.adi"):
            self.write(file, "")
        (self.home / "directory").mkdir()
        self.assertEqual(set(self.completed("kavmap", "--render", "")), {"b.png", "directory"})
        self.assertEqual(set(self.completed("kavmap", "-s", "")), {"a.ini", "b.png", "c.log", "d.adi", "directory"})
        self.assertEqual(self.completed("kavmap", "--bearings", "c"), ["c.log"])
        self.assertEqual(self.completed("kavmap", "--settings", "=", "a"), ["a.ini"])
        self.assertEqual(self.completed("kavmap", "-t", ""), [])
        self.assertEqual(self.completed("kavmap", ""), [])
        self.assertEqual(set(self.completed("kavmap-adif", "")), {"d.adi", "directory"})

    def completed(self, *words):
        script = ('source "$1"; shift; COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); _kavmap; '
                  'printf "%s\\n" "${COMPREPLY[@]}"')
        done = subprocess.run(["bash", "-c", script, "bash", SOURCE / "data/completion/kavmap.bash", *words],
                              cwd=self.home, capture_output=True, text=True, check=True,
                              env={**os.environ, "PATH": f"{command.BIN}:{os.environ['PATH']}"})
        self.assertEqual(done.stderr, "")
        return done.stdout.split()


if __name__ == "__main__":
    command.unittest.main()
